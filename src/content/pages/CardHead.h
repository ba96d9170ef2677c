// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QLabel>

// A bold maroon line over other words.
inline QLabel *MakeHead(const QString &element) {
  auto *head = new QLabel;
  head->setObjectName(element);
  head->setProperty("role", QStringLiteral("head"));
  QFont font = head->font();
  font.setBold(true);
  head->setFont(font);
  return head;
}

// The same over a card's content, in line with the text of its tables.
inline QLabel *MakeCardHead(const QString &element) {
  QLabel *head = MakeHead(element);
  head->setContentsMargins(10, 4, 10, 0);
  head->setWordWrap(true);
  return head;
}

// A line of words under a table, in line with its text. role: of the theme.
inline QLabel *MakeCardLine(const QString &element, const char *role = "caption") {
  auto *line = new QLabel;
  line->setObjectName(element);
  line->setProperty("role", QString::fromLatin1(role));
  line->setContentsMargins(10, 2, 10, 2);
  line->setWordWrap(true);
  return line;
}
