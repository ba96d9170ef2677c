// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>

// Numbers to text and back, always with "." for decimals and no grouping, whatever the machine's language is:
// stored time zones such as 5.30 must mean the same on every machine.

// Reads a decimal number such as 5.30, -3.5, +00.00 or 1e3; blanks around it do not matter.
// what: names the field in the message, such as "time zone".
// Throws ConversionError for anything else: an empty text, "5,30", "inf", "0x10", a number too large.
double TextToNumber(const QString &text, const QString &what);

// The same for degrees of a circle.
// Throws ConversionError also for less than -360 and more than 360.
double TextToDegrees(const QString &text, const QString &what);

// The shortest plain decimal text (no exponent) that TextToNumber reads back as the same number: 5.5 -> "5.5", 5 -> "5", -0 -> "0".
// Throws ArithmeticError for a number that is not finite.
QString NumberToText(double number);

// Reads a whole number, optionally signed; blanks around it do not matter.
// Throws ConversionError for anything else, also for one outside the range of an int.
int TextToWhole(const QString &text, const QString &what);
