// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The twelve cells of a chart and the constant places of their parts in the three drawings.
// Tables: NorthLines, EastLines, SouthLines, NorthCells, EastCells, SouthCells.
#include "chart/KundaliModel.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

#include "platform/Errors.h"

namespace {

constexpr int Cells = ChartLayout::Cells;

// Room for two digits; no number box then meets a planets box or, in the East style, eats into a line.
constexpr QSizeF NumberSize(40, 50);

constexpr QRectF CentreBox(400, 400, 200, 200);

struct Ends {
  double x1, y1, x2, y2;
};

constexpr std::array<Ends, 6> NorthLines{{
    {500, 0, 0, 500},        // inner diamond, top left
    {500, 0, 1000, 500},     // top right
    {0, 500, 500, 1000},     // bottom left
    {500, 1000, 1000, 500},  // bottom right
    {0, 0, 1000, 1000},      // main diagonal
    {1000, 0, 0, 1000},      // other diagonal
}};

constexpr std::array<Ends, 8> EastLines{{
    {375, 0, 375, 1000},
    {625, 0, 625, 1000},
    {0, 375, 1000, 375},
    {0, 625, 1000, 625},
    {0, 0, 375, 375},
    {1000, 1000, 625, 625},
    {625, 375, 1000, 0},
    {0, 1000, 375, 625},
}};

constexpr std::array<Ends, 8> SouthLines{{
    {250, 0, 250, 1000},
    {750, 0, 750, 1000},
    {0, 250, 1000, 250},
    {0, 750, 1000, 750},
    {500, 0, 500, 250},
    {500, 750, 500, 1000},
    {0, 500, 250, 500},
    {750, 500, 1000, 500},
}};

struct Cell {
  QPointF number;
  QRectF planets;
};

// The sizes differ a little from house to house so that each box keeps inside its own slanted cell.
constexpr std::array<Cell, Cells> NorthCells{{
    {{490, 40}, {400, 100, 200, 300}},
    {{70, 10}, {150, 20, 210, 120}},
    {{15, 60}, {15, 160, 150, 180}},
    {{50, 480}, {150, 350, 200, 300}},
    {{15, 880}, {15, 660, 150, 180}},
    {{70, 920}, {160, 840, 180, 145}},
    {{490, 910}, {400, 600, 200, 300}},
    {{890, 920}, {660, 830, 180, 150}},
    {{940, 880}, {840, 660, 150, 180}},
    {{920, 480}, {650, 350, 200, 300}},
    {{940, 70}, {840, 160, 150, 180}},
    {{900, 10}, {640, 20, 220, 120}},
}};

// Only the signs in the four middle cells show their number, at the inner edge; the others have no place for one.
constexpr bool IsMiddleCell(int index) { return index % 3 == 0; }
constexpr QPointF None;
constexpr std::array<Cell, Cells> EastCells{{
    {{400, 315}, {385, 40, 225, 260}},
    {None, {210, 20, 150, 190}},
    {None, {10, 160, 150, 210}},
    {{330, 400}, {10, 390, 250, 200}},
    {None, {10, 640, 160, 185}},
    {None, {210, 800, 150, 180}},
    {{400, 630}, {390, 690, 220, 270}},
    {None, {640, 800, 150, 180}},
    {None, {830, 640, 150, 190}},
    {{635, 400}, {690, 390, 290, 200}},
    {None, {840, 165, 150, 200}},
    {None, {640, 10, 150, 200}},
}};

// The left column's numbers stand at 15 and its planets at 10.
constexpr std::array<Cell, Cells> SouthCells{{
    {{260, 10}, {260, 70, 220, 170}},
    {{510, 10}, {510, 70, 220, 170}},
    {{760, 10}, {760, 70, 220, 170}},
    {{760, 260}, {760, 320, 220, 170}},
    {{760, 510}, {760, 570, 220, 170}},
    {{760, 760}, {760, 820, 220, 170}},
    {{510, 760}, {510, 820, 220, 170}},
    {{260, 760}, {260, 820, 220, 170}},
    {{15, 760}, {10, 820, 220, 170}},
    {{15, 510}, {10, 570, 220, 170}},
    {{15, 260}, {10, 320, 220, 170}},
    {{15, 10}, {10, 70, 220, 170}},
}};

// Where the first three houses' texts go when they are drawn straight on the surface.
constexpr std::array<QRectF, ChartLayout::SurfaceTexts> NorthSurface{{{385, 140, 250, 300}, {150, 20, 210, 120}, {15, 160, 150, 180}}};

template <size_t N>
void PlaceLines(const std::array<Ends, N> &table, ChartLayout &layout) {
  for (size_t i = 0; i < N; ++i) layout.lines[i].ends = QLineF(table[i].x1, table[i].y1, table[i].x2, table[i].y2);
}

// Size, face and the slanted and struck forms follow the property at every layout; weight only with the assignment itself.
void CopyAtLayout(const QFont &from, QFont &to) {
  to.setFamilies(from.families());
  if (from.pointSizeF() > 0)
    to.setPointSizeF(from.pointSizeF());
  else
    to.setPixelSize(from.pixelSize());
  to.setItalic(from.italic());
  to.setStrikeOut(from.strikeOut());
  to.setUnderline(from.underline());
}

}  // namespace

