// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The front page, the planet tables and the dasha page of the daily report.
#include <QLocale>
#include <array>

#include "analysis/PlanetTablePage.h"
#include "analysis/SelvaniDailyMod.h"
#include "reports/PratyanTree.h"
#include "reports/clsDailyPrinter.h"

namespace {

constexpr unsigned Black = 0;

QString DateForm(const QDateTime &moment, const char *form) { return QLocale::c().toString(moment, QLatin1String(form)); }

}  // namespace

void clsDailyPrinter::PrintFrontPage() {
  const OverviewPage overview = session.FillMainPage();
  const double L = LeftMargin, T = TopMargin, middle = L + Inches(3.4), right = L + Inches(6.8);

  printer.SetDrawWidth(1);
  printer.FilledBox(L, T, right, T + 30, Black);
  printer.Box(L, T, right, T + Inches(1.5), Black);
  printer.Picture(Picture(punditji, "punditji.jpg", true), L + 100, T - 300, 1000, 2108);
  PlaceText(QStringLiteral("Daily Astrology"), L + Inches(0.8), T - 250, Across::Left, Down::Top, HeadStyle(11));
  PlaceFitted(session.NowInfo().trimmed(), right, T - 250, Across::Right, Down::Top, Inches(4.4), {QLatin1String(NormFont), 11});

  const clsPerson &birth = session.BirthChart().clsPerson(), &now = session.TodayChart().clsPerson();
  const double beside = Inches(5.2);  // what the picture leaves to both sides of the middle
  PlaceFitted(session.ShowPersonHeader().lblPersonName, middle, T + Inches(0.25), Across::Center, Down::Top, beside, HeadStyle(18));
  PlaceFitted(QStringLiteral("Born on %1 at %2in %3, %4")
                  .arg(DateForm(birth.GetBirthDate(), " dddd, MMMM, dd, yyyy"), DateForm(birth.GetBirthDate(), " hh:mm AP "), birth.PLOB(),
                       birth.Country()),
              middle, T + Inches(0.75), Across::Center, Down::Top, beside);
  PlaceFitted(QStringLiteral("presently residing in %1, %2").arg(now.PLOB(), now.Country()), middle, T + Inches(1), Across::Center,
              Down::Top, beside);

  struct Row {
    QString label, value;
  };
  const auto table = [&](const QString &title, double top, const std::array<Row, 5> &rows, double valueShift) {
    PlaceText(title, L, T + Inches(top), Across::Left, Down::Top, HeadStyle(14));
    const double y = T + Inches(top + 0.25);
    printer.SetDrawWidth(1);
    printer.Box(L, y, L + Inches(2.5), y + Inches(3), Black);
    for (int i = 1; i < 5; ++i) Rule(L, y + Inches(0.6 * i), L + Inches(2.5), y + Inches(0.6 * i));
    QStringList labels, values;
    for (const Row &row : rows) {
      labels << row.label;
      values << row.value;
    }
    const double labelRoom = Inches(0.95) - 60, valueRoom = Inches(1.45) - 60;
    const Style labelStyle = Common(labels, labelRoom, 9), valueStyle = Common(values, valueRoom, 9);
    for (int i = 0; i < 5; ++i) {
      const Row &row = rows[static_cast<size_t>(i)];
      const double rowY = y + Inches(0.3 + 0.6 * i);
      PlaceFitted(row.label, L + Inches(0.95), rowY, Across::Right, Down::Middle, labelRoom, labelStyle);
      PlaceFitted(row.value, L + Inches(1.05), rowY + valueShift, Across::Left, Down::Middle, valueRoom, valueStyle);
    }
  };
  table(overview.lblTodPanchang, 1.75,
        {{{overview.lblDayHead, overview.lblDayVal},
          {overview.lblTithiHead, overview.lblTithiVal},
          {overview.lblNakHead, overview.lblNakVal},
          {overview.lblYogaHead, overview.lblYogaVal},
          {overview.lblKaranHead, overview.lblKaranVal}}},
        0);
  table(TimesTitle(overview.lblOthFactors, overview.lblExactHead), 5.25,
        {{{overview.lblRahuKaalHead, overview.lblRahuKaalVal},
          {overview.lblSunRiseHead, overview.lblSunriseVal},
          {overview.lblSunSetHead, overview.lblSunsetVal},
          {overview.lblYamGhantaHead, overview.lblYamghantaVal},
          {overview.lblCurDashaHead, overview.lblCurDashaVal}}},
        10);

  Title(overview.lblBKundali, L + Inches(5), T + Inches(1.75), Down::Top);
  Chart(overview.kunBirth, L + Inches(2.7), T + Inches(2), 380, 290);
  Title(overview.lblTransKundali, L + Inches(5), T + Inches(5.25), Down::Top);
  Chart(overview.kunTransit, L + Inches(2.7), T + Inches(5.5), 380, 290);
  PlaceTimesHead(overview.lblExactHead, T + Inches(8.6));
  PageFooter();
}

