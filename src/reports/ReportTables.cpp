// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The daily report's sunrise chart, Trishul, hora and chogadiya, and its panchang page. Table: TrishulPlaces.
#include <array>

#include "analysis/ChogadiyaPage.h"
#include "analysis/EvilMuhurthaPage.h"
#include "analysis/HoraPage.h"
#include "analysis/KundaliPage.h"
#include "analysis/PanchangPage.h"
#include "analysis/SelvaniDailyMod.h"
#include "analysis/TrishulPage.h"
#include "reports/clsDailyPrinter.h"

namespace {

constexpr unsigned Black = 0;
constexpr double HeadRule = 300, HeadText = 25, RowStep = 320, FirstRow = 100;  // twips

// The 28 numbers round the trident, in inches from the chart's top and from the left margin.
struct Place {
  double y, x;
};
constexpr std::array<Place, 28> TrishulPlaces{{
    {0.43, 4.32}, {0.3, 4.5},   {0.08, 5.15},  {1.1, 5.22},  {1.1, 5.45},  {0.08, 5.55},  {0.3, 6.2},
    {0.43, 6.37}, {0.6, 6.48},  {1.2, 6.7},    {1.3, 5.63},  {1.55, 5.63}, {1.65, 6.7},   {2.25, 6.48},
    {2.42, 6.37}, {2.55, 6.2},  {2.765, 5.55}, {1.7, 5.45},  {1.7, 5.22},  {2.765, 5.15}, {2.55, 4.5},
    {2.42, 4.32}, {2.25, 4.24}, {1.65, 4},     {1.55, 5.04}, {1.3, 5.04},  {1.2, 4},      {0.6, 4.24},
}};

// A text at a column's very edge begins with a blank, to stand clear of the rule there.
QString Inset(const QString &text) { return QLatin1Char(' ') + text; }

QString HeadOf(const std::optional<ExactFrame> &exact) { return exact ? exact->head : QString(); }

template <class Texts>
QStringList ListOf(const Texts &texts) {
  return QStringList(texts.begin(), texts.end());
}

}  // namespace

void clsDailyPrinter::PrintMoreCharts() {
  PageHeader();
  const double L = LeftMargin, y0 = TopMargin + Inches(1.25), tables = TopMargin + Inches(5.2 + 0.25);
  Title(PageTitle("SunriseKundali"), L + Inches(2), y0 - Inches(0.25));
  Chart(FillSunriseKundali(session.TodayChart()), L, y0, 350, 300);
  PrintTrishul(y0);
  PrintHoraTable(tables);
  PrintChogadiyaTable(tables);
  PageFooter();
}

void clsDailyPrinter::PrintTrishul(double y0) {
  const double L = LeftMargin;
  const TrishulPage page = FillTrishulChakra(session.TodayChart());
  Title(page.lblTrishulHead, L + Inches(5.35), y0 - Inches(0.25));
  printer.Picture(Picture(trishul, "trishul.jpg"), L + Inches(4), y0 + Inches(0.075), Inches(2.7), Inches(2.7));
  // The numbers of one point stand an eighth of an inch apart.
  for (size_t i = 0; i < TrishulPlaces.size(); ++i)
    PlaceText(QString::number(page.lblTrishulNums[i]), L + Inches(TrishulPlaces[i].x), y0 + Inches(TrishulPlaces[i].y), Across::Center,
              Down::Middle, {QLatin1String(NormFont), 8.5, i == 0});

  const double top = y0 + Inches(2.9), width = Inches(3);
  const double room = TopMargin + Inches(5.05) - top;
  Style style = SmallStyle();
  while (style.size > 7 && WrapColumn(page.lblTrishulText, 0, 0, width, 50, style, false) > room) style.size -= 0.25;
  WrapColumn(page.lblTrishulText, L + Inches(4), top, width, 50, style, true);
}

