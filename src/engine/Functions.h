// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

// The small number rules that every figure of the program rests on: rounding, the normalisers with
// their exact edges, and the short number texts. No other file writes its own.
namespace Functions {

// Rounds down to a whole number: Int(-0.5) is -1.
double Int(double value);

// Cuts toward zero: Fix(-0.5) is 0.
double Fix(double value);

// A double kept in a whole-number field: rounds half to even (2.5 gives 2, 3.5 gives 4).
// Throws ConversionError outside the 32-bit range and for a value that is no number.
int Whole(double value);

// The same for a 16-bit field.
int Whole16(double value);

// The normalisers. Each subtracts m while the value is above m, so that m itself stays m; a negative
// value has m added until it is above 0, so that -m comes to m. Those of this row leave 0 as 0.
double NormDeg360(double degrees);
double Norm30(double degrees);
double Norm27(double value);
double Norm24(double hours);
double Norm7(double value);

// These turn a final 0 into m: 12, 7 and 9.
double Norm12(double value);
double Norm7Z(double value);
double Norm9(double value);

// The remainder as a real number: subtracts m while above m, adds m while below 0; m stays m and -m gives 0.
double ModPos(double value, double modulus);

// value - Fix(value): negative for a negative value.
double FracVar(double value);

// The text of the number from its decimal point on (".25"), or "0" when it has none.
QString FracText(double value);

// At least two digits: 5 gives "05", 123 stays "123".
QString Two(double value);

// A date from the text dd/mm/yyyy, read by position. Throws ConversionError for any other text.
QDateTime ParseDayFirst(const QString &text);

// Decimal hours on the 12-hour clock, minutes cut and not padded: 5.75 gives "5:45 AM".
QString TimeAMPM(double hours);

// The number's text as it takes part in a text key: at most 15 significant digits.
QString NumberText(double value);

// Divides, and throws ArithmeticError where the divisor is 0; what names the quantity.
double Divide(double dividend, double divisor, const char *what);

}  // namespace Functions