KundaliModel::KundaliModel() {
  layout.houseFont = QFont(QStringLiteral("Arial"));
  layout.houseFont.setPointSizeF(8.25);
  for (auto &text : layout.lblPlanet) text.centred = true;
  for (auto &text : layout.lblHouseNo) text.box.setSize(NumberSize);
  layout.surfaceBoxes = NorthSurface;
  LayoutChart();
}

void KundaliModel::Changed(const char *property) const {
  if (onChange) onChange(QLatin1String(property));
}

// --- operations -------------------------------------------------------------------------------------------

void KundaliModel::Clear() {
  for (auto &text : layout.lblPlanet) text.caption.clear();
  Changed("");
}

int KundaliModel::Expunger12(int value) {
  if (value > 12) value %= 12;
  return value < 0 ? value % 12 + 12 : value;
}

void KundaliModel::PlanetPlace(int sign, const QString &text) {
  const int index = chartStyle == ChartLayout::North ? Expunger12(sign - houseNumber) : sign - 1;
  SubscriptError::Check("lblPlanet", index, 0, Cells - 1);
  QString &caption = layout.lblPlanet[static_cast<size_t>(index)].caption;
  caption = (caption + text).trimmed() + QLatin1Char(' ');
  Changed("");
}

QString KundaliModel::HouseText(int house) const { return house >= 1 && house <= Cells ? lblPlanet(house - 1).caption : QString(); }

int KundaliModel::LagnaNo() const {
  bool isNumber = false;
  const int number = lblHouseNo(0).caption.toInt(&isNumber);
  if (!isNumber) throw ConversionError(QCoreApplication::translate("KundaliModel", "The chart's first cell holds no number."));
  return number;
}

void KundaliModel::MakeHouseInvisible() {
  numbersHidden = true;
  for (auto &text : layout.lblHouseNo) text.visible = false;
  Changed("");
}

void KundaliModel::DrawKundli() {
  switch (chartStyle) {
    case ChartLayout::North: layout.textOnSurface = true; break;
    case ChartLayout::East: PlaceEastLabels(); break;
    case ChartLayout::South: PlaceSouthLabels(); break;
    default: break;
  }
  Changed("");
}

// --- layout -----------------------------------------------------------------------------------------------

void KundaliModel::LayoutChart() {
  switch (chartStyle) {
    case ChartLayout::North:
      LayoutFrame(false);
      PlaceLines(NorthLines, layout);
      PlaceNorthLabels();
      break;
    case ChartLayout::East:
      LayoutFrame(true);
      PlaceLines(EastLines, layout);
      PlaceEastLabels();
      break;
    case ChartLayout::South:
      LayoutFrame(true);
      PlaceLines(SouthLines, layout);
      PlaceSouthLabels();
      break;
    default: break;
  }
  layout.borderWidth = borderWidth;
  layout.textOnSurface = false;
  if (!planetFont) return;
  CopyAtLayout(*planetFont, layout.planetFont);
  if (!houseFont) return;
  CopyAtLayout(*houseFont, layout.houseFont);
  layout.houseFont.setBold(houseFont->bold());
}

// What the three drawings share. The seventh and eighth line belong to the East and South drawings only.
void KundaliModel::LayoutFrame(bool innerCross) {
  layout.style = static_cast<ChartLayout::Style>(chartStyle);
  layout.lines[6].visible = layout.lines[7].visible = innerCross;
  const double width = layout.borderWidth;
  layout.squMain = QRectF(width + 1, width + 1, 999 - width, 999 - width);
  layout.imgCenter = CentreBox;
}

