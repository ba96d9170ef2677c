// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chart/KundaliModel.h"

#include <gtest/gtest.h>

#include "platform/Errors.h"

namespace {

struct Drawing {
  int style;
  std::vector<double> cells;  // six a cell: the number's place, -1 for none, and the box of its planets
  std::vector<double> lines;  // four a line that shows
};

const Drawing Drawings[] = {
    {ChartLayout::North,
     {490, 40,  400, 100, 200, 300, 70,  10,  150, 20,  210, 120, 15,  60,  15,  160, 150, 180, 50,  480, 150, 350, 200, 300,
      15,  880, 15,  660, 150, 180, 70,  920, 160, 840, 180, 145, 490, 910, 400, 600, 200, 300, 890, 920, 660, 830, 180, 150,
      940, 880, 840, 660, 150, 180, 920, 480, 650, 350, 200, 300, 940, 70,  840, 160, 150, 180, 900, 10,  640, 20,  220, 120},
     {500, 0, 0, 500, 500, 0, 1000, 500, 0, 500, 500, 1000, 500, 1000, 1000, 500, 0, 0, 1000, 1000, 1000, 0, 0, 1000}},
    {ChartLayout::East,
     {400, 315, 385, 40,  225, 260, -1,  0,   210, 20,  150, 190, -1,  0,   10,  160, 150, 210, 330, 400, 10,  390, 250, 200,
      -1,  0,   10,  640, 160, 185, -1,  0,   210, 800, 150, 180, 400, 630, 390, 690, 220, 270, -1,  0,   640, 800, 150, 180,
      -1,  0,   830, 640, 150, 190, 635, 400, 690, 390, 290, 200, -1,  0,   840, 165, 150, 200, -1,  0,   640, 10,  150, 200},
     {375, 0, 375, 1000, 625,  0,    625, 1000, 0,   375, 1000, 375, 0, 625,  1000, 625,
      0,   0, 375, 375,  1000, 1000, 625, 625,  625, 375, 1000, 0,   0, 1000, 375,  625}},
    {ChartLayout::South,
     {260, 10,  260, 70,  220, 170, 510, 10,  510, 70,  220, 170, 760, 10,  760, 70,  220, 170, 760, 260, 760, 320, 220, 170,
      760, 510, 760, 570, 220, 170, 760, 760, 760, 820, 220, 170, 510, 760, 510, 820, 220, 170, 260, 760, 260, 820, 220, 170,
      15,  760, 10,  820, 220, 170, 15,  510, 10,  570, 220, 170, 15,  260, 10,  320, 220, 170, 15,  10,  10,  70,  220, 170},
     {250, 0, 250, 1000, 750, 0,   750, 1000, 0, 250, 1000, 250, 0,   750, 1000, 750,
      500, 0, 500, 250,  500, 750, 500, 1000, 0, 500, 250,  500, 750, 500, 1000, 500}},
};

// The numbers as a reader sees them, hidden ones as nothing.
std::string ShownNumbers(const KundaliModel &model) {
  QStringList shown;
  for (int i = 0; i < 12; ++i) shown << (model.lblHouseNo(i).visible ? model.lblHouseNo(i).caption : QString());
  return shown.join(',').toStdString();
}

TEST(KundaliModel, EveryPartStandsInItsPlace) {
  KundaliModel model;
  for (const Drawing &drawing : Drawings) {
    model.SetChartStyle(drawing.style);
    SCOPED_TRACE(drawing.style);
    for (int i = 0; i < 12; ++i) {
      const double *cell = &drawing.cells[static_cast<size_t>(i) * 6];
      EXPECT_EQ(model.lblPlanet(i).box, QRectF(cell[2], cell[3], cell[4], cell[5])) << i;
      EXPECT_TRUE(model.lblPlanet(i).centred);
      const ChartLayout::Text &number = model.lblHouseNo(i);
      EXPECT_TRUE(cell[0] < 0 ? !number.visible : number.box.topLeft() == QPointF(cell[0], cell[1])) << i;
      // A cell's outline, found on its own, holds the middle of the cell's texts.
      EXPECT_TRUE(model.Layout().CellShape(i).containsPoint(model.lblPlanet(i).box.center(), Qt::OddEvenFill)) << i;
    }
    std::vector<double> lines;
    for (const auto &line : model.Layout().lines)
      if (line.visible) lines.insert(lines.end(), {line.ends.x1(), line.ends.y1(), line.ends.x2(), line.ends.y2()});
    EXPECT_EQ(lines, drawing.lines);
    EXPECT_EQ(model.Layout().squMain, QRectF(2, 2, 998, 998));
    EXPECT_EQ(model.Layout().imgCenter, QRectF(400, 400, 200, 200));
  }
  // A wider border begins further in, and shows it with the next layout.
  model.SetBorderWidth(5);
  EXPECT_EQ(model.Layout().squMain, QRectF(2, 2, 998, 998));
  model.LayoutChart();
  EXPECT_EQ(model.Layout().squMain, QRectF(6, 6, 994, 994));

  const ChartLayout twips = model.Layout().Scaled(5700, 4350);
  EXPECT_EQ(twips.lblPlanet[0].box, QRectF(260 * 5.7, 70 * 4.35, 220 * 5.7, 170 * 4.35));
  EXPECT_EQ(twips.lines[0].ends, QLineF(250 * 5.7, 0, 250 * 5.7, 4350));
}

TEST(KundaliModel, NumbersWrapIntoTheTwelveWithTheirOwnEdges) {
  const std::pair<int, int> cases[] = {{1, 1},   {12, 12}, {13, 1},   {23, 11},  {24, 0},   {25, 1},    {36, 0},    {0, 0},
                                       {-1, 11}, {-11, 1}, {-12, 12}, {-13, 11}, {-24, 12}, {32767, 7}, {-32768, 4}};
  for (const auto &[value, wrapped] : cases) EXPECT_EQ(KundaliModel::Expunger12(value), wrapped) << value;

  const std::pair<int, const char *> houses[] = {
      {1, "1,2,3,4,5,6,7,8,9,10,11,12"}, {5, "5,6,7,8,9,10,11,12,1,2,3,4"}, {12, "12,1,2,3,4,5,6,7,8,9,10,11"}};
  for (const auto &[houseNumber, numbers] : houses) {
    KundaliModel model;
    model.SetHouseNumber(houseNumber);
    EXPECT_EQ(ShownNumbers(model), numbers);
    EXPECT_EQ(model.LagnaNo(), houseNumber);
  }
}

TEST(KundaliModel, PlanetsGoToTheCellOfTheirSign) {
  const struct {
    int style, houseNumber, sign, cell;  // cell -1: there is none
  } cases[] = {{0, 12, 12, 0}, {0, 12, 1, 1},  {0, 12, 11, 11}, {0, 1, 12, 11}, {0, 5, 4, 11}, {0, 1, 13, -1}, {0, 12, 0, -1},
               {1, 5, 1, 0},   {1, 5, 12, 11}, {1, 1, 13, -1},  {1, 1, 0, -1},  {2, 7, 1, 0},  {2, 7, 12, 11}, {2, 1, 13, -1}};
  for (const auto &c : cases) {
    KundaliModel model;
    model.SetChartStyle(c.style);
    model.SetHouseNumber(c.houseNumber);
    if (c.cell < 0) {
      EXPECT_THROW(model.PlanetPlace(c.sign, "Su"), SubscriptError) << c.style << ' ' << c.sign;
      continue;
    }
    model.PlanetPlace(c.sign, "Su");
    EXPECT_EQ(model.HouseText(c.cell + 1), "Su ") << c.style << ' ' << c.sign;
    EXPECT_EQ(model.LagnaNo(), c.style == 0 ? c.houseNumber : 1);
  }

  KundaliModel model;
  for (const char *text : {"Su", "Mo", "  Ma  Me "}) model.PlanetPlace(3, text);
  EXPECT_EQ(model.HouseText(3), "Su Mo   Ma  Me ");
  EXPECT_EQ(model.HouseText(0), "");
  EXPECT_EQ(model.HouseText(13), "");
  // A new style or number leaves the texts in their cells; only Clear takes them away, and not the numbers.
  model.SetChartStyle(ChartLayout::South);
  model.SetHouseNumber(9);
  EXPECT_EQ(model.HouseText(3), "Su Mo   Ma  Me ");
  model.Clear();
  EXPECT_EQ(model.HouseText(3), "");
  EXPECT_EQ(model.LagnaNo(), 1);
  EXPECT_THROW(model.lblPlanet(12), SubscriptError);
  EXPECT_THROW(model.lblHouseNo(-1), SubscriptError);
}

TEST(KundaliModel, AStyleLeavesWhatItDoesNotSet) {
  constexpr const char *All = "1,2,3,4,5,6,7,8,9,10,11,12";
  constexpr const char *Four = "1,,,4,,,7,,,10,,";
  constexpr const char *None = ",,,,,,,,,,,";
  constexpr int Hide = -1;  // not a style: MakeHouseInvisible
  // The steps, the numbers that show then, and whether the first one's box masks what lies below.
  const std::tuple<std::vector<int>, const char *, bool> cases[] = {
      {{}, All, false},        {{1}, Four, true},        {{2}, All, false},           {{1, 2}, Four, true},
      {{1, 2, 0}, All, false}, {{1, 0, 2}, All, false},  {{Hide}, None, false},       {{Hide, 0}, None, false},
      {{Hide, 1}, None, true}, {{Hide, 2}, None, false}, {{1, Hide, 0}, None, false}, {{1, 7}, Four, true}};
  for (const auto &[steps, shown, masks] : cases) {
    KundaliModel model;
    for (const int step : steps)
      if (step == Hide)
        model.MakeHouseInvisible();
      else
        model.SetChartStyle(step);
    EXPECT_EQ(ShownNumbers(model), shown) << testing::PrintToString(steps);
    EXPECT_EQ(model.lblHouseNo(0).opaque, masks) << testing::PrintToString(steps);
  }
}

TEST(KundaliModel, FontsReachTheTextsByAssignmentAndByLayout) {
  KundaliModel model;
  EXPECT_EQ(model.Layout().houseFont.family(), "Arial");
  EXPECT_EQ(model.Layout().houseFont.pointSizeF(), 8.25);
  QFont bold("Arial", 10, QFont::Bold, true);
  model.SetPlanetFont(bold);
  model.SetHouseFont(bold);
  EXPECT_TRUE(model.Layout().planetFont.bold());
  EXPECT_TRUE(model.Layout().houseFont.bold());
  // The weight came with the assignment and no layout takes it away.
  model.SetHouseNumber(4);
  EXPECT_TRUE(model.Layout().planetFont.bold());
  EXPECT_TRUE(model.Layout().planetFont.italic());
  EXPECT_EQ(model.Layout().planetFont.pointSizeF(), 10);
}

TEST(KundaliModel, ZeroWidthsBecomeOneAndAssignmentsAreTold) {
  KundaliModel model;
  QStringList told;
  model.onChange = [&told](const QString &name) { told << name; };
  model.SetLineWidth(0);
  model.SetBorderWidth(0);
  model.SetNumberColor(Qt::blue);
  EXPECT_EQ(model.LineWidth(), 1);
  EXPECT_EQ(model.BorderWidth(), 1);
  EXPECT_EQ(told, QStringList({"LineWidth", "BorderWidth", "NumberColor"}));
}

TEST(KundaliModel, TheSavedStateKeepsItsOrderAndReadsBack) {
  KundaliModel model;
  model.SetChartStyle(ChartLayout::East);
  model.SetHouseNumber(7);
  model.SetLineColor(Qt::red);
  model.SetPlanetFont(QFont("Arial", 12));
  QStringList names;
  for (const auto &[name, value] : model.WriteState()) names << name;
  EXPECT_EQ(names, QStringList({"BackColor", "ForeColor", "Enabled", "HouseFont", "PlanetFont", "LineColor", "HouseNumber", "LineWidth",
                                "BorderWidth", "CentrePic", "HouseNumber", "TextColor", "ChartStyle", "BorderColor", "NumberColor"}));
  KundaliModel other;
  other.ReadState(model.WriteState() + KundaliModel::State{{"InvisHouseNum", true}});
  EXPECT_EQ(other.WriteState(), model.WriteState());
  EXPECT_TRUE(other.InvisHouseNum());
  EXPECT_TRUE(other.lblHouseNo(0).visible);  // the saved flag hides nothing
  other.ReadState({});
  EXPECT_EQ(other.ChartStyle(), 0);
  EXPECT_EQ(other.HouseNumber(), 1);
  EXPECT_FALSE(other.InvisHouseNum());
}

TEST(KundaliModel, DrawingAnewPutsTheFirstNorthTextsOnTheSurface) {
  KundaliModel model;
  model.DrawKundli();
  EXPECT_TRUE(model.Layout().textOnSurface);
  EXPECT_EQ(model.Layout().surfaceBoxes[0], QRectF(385, 140, 250, 300));
  model.LayoutChart();
  EXPECT_FALSE(model.Layout().textOnSurface);
  model.SetChartStyle(ChartLayout::South);
  model.DrawKundli();
  EXPECT_FALSE(model.Layout().textOnSurface);
}

TEST(KundaliModel, TheDescriptionNamesHouseAndSign) {
  KundaliModel model;
  EXPECT_EQ(model.Description(), "No planets are placed.");
  model.SetHouseNumber(6);
  for (const char *name : {"Asc", "Mar"}) model.PlanetPlace(6, name);
  model.PlanetPlace(5, "Jup");
  EXPECT_EQ(model.Description(), "House 1, sign 6: Asc, Mar. House 12, sign 5: Jup.");
  model.Clear();
  model.SetChartStyle(ChartLayout::South);
  model.PlanetPlace(5, "Jup");
  EXPECT_EQ(model.Description(), "Sign 5: Jup.");
}

}  // namespace
