// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/pages/Card.h"

#include "content/Theme.h"

Card::Card(QWidget *parent) : QFrame(parent), body(new QVBoxLayout(this)) {
  setProperty("role", QStringLiteral("card"));
  body->setContentsMargins(Grid::Gap, Grid::Gap, Grid::Gap, Grid::Gap);
  body->setSpacing(Grid::Gap);
}
