// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QJsonArray>

// An array of one answer for each index from first to last.
template <typename Answer>
QJsonArray Each(int first, int last, Answer answer) {
  QJsonArray array;
  for (int index = first; index <= last; ++index) array.append(answer(index));
  return array;
}

// An array of one answer for each item.
template <typename Items, typename Answer>
QJsonArray Each(const Items &items, Answer answer) {
  QJsonArray array;
  for (const auto &item : items) array.append(answer(item));
  return array;
}
