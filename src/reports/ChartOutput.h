// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QSizeF>
#include <QString>

#include "chart/ChartLayout.h"

class PdfBox;
class PrinterService;

// A chart on paper: the parts of its drawing one by one, at the places that they have on screen. Texts without a caption and
// hidden parts are left out. Where a text would leave its cell it is set smaller, and stays readable.
namespace ChartOutput {

// x, y: top left of the chart on the page, twips; size: of the chart, twips.
// Texts wrap in their boxes, and keep the chart's own fonts. linePen: 600ths of an inch.
void PrintKundli(PrinterService &printer, const ChartLayout &chart, const QSizeF &size, double x, double y, int linePen = 10);

// Each text is one line from its box's corner, in one face and at most `points` high; a crowded cell may run on past its box.
void PrintKundaliNonApi(PrinterService &printer, const ChartLayout &chart, const QSizeF &size, double x, double y, const QString &face,
                        double points);

// x, y: tenths of a millimetre; size: twips.
void DrawPDFKundli(PdfBox &pdf, const ChartLayout &chart, const QSizeF &size, double x, double y);

}  // namespace ChartOutput
