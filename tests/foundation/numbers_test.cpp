#include "foundation/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>
#include <string>

namespace pluvane {
namespace {

TEST(Val, ReadsTheLeadingNumber) {
  EXPECT_DOUBLE_EQ(Val("12.5 m"), 12.5);
  EXPECT_DOUBLE_EQ(Val("  -3"), -3);
  EXPECT_DOUBLE_EQ(Val("\t+4.25abc"), 4.25);
  EXPECT_DOUBLE_EQ(Val(".5"), 0.5);
  EXPECT_DOUBLE_EQ(Val("1.5E3"), 1500);
  EXPECT_DOUBLE_EQ(Val("2D-1"), 0.2);
  EXPECT_DOUBLE_EQ(Val("7E"), 7);
  EXPECT_DOUBLE_EQ(Val("103 - Pluie Caquot"), 103);
}

TEST(Val, GivesZeroWithoutANumber) {
  EXPECT_EQ(Val(""), 0);
  EXPECT_EQ(Val("abc"), 0);
  EXPECT_EQ(Val("-"), 0);
  EXPECT_EQ(Val("."), 0);
  EXPECT_EQ(Val("1E999"), 0);
}

// Every form met in the program's files gives the correctly rounded double,
// bit for bit.
TEST(Val, EveryNumberFormIsReadToTheNearestDouble) {
  EXPECT_EQ(Val("     1.000"), 1.0);
  EXPECT_EQ(Val("    -2.500"), -2.5);
  EXPECT_EQ(Val("  1234.567"), 1234.567);
  EXPECT_EQ(Val("    0.1   "), 0.1);
  EXPECT_EQ(Val("1234567.89"), 1234567.89);
  EXPECT_EQ(Val("  .3"), 0.3);
  EXPECT_EQ(Val("5."), 5.0);
  EXPECT_EQ(Val("-.75"), -0.75);
  EXPECT_EQ(Val("+12"), 12.0);
  EXPECT_EQ(Val("007.250"), 7.25);
  EXPECT_EQ(Val("1.0D-02"), 0.01);
  EXPECT_EQ(Val("1.0d+02"), 100.0);
  EXPECT_EQ(Val("2.5e-3"), 0.0025);
  EXPECT_EQ(Val("-1.5E+20"), -1.5e20);
  EXPECT_EQ(Val("9007199254740993"), 9007199254740992.0);  // past 2^53: rounded
  EXPECT_EQ(Val("0.30000000000000004"), 0.30000000000000004);
  EXPECT_EQ(Val("123456789012345678901234567890"), 1.2345678901234568e29);
  EXPECT_EQ(Val("0.000000000000000000000000123"), 1.23e-25);
  EXPECT_EQ(Val("1E-400"), 0);
  EXPECT_EQ(Val("4.9E-324"), 4.9e-324);
  EXPECT_EQ(Val("1.7976931348623157E308"), 1.7976931348623157e308);
  EXPECT_EQ(Val("12.34.56"), 12.34);
  EXPECT_EQ(Val("3-4"), 3.0);
  EXPECT_EQ(Val("1E+"), 1.0);
  EXPECT_EQ(Val("+-1"), 0);
  EXPECT_EQ(Val(" \t -8"), -8.0);
  EXPECT_TRUE(std::signbit(Val("-0.000")));
  EXPECT_FALSE(std::signbit(Val("0.000")));
}

// Random numbers in the forms above read as the C library reads them.
TEST(Val, AgreesWithTheCLibraryOnRandomNumbers) {
  std::mt19937 random(20240611);
  const auto digits = [&](int most) {
    std::string text;
    const int count = static_cast<int>(random() % (most + 1));
    for (int i = 0; i < count; ++i) text += static_cast<char>('0' + random() % 10);
    return text;
  };
  for (int trial = 0; trial < 20000; ++trial) {
    std::string text = random() % 3 == 0 ? "-" : "";
    text += digits(12);
    if (random() % 2) text += "." + digits(8);
    if (random() % 5 == 0) text += (random() % 2 ? "E" : "E-") + std::to_string(random() % 40);
    const bool has_digits = text.find_first_of("0123456789") < text.find('E');
    const double expected = has_digits ? std::strtod(text.c_str(), nullptr) : 0;
    EXPECT_EQ(Val(text), expected) << text;
  }
}

TEST(Val, IntegerFormsTruncateAndClamp) {
  EXPECT_EQ(ValLong("99.9"), 99);
  EXPECT_EQ(ValLong("-2.7"), -2);
  EXPECT_EQ(ValLong("1E12"), 2147483647);
  EXPECT_EQ(ValInt("40000"), 32767);
  EXPECT_EQ(ToLong(-1E20), -2147483647 - 1);
}

TEST(NumToText, WritesAtMostFifteenSignificantDigits) {
  EXPECT_EQ(NumToText(0.8), "0.8");
  EXPECT_EQ(NumToText(120), "120");
  EXPECT_EQ(NumToText(-0.25), "-0.25");
  EXPECT_EQ(NumToText(0.0), "0");
  EXPECT_EQ(NumToText(-0.0), "0");
  EXPECT_EQ(NumToText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(NumToText(123456789012345.0), "123456789012345");
  EXPECT_EQ(NumToText(1E15), "1E+15");
  EXPECT_EQ(NumToText(0.0001), "0.0001");
  EXPECT_EQ(NumToText(0.00001), "1E-05");
  EXPECT_EQ(NumToText(1.5E20), "1.5E+20");
  EXPECT_EQ(NumToText(1E100), "1E+100");
}

TEST(NumToText, ReadsBackThroughVal) {
  for (double v : {0.8, 1234.5678, -17.25, 1E-7, 99.0}) EXPECT_DOUBLE_EQ(Val(NumToText(v)), v);
}

}  // namespace
}  // namespace pluvane

namespace pluvane {
namespace {

TEST(ValRoundLong, ATagsNumberIsRoundedHalfToEven) {
  EXPECT_EQ(ValRoundLong("3.5"), 4);
  EXPECT_EQ(ValRoundLong("2.5"), 2);
  EXPECT_EQ(ValRoundLong("-2.5"), -2);
  EXPECT_EQ(ValRoundLong("2.51"), 3);
  EXPECT_EQ(ValRoundLong("abc"), 0);
  EXPECT_EQ(ValRoundLong("1E12"), 2147483647);
  EXPECT_EQ(ValRoundInt("0.5"), 0);
  EXPECT_EQ(ValRoundInt("1.5"), 2);
  EXPECT_EQ(ValRoundInt("40000"), 32767);
}

}  // namespace
}  // namespace pluvane
