// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The study pages of the daily report: what the screen shows of a chart beyond the day, for birth and day.
#include <QCoreApplication>
#include <QLocale>
#include <algorithm>

#include "analysis/AshtakavargaPage.h"
#include "analysis/AspectsPage.h"
#include "analysis/BirthAttributesPage.h"
#include "analysis/ScoresPage.h"
#include "analysis/SelvaniDailyMod.h"
#include "analysis/UpagrahasPage.h"
#include "analysis/VakyaPage.h"
#include "analysis/VargasPage.h"
#include "chart/ChartPalette.h"
#include "reports/clsDailyPrinter.h"

namespace {

constexpr unsigned White = 0xFFFFFF, Marked = 0xE0E0E0, Diagonal = 0xBDBDBD, Faint = 0xB0B0B0;
constexpr double PageWidth = 6.6, TableTop = 1.25;  // inches

// From white to gold, which a grey printer turns into ever darker greys under black figures.
unsigned Heat(double share) {
  constexpr double warmest = 0.65;
  return ChartPalette::Mixed(Qt::white, ChartPalette::Light().gold, warmest * share).rgb() & 0xFFFFFF;
}

// The cells of a column from rows of a page.
template <class Rows, class Row>
QStringList ColumnOf(const Rows &rows, QString Row::*value) {
  QStringList cells;
  for (const Row &row : rows) cells << row.*value;
  return cells;
}

}  // namespace

void clsDailyPrinter::PrintVargas() {
  constexpr size_t Rashi = 0, Navamsha = 5;
  constexpr double gap = 0.3, small = (PageWidth - 2 * gap) / 3, large = (PageWidth - gap) / 2, smallHeight = 2.35;
  constexpr size_t across = 3, perPage = 9;
  OfBirthAndDay("DivisionalCharts", [&](const clsPlanets &chart, const QString &title) {
    const VargasPage page = FillVargas(chart);
    PrintVargaTable(page);
    const auto draw = [&](const VargasPage::Varga &varga, double left, double top, double width, double height, double points) {
      StudyChart(varga.chart, varga.name, {LeftMargin + Inches(left), TopMargin + Inches(top), Inches(width), Inches(height)}, points);
    };
    constexpr double chartsTop = 5.1, chartsHeight = 3.5;
    draw(page.vargas[Rashi], 0, chartsTop, large, chartsHeight, 10);
    draw(page.vargas[Navamsha], large + gap, chartsTop, large, chartsHeight, 10);
    size_t drawn = 0;
    for (size_t i = 0; i < page.vargas.size(); ++i) {
      if (i == Rashi || i == Navamsha) continue;
      const size_t at = drawn++ % perPage;
      if (at == 0) {
        printer.NewPage();
        BeginStudyPage(title);
      }
      draw(page.vargas[i], static_cast<double>(at % across) * (small + gap),
           TableTop + static_cast<double>(at / across) * (smallHeight + gap), small, smallHeight, 9);
    }
  });
}

void clsDailyPrinter::PrintVargaTable(const VargasPage &page) {
  Table table{{{.head = page.lblPointHead, .cells = ColumnOf(page.points, &VargasPage::Point::name), .share = 2.6, .strong = true},
               {.head = page.lblDegreesHead, .cells = ColumnOf(page.points, &VargasPage::Point::degrees), .share = 2.3}}};
  const size_t firstVarga = table.columns.size();
  for (const VargasPage::Varga &varga : page.vargas) {
    TableColumn column{.head = varga.name.section(QLatin1Char(' '), 0, 0), .cells = {}, .across = Across::Center};
    for (const int sign : varga.sign) column.cells << (sign == 0 ? QStringLiteral("-") : page.narrowSign[static_cast<size_t>(sign)]);
    table.columns.push_back(column);
  }
  TableColumn kept{.head = QStringLiteral("/16"), .cells = {}, .across = Across::Center};
  for (const VargasPage::Point &point : page.points) kept.cells << QString::number(point.sameSign);
  table.columns.push_back(kept);
  constexpr size_t rashi = 0, navamsha = 5;
  table.ground = [&](size_t row, size_t column) {
    return page.points[row].vargottama && (column == firstVarga + rashi || column == firstVarga + navamsha) ? Marked : White;
  };
  const double y = PrintTable(table, TopMargin + Inches(TableTop));
  PrintNote(QCoreApplication::translate("clsDailyPrinter", "/16: how many of the first sixteen charts keep the sign of the Rashi"),
            PrintNote(page.lblVargottama, y));
}

