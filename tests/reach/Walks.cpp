// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "reach/Walks.h"

#include <QWidget>

QString NameOf(const QWidget &widget) {
  QString name = QLatin1String(widget.metaObject()->className());
  for (const QWidget *at = &widget; at; at = at->parentWidget()) {
    if (at->objectName().isEmpty()) continue;
    return name + QLatin1Char(' ') + (at == &widget ? QString() : QStringLiteral("in ")) + at->objectName();
  }
  return name;
}
