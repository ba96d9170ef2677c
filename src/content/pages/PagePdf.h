// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QPageLayout>
#include <QRectF>
#include <QString>
#include <functional>

class QPagedPaintDevice;
class QPainter;
class QWidget;

// One drawing on one sheet, as a PDF or on a printer.
namespace PagePdf {

using Paint = std::function<void(QPainter &, const QRectF &)>;  // the sheet less its margins

// The drawing on a sheet of its own. Throws ReportError where the device takes no page.
void PaintSheet(QPagedPaintDevice &device, const Paint &paint);

// Writes the file whole or not at all. Throws StoreError where it cannot be written.
void Write(const QString &path, const QString &title, QPageLayout::Orientation orientation, const Paint &paint);

// Asks for a printer; prints nothing where the user chose none. Throws ReportError where the printer takes no page.
void Print(QWidget *parent, const QString &title, QPageLayout::Orientation orientation, const Paint &paint);

// Asks where to save; empty where the user chose nothing. An ending that is missing is put behind the name, and a file that is there is
// replaced only by leave.
QString AskFile(QWidget *parent, const QString &caption, const QString &suggested, const QString &filter);

}  // namespace PagePdf
