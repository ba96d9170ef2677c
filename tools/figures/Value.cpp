// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/Value.h"

#include "platform/Errors.h"

QString Value::Text() const {
  struct Printer {
    QString operator()(Empty) const { return QStringLiteral("empty"); }
    QString operator()(double number) const { return QString::number(number == 0 ? 0 : number, 'f', 9); }
    QString operator()(int number) const { return QString::number(number); }
    QString operator()(bool truth) const { return truth ? QStringLiteral("1") : QStringLiteral("0"); }
    QString operator()(const QString &text) const { return text; }
    QString operator()(const QDateTime &date) const { return date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")); }
  };
  return std::visit(Printer{}, data);
}

double Value::Number() const {
  if (const double *number = std::get_if<double>(&data)) return *number;
  if (const int *number = std::get_if<int>(&data)) return *number;
  throw ConversionError(QStringLiteral("'%1' is no number.").arg(Text()));
}

QDateTime Value::Date() const {
  if (const QDateTime *date = std::get_if<QDateTime>(&data)) return *date;
  throw ConversionError(QStringLiteral("'%1' is no date.").arg(Text()));
}