void clsDailyPrinter::PrintAshtakavarga() {
  constexpr double chartWidth = 4.4, chartHeight = 3.7, below = 0.35;
  OfBirthAndDay("Ashtakavarga", [&](const clsPlanets &chart, const QString &) {
    const AshtakavargaPage page = FillAshtakavarga(chart);
    Table table{{{.head = {}, .cells = ColumnOf(page.rows, &AshtakavargaPage::Row::name), .share = 2.4, .strong = true}}};
    for (int sign = 1; sign <= 12; ++sign) {
      TableColumn column{.head = page.narrowSign[static_cast<size_t>(sign)], .cells = {}, .across = Across::Center};
      for (const AshtakavargaPage::Row &row : page.rows) column.cells << QString::number(row.points[static_cast<size_t>(sign)]);
      table.columns.push_back(column);
    }
    TableColumn sums{.head = page.lblSumHead, .cells = {}, .share = 1.2, .across = Across::Center, .strong = true};
    for (const AshtakavargaPage::Row &row : page.rows) sums.cells << QString::number(row.sum);
    table.columns.push_back(sums);
    table.rowHeight = 340;
    table.withTotal = true;
    table.ground = [&](size_t row, size_t column) {
      return column == 0 || column == table.columns.size() - 1 ? White : Heat(page.rows[row].Share(static_cast<int>(column)));
    };
    const double y = PrintNote(page.lblFewest, PrintNote(page.lblMost, PrintTable(table, TopMargin + Inches(TableTop))));
    StudyChart(page.ChartOf(AshtakavargaPage::Total), page.rows[AshtakavargaPage::Total].name,
               {LeftMargin + Inches((PageWidth - chartWidth) / 2), y + Inches(below), Inches(chartWidth), Inches(chartHeight)}, 12);
  });
}

void clsDailyPrinter::PrintUpagrahas() {
  OfBirthAndDay("Upagrahas", [&](const clsPlanets &chart, const QString &) {
    const UpagrahasPage page = FillUpagrahas(chart);
    double y = TopMargin + Inches(TableTop + 0.1);
    for (const UpagrahasPage::Mode &mode : page.modes) {
      using Row = UpagrahasPage::Row;
      PlaceText(page.TitleOf(mode), LeftMargin, y, Across::Left, Down::Middle, {QLatin1String(NormFont), 11, true});
      const Table table{
          {{.head = page.lblNameHead, .cells = ColumnOf(mode.rows, &Row::lblUpaName), .share = 1.4, .strong = true},
           {.head = page.lblRashiHead, .cells = ColumnOf(mode.rows, &Row::lblUpaRashi)},
           {.head = page.lblDegreesHead, .cells = ColumnOf(mode.rows, &Row::lblUpaDegrees)},
           {.head = page.lblNakHead, .cells = ColumnOf(mode.rows, &Row::lblUpaNak), .share = 1.4},
           {.head = page.lblPadaHead, .cells = ColumnOf(mode.rows, &Row::lblUpaPada), .share = 0.5, .across = Across::Center}},
          265};
      y = PrintTable(table, y + 160) + Inches(0.3);
    }
    PrintNote(page.lblJaimini, y - Inches(0.2));
  });
}

void clsDailyPrinter::PrintAspects() {
  OfBirthAndDay("Aspects", [&](const clsPlanets &chart, const QString &title) {
    using Row = AspectsPage::Row;
    const AspectsPage page = FillAspects(chart);
    const auto column = [&](const QString &head, QString Row::*value, double share, bool wraps) {
      return TableColumn{.head = head, .cells = ColumnOf(page.rows, value), .share = share, .wraps = wraps};
    };
    TableColumn planets = column(page.lblPlanetHead, &Row::name, 1.1, false);
    planets.strong = true;
    Table bySign{{planets, column(page.lblDignityHead, &Row::dignity, 1.1, true), column(page.lblStandingHead, &Row::standing, 1.05, false),
                  column(page.lblCombustHead, &Row::combustion, 1.15, true), column(page.lblSeesHead, &Row::sees, 1.4, true),
                  column(page.lblSeenByHead, &Row::seenBy, 1.4, true), column(page.lblWithHead, &Row::with, 1.4, true)}};
    Table byDegrees{
        {planets, column(page.lblByDegreesHead, &Row::byDegrees, 3, true), column(page.lblWesternHead, &Row::western, 4.5, true)}, 250};
    // Both share a page: a chart with many aspects is set smaller.
    constexpr double between = 0.25, room = 7.9;  // inches
    for (const double points : {9.0, 8.5, 8.0, 7.5}) {
      bySign.points = byDegrees.points = points;
      if (HeightOf(bySign) + HeightOf(byDegrees) <= Inches(room - between)) break;
    }
    PrintTable(byDegrees, PrintTable(bySign, TopMargin + Inches(TableTop)) + Inches(between));
    printer.NewPage();
    BeginStudyPage(title);
    PrintAspectGrids(page);
  });
}

