// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// Whom the program reaches: those who hear the screen, those who use keys alone, those who need it large or dark.
#include <gtest/gtest.h>

#include <QMainWindow>
#include <QTest>

#include "app/frmSplash.h"
#include "app/frmStatus.h"
#include "reach/ReachScreens.h"
#include "reach/Walks.h"

namespace {

const QSize Usual(1280, 800), Least(800, 600);

void Walk(Findings (*walk)(QWidget &), bool dark, QSize size) {
  int screens = 0;
  ReachScreens(dark, size).ForEach([&](const QString &name, QWidget &screen) {
    ++screens;
    const Findings found = walk(screen);
    // There is nothing to press on the picture of the start.
    EXPECT_TRUE(found.seen > 0 || qobject_cast<frmSplash *>(&screen)) << qPrintable(name);
    EXPECT_TRUE(found.faults.isEmpty()) << qPrintable(name) << ":\n  " << qPrintable(found.faults.join(QStringLiteral("\n  ")));
  });
  EXPECT_GE(screens, 50);
}

}  // namespace

TEST(Reach, EveryThingOnEveryScreenSaysItsNameAndWhatItIs) { Walk(WalkNames, false, Usual); }

TEST(Reach, KeysAloneReachEverything) { Walk(WalkKeys, false, Usual); }

TEST(Reach, EscClosesEveryDialog) {
  ReachScreens(false, Usual).ForEach([&](const QString &name, QWidget &screen) {
    if (qobject_cast<QMainWindow *>(&screen) || qobject_cast<frmSplash *>(&screen) || qobject_cast<frmStatus *>(&screen)) return;
    QTest::keyClick(screen.focusWidget() ? screen.focusWidget() : &screen, Qt::Key_Escape);
    EXPECT_FALSE(screen.isVisible()) << qPrintable(name);
    screen.show();
  });
}

// Run once more at 150 and at 200 %.
TEST(ReachAtAnyScale, NothingIsCutOrCovered) { Walk(WalkFit, false, Least); }

TEST(Reach, TextStandsOutInLight) { Walk(WalkInk, false, Usual); }

TEST(Reach, TextStandsOutInDark) { Walk(WalkInk, true, Usual); }
