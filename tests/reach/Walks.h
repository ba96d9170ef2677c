// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QStringList>

class QWidget;

// What a walk over one screen found: the number of things looked at, and a line for each fault.
struct Findings {
  int seen = 0;
  QStringList faults;
};

// The tree that a screen reader is told: names, roles, the texts of pictures and tables.
Findings WalkNames(QWidget &screen);

// Tab and the arrows: everything that can be used is reached, in the order of the eye, with a focus that shows, and left again.
Findings WalkKeys(QWidget &screen);

// Nothing is cut, elided, lies over its neighbour or out of its parent; pictures are drawn with all the pixels of the screen.
Findings WalkFit(QWidget &screen);

// Each text stands out from its ground by 4.5:1, each picture by 3:1.
Findings WalkInk(QWidget &screen);

// The widget as a line of a finding calls it.
QString NameOf(const QWidget &widget);
