// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/Numbers.h"

#include "platform/Errors.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {

// Reads the whole text or nothing. std::from_chars knows no locale; it also knows no leading "+", and reads "inf" and "nan",
// which no field means.
template <typename Number>
std::errc Read(const QString &text, Number &number) {
  QByteArray plain = text.trimmed().toUtf8();
  if (plain.startsWith('+')) {
    plain.remove(0, 1);
    if (plain.startsWith('-')) return std::errc::invalid_argument;
  }
  const char first = plain.isEmpty() ? '\0' : plain[plain.startsWith('-') && plain.size() > 1 ? 1 : 0];
  if (first != '.' && (first < '0' || first > '9')) return std::errc::invalid_argument;
  const auto [end, fault] = std::from_chars(plain.constData(), plain.constData() + plain.size(), number);
  if (fault == std::errc() && end != plain.constData() + plain.size()) return std::errc::invalid_argument;
  return fault;
}

}  // namespace

double TextToNumber(const QString &text, const QString &what) {
  double number = 0;
  if (const std::errc fault = Read(text, number); fault == std::errc::result_out_of_range) {
    throw ConversionError(QCoreApplication::translate("Numbers", "The %1 \"%2\" is too large or too small a number.").arg(what, text));
  } else if (fault != std::errc()) {
    throw ConversionError(
        QCoreApplication::translate("Numbers", "The %1 \"%2\" is not a number. Please write it with digits and a point, like 5.30.")
            .arg(what, text));
  }
  return number;
}

double TextToDegrees(const QString &text, const QString &what) {
  const double degrees = TextToNumber(text, what);
  if (std::abs(degrees) > 360) {
    throw ConversionError(
        QCoreApplication::translate("Numbers", "The %1 \"%2\" is more than a circle. Please give degrees from -360 to 360.")
            .arg(what, text));
  }
  return degrees;
}

QString NumberToText(double number) {
  if (!std::isfinite(number))
    throw ArithmeticError(QCoreApplication::translate("Numbers", "A calculation gave no number that can be shown."));
  if (number == 0) return QStringLiteral("0");
  std::array<char, 400> text{};  // the longest doubles have a few more than 300 digits before or after the point
  const auto [end, fault] = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  Q_ASSERT(fault == std::errc());
  return QString::fromLatin1(text.data(), end - text.data());
}

int TextToWhole(const QString &text, const QString &what) {
  int number = 0;
  if (const std::errc fault = Read(text, number); fault == std::errc::result_out_of_range) {
    throw ConversionError(QCoreApplication::translate("Numbers", "The %1 \"%2\" is too large or too small a number.").arg(what, text));
  } else if (fault != std::errc()) {
    throw ConversionError(
        QCoreApplication::translate("Numbers", "The %1 \"%2\" is not a whole number. Please write it with digits only, like 30.")
            .arg(what, text));
  }
  return number;
}
