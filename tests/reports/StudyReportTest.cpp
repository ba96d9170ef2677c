// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The report's study pages: every figure of their models stands on paper, and what is drawn is drawn to measure.
#include <QHash>
#include <map>

#include "analysis/AshtakavargaPage.h"
#include "analysis/AspectsPage.h"
#include "analysis/BirthAttributesPage.h"
#include "analysis/ScoresPage.h"
#include "analysis/UpagrahasPage.h"
#include "analysis/VakyaPage.h"
#include "analysis/VargasPage.h"
#include "reports/PdfWords.h"
#include "reports/RecordingPrinter.h"
#include "reports/ReportFixture.h"

namespace {

using Mark = RecordingPrinter::Mark;

class StudyReportTest : public ReportFixture {
 protected:
  std::array<const clsPlanets *, 2> Charts() const { return {&session.BirthChart(), &session.TodayChart()}; }

  // What a topic must show, text by text.
  QStringList FiguresOf(const QString &topic) const {
    QStringList texts;
    for (const clsPlanets *chart : Charts()) {
      if (topic == "DivisionalCharts") AddVargas(FillVargas(*chart), texts);
      if (topic == "Ashtakavarga") AddAshtakavarga(FillAshtakavarga(*chart), texts);
      if (topic == "Upagrahas")
        for (const UpagrahasPage::Mode &mode : FillUpagrahas(*chart).modes)
          for (const UpagrahasPage::Row &row : mode.rows)
            texts << row.lblUpaName << row.lblUpaRashi << row.lblUpaDegrees << row.lblUpaNak << row.lblUpaPada;
      if (topic == "Upagrahas") texts << FillUpagrahas(*chart).lblJaimini;
      if (topic == "Aspects") AddAspects(FillAspects(*chart), texts);
      if (topic == "Vakya")
        for (const VakyaPage::Row &row : FillVakya(*chart).rows)
          texts << row.lblBody << row.lblVakyaRashi << row.lblVakyaDegrees << row.lblModernRashi << row.lblModernDegrees
                << row.lblDifference;
    }
    if (topic == "Vakya") texts << FillVakya(session.BirthChart()).lblNodeNote;
    if (topic == "BirthAttributes") {
      const BirthAttributesPage page = FillBirthAttributes(session.BirthChart(), session.TodayChart());
      texts << page.lblMoon;
      for (const BirthAttributesPage::Row &row : page.rows) texts << row.lblAttribute << row.lblAttributeVal << row.lblAttributeHelp;
    }
    if (topic == "DayScores")
      for (const ScoresPage::Theme &theme : FillScores(session.BirthChart(), session.TodayChart()).themes)
        texts << theme.name << theme.help << theme.levelWord << QString::number(qRound(theme.today)) << "21 Nov"
              << "21 Dec";
    return texts;
  }

  static void AddVargas(const VargasPage &page, QStringList &texts) {
    texts << page.lblVargottama;
    for (const VargasPage::Point &point : page.points) texts << point.name << point.degrees << QString::number(point.sameSign);
    for (const VargasPage::Varga &varga : page.vargas) {
      texts << varga.name;
      for (const int sign : varga.sign) texts << page.narrowSign[static_cast<size_t>(sign)];
      for (const KundaliPage::Placed &placed : varga.chart.planets) texts << placed.name;
    }
  }
  static void AddAshtakavarga(const AshtakavargaPage &page, QStringList &texts) {
    texts << page.lblMost << page.lblFewest << page.ascendantName;
    for (size_t row = 0; row < page.rows.size(); ++row) {
      texts << page.rows[row].name << QString::number(page.rows[row].sum);
      // The total stands in its row and in the chart.
      for (int time = 0; time < (row == AshtakavargaPage::Total ? 2 : 1); ++time)
        for (size_t sign = 1; sign <= 12; ++sign) texts << QString::number(page.rows[row].points[sign]);
    }
  }
  static void AddAspects(const AspectsPage &page, QStringList &texts) {
    for (size_t row = 0; row < page.rows.size(); ++row) {
      const AspectsPage::Row &r = page.rows[row];
      texts << r.name << r.dignity << r.standing << r.combustion << r.sees << r.seenBy << r.with << r.byDegrees << r.western;
      for (size_t other = 0; other < page.rows.size(); ++other)
        for (const QString &text : page.grid[row][other].text) texts << text;
    }
    for (const AspectsPage::Code &code : page.codes) texts << code.code << code.name;
  }

  void Print(const QString &topic) {
    paper.Clear();
    clsDailyPrinter(paper, session, Setup()).PrintRoutine(ReportTopics::FromKeys({topic}));
  }

  RecordingPrinter paper;
};

// How often each word stands in the texts, whatever mark follows it in a sentence.
QHash<QString, int> Counted(const QStringList &texts) {
  static const QRegularExpression marks(QStringLiteral("[,.;:]+$"));
  QHash<QString, int> counts;
  for (const QString &text : texts)
    for (QString word : text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts)) ++counts[word.remove(marks)];
  return counts;
}

