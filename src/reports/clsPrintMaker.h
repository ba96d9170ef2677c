// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/PrinterService.h"
#include "reports/FormItem.h"

// Prints a screen page as it stands, item by item, 200 twips lower than on screen. It ends neither page nor document.
class clsPrintMaker {
 public:
  explicit clsPrintMaker(PrinterService &printerService) : printer(printerService) {}

  // Shapes first, so that texts print over them. A failure ends the walk and is told in a message; false then.
  bool PrintForm(const FormPage &form);
  static void TellFault();

  // One line at the printer's position. An empty name keeps the font's; a bold of false leaves bold off.
  void PrintMyText(const QString &text, const QString &fontName, double size, bool bold);

  void PrintLine(const FormItem &control);
  void PrintShape(const FormItem &control);
  void PrintRectangle(const FormItem &control);
  void PrintCircle(const FormItem &control);
  void PrintPicture(const FormItem &control);  // throws ReportError where there is no picture

 private:
  void PrintLabel(const FormItem &control);
  void PrintKundali(const FormItem &control);

  PrinterService &printer;
  PrintFont current;
};
