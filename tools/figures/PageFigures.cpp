// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Captions of the pages and cells of the chart control.
#include "analysis/ChogadiyaPage.h"
#include "analysis/EvilMuhurthaPage.h"
#include "analysis/HoraPage.h"
#include "analysis/KundaliPage.h"
#include "analysis/OverviewPage.h"
#include "analysis/PanchangPage.h"
#include "analysis/PredictionPages.h"
#include "analysis/TrishulPage.h"
#include "chart/KundaliModel.h"
#include "figures/Members.h"

namespace {

using Caption = std::function<Value(Members &, int index, const QString &suffix)>;

void RegisterCaption(const char *name, Caption caption) {
  Members::Register(QLatin1String(name), [caption](Members &members, const Question &question) {
    return caption(members, question.arguments.value(0).toInt(), question.suffix.trimmed());
  });
}

// The echo of a name, "CNVT|3|PLNTABB", tells the planet.
int NumberOf(const QString &echo) { return echo.section(QLatin1Char('|'), 1, 1).toInt(); }

OverviewPage Overview(Members &members) { return FillOverview(members.Birth(), members.Chart(), QString()); }

KundaliModel BirthKundali(Members &members, int style) {
  const KundaliPage page = FillBirthKundali(members.Chart());
  KundaliModel model;
  model.Clear();
  model.SetChartStyle(style);
  model.SetHouseNumber(page.houseNumber);
  for (const KundaliPage::Placed &placed : page.planets)
    model.PlanetPlace(placed.sign, members.Chart().PlanetNameEng(NumberOf(placed.name)));
  return model;
}

}  // namespace

void RegisterPageFigures() {
  RegisterCaption("lblDayVal", [](Members &m, int, const QString &) { return Value(Overview(m).lblDayVal); });
  RegisterCaption("lblRahuKaalVal", [](Members &m, int, const QString &) { return Value(Overview(m).lblRahuKaalVal); });
  RegisterCaption("lblSunriseVal", [](Members &m, int, const QString &) { return Value(Overview(m).lblSunriseVal); });
  RegisterCaption("lblSunsetVal", [](Members &m, int, const QString &) { return Value(Overview(m).lblSunsetVal); });
  RegisterCaption("lblYamghantaVal", [](Members &m, int, const QString &) { return Value(Overview(m).lblYamghantaVal); });
  RegisterCaption("lblTrishulNums", [](Members &m, int, const QString &) {
    QStringList numbers;
    for (const int number : FillTrishulChakra(m.Chart()).lblTrishulNums) numbers << QString::number(number);
    return Value(numbers.join(QLatin1Char(',')));
  });
  RegisterCaption("lblPanchTodayVal", [](Members &m, int row, const QString &) {
    return Value(FillPanchangPage(m.Birth(), m.Chart()).lblPanchTodayVal.at(static_cast<size_t>(row)));
  });
  // The sunrise chart is cast for sunrise itself, so these minutes part from the independently worked ones on purpose.
  RegisterCaption("SunriseKundali", [](Members &m, int, const QString &suffix) {
    const QTime time = SunriseMoment(m.Chart()).time();
    return Value(suffix == QLatin1String("Hour") ? time.hour() : time.minute());
  });
  RegisterCaption("Page", [](Members &m, int, const QString &suffix) {
    const PredictionPage page = FillPredictionPage(suffix.toInt(), m.Birth(), m.Chart());
    return Value(page.lines.front().text);
  });
  RegisterCaption("lblChogTime", [](Members &m, int row, const QString &) {
    return Value(FillChogadiyaPage(m.Chart()).lblChogTime.at(static_cast<size_t>(row)));
  });
  RegisterCaption("lblChogName", [](Members &m, int row, const QString &) {
    return Value(FillChogadiyaPage(m.Chart()).lblChogName.at(static_cast<size_t>(row)));
  });
  RegisterCaption("lblHoraTime", [](Members &m, int row, const QString &) {
    return Value(FillHoraPage(m.Chart()).lblHoraTime.at(static_cast<size_t>(row)));
  });
  RegisterCaption("lblHoraName", [](Members &m, int row, const QString &) {
    return Value(FillHoraPage(m.Chart()).lblHoraName.at(static_cast<size_t>(row)));
  });
  RegisterCaption("EvilMuhurtha", [](Members &m, int kind, const QString &suffix) {
    const EvilMuhurthaPage::Row row = FillEvilMuhurthaPage(m.Chart()).rows.at(static_cast<size_t>(kind - 1));
    return Value(suffix == QLatin1String("head") ? row.head : suffix == QLatin1String("start") ? row.start : row.end);
  });
  for (int style = 0; style <= 2; ++style) {
    const QString name = QStringLiteral("Kundali style=%1 ").arg(style);
    Members::Register(name + QStringLiteral("LagnaNo"),
                      [style](Members &m, const Question &) { return Value(BirthKundali(m, style).LagnaNo()); });
    Members::Register(name + QStringLiteral("HouseText"), [style](Members &m, const Question &question) {
      return Value(BirthKundali(m, style).HouseText(question.arguments.value(0).toInt()));
    });
  }
  RegisterCaption("Kundali", [](Members &m, int, const QString &suffix) {
    const KundaliModel model = BirthKundali(m, suffix.mid(6, 1).toInt());
    QStringList numbers;
    for (int cell = 0; cell < 12; ++cell) numbers << (model.lblHouseNo(cell).visible ? model.lblHouseNo(cell).caption : QString());
    return Value(numbers.join(QLatin1Char(',')));
  });
}
