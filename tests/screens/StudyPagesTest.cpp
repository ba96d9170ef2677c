// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include <QComboBox>
#include <QRadioButton>
#include <cmath>

#include "analysis/clsDayGraph.h"
#include "app/StudyJson.h"
#include "chart/Kundali.h"
#include "content/pages/AshtakavargaView.h"
#include "content/pages/AspectsView.h"
#include "content/pages/BirthAttributesView.h"
#include "content/pages/ScoreLine.h"
#include "content/pages/ScoresView.h"
#include "content/pages/UpagrahasView.h"
#include "content/pages/VakyaView.h"
#include "content/pages/VargasView.h"
#include "screens/PageFixture.h"

namespace {

struct Day : SampleDay {
  explicit Day(const std::optional<BirthRecord> &birth = {}) : SampleDay(QDateTime(QDate(2026, 11, 21), QTime(6, 30), Qt::UTC), birth) {}
};

BirthRecord BornAt(const char *city, int latitude, const char *northSouth, int longitude, const char *eastWest, const char *zone) {
  return {.Name = "Study",
          .Day = 2,
          .Month = 1,
          .Year = 2001,
          .Hour = 23,
          .Minutes = 40,
          .Sex = 1,
          .place = {city, {}, zone, latitude, 10, northSouth, longitude, 20, eastWest},
          .TimeCorr = "+01.00"};
}

}  // namespace

TEST(StudyPages, FillForEveryPlaceWithoutAMissingWord) {
  const std::optional<BirthRecord> births[] = {std::nullopt, BornAt("Hobart", 42, "S", 147, "E", "10.00"),
                                               BornAt("Lima", 12, "S", 77, "W", "-5.00"), BornAt("Alta", 69, "N", 23, "E", "1.00")};
  for (const auto &birth : births) {
    Day day(birth);
    VargasView vargas;
    AshtakavargaView ashtak;
    UpagrahasView upagrahas;
    AspectsView aspects;
    BirthAttributesView attributes;
    ScoresView scores;
    VakyaView vakya;
    for (PageView *page : std::initializer_list<PageView *>{&vargas, &ashtak, &upagrahas, &aspects, &attributes, &scores, &vakya}) {
      page->Fill(day.session);
      for (int kind = 0; kind < 2; ++kind) {
        if (kind == 1)
          if (auto *option = page->findChild<QRadioButton *>(QStringLiteral("optDay"))) option->setChecked(true);
        for (const QLabel *label : page->findChildren<QLabel *>()) {
          const QString name = label->objectName();
          // The grid's own diagonal, and lines that only some days have, hold nothing.
          if (name.startsWith("lblAspect") || name.endsWith("Failure") || name.endsWith("Place") || name.endsWith("Column12")) continue;
          if (name.isEmpty() || name.startsWith("qt_")) continue;
          EXPECT_FALSE(label->text().isEmpty()) << page->objectName().toStdString() << " " << name.toStdString();
        }
      }
    }
  }
}

TEST(Vargas, ShowTheChosenChartAndMarkVargottamaByWord) {
  Day day;
  const clsPlanets &birth = day.session.BirthChart();
  VargasView view;
  view.Fill(day.session);
  auto *choice = view.findChild<QComboBox *>(QStringLiteral("cmbVarga"));
  ASSERT_EQ(choice->count(), 17);
  for (const int varga : {1, 6, 16}) {
    choice->setCurrentIndex(varga - 1);
    EXPECT_EQ(view.findChild<Kundali *>(QStringLiteral("kunVarga"))->HouseNumber(), birth.PrediVarga(0, varga).value());
    for (int point = 0; point <= 12; ++point) {
      const QString sign = birth.ConvertRashi(birth.PrediVarga(point, varga).value());
      EXPECT_EQ(Text(view, QStringLiteral("lblVargaSign%1").arg(point)), sign);
      EXPECT_EQ(Text(view, QStringLiteral("lblVargaStanding%1").arg(point)) == QLatin1String("Vargottama"), birth.PlanetVargottama(point));
    }
  }
  // The page is filled again for another day: what was chosen stays.
  view.Fill(day.session);
  EXPECT_EQ(choice->currentIndex(), 15);
}

