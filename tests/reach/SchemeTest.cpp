// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusVariant>
#include <QPalette>

#include "content/Theme.h"
#include "platform/gui/DesktopScheme.h"
#include "reach/Contrast.h"

namespace {

QVariant Wrapped(uint value) { return QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(value)))); }

}  // namespace

TEST(DesktopScheme, FollowsWhatTheDesktopAsksForAndThenItsWindows) {
  struct Case {
    QVariant asked;
    Qt::GlobalColor window;
    bool dark;
  };
  for (const Case &one : {Case{Wrapped(1), Qt::white, true}, Case{Wrapped(2), Qt::black, false}, Case{Wrapped(0), Qt::black, true},
                          Case{Wrapped(0), Qt::white, false}, Case{QVariant(), Qt::black, true}, Case{uint(1), Qt::white, true},
                          Case{Wrapped(7), Qt::white, false}, Case{QStringLiteral("dark"), Qt::white, false}}) {
    QPalette palette;
    palette.setColor(QPalette::Window, one.window);
    EXPECT_EQ(DesktopScheme::From(one.asked, {}, palette).dark, one.dark) << one.asked.toString().toStdString();
  }
  EXPECT_TRUE(DesktopScheme::From({}, Wrapped(1), QPalette()).highContrast);
  EXPECT_FALSE(DesktopScheme::From(Wrapped(1), Wrapped(0), QPalette()).highContrast);
}

TEST(DesktopScheme, MarksAreSeenInEachOfThem) {
  for (const DesktopScheme scheme :
       {DesktopScheme{false, false}, DesktopScheme{true, false}, DesktopScheme{false, true}, DesktopScheme{true, true}}) {
    Theme::Apply(*qApp, scheme);
    const Theme &theme = Theme::Current();
    for (const QColor &ground : {theme.chart.card, theme.chart.paper, theme.selection, theme.tint})
      for (const QColor &mark : {theme.chart.saffron, theme.chart.maroon})
        EXPECT_GE(Contrast::Between(mark, ground), 3) << scheme.dark << mark.name().toStdString() << " on " << ground.name().toStdString();
    for (const QColor &ground : {theme.chart.card, theme.chart.paper}) EXPECT_GE(Contrast::Between(theme.edge, ground), 3) << scheme.dark;
    EXPECT_GE(Contrast::Between(theme.good, theme.goodBack), 4.5) << scheme.dark;
    EXPECT_GE(Contrast::Between(theme.bad, theme.badBack), 4.5) << scheme.dark;
    EXPECT_GE(Contrast::Between(theme.OnPrimary(), theme.chart.maroon), 4.5) << scheme.dark;
    EXPECT_EQ(qApp->palette().color(QPalette::Window), theme.chart.paper);
  }
  Theme::Apply(*qApp, DesktopScheme());
}

TEST(DesktopScheme, HighContrastLeavesNothingFaint) {
  for (const bool dark : {false, true}) {
    Theme::Apply(*qApp, DesktopScheme{dark, true});
    const Theme &theme = Theme::Current();
    EXPECT_EQ(theme.dark, dark);
    for (const QColor &ground : {theme.chart.card, theme.chart.paper, theme.tint}) {
      EXPECT_GE(Contrast::Between(theme.chart.muted, ground), 7) << dark;
      EXPECT_GE(Contrast::Between(theme.chart.number, ground), 7) << dark;
      EXPECT_GE(Contrast::Between(theme.chart.line, ground), 3) << dark;
    }
  }
  Theme::Apply(*qApp, DesktopScheme());
}
