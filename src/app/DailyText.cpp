// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/DailyText.h"

#include "analysis/PlanetTablePage.h"
#include "analysis/PredictionPages.h"
#include "analysis/SelvaniDailyMod.h"
#include "app/TerminalText.h"

using TerminalText::Paragraph;
using TerminalText::Rule;

namespace {

constexpr int Width = 78;  // letters a line

QString Cell(const QString &text, int width) { return text.leftJustified(width); }

QString Pair(const QString &head, const QString &value) { return QStringLiteral("  %1%2").arg(Cell(head, 14), value); }

// Two captions side by side.
QString Pairs(const QString &head1, const QString &value1, const QString &head2, const QString &value2) {
  return Cell(Pair(head1, value1), 40) + Pair(head2, value2).mid(2) + QLatin1Char('\n');
}

QString PlanetTable(const QString &title, const clsPlanets &chart) {
  const PlanetTablePage page = FillPlanets(chart);
  const auto line = [](const QString &planet, const QString &sign, const QString &degrees, const QString &nakshatra, const QString &lord,
                       const QString &pada, const QString &motion) {
    const QString text = QStringLiteral("  ") + Cell(planet, 11) + Cell(sign, 12) + Cell(degrees, 10) + Cell(nakshatra, 18) +
                         Cell(lord, 10) + Cell(pada, 6) + motion;
    return text.trimmed().isEmpty() ? QString() : QStringLiteral("  ") + text.trimmed() + QLatin1Char('\n');
  };
  QString text = Rule(title);
  text += line(page.lblPlntHead, page.lblRashiHead, page.lblPDegreeHead, page.lblPNakHead, page.lblPNakLHead, page.lblPadaHead,
               page.lblDirHead);
  for (const PlanetTablePage::Row &row : page.rows)
    text += line(row.lblPlanets, row.lblRashi, row.lblDegrees, row.lblNak, row.lblNakLord, row.lblPad, row.lblDir);
  return text;
}

// Who, where and when.
QString Opening(SelvaniDailyMod &session) {
  const PersonHeader header = session.ShowPersonHeader();
  QString text = header.lblPersonName + QLatin1Char('\n');
  text += QStringLiteral("  %1, %2\n").arg(header.lblBDate.simplified(), session.BirthChart().clsPerson().GetBirthPlace());
  text += QStringLiteral("  %1\n").arg(header.lblNowIn.simplified());
  text += QStringLiteral("  %1\n").arg(session.NowInfo().simplified());
  return text;
}

QString PageTitle(const clsPlanets &words, const char *key) { return words.GetHeadValue(11, QLatin1String(key), QStringLiteral("Gen")); }

}  // namespace

QString DailyText(SelvaniDailyMod &session) {
  const OverviewPage page = session.FillMainPage();
  const clsPlanets &today = session.TodayChart();

  QString text = Opening(session);
  text += Rule(page.lblTodPanchang);
  if (page.IsExact()) text += Paragraph(page.lblExactHead, Width);
  const int month = clsPlanets::VikramiMonth(today.PlanetLongi(1), today.clsPerson().GetBirthDate());
  text += Pairs(page.lblDayHead, page.lblDayVal, page.lblSunRiseHead, page.lblSunriseVal);
  text += Pairs(page.lblTithiHead, page.lblTithiVal, page.lblSunSetHead, page.lblSunsetVal);
  text += Pairs(page.lblNakHead, page.lblNakVal, page.lblRahuKaalHead, page.lblRahuKaalVal);
  text += Pairs(page.lblYogaHead, page.lblYogaVal, page.lblYamGhantaHead, page.lblYamghantaVal);
  text += Pair(page.lblKaranHead, page.lblKaranVal) + QLatin1Char('\n');
  text += Pair(today.GetGenText(QStringLiteral("HinduMonth")), today.GetVikramiMonth(month)) + QLatin1Char('\n');
  text += Pair(page.lblCurDashaHead, page.lblCurDashaVal) + QLatin1Char('\n');

  text += PlanetTable(PageTitle(today, "BirthPlanets"), session.BirthChart());
  text += PlanetTable(PageTitle(today, "TodayPlanets"), today);
  return text;
}

QString DailyReading(SelvaniDailyMod &session) {
  const clsPlanets &birth = session.BirthChart(), &today = session.TodayChart();
  QString text = Opening(session);
  for (const PredictionFamily &family : PredictionFamilies()) {
    text += Rule(PageTitle(today, family.titleKey));
    for (const PredictionPage::Line &line : FillPredictionPage(family.page, birth, today).lines) text += Paragraph(line.text, Width);
  }
  const PredictionPage yogas = ShowYogas(today);
  if (!yogas.lines.empty()) text += Rule(PageTitle(today, "YogaResults"));
  for (const PredictionPage::Line &line : yogas.lines) {
    if (line.isHead && &line != &yogas.lines.front()) text += QLatin1Char('\n');
    text += line.isHead ? line.text + QLatin1Char('\n') : Paragraph(line.text, Width);
  }
  return text;
}