TEST_F(StudyReportTest, EveryFigureStandsOnBothPapersAndNothingIsClipped) {
  const QString file = data.Path() + "/study.pdf";
  QStringList keys;
  for (const ReportTopics::Topic &topic : ReportTopics::Groups()[1].topics) keys << QLatin1String(topic.key);
  ASSERT_EQ(keys.size(), 7);
  QStringList all;
  int pages = 0;
  const auto check = [&](const QStringList &topics, const QStringList &figures, const QPageSize &paperSize) {
    SCOPED_TRACE(topics.join(',').toStdString());
    ASSERT_TRUE(Report().SavePdf(file, ReportTopics::FromKeys(topics), nullptr, paperSize));
    QStringList found;
    std::map<int, int> footers;
    const QSizeF size = paperSize.sizePoints();
    int last = 0;
    for (const PdfWord &word : WordsOf(file)) {
      found << word.text;
      last = word.page;
      footers[word.page] += word.text == "Generated";
      EXPECT_TRUE(QRectF(54, 36, size.width() - 66, size.height() - 60).contains(word.place))
          << word.text.toStdString() << " on page " << word.page;
      // Between the head's box and the foot's rule, or in one of them.
      EXPECT_FALSE(word.place.top() < (1440 + 0.5 * 1440) / 20.0 && word.place.bottom() > (1440 + 0.55 * 1440) / 20.0);
      EXPECT_FALSE(word.place.top() < (1440 + 9.3 * 1440) / 20.0 && word.place.bottom() > (1440 + 9.31 * 1440) / 20.0)
          << word.text.toStdString();
    }
    for (int page = 1; page <= last; ++page) EXPECT_EQ(footers[page], 1) << page;
    const QHash<QString, int> have = Counted(found), want = Counted(figures);
    for (auto it = want.begin(); it != want.end(); ++it) EXPECT_GE(have.value(it.key()), it.value()) << it.key().toStdString();
    pages = last;
  };
  for (const QPageSize::PageSizeId paperSize : {QPageSize::A4, QPageSize::Letter}) {
    int sum = 0;
    for (const QString &key : keys) {
      const QStringList figures = FiguresOf(key);
      ASSERT_GE(figures.size(), 30);
      check({key}, figures, QPageSize(paperSize));
      all << figures;
      sum += pages;
    }
    check({"Study"}, all, QPageSize(paperSize));
    EXPECT_EQ(pages, sum);
    all.clear();
  }
  EXPECT_TRUE(notices.Seen().empty());
}

TEST_F(StudyReportTest, TheDailyReportIsTheSameWithAndWithoutThem) {
  const QString file = data.Path() + "/report.pdf";
  const auto textOf = [&](const QStringList &topics) {
    EXPECT_TRUE(Report().SavePdf(file, ReportTopics::FromKeys(topics)));
    return OutputOf("pdftotext", {"-layout", file, "-"}).split('\f');
  };
  const QStringList usual = textOf({}), both = textOf({"Main", "Study"});
  ASSERT_GE(usual.size(), 7);  // five pages, the predictions, and what follows the last
  EXPECT_FALSE(usual.join(' ').contains("Ashtakavarga"));
  EXPECT_EQ(both.mid(0, 5), usual.mid(0, 5));
  EXPECT_EQ(both.size(), usual.size() + 17);
  try {
    ReportTopics::FromKeys({"Vakya", "Nonsense"});
    ADD_FAILURE() << "an unknown topic was taken";
  } catch (const UsageError &error) {
    EXPECT_TRUE(error.Sentence().startsWith("'Nonsense' is not a topic"));
    for (const ReportTopics::Group &group : ReportTopics::Groups())
      for (const ReportTopics::Topic &topic : group.topics) EXPECT_TRUE(error.Sentence().contains(QLatin1String(topic.key))) << topic.key;
  }
}

TEST_F(StudyReportTest, ChartsAreInTheUsersStyle) {
  // The lines inside a chart's border: six in the North style, eight in the others.
  const std::pair<int, size_t> styles[] = {{0, 6}, {1, 8}, {2, 8}};
  constexpr size_t chartsOnPage = 9;
  size_t tables = 0;
  for (const auto &[style, lines] : styles) {
    settings.SetIntValue(SettingKeys::KundStyle, style);
    Print("DivisionalCharts");
    EXPECT_EQ(paper.Of(Mark::Line, 2).size(), chartsOnPage * lines) << style;
    tables = paper.Of(Mark::Filled, 1).size();
  }
  EXPECT_GT(tables, 13u * 20);
}

