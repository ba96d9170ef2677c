// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QFont>
#include <QHash>
#include <QImage>
#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

#include <functional>
#include <optional>
#include <vector>

#include "chart/ChartLayout.h"

// The chart control without its surface: which text stands in which of the twelve cells, and where each part lies.
// It knows nothing of astrology: it is told the sign of the first house and what stands in each sign.
// Set style and house number before placing planets: a later change renumbers the cells and leaves the texts in theirs.
class KundaliModel {
 public:
  using State = QList<QPair<QString, QVariant>>;

  KundaliModel();

  // Called with a property's name whenever it was assigned; parts that change by an operation name none (an empty text).
  std::function<void(const QString &)> onChange;

  // --- operations ---------------------------------------------------------------------------------------

  // Empties the twelve planet texts; the house numbers stay.
  void Clear();

  // Adds a text to the cell of a sign, 1 to 12; the cell's caption always ends in one blank.
  // Throws SubscriptError where the sign has no cell.
  void PlanetPlace(int sign, const QString &text);

  // The planet text of cell `house` - 1, which in the North style counts from the ascendant; empty outside 1 to 12.
  QString HouseText(int house) const;

  // The number in the first cell: the ascendant's sign in the North style, always 1 in the others.
  // Throws ConversionError when that cell holds no number.
  int LagnaNo() const;

  // Hides the house numbers for good. Later only the North layout honours it, by not showing them again.
  void MakeHouseInvisible();

  // Places the texts of the current style anew; the North style draws its first three on the surface itself.
  void DrawKundli();

  // Wraps a number into the twelve with the edges this control rests on: 0 stays 0, 12 stays 12, 24 gives 0, -12 gives 12.
  static int Expunger12(int value);

  // Puts every part in its place for the style; runs by itself after the assignments that need it.
  void LayoutChart();

  // --- parts --------------------------------------------------------------------------------------------

  const ChartLayout &Layout() const { return layout; }

  // A cell's planet text and number box. Throw SubscriptError outside 0 to 11.
  const ChartLayout::Text &lblPlanet(int index) const;
  const ChartLayout::Text &lblHouseNo(int index) const;

  // The words of a chart that is heard: the twelve signs from Aries on, and a planet's whole name by its short one.
  struct SpokenNames {
    std::vector<QString> signs;
    QHash<QString, QString> planets;
  };
  // Where a name is missing the number of the sign, and the planet as it is written, stand in its place.
  void SetSpokenNames(SpokenNames names) { spoken = std::move(names); }

  // A cell in words, such as "House 1, Virgo: Ascendant, Mars." Throws SubscriptError outside 0 to 11.
  QString CellWords(int cell) const;

  // Where the planets of each cell stand, in words for a reader who does not see the drawing; empty cells are left out.
  QString Description() const;

  // --- properties ---------------------------------------------------------------------------------------

  int ChartStyle() const { return chartStyle; }
  void SetChartStyle(int style);  // ChartLayout::Style; any other value leaves the layout as it stands
  int HouseNumber() const { return houseNumber; }
  void SetHouseNumber(int sign);
  int LineWidth() const { return layout.lineWidth; }
  void SetLineWidth(int pixels);  // 0 becomes 1
  int BorderWidth() const { return borderWidth; }
  void SetBorderWidth(int pixels);  // 0 becomes 1; the border's place follows with the next layout
  QColor BackColor() const { return layout.backColor; }
  void SetBackColor(const QColor &colour);
  QColor ForeColor() const { return foreColor; }
  void SetForeColor(const QColor &colour);  // kept only, nothing is drawn with it
  QColor LineColor() const { return layout.lineColor; }
  void SetLineColor(const QColor &colour);
  QColor BorderColor() const { return layout.borderColor; }
  void SetBorderColor(const QColor &colour);
  QColor TextColor() const { return layout.textColor; }
  void SetTextColor(const QColor &colour);
  QColor NumberColor() const { return layout.numberColor; }
  void SetNumberColor(const QColor &colour);
  const std::optional<QFont> &HouseFont() const { return houseFont; }
  void SetHouseFont(const QFont &font);
  const std::optional<QFont> &PlanetFont() const { return planetFont; }
  void SetPlanetFont(const QFont &font);
  QImage CentrePic() const { return layout.centrePic; }
  void SetCentrePic(const QImage &picture);
  bool Enabled() const { return enabled; }
  void SetEnabled(bool on);

  // The entry that is set apart in the accent colour; not part of the saved state.
  void SetAccentText(const QString &text);

  // A flag that saved states may carry; the drawing never asks for it.
  bool InvisHouseNum() const { return invisHouseNum; }

  // --- saved state --------------------------------------------------------------------------------------

  // The properties by name in their saved order; `HouseNumber` stands there twice, `InvisHouseNum` is not written.
  State WriteState() const;

  // Takes over a saved state; a property that is missing takes its default.
  void ReadState(const State &state);

 private:
  void LayoutFrame(bool innerCross);
  void PlaceNorthLabels();
  void PlaceEastLabels();
  void PlaceSouthLabels();
  void Changed(const char *property) const;

  ChartLayout layout;
  int chartStyle = ChartLayout::North;
  int houseNumber = 1;
  int borderWidth = 1;
  QColor foreColor;
  std::optional<QFont> houseFont;
  std::optional<QFont> planetFont;
  bool enabled = true;
  bool numbersHidden = false;
  bool invisHouseNum = false;
  SpokenNames spoken;
};