TEST(Ashtakavarga, SumsEachBodysPointsHoweverOftenItIsShown) {
  Day day;
  for (int time = 0; time < 2; ++time) {
    const AshtakavargaPage page = FillAshtakavarga(day.session.BirthChart());
    const std::array<int, AshtakavargaPage::Rows> sums{48, 49, 39, 54, 56, 52, 39, 44, 49, 381};
    for (size_t row = 0; row < sums.size(); ++row) EXPECT_EQ(page.rows[row].sum, sums[row]) << row;
  }
  EXPECT_EQ(day.session.BirthChart().AshTotal(1), 0);
}

TEST(Upagrahas, TheOtherModeIsThatOfAChartSetToIt) {
  for (const auto &birth : {std::optional<BirthRecord>(), std::optional(BornAt("Lima", 12, "S", 77, "W", "-5.00"))}) {
    Day day(birth);
    const auto end = UpagrahasInMode(day.session.BirthChart(), 1), begin = UpagrahasInMode(day.session.BirthChart(), 2);
    EXPECT_EQ(day.settings.IntValue(SettingKeys::UpagrahaMode), 1);
    Day other(birth);
    other.settings.SetIntValue(SettingKeys::UpagrahaMode, 2);
    for (int number = 1; number <= 17; ++number) {
      const size_t at = static_cast<size_t>(number - 1);
      EXPECT_EQ(end[at], day.session.BirthChart().UpagrahaLongi(number)) << number;
      EXPECT_EQ(begin[at], other.session.BirthChart().UpagrahaLongi(number)) << number;
      EXPECT_EQ(begin[at] == end[at], number <= 9 || number == 17) << number;
    }
  }
}

TEST(Aspects, TheGridLooksFromTheRowToTheColumn) {
  Day day;
  const clsPlanets &birth = day.session.BirthChart();
  const AspectsPage page = FillAspects(birth);
  int oneWay = 0;
  for (int row = 0; row <= 12; ++row) {
    for (int column = 0; column <= 12; ++column) {
      if (row == column) continue;
      const AspectsPage::Pair &pair = page.grid[static_cast<size_t>(row)][static_cast<size_t>(column)];
      EXPECT_EQ(pair.looks, birth.IfPlanetAspects(column, row)) << row << " " << column;
      EXPECT_EQ(pair.together, birth.GetSign(row) == birth.GetSign(column));
      EXPECT_EQ(pair.byDegrees, birth.PlanetDegAspect(row, column));
      oneWay += pair.looks != page.grid[static_cast<size_t>(column)][static_cast<size_t>(row)].looks;
    }
  }
  EXPECT_GT(oneWay, 0);  // the sides can be told apart
}

TEST(Aspects, TheOrbIsCountedFromTheExactAngleOnEitherSideOfTheCircle) {
  const std::pair<double, double> cases[] = {{0, 0},   {358.5, 1.5}, {-92, 2}, {268, 2}, {181, 1}, {147, 3},
                                             {215, 1}, {122, 2},     {238, 2}, {20, 0},  {330, 0}, {-45.25, 0.25}};
  for (const auto &[angle, orb] : cases) EXPECT_NEAR(WesternOrb(angle), orb, 1e-9) << angle;
}