TEST_F(StudyReportTest, WarmerIsDarkerInGreyToo) {
  Print("Ashtakavarga");
  const AshtakavargaPage page = FillAshtakavarga(session.BirthChart());
  const std::vector<Mark> grounds = paper.Of(Mark::Filled, 1);
  std::map<int, int> greyOf;  // by points of a body
  for (int row = 0; row < AshtakavargaPage::Bodies; ++row)
    for (int sign = 1; sign <= 12; ++sign) {
      // After the header's and the footer's rules come 14 cells a row.
      const Mark &ground = grounds[static_cast<size_t>(2 + row * 14 + sign)];
      const int points = page.rows[static_cast<size_t>(row)].points[static_cast<size_t>(sign)];
      const int grey = qGray(ground.rgb);
      EXPECT_EQ(greyOf.try_emplace(points, grey).first->second, grey) << row << " " << sign;
      bool numberInside = false;
      for (const Mark &text : paper.Of(Mark::Text, 1))
        numberInside |= text.text == QString::number(points) && text.x1 > ground.x1 && text.x2 < ground.x2 && text.y1 > ground.y1 &&
                        text.y2 < ground.y2;
      EXPECT_TRUE(numberInside) << row << " " << sign;
    }
  ASSERT_GE(greyOf.size(), 5u);
  for (auto it = std::next(greyOf.begin()); it != greyOf.end(); ++it) EXPECT_LE(it->second, std::prev(it)->second - 5) << it->first;
  EXPECT_GT(greyOf.rbegin()->second, 120);  // black figures stay readable
}

TEST_F(StudyReportTest, BarsAndLinesAreDrawnToMeasure) {
  Print("DayScores");
  const ScoresPage page = FillScores(session.BirthChart(), session.TodayChart());
  const std::vector<Mark> boxes = paper.Of(Mark::Box, 1), bars = paper.Of(Mark::Filled, 1), dots = paper.Of(Mark::Circle, 1);
  ASSERT_EQ(boxes.size(), 1u + ScoresPage::Themes);
  ASSERT_EQ(bars.size(), 2u + ScoresPage::Themes);
  ASSERT_EQ(dots.size(), ScoresPage::Themes * (ScoresPage::DaysAhead + 1u));
  for (size_t i = 0; i < ScoresPage::Themes; ++i) {
    const ScoresPage::Theme &theme = page.themes[i];
    const Mark &box = boxes[i + 1], &bar = bars[i + 2];
    EXPECT_NEAR((bar.x2 - bar.x1) / (box.x2 - box.x1), theme.today / 100, 1e-6) << i;
    const size_t first = i * theme.course.size();
    const double dayWidth = dots[first + 1].x1 - dots[first].x1;
    for (size_t day = 0; day < theme.course.size(); ++day) {
      EXPECT_NEAR(dots[first + day].x1 - dots[first].x1, dayWidth * static_cast<double>(day), 1e-6);
      // 0.72 inch from 0 to 100.
      EXPECT_NEAR(dots[first].y1 - dots[first + day].y1, (theme.course[day] - theme.course[0]) / 100 * 0.72 * 1440, 1e-6);
    }
  }
}

TEST_F(StudyReportTest, AChartWithManyAspectsKeepsToItsPages) {
  BirthRecord lima;
  lima.Name = "Lima";
  lima.Day = 21;
  lima.Month = 6;
  lima.Year = 1999;
  lima.Hour = 12;
  lima.place = {.City = "Lima",
                .Country = {},
                .GMTDIFF = "-5.00",
                .LatDeg = 12,
                .LatMT = 10,
                .TextNS = "S",
                .LongDeg = 77,
                .LongMT = 20,
                .TextEW = "W"};
  session.SetBirthPerson(lima);
  session.BuildAnalysis(QDateTime(QDate(2026, 12, 21), QTime(9, 0), Qt::UTC));
  const QString file = data.Path() + "/lima.pdf";
  ASSERT_TRUE(Report().SavePdf(file, ReportTopics::FromKeys({"Aspects"}), nullptr, QPageSize(QPageSize::A4)));
  EXPECT_EQ(WordsOf(file).back().page, 4);
}

// Texts three times as wide need more lines than a page has.
class WidePrinter : public RecordingPrinter {
 public:
  double TextWidth(const QString &text) override { return 3 * RecordingPrinter::TextWidth(text); }
};

TEST_F(StudyReportTest, ALongTableGoesOnWithItsHeadsOnTheNextPage) {
  WidePrinter wide;
  clsDailyPrinter(wide, session, Setup()).PrintRoutine(ReportTopics::FromKeys({"Aspects"}));
  EXPECT_GT(wide.page, 5);
  const AspectsPage page = FillAspects(session.BirthChart());
  const double top = 1440 * 1.5, bottom = 1440 + 9.3 * 1440;
  int heads = 0, moons = 0;
  for (const Mark &mark : wide.Of(Mark::Text)) {
    if (mark.text.trimmed().isEmpty()) continue;
    heads += mark.text == page.lblWesternHead;
    moons += mark.text == page.rows[7].name && mark.y1 > top;
    EXPECT_FALSE(mark.y1 > top && mark.y1 < bottom && mark.y2 > bottom) << mark.text.toStdString() << " on page " << mark.page;
    EXPECT_TRUE(wide.Find(QStringLiteral("Page %1").arg(mark.page), mark.page));
  }
  EXPECT_GT(heads, 2);      // of birth and day, and of what was carried over
  EXPECT_EQ(moons, 2 * 5);  // two tables and three grids of each chart, no row twice
}

}  // namespace
