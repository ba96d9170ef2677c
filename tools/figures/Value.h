// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>
#include <variant>

struct Empty {};

// One answer of a member, kept by its type until it is printed.
class Value {
 public:
  Value(Empty = {}) {}
  Value(double number) : data(number) {}
  Value(int number) : data(number) {}
  Value(bool truth) : data(truth) {}
  Value(const QString &text) : data(text) {}
  Value(const char *text) : data(QString::fromUtf8(text)) {}
  Value(const QDateTime &date) : data(date) {}
  template <typename T>
  Value(const std::optional<T> &number) {
    if (number) *this = Value(*number);
  }

  // A double with nine decimals, a whole number plain, a truth value 1 or 0, a date yyyy-mm-dd hh:mm:ss, no value "empty".
  QString Text() const;
  // The number for an argument; throws ConversionError where there is none.
  double Number() const;
  QDateTime Date() const;

 private:
  std::variant<Empty, double, int, bool, QString, QDateTime> data;
};
