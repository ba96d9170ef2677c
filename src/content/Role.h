// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QStyle>
#include <QWidget>

// Gives a widget that may be dressed already another role of the theme; the style reads the role only when it dresses, which
// takes long: a widget that has the role keeps its dress.
inline void SetRole(QWidget &widget, const char *role) {
  if (widget.property("role").toString() == QLatin1String(role)) return;
  widget.setProperty("role", QString::fromLatin1(role));
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
}
