// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

class QPrinter;
class QWidget;

// A page of the screen in a file or on paper.
namespace PageExport {

// Writes the page as it stands to a PDF of its own. Throws StoreError where the file cannot be written, which then stays as it was.
// `personName` heads the pages of running text.
void SavePdf(QWidget &page, const QString &path, const QString &personName, const QString &makerAddress);

// Prints the page as it stands, the paper turned as suits it; running text takes as many sheets as it needs. A failure is told in a
// message; false then.
bool Print(QWidget &page, QPrinter &printer);

}  // namespace PageExport