TEST(Scores, EachDayAheadIsThatOfItsOwnAnalysis) {
  for (const auto &birth : {std::optional<BirthRecord>(), std::optional(BornAt("Hobart", 42, "S", 147, "E", "10.00"))}) {
    Day day(birth);
    const auto ahead = ScoresAhead(day.session.BirthChart(), day.session.TodayChart());
    for (int n = 0; n <= ScoresPage::DaysAhead; ++n) {
      Day later(birth);
      later.session.BuildAnalysis(QDateTime(QDate(2026, 11, 21).addDays(n), QTime(6, 30), Qt::UTC));
      EXPECT_EQ(ahead[static_cast<size_t>(n)], ScoresOf(later.session.BirthChart(), later.session.TodayChart())) << n;
    }
    const clsPlanets &today = day.session.TodayChart();
    EXPECT_EQ(ahead[0][6], clsDayGraph().GetEducationScore(day.session.BirthChart(), today));
  }
}

TEST(Scores, AClickOrEnterGoesToTheDayThatIsTold) {
  Day day;
  ScoresView view;
  view.resize(900, 700);
  view.Fill(day.session);
  view.show();
  QList<QDate> gone;
  QObject::connect(&view, &ScoresView::GoToDay, [&gone](const QDate &to) { gone << to; });
  auto *line = view.findChild<ScoreLine *>(QStringLiteral("linScore4"));
  ASSERT_EQ(line->Scores().size(), 31U);
  const QDate first(2026, 11, 21);

  QTest::mouseMove(line, line->PointOf(9).toPoint() + QPoint(3, 0));
  EXPECT_EQ(line->Marked(), 9);
  EXPECT_EQ(line->TellDay(9), QStringLiteral("Monday, 30 November 2026: %1").arg(qRound(line->Scores()[9])));
  QTest::mouseClick(line, Qt::LeftButton, {}, line->PointOf(9).toPoint());
  QTest::mouseClick(line, Qt::RightButton, {}, line->PointOf(12).toPoint());
  EXPECT_EQ(gone, QList<QDate>{first.addDays(9)});
  EXPECT_EQ(line->DayAt(-50), 0);
  EXPECT_EQ(line->DayAt(5000), 30);

  gone.clear();
  for (const int key : {Qt::Key_End, Qt::Key_Right, Qt::Key_Left, Qt::Key_Return}) QTest::keyClick(line, static_cast<Qt::Key>(key));
  EXPECT_EQ(gone, QList<QDate>{first.addDays(29)});
}

TEST(Vakya, DiffersLittleButForTheNodesAndTellsWhereItHasNoAnswer) {
  Day day;
  const VakyaPage page = FillVakya(day.session.BirthChart());
  const auto vakya = VakyaPositionsOf(day.session.BirthChart());
  for (const int body : {1, 2, 3, 4, 5, 6, 7})
    EXPECT_LT(std::abs(ArcBetween(vakya[static_cast<size_t>(body)], day.session.BirthChart().PlanetLongi(body))), 5) << body;
  for (const int node : {8, 9})
    EXPECT_GT(std::abs(ArcBetween(vakya[static_cast<size_t>(node)], day.session.BirthChart().PlanetLongi(node))), 175) << node;
  EXPECT_TRUE(page.lblFailure.isEmpty());
  EXPECT_TRUE(page.lblPlaceNote.isEmpty());
  EXPECT_EQ(ArcBetween(1, 359), 2);
  EXPECT_EQ(ArcBetween(359, 1), -2);
  EXPECT_EQ(ArcBetween(180, 0), 180);

  Day polar(BornAt("Alta", 69, "N", 23, "E", "1.00"));
  const VakyaPage dark = FillVakya(polar.session.BirthChart());
  EXPECT_FALSE(dark.lblFailure.isEmpty());
  EXPECT_EQ(dark.rows[1].lblVakyaDegrees, QStringLiteral("-"));
  EXPECT_NE(dark.rows[1].lblModernDegrees, QStringLiteral("-"));
  QJsonObject json;
  AddStudy(json, polar.session.BirthChart());
  EXPECT_TRUE(json.value(QStringLiteral("Vakya")).isNull());
  EXPECT_FALSE(FillVakya(Day(BornAt("Hobart", 42, "S", 147, "E", "10.00")).session.BirthChart()).lblPlaceNote.isEmpty());
}
