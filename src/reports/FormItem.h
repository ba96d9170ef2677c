// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "chart/ChartLayout.h"
#include "platform/PrintFont.h"

// What an item stands in; a "Frame" gives its place to the items in it.
struct FormContainer {
  QString typeName;
  double Left = 0;
  double Top = 0;
};

// A formatted text: its characters, and the font and colour at a position.
struct FormText {
  struct Format {
    PrintFont font;
    unsigned ForeColor = 0;
  };

  QString Text;
  std::function<Format(int SelStart)> FormatAt;
};

// The edges between which running text stands on an upright sheet, in twips.
struct RunningText {
  static constexpr double Left = 1502, Width = 8902;
};

// One thing on a page as printing code sees it, by type name: "Label", "Line", "Shape", "Kundali", "Image" or
// "TXTextControl". Lengths are twips from the page's or the container's top left; colours are 0xRRGGBB.
struct FormItem {
  enum ShapeKind { Rectangle = 0, CircleShape = 3 };
  enum AlignmentKind { AlignLeft = 0, AlignRight = 1, AlignCenter = 2 };

  QString typeName;
  bool Visible = true;
  double Left = 0, Top = 0, Width = 0, Height = 0;
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;  // of a line
  int Shape = Rectangle;
  unsigned BorderColor = 0, ForeColor = 0;
  QImage Picture;
  std::optional<FormContainer> Container;
  int Alignment = AlignLeft;
  QString Caption;
  PrintFont Font;
  ChartLayout Chart;
  FormText RichText;

  double OffsetX() const { return Container && Container->typeName == QLatin1String("Frame") ? Container->Left : 0; }
  double OffsetY() const { return Container && Container->typeName == QLatin1String("Frame") ? Container->Top : 0; }
};

// A page of items in the order in which they are walked.
struct FormPage {
  std::vector<FormItem> items;
  bool landscape = false;  // wider than high
};