void clsDailyPrinter::PrintPlanets() {
  PageHeader();
  const double first = TopMargin + Inches(1.25), second = first + 3900 + Inches(0.75);
  PrintPlanetTable(session.BirthChart(), PageTitle("BirthPlanets"), first, false);
  PrintPlanetTable(session.TodayChart(), PageTitle("TodayPlanets"), second, true);
}

void clsDailyPrinter::PrintPlanetTable(const clsPlanets &chart, const QString &title, double y0, bool withFooter) {
  constexpr double rowHeight = 300;
  constexpr int rowCount = 13;
  PlanetTablePage page = FillPlanets(chart);
  page.rows[0].lblDir = chart.Direction(0);  // left empty on the screen alone
  const double x0 = LeftMargin + Inches(0.2), column = Inches(0.8), head = Inches(0.3), room = column - 130;
  Title(title, x0 + Inches(3.4), y0 - Inches(0.25));
  printer.SetDrawWidth(1);
  const double bottom = y0 + head + rowCount * rowHeight;
  printer.Box(x0, y0, x0 + 8 * column, bottom, Black);
  Rule(x0, y0 + head, x0 + 8 * column, y0 + head);
  for (int i = 1; i < 8; ++i) Rule(x0 + i * column, y0, x0 + i * column, bottom);

  using Row = PlanetTablePage::Row;
  struct Column {
    const QString &head;
    QString Row::*value;
  };
  const std::array<Column, 8> columns{{{page.lblPlntHead, &Row::lblPlanets},
                                       {page.lblRashiHead, &Row::lblRashi},
                                       {page.lblPDegreeHead, &Row::lblDegrees},
                                       {page.lblPNakHead, &Row::lblNak},
                                       {page.lblPNakLHead, &Row::lblNakLord},
                                       {page.lblPadaHead, &Row::lblPad},
                                       {page.lblDirHead, &Row::lblDir},
                                       {page.lblPStateHead, &Row::lblState}}};
  QStringList heads, values;
  for (const Column &c : columns) {
    heads << c.head;
    for (const Row &row : page.rows) values << row.*c.value;
  }
  const Style headStyle = Common(heads, room, 9, {QLatin1String(NormFont), NormSize, true}), bodyStyle = Common(values, room, 10);
  for (size_t i = 0; i < columns.size(); ++i)
    PlaceFitted(columns[i].head, x0 + column * (0.5 + static_cast<double>(i)), y0 + head / 2, Across::Center, Down::Middle, room,
                headStyle);
  if (withFooter) PageFooter();
  for (size_t r = 0; r < page.rows.size(); ++r)
    for (size_t i = 0; i < columns.size(); ++i)
      PlaceFitted(page.rows[r].*columns[i].value, x0 + column * (0.5 + static_cast<double>(i)),
                  y0 + head + rowHeight * (0.5 + static_cast<double>(r)), Across::Center, Down::Middle, room, bodyStyle);
}

void clsDailyPrinter::PrintDasha() {
  const double former = LeftMargin;
  LeftMargin -= 370;  // three columns of dates need the room
  PageHeader();
  PratyanTree tree;
  tree.FindPratyantara(session.BirthChart(), session.AnalysisMoment());
  // Close under the header: only a large text keeps clear of its rule.
  PlaceText(Word("Gen", "Mahadasha"), LeftMargin + Inches(3.31), TopMargin + Inches(0.48), Across::Center, Down::Top, HeadStyle(18));
  for (const PratyanLabel &label : tree.Labels())
    PlaceText(label.caption, label.left + LeftMargin, label.top + 100, Across::Left, Down::Top,
              {QLatin1String(NormFont), NormSize, label.bold});
  printer.SetDrawWidth(1);
  constexpr std::array<std::array<double, 2>, 3> columns{{{0.8, 2.55}, {2.9, 4.5}, {5, 6.626}}};
  for (const auto &[from, to] : columns)
    for (const double y : {0.9, 1.4, 3.74, 4.22, 6.626, 7.1})
      Rule(LeftMargin + Inches(from), TopMargin + Inches(y), LeftMargin + Inches(to), TopMargin + Inches(y));
  PageFooter();
  LeftMargin = former;
}