void clsDailyPrinter::PrintHoraTable(double y) {
  const HoraPage page = FillHoraPage(session.TodayChart());
  const double L = LeftMargin, column = Inches(0.85), width = 4 * column, room = column - 130;
  Title(TimesTitle(PageTitle("HoraChart"), HeadOf(page.exact)), L + Inches(1.7), y - Inches(0.25));
  printer.SetDrawWidth(1);
  printer.Box(L, y, L + width, y + Inches(3), Black);
  PlaceTimesHead(HeadOf(page.exact), y + Inches(3.1));  // for the chogadiyas beside them too
  Rule(L, y + HeadRule, L + width, y + HeadRule);
  Rule(L + column, y, L + column, y + Inches(3));
  printer.FilledBox(L + 2 * column, y, L + 2 * column + Inches(0.005), y + Inches(3), Black);
  Rule(L + 3 * column, y, L + 3 * column, y + Inches(3));
  const QStringList heads{page.lblDayHoraHead, page.lblTimeRangeHead, page.lblNightHoraHead, page.lblTimeRangeHead2};
  const Style headStyle = Common(heads, room, 9, {QLatin1String(NormFont), NormSize, true});
  const Style style = Common(ListOf(page.lblHoraName) + ListOf(page.lblHoraTime), room, 9);
  for (int i = 0; i < 4; ++i) PlaceFitted(heads[i], L + column * (i + 0.5), y + HeadText, Across::Center, Down::Top, room, headStyle);
  for (size_t hora = 0; hora < page.rows.size(); ++hora) {
    const double x = L + (hora < 12 ? 0 : 2 * column), rowY = y + HeadRule + FirstRow + RowStep * static_cast<double>(hora % 12);
    PlaceFitted(page.lblHoraName[hora], x + column / 2, rowY, Across::Center, Down::Top, room, style);
    PlaceFitted(page.lblHoraTime[hora], x + column * 1.5, rowY, Across::Center, Down::Top, room, style);
  }
}

void clsDailyPrinter::PrintChogadiyaTable(double y) {
  const ChogadiyaPage page = FillChogadiyaPage(session.TodayChart());
  const double left = LeftMargin + Inches(3.65), right = LeftMargin + Inches(6.8), middle = left + Inches(1.7);
  Title(TimesTitle(PageTitle("Chowgadiya"), HeadOf(page.exact)), middle, y - Inches(0.25));
  printer.SetDrawWidth(1);
  printer.Box(left, y, right, y + Inches(2.1), Black);
  Rule(left, y + HeadRule, right, y + HeadRule);
  printer.FilledBox(middle, y, middle + Inches(0.005), y + Inches(2.1), Black);
  const Style headStyle =
      Common({Inset(page.lblDayChogHead), Inset(page.lblNightChogHead)}, Inches(1.4), 9, {QLatin1String(NormFont), NormSize, true});
  PlaceFitted(Inset(page.lblDayChogHead), left, y + HeadText, Across::Left, Down::Top, Inches(1.65), headStyle);
  PlaceFitted(Inset(page.lblNightChogHead), middle, y + HeadText, Across::Left, Down::Top, Inches(1.4), headStyle);

  const double nameRoom = Inches(0.5) - 50, timeRoom = right - (left + Inches(2.205)) - 50;
  QStringList names, times;
  for (size_t i = 0; i < page.rows.size(); ++i) {
    names << Inset(page.lblChogName[i]);
    times << page.lblChogTime[i];
  }
  const Style nameStyle = Common(names, nameRoom, 8, {QLatin1String(NormFont), 10});
  Style timeStyle = Common(times, timeRoom, 8, {QLatin1String(NormFont), 10});
  for (const QString &time : times) {  // one form for all sixteen
    const Style fitted = Fitted(time, timeRoom, timeStyle);
    if (fitted.font != timeStyle.font || fitted.size < timeStyle.size) timeStyle = fitted;
  }
  for (size_t i = 0; i < page.rows.size(); ++i) {
    const double shift = i < 8 ? 0 : 1.705, rowY = y + HeadRule + FirstRow + RowStep * static_cast<double>(i % 8);
    PlaceFitted(names[static_cast<qsizetype>(i)], left + Inches(shift), rowY, Across::Left, Down::Top, nameRoom, nameStyle);
    PlaceFitted(page.lblChogTime[i], left + Inches(shift + 0.5), rowY + 130, Across::Left, Down::Middle, timeRoom, timeStyle);
  }
}