void KundaliModel::PlaceNorthLabels() {
  for (int i = 0; i < Cells; ++i) {
    const auto index = static_cast<size_t>(i);
    ChartLayout::Text &number = layout.lblHouseNo[index];
    number.caption = QString::number(Expunger12(houseNumber + i));
    number.opaque = false;
    if (!numbersHidden) number.visible = true;
    number.box.moveTo(NorthCells[index].number);
    layout.lblPlanet[index].box = NorthCells[index].planets;
  }
}

// Hides eight numbers and never shows one: numbers hidden before stay hidden.
void KundaliModel::PlaceEastLabels() {
  for (int i = 0; i < Cells; ++i) {
    const auto index = static_cast<size_t>(i);
    ChartLayout::Text &number = layout.lblHouseNo[index];
    if (IsMiddleCell(i)) {
      number.caption = QString::number(i + 1);
      number.opaque = true;
      number.box.moveTo(EastCells[index].number);
    } else {
      number.visible = false;
    }
    layout.lblPlanet[index].box = EastCells[index].planets;
  }
}

// Touches neither visibility nor masking: what another style left stays.
void KundaliModel::PlaceSouthLabels() {
  for (int i = 0; i < Cells; ++i) {
    const auto index = static_cast<size_t>(i);
    layout.lblHouseNo[index].caption = QString::number(i + 1);
    layout.lblHouseNo[index].box.moveTo(SouthCells[index].number);
    layout.lblPlanet[index].box = SouthCells[index].planets;
  }
}

// --- parts ------------------------------------------------------------------------------------------------

const ChartLayout::Text &KundaliModel::lblPlanet(int index) const {
  SubscriptError::Check("lblPlanet", index, 0, Cells - 1);
  return layout.lblPlanet[static_cast<size_t>(index)];
}

const ChartLayout::Text &KundaliModel::lblHouseNo(int index) const {
  SubscriptError::Check("lblHouseNo", index, 0, Cells - 1);
  return layout.lblHouseNo[static_cast<size_t>(index)];
}

QString KundaliModel::CellWords(int cell) const {
  QStringList planets;
  for (const QString &name : lblPlanet(cell).caption.split(QLatin1Char(' '), Qt::SkipEmptyParts))
    planets << spoken.planets.value(name, name);
  const QString held = planets.isEmpty() ? QCoreApplication::translate("Kundali", "empty") : planets.join(QStringLiteral(", "));
  const bool isNorth = layout.style == ChartLayout::North;
  const int sign = isNorth ? lblHouseNo(cell).caption.toInt() : cell + 1;
  const bool isNamed = sign >= 1 && sign <= static_cast<int>(spoken.signs.size());
  const QString number = QString::number(cell + 1);
  if (!isNamed)
    return isNorth ? QCoreApplication::translate("Kundali", "House %1, sign %2: %3.").arg(number, lblHouseNo(cell).caption, held)
                   : QCoreApplication::translate("Kundali", "Sign %1: %2.").arg(number, held);
  const QString &name = spoken.signs[static_cast<size_t>(sign - 1)];
  return isNorth ? QCoreApplication::translate("Kundali", "House %1, %2: %3.").arg(number, name, held)
                 : QStringLiteral("%1: %2.").arg(name, held);
}

QString KundaliModel::Description() const {
  QStringList cells;
  for (int i = 0; i < Cells; ++i)
    if (!lblPlanet(i).caption.trimmed().isEmpty()) cells << CellWords(i);
  return cells.isEmpty() ? QCoreApplication::translate("Kundali", "No planets are placed.") : cells.join(QLatin1Char(' '));
}

// --- properties -------------------------------------------------------------------------------------------

void KundaliModel::SetChartStyle(int style) {
  chartStyle = style;
  LayoutChart();
  Changed("ChartStyle");
}

void KundaliModel::SetHouseNumber(int sign) {
  houseNumber = sign;
  LayoutChart();
  Changed("HouseNumber");
}

void KundaliModel::SetLineWidth(int pixels) {
  layout.lineWidth = pixels == 0 ? 1 : pixels;
  LayoutChart();
  Changed("LineWidth");
}