void clsDailyPrinter::PrintAspectGrids(const AspectsPage &page) {
  double y = TopMargin + Inches(TableTop);
  for (size_t kind = 0; kind < AspectsPage::Kinds; ++kind) {
    Table table{{{.head = page.kindNames[kind], .cells = ColumnOf(page.rows, &AspectsPage::Row::name), .share = 2.1, .strong = true}}, 212};
    for (size_t other = 0; other < AspectsPage::Points; ++other) {
      TableColumn column{.head = page.rows[other].narrowName, .cells = {}, .across = Across::Center};
      for (size_t looking = 0; looking < AspectsPage::Points; ++looking) column.cells << page.grid[looking][other].text[kind];
      table.columns.push_back(column);
    }
    table.ground = [&](size_t row, size_t column) {
      if (column == 0) return White;
      if (row == column - 1) return Diagonal;
      return page.grid[row][column - 1].text[kind].isEmpty() ? White : Marked;
    };
    y = PrintNote(page.HelpOf(kind), PrintTable(table, y)) + Inches(0.15);
  }
}

void clsDailyPrinter::PrintBirthAttributes() {
  using Row = BirthAttributesPage::Row;
  const BirthAttributesPage page = FillBirthAttributes(session.BirthChart(), session.TodayChart());
  BeginStudyPage(PageTitle("BirthAttributes"));
  PlaceFitted(page.lblMoon, LeftMargin + Inches(PageWidth / 2), TopMargin + Inches(TableTop + 0.05), Across::Center, Down::Middle,
              Inches(PageWidth), {QLatin1String(NormFont), 10});
  QStringList heads{QCoreApplication::translate("clsDailyPrinter", "Attribute"), QCoreApplication::translate("clsDailyPrinter", "At birth"),
                    QCoreApplication::translate("clsDailyPrinter", "What it tells")};
  const Table table{{{.head = heads[0], .cells = ColumnOf(page.rows, &Row::lblAttribute), .share = 1.1},
                     {.head = heads[1], .cells = ColumnOf(page.rows, &Row::lblAttributeVal), .share = 1.5, .strong = true},
                     {.head = heads[2], .cells = ColumnOf(page.rows, &Row::lblAttributeHelp), .share = 3.4, .wraps = true}},
                    520};
  PrintTable(table, TopMargin + Inches(TableTop + 0.25));
}

