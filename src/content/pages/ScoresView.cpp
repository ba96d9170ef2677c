// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/ScoresView.h"

#include <QHBoxLayout>
#include <QLocale>

#include "analysis/SelvaniDailyMod.h"
#include "content/Role.h"
#include "content/SetFonts.h"
#include "content/Theme.h"
#include "content/pages/Card.h"
#include "content/pages/CardHead.h"
#include "content/pages/PageScroll.h"
#include "content/pages/ScoreBar.h"
#include "content/pages/ScoreLine.h"
#include "content/pages/SideBySide.h"

namespace {

QLabel *MakeLabel(const QString &element, const char *role, bool bold) {
  auto *label = new QLabel;
  label->setObjectName(element);
  label->setProperty("role", QString::fromLatin1(role));
  QFont font = label->font();
  font.setBold(bold);
  label->setFont(font);
  return label;
}

ScoreBar::Tone ToneOf(ScoresPage::Level level) {
  switch (level) {
    case ScoresPage::Level::Favourable: return ScoreBar::Tone::Good;
    case ScoresPage::Level::Adverse: return ScoreBar::Tone::Bad;
    default: return ScoreBar::Tone::Plain;
  }
}

const char *RoleOf(ScoresPage::Level level) {
  switch (level) {
    case ScoresPage::Level::Favourable: return "good";
    case ScoresPage::Level::Adverse: return "bad";
    default: return "caption";
  }
}

}  // namespace

ScoresView::ScoresView(QWidget *parent)
    : PageView(parent), dayHead(MakeCardHead(QStringLiteral("lblScoreDay"))), courseHead(MakeCardHead(QStringLiteral("lblScoreCourse"))) {
  setObjectName(QStringLiteral("framScores"));
  setAccessibleName(tr("Day scores"));
  auto *bars = new Card, *lines = new Card;
  bars->Body()->addWidget(dayHead);
  lines->Body()->addWidget(courseHead);
  lines->Body()->setSpacing(4);
  for (size_t i = 0; i < themes.size(); ++i) {
    Theme &theme = themes[i];
    const auto element = [i](const char *name) { return QLatin1String(name) + QString::number(i); };
    theme.name = MakeLabel(element("lblScoreName"), "value", true);
    theme.score = MakeLabel(element("lblScore"), "value", true);
    theme.level = MakeLabel(element("lblScoreLevel"), "caption", false);
    theme.help = MakeLabel(element("lblScoreHelp"), "caption", false);
    theme.help->setWordWrap(true);
    theme.bar = new ScoreBar;
    theme.bar->setObjectName(element("barScore"));
    auto *block = new QVBoxLayout;
    block->setContentsMargins(10, 0, 10, 0);
    block->setSpacing(4);
    auto *top = new QHBoxLayout;
    top->setSpacing(Grid::Gap);
    top->addWidget(theme.name);
    top->addStretch();
    top->addWidget(theme.level);
    top->addWidget(theme.score);
    block->addStretch(1);
    block->addLayout(top);
    block->addWidget(theme.bar);
    block->addWidget(theme.help);
    block->addStretch(1);
    bars->Body()->addLayout(block, 1);

    theme.lineName = MakeLabel(element("lblScoreLine"), "caption", false);
    theme.line = new ScoreLine;
    theme.line->setObjectName(element("linScore"));
    connect(theme.line, &ScoreLine::DayChosen, this, &ScoresView::GoToDay);
    auto *course = new QVBoxLayout;
    course->setContentsMargins(10, 0, 10, 0);
    course->setSpacing(0);
    course->addWidget(theme.lineName);
    course->addWidget(theme.line, 1);
    lines->Body()->addLayout(course, 1);
  }
  auto *halves = new SideBySide(bars, lines);
  halves->SetStretch(2, 3);
  PageScroll::Fill(this, halves);
}

void ScoresView::Fill(SelvaniDailyMod &session) {
  const ScoresPage page = FillScores(session.BirthChart(), session.TodayChart());
  dayHead->setText(QLocale::c().toString(page.firstDay, QStringLiteral("dddd, d MMMM yyyy")));
  courseHead->setText(tr("The next %1 days; a click goes to the day").arg(ScoresPage::DaysAhead));
  for (size_t i = 0; i < themes.size(); ++i) {
    const ScoresPage::Theme &score = page.themes[i];
    Theme &theme = themes[i];
    const QString number = QString::number(qRound(score.today));
    theme.name->setText(score.name);
    theme.lineName->setText(score.name);
    theme.help->setText(score.help);
    theme.score->setText(number);
    theme.level->setText(score.levelWord);
    SetRole(*theme.level, RoleOf(score.level));
    theme.bar->SetScore(score.today, ToneOf(score.level));
    theme.bar->setAccessibleName(score.name);
    theme.bar->setAccessibleDescription(QStringLiteral("%1, %2").arg(number, score.levelWord));
    theme.line->SetCourse(score.name, page.firstDay, {score.course.begin(), score.course.end()}, i + 1 == themes.size());
  }
}

void ScoresView::ApplyFonts(const SetFonts &fonts) {
  fonts.SetSmallFont(*dayHead);
  fonts.SetSmallFont(*courseHead);
  for (const Theme &theme : themes) {
    for (QLabel *label : {theme.name, theme.score, theme.level, theme.help, theme.lineName}) fonts.SetSmallFont(*label);
    fonts.SetSmallFont(*theme.line);
  }
}
