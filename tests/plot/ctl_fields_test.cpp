#include "plot/ctl_fields.h"

#include <gtest/gtest.h>

namespace pluvane {
namespace {

TEST(CtlText, RightAlignsCutsAndBlanksAnEmptyText) {
  EXPECT_EQ(CtlText("A4H", 5), "  A4H");
  EXPECT_EQ(CtlText("", 5), "     ");
  EXPECT_EQ(CtlText("abcdefgh", 5), "abcde");
  EXPECT_EQ(CtlText("abcde", 5), "abcde");
  EXPECT_EQ(CtlText("Débit", 6), " Débit");  // characters, not bytes
}

TEST(CtlInt, LeftAlignsAndNeverCuts) {
  EXPECT_EQ(CtlInt(6, 8), "6       ");
  EXPECT_EQ(CtlInt(-1, 5), "-1   ");
  EXPECT_EQ(CtlInt(123456, 5), "123456");
}

TEST(CtlFixed, PadsTheIntegerDigitsOnTheRightAndCutsDecimals) {
  EXPECT_EQ(CtlFixed(6, 8, 2), "6    .00");
  EXPECT_EQ(CtlFixed(0.456, 10, 2), "0      .45");
  EXPECT_EQ(CtlFixed(0.0005, 8, 3), "0   .000");
  EXPECT_EQ(CtlFixed(7.999, 10, 2), "7      .99");
  EXPECT_EQ(CtlFixed(-0.456, 10, 2), "-0     .45");
  EXPECT_EQ(CtlFixed(28, 8, 2), "28   .00");
  EXPECT_EQ(CtlFixed(0.12345, 8, 3), "0   .123");
}

TEST(CtlFixed, WritesExponentsOutAndZeroesTinyDecimals) {
  EXPECT_EQ(CtlFixed(1.5e-4, 10, 5), "0   .00015");
  EXPECT_EQ(CtlFixed(1e-5, 10, 5), "0   .00000");
  EXPECT_EQ(CtlFixed(2e-5, 10, 5), "0   .00002");
  EXPECT_EQ(CtlFixed(1e20, 8, 2), "100000000000000000000.00");
}

TEST(CtlRight, RightAlignsWithoutCutting) {
  EXPECT_EQ(CtlRight("65535", 10), "     65535");
  EXPECT_EQ(CtlRight("", 10), "          ");
  EXPECT_EQ(CtlRight("12345678901", 10), "12345678901");
}

TEST(CtlField, TakesCharacterColumns) {
  EXPECT_EQ(CtlField("abcdéfgh", 4, 3), "déf");
  EXPECT_EQ(CtlField("abc", 3, 10), "c");
  EXPECT_EQ(CtlField("abc", 9, 10), "");
}

TEST(CtlNumber, IgnoresBlanksInsideTheField) {
  EXPECT_DOUBLE_EQ(CtlNumber("0      .45"), 0.45);
  EXPECT_DOUBLE_EQ(CtlNumber("-0     .45"), -0.45);
  EXPECT_DOUBLE_EQ(CtlNumber("6       "), 6);
  EXPECT_DOUBLE_EQ(CtlNumber("   abc"), 0);
}

}  // namespace
}  // namespace pluvane