void clsDailyPrinter::PrintScores() {
  const ScoresPage page = FillScores(session.BirthChart(), session.TodayChart());
  constexpr double top = 1.6, step = 1.06, barWidth = 2.2, barHeight = 0.13, lineLeft = 2.85, lineHeight = 0.72;  // inches
  BeginStudyPage(PageTitle("DayScores"));
  const Style strong{QLatin1String(NormFont), 10, true}, plain{QLatin1String(NormFont), 9}, small{QLatin1String(NormFont), 8};
  const double L = LeftMargin, heads = TopMargin + Inches(top - 0.2);
  PlaceFitted(QLocale::c().toString(page.firstDay, QStringLiteral("dddd, d MMMM yyyy")), L, heads, Across::Left, Down::Middle,
              Inches(barWidth), strong);
  PlaceText(QCoreApplication::translate("clsDailyPrinter", "The next %1 days").arg(ScoresPage::DaysAhead), L + Inches(lineLeft), heads,
            Across::Left, Down::Middle, strong);
  double y = TopMargin + Inches(top);
  for (const ScoresPage::Theme &theme : page.themes) {
    PlaceFitted(theme.name, L, y + Inches(0.15), Across::Left, Down::Middle, Inches(1.1), strong);
    PlaceText(QString::number(qRound(theme.today)), L + Inches(barWidth), y + Inches(0.15), Across::Right, Down::Middle, strong);
    PlaceFitted(theme.levelWord, L + Inches(barWidth - 0.35), y + Inches(0.15), Across::Right, Down::Middle, Inches(0.75), plain);
    const double bar = y + Inches(0.28);
    printer.FilledBox(L, bar, L + Inches(barWidth * std::clamp(theme.today, 0.0, 100.0) / 100), bar + Inches(barHeight), Heat(1));
    printer.SetDrawWidth(1);
    printer.Box(L, bar, L + Inches(barWidth), bar + Inches(barHeight), 0);
    WrapColumn(theme.help, L, bar + Inches(barHeight) + 40, Inches(barWidth), 0, small, true);

    const QRectF place(L + Inches(lineLeft), y + Inches(0.05), Inches(PageWidth - lineLeft), Inches(lineHeight));
    PrintScoreLine(theme.course, place);
    constexpr int daysBetween = 5;
    for (int day = 0; day <= ScoresPage::DaysAhead; day += daysBetween)
      PlaceText(QLocale::c().toString(page.firstDay.addDays(day), QStringLiteral("d MMM")),
                place.left() + place.width() * day / ScoresPage::DaysAhead, place.bottom() + 50,
                day == 0                       ? Across::Left
                : day == ScoresPage::DaysAhead ? Across::Right
                                               : Across::Center,
                Down::Top, small);
    y += Inches(step);
  }
}

void clsDailyPrinter::PrintScoreLine(std::span<const double> scores, const QRectF &place) {
  const auto at = [&](size_t day) {
    return QPointF(place.left() + place.width() * static_cast<double>(day) / static_cast<double>(scores.size() - 1),
                   place.bottom() - place.height() * scores[day] / 100);
  };
  const Style small{QLatin1String(NormFont), 8};
  printer.SetDrawWidth(1);
  for (const int mark : {0, 50, 100}) {
    const double y = place.bottom() - place.height() * mark / 100;
    printer.Line(place.left(), y, place.right(), y, Faint);
    PlaceText(QString::number(mark), place.left() - 90, y, Across::Right, Down::Middle, small);
  }
  const unsigned maroon = ChartPalette::Light().maroon.rgb() & 0xFFFFFF;
  constexpr double dot = 12;
  printer.SetDrawWidth(7);
  for (size_t day = 1; day < scores.size(); ++day) printer.Line(at(day - 1).x(), at(day - 1).y(), at(day).x(), at(day).y(), maroon);
  for (size_t day = 0; day < scores.size(); ++day) printer.Circle(at(day).x(), at(day).y(), dot, maroon);
}

void clsDailyPrinter::PrintVakya() {
  using Row = VakyaPage::Row;
  BeginStudyPage(PageTitle("VakyaPositions"));
  double y = TopMargin + Inches(TableTop + 0.1);
  QString nodeNote;
  for (const clsPlanets *chart : {&session.BirthChart(), &session.TodayChart()}) {
    const VakyaPage page = FillVakya(*chart);
    const QString when = chart == &session.BirthChart() ? QCoreApplication::translate("clsDailyPrinter", "At birth")
                                                        : QCoreApplication::translate("clsDailyPrinter", "Today");
    PlaceText(when, LeftMargin, y, Across::Left, Down::Middle, {QLatin1String(NormFont), 11, true});
    const Table table{{{.head = page.lblBodyHead, .cells = ColumnOf(page.rows, &Row::lblBody), .share = 1.2, .strong = true},
                       {.head = page.lblVakyaHead, .cells = ColumnOf(page.rows, &Row::lblVakyaRashi)},
                       {.head = page.lblDegreesHead, .cells = ColumnOf(page.rows, &Row::lblVakyaDegrees)},
                       {.head = page.lblModernHead, .cells = ColumnOf(page.rows, &Row::lblModernRashi)},
                       {.head = page.lblDegreesHead, .cells = ColumnOf(page.rows, &Row::lblModernDegrees)},
                       {.head = page.lblDifferenceHead, .cells = ColumnOf(page.rows, &Row::lblDifference), .across = Across::Right}}};
    y = PrintTable(table, y + 160);
    for (const QString &note : {page.lblFailure, page.lblPlaceNote}) y = PrintNote(note, y);
    y += Inches(0.35);
    nodeNote = page.lblNodeNote;
  }
  PrintNote(nodeNote, y - Inches(0.2));
}
