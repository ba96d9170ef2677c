// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "engine/Functions.h"

#include <cmath>
#include <limits>

#include "platform/Errors.h"

namespace Functions {
namespace {

// A loop over repeated subtraction never ends for an infinite value and loses its sense for a huge
// one; no angle, hour or count of this program comes near the limit.
void RequireReasonable(double value) {
  if (!std::isfinite(value) || std::abs(value) > 1e9)
    throw ArithmeticError(QStringLiteral("The number %1 is too large to be an angle, a time or a count.").arg(value));
}

double Wrap(double value, double modulus) {
  RequireReasonable(value);
  while (value > modulus) value = value - modulus;
  if (value < 0) {
    do value = value + modulus;
    while (!(value > 0));
  }
  return value;
}

double WrapZeroToModulus(double value, double modulus) {
  const double wrapped = Wrap(value, modulus);
  return wrapped == 0 ? modulus : wrapped;
}

}  // namespace

double Int(double value) { return std::floor(value); }

double Fix(double value) { return std::trunc(value); }

int Whole(double value) {
  // Most values are whole already, and rounding one costs more than looking.
  if (std::abs(value) < 1e9) {
    const int whole = static_cast<int>(value);
    if (whole == value) return whole;
  }
  const double rounded = std::nearbyint(value);  // the default rounding mode: half to even
  if (!(rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max()))
    throw ConversionError(QStringLiteral("The number %1 does not fit into a whole-number field.").arg(value));
  return static_cast<int>(rounded);
}

int Whole16(double value) {
  const int rounded = Whole(value);
  if (rounded < std::numeric_limits<qint16>::min() || rounded > std::numeric_limits<qint16>::max())
    throw ConversionError(QStringLiteral("The number %1 does not fit into a 16-bit field.").arg(value));
  return rounded;
}

double NormDeg360(double degrees) { return Wrap(degrees, 360); }
double Norm30(double degrees) { return Wrap(degrees, 30); }
double Norm27(double value) { return Wrap(value, 27); }
double Norm24(double hours) { return Wrap(hours, 24); }
double Norm7(double value) { return Wrap(value, 7); }
double Norm12(double value) { return WrapZeroToModulus(value, 12); }
double Norm7Z(double value) { return WrapZeroToModulus(value, 7); }
double Norm9(double value) { return WrapZeroToModulus(value, 9); }

double ModPos(double value, double modulus) {
  RequireReasonable(value);
  while (value > modulus) value = value - modulus;
  while (value < 0) value = value + modulus;
  return value;
}

double FracVar(double value) { return value - Fix(value); }

QString NumberText(double value) {
  if (value == 0) return QStringLiteral("0");
  return QString::number(value, 'g', 15);
}

QString FracText(double value) {
  const QString text = NumberText(value);
  const qsizetype point = text.indexOf(QLatin1Char('.'));
  return point < 0 ? QStringLiteral("0") : text.mid(point);
}

QString Two(double value) {
  // Format "00" rounds half away from zero, unlike a whole-number field.
  return QStringLiteral("%1").arg(static_cast<qlonglong>(std::llround(value)), 2, 10, QLatin1Char('0'));
}

QDateTime ParseDayFirst(const QString &text) {
  const auto part = [&](qsizetype from, qsizetype length) {
    bool ok = false;
    const int number = QStringView(text).mid(from, length).toInt(&ok);
    return ok ? number : -1;
  };
  const QDate date(part(text.size() - 4, 4), part(3, 2), part(0, 2));
  if (text.size() < 10 || !date.isValid())
    throw ConversionError(QStringLiteral("'%1' is not a date; the form is dd/mm/yyyy, as in 23/07/1980.").arg(text));
  return QDateTime(date, QTime(0, 0), Qt::UTC);
}

QString TimeAMPM(double hours) {
  const double whole = Fix(hours);
  return QStringLiteral("%1:%2%3").arg(NumberText(Norm12(whole)), NumberText(Fix((hours - whole) * 60)),
                                       whole < 12 ? QStringLiteral(" AM") : QStringLiteral(" PM"));
}

double Divide(double dividend, double divisor, const char *what) {
  if (divisor == 0) throw ArithmeticError(QStringLiteral("A division by zero came up while working out %1.").arg(QLatin1String(what)));
  return dividend / divisor;
}

}  // namespace Functions
