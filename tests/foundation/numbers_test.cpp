#include "foundation/numbers.h"

#include <gtest/gtest.h>

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