void clsDailyPrinter::PrintPanchang() {
  PageHeader();
  PageFooter();
  const PanchangPage page = FillPanchangPage(session.BirthChart(), session.TodayChart());
  constexpr double headRule = 250;  // nine rows need the room below it
  const double x0 = LeftMargin + Inches(0.2), y0 = TopMargin + Inches(1.75), top = y0 + Inches(0.25), bottom = y0 + Inches(2.2 + 0.25);
  Title(PageTitle("Panchang"), x0 + Inches(3.4), y0 + Inches(0.125));

  const double labelRoom = Inches(1.275) - 120, valueRoom = Inches(1.275) - 60;
  const auto box = [&](double from, const QString &head, const std::array<QString, PanchangPage::Rows> &labels,
                       const std::array<QString, PanchangPage::Rows> &values) {
    const double left = x0 + Inches(from), width = Inches(2.55), split = left + Inches(1.275);
    printer.SetDrawWidth(1);
    printer.Box(left, top, left + width, bottom, Black);
    Rule(left, top + headRule, left + width, top + headRule);
    Rule(split, top + headRule, split, bottom);
    PlaceFitted(head, left + width / 2, top + HeadText - 10, Across::Center, Down::Top, width - 120, {QLatin1String(NormFont), 10, true});
    const Style labelStyle = Common(ListOf(labels), labelRoom, 9, {QLatin1String(NormFont), 10});
    const Style valueStyle = Common(ListOf(values), valueRoom, 9, {QLatin1String(NormFont), 10});
    for (size_t i = 0; i < PanchangPage::Rows; ++i) {
      const double rowY = top + headRule + FirstRow + RowStep * static_cast<double>(i);
      PlaceFitted(labels[i], left + 75, rowY, Across::Left, Down::Top, labelRoom, labelStyle);
      PlaceFitted(Inset(values[i]), split, rowY, Across::Left, Down::Top, valueRoom, valueStyle);
    }
  };
  box(0.775, page.lblBirthPanchang, page.lblPanchBirthHead, page.lblPanchBirthVal);
  box(3.575, page.lblNowPanchang, page.lblPanchTodayHead, page.lblPanchTodayVal);
  PrintEvilMuhurthas(bottom + Inches(1));
}

void clsDailyPrinter::PrintEvilMuhurthas(double top) {
  const EvilMuhurthaPage page = FillEvilMuhurthaPage(session.TodayChart());
  const double left = LeftMargin + Inches(1.875), right = LeftMargin + Inches(5.275), bottom = top + Inches(1.25);
  Title(TimesTitle(PageTitle("EvilMuhurthas"), HeadOf(page.exact)), LeftMargin + Inches(3.4), top - Inches(0.25));
  printer.SetDrawWidth(1);
  printer.Box(left, top, right, bottom, Black);
  Rule(left, top + HeadRule, right, top + HeadRule);
  PlaceTimesHead(HeadOf(page.exact), bottom + Inches(0.1));
  const std::array<double, 3> columns{left, left + Inches(1.13), left + Inches(2.26)};
  for (size_t i = 1; i < columns.size(); ++i) Rule(columns[i], top, columns[i], bottom);
  const double room = Inches(1.13) - 60;
  const QStringList heads{Inset(page.lblMuhurthaName), Inset(page.lblStartTime), Inset(page.lblEndTime)};
  const Style headStyle = Common(heads, room, 9, {QLatin1String(NormFont), NormSize, true});
  for (size_t i = 0; i < columns.size(); ++i)
    PlaceFitted(heads[static_cast<qsizetype>(i)], columns[i], top + HeadText, Across::Left, Down::Top, room, headStyle);
  for (size_t i = 0; i < page.rows.size(); ++i) {
    const EvilMuhurthaPage::Row &row = page.rows[i];
    const double rowY = top + HeadRule + FirstRow + RowStep * static_cast<double>(i);
    PlaceFitted(Inset(row.head), columns[0], rowY, Across::Left, Down::Top, room);
    PlaceFitted(Inset(row.start), columns[1], rowY + 130, Across::Left, Down::Middle, room, {QLatin1String(NormFont), 10});
    PlaceFitted(Inset(row.end), columns[2], rowY + 130, Across::Left, Down::Middle, room, {QLatin1String(NormFont), 10});
  }
}