void KundaliModel::SetBorderWidth(int pixels) {
  borderWidth = layout.borderWidth = pixels == 0 ? 1 : pixels;
  Changed("BorderWidth");
}

void KundaliModel::SetBackColor(const QColor &colour) {
  layout.backColor = colour;
  Changed("BackColor");
}

void KundaliModel::SetForeColor(const QColor &colour) {
  foreColor = colour;
  LayoutChart();
  Changed("ForeColor");
}

void KundaliModel::SetLineColor(const QColor &colour) {
  layout.lineColor = colour;
  LayoutChart();
  Changed("LineColor");
}

void KundaliModel::SetBorderColor(const QColor &colour) {
  layout.borderColor = colour;
  Changed("BorderColor");
}

void KundaliModel::SetTextColor(const QColor &colour) {
  layout.textColor = colour;
  Changed("TextColor");
}

void KundaliModel::SetNumberColor(const QColor &colour) {
  layout.numberColor = colour;
  Changed("NumberColor");
}

void KundaliModel::SetHouseFont(const QFont &font) {
  houseFont = font;
  LayoutChart();
  layout.houseFont = font;
  Changed("HouseFont");
}

void KundaliModel::SetPlanetFont(const QFont &font) {
  planetFont = font;
  LayoutChart();
  layout.planetFont = font;
  Changed("PlanetFont");
}

void KundaliModel::SetCentrePic(const QImage &picture) {
  layout.centrePic = picture;
  Changed("CentrePic");
}

void KundaliModel::SetEnabled(bool on) {
  enabled = on;
  Changed("Enabled");
}

void KundaliModel::SetAccentText(const QString &text) {
  layout.accentText = text.trimmed();
  Changed("");
}

// --- saved state ------------------------------------------------------------------------------------------

KundaliModel::State KundaliModel::WriteState() const {
  const auto fontValue = [](const std::optional<QFont> &font) { return font ? QVariant(*font) : QVariant(); };
  return {
      {QStringLiteral("BackColor"), BackColor()},
      {QStringLiteral("ForeColor"), ForeColor()},
      {QStringLiteral("Enabled"), Enabled()},
      {QStringLiteral("HouseFont"), fontValue(houseFont)},
      {QStringLiteral("PlanetFont"), fontValue(planetFont)},
      {QStringLiteral("LineColor"), LineColor()},
      {QStringLiteral("HouseNumber"), HouseNumber()},
      {QStringLiteral("LineWidth"), LineWidth()},
      {QStringLiteral("BorderWidth"), BorderWidth()},
      {QStringLiteral("CentrePic"), CentrePic()},
      {QStringLiteral("HouseNumber"), HouseNumber()},
      {QStringLiteral("TextColor"), TextColor()},
      {QStringLiteral("ChartStyle"), ChartStyle()},
      {QStringLiteral("BorderColor"), BorderColor()},
      {QStringLiteral("NumberColor"), NumberColor()},
  };
}

void KundaliModel::ReadState(const State &state) {
  QHash<QString, QVariant> saved;
  for (const auto &[name, value] : state) saved.insert(name, value);
  const auto take = [&saved](const char *name, const QVariant &standard) {
    const QVariant value = saved.value(QLatin1String(name));
    return value.isValid() ? value : standard;
  };
  const QVariant black = QColor(Qt::black);
  SetBackColor(take("BackColor", QColor()).value<QColor>());
  SetForeColor(take("ForeColor", QColor()).value<QColor>());
  SetEnabled(take("Enabled", true).toBool());
  if (const QVariant font = take("HouseFont", {}); font.isValid()) SetHouseFont(font.value<QFont>());
  if (const QVariant font = take("PlanetFont", {}); font.isValid()) SetPlanetFont(font.value<QFont>());
  SetLineColor(take("LineColor", black).value<QColor>());
  SetHouseNumber(take("HouseNumber", 1).toInt());
  SetLineWidth(take("LineWidth", 1).toInt());
  SetBorderWidth(take("BorderWidth", 1).toInt());
  SetCentrePic(take("CentrePic", {}).value<QImage>());
  SetTextColor(take("TextColor", black).value<QColor>());
  SetChartStyle(take("ChartStyle", 0).toInt());
  SetBorderColor(take("BorderColor", black).value<QColor>());
  SetNumberColor(take("NumberColor", black).value<QColor>());
  invisHouseNum = take("InvisHouseNum", false).toBool();
}
