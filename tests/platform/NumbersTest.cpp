// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/Errors.h"
#include "platform/Numbers.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <limits>

namespace {

TEST(Numbers, TextsReadTheSameOnEveryMachine) {
  const std::pair<const char *, double> good[] = {{"5.30", 5.3}, {" -3.5 ", -3.5}, {"+00.00", 0}, {"+5", 5},      {".5", 0.5},
                                                  {"7.", 7},     {"1e3", 1000},    {"05", 5},     {"-.25", -0.25}};
  for (const auto &[text, number] : good) EXPECT_EQ(TextToNumber(text, "time zone"), number) << text;
  for (const char *text :
       {"", " ", "5,30", "1,000", "inf", "-nan", "0x10", "5.3.1", "5 30", "+-5", "--5", "+", "-", ".", "5h", "1e999", "\u0665"})
    EXPECT_THROW(TextToNumber(text, "time zone"), ConversionError) << text;
  try {
    TextToNumber("5,30", "time zone");
  } catch (const ConversionError &error) {
    EXPECT_TRUE(error.Sentence().contains("time zone") && error.Sentence().contains("\"5,30\"") && error.Sentence().contains("5.30"));
    EXPECT_EQ(QString(error.what()), error.Sentence());
  }
}

TEST(Numbers, NumbersGoToTheShortestTextThatReadsBack) {
  const std::pair<double, const char *> cases[] = {{5.5, "5.5"},        {5, "5"},     {-0.0, "0"},
                                                   {0.1, "0.1"},        {-4, "-4"},   {1e20, "100000000000000000000"},
                                                   {1e-7, "0.0000001"}, {100, "100"}, {1.0 / 3, "0.3333333333333333"}};
  for (const auto &[number, text] : cases) EXPECT_EQ(NumberToText(number).toStdString(), text);
  for (const double number : {0.1 + 0.2, 23.85 * 7, DBL_MAX, DBL_MIN, std::numeric_limits<double>::denorm_min(), -359.99999999999994})
    EXPECT_EQ(TextToNumber(NumberToText(number), "number"), number);
  EXPECT_THROW(NumberToText(std::numeric_limits<double>::quiet_NaN()), ArithmeticError);
  EXPECT_THROW(NumberToText(-std::numeric_limits<double>::infinity()), ArithmeticError);
}

TEST(Numbers, WholeNumbersTakeNoFraction) {
  EXPECT_EQ(TextToWhole(" +12 ", "day"), 12);
  EXPECT_EQ(TextToWhole("-2147483648", "day"), std::numeric_limits<int>::min());
  for (const char *text : {"", "5.0", "1e2", "2147483648", "abc", "+-1"}) EXPECT_THROW(TextToWhole(text, "day"), ConversionError) << text;
}

}  // namespace
