#include "foundation/fixed_width.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {
namespace {

TEST(PadText, EmptyTextIsOneBlankWhateverTheWidth) {
  EXPECT_EQ(PadText("", 10, 0), " ");
  EXPECT_EQ(PadText("    ", 5, 2), " ");
  EXPECT_EQ(PadText("", 0, 1), " ");
}

TEST(PadText, AlignmentsPadWithBlanks) {
  EXPECT_EQ(PadText("abc", 6, 0), "abc   ");
  EXPECT_EQ(PadText("abc", 6, 2), "   abc");
  EXPECT_EQ(PadText("abc", 6, 1), " abc  ");
  EXPECT_EQ(PadText("abcd", 6, 1), " abcd ");
  EXPECT_EQ(PadText("  abc  ", 4, 0), "abc ");
}

TEST(PadText, OtherAlignmentLeavesTheTrimmedTextUnpadded) {
  EXPECT_EQ(PadText("  ab  ", 6, 3), "ab");
  EXPECT_EQ(PadText("ab", 6, -1), "ab");
  EXPECT_EQ(PadText("abcdef", 3, 7), "abc");
}

TEST(PadText, LongTextIsCutToTheWidth) {
  EXPECT_EQ(PadText("abcdef", 3, 0), "abc");
  EXPECT_EQ(PadText("abcdef", 3, 2), "abc");
  EXPECT_EQ(PadText("abcdef", 0, 0), "");
}

TEST(PadText, WidthCountsCharacters) {
  EXPECT_EQ(PadText("é", 3, 2), "  é");
  EXPECT_EQ(PadText("éèàù", 2, 0), "éè");
  EXPECT_EQ(PadText("Noeud", 7, 1), " Noeud ");
}

TEST(PadInt, RightAlignsWithoutSignBlank) {
  EXPECT_EQ(PadInt(5, 4), "   5");
  EXPECT_EQ(PadInt(-5, 4), "  -5");
  EXPECT_EQ(PadInt(0, 3), "  0");
  EXPECT_EQ(PadInt(12345, 3), "12345");
  EXPECT_EQ(PadInt(-32768, 0), "-32768");
}

TEST(PadLong, RightAlignsAndNeverCuts) {
  EXPECT_EQ(PadLong(7, 1), "7");
  EXPECT_EQ(PadLong(123456, 10), "    123456");
  EXPECT_EQ(PadLong(-2147483647 - 1, 5), "-2147483648");
}

TEST(FormatFixed, BelowOneGetsAZeroInFront) {
  EXPECT_EQ(FormatFixed(0.5, 7, 2), "   0.50");
  EXPECT_EQ(FormatFixed(0, 7, 2), "   0.00");
  EXPECT_EQ(FormatFixed(0.125, 6, 2), "  0.13");
  EXPECT_EQ(FormatFixed(1e-7, 8, 2), "    0.00");
}

TEST(FormatFixed, NegativeBelowOneHasABareMinus) {
  EXPECT_EQ(FormatFixed(-0.25, 7, 2), "   -.25");
  EXPECT_EQ(FormatFixed(-0.125, 6, 2), "  -.13");
  // A negative value that rounds to nothing keeps its sign.
  EXPECT_EQ(FormatFixed(-0.001, 7, 2), "   -.00");
  EXPECT_EQ(FormatFixed(-0.4, 5, 0), "   -.");
  EXPECT_EQ(FormatFixed(-0.0, 7, 2), "   0.00");
}

TEST(FormatFixed, NoDecimalsKeepsThePoint) {
  EXPECT_EQ(FormatFixed(12, 5, 0), "  12.");
  EXPECT_EQ(FormatFixed(0.4, 5, 0), "   0.");
  EXPECT_EQ(FormatFixed(0.5, 5, 0), "   1.");
  EXPECT_EQ(FormatFixed(-1.5, 6, 0), "   -2.");
}

TEST(FormatFixed, TooWideIsNeverCut) {
  EXPECT_EQ(FormatFixed(1234567.5, 6, 2), "1234567.50");
  EXPECT_EQ(FormatFixed(-1234567.891, 8, 2), "-1234567.89");
  EXPECT_EQ(FormatFixed(9.9999, 4, 2), "10.00");
  EXPECT_EQ(FormatFixed(1e20, 5, 1), "100000000000000000000.0");
  // A width smaller than decimals + 1 leaves no room before the point.
  EXPECT_EQ(FormatFixed(5, 2, 2), "5.00");
  EXPECT_EQ(FormatFixed(0.05, 3, 1), "0.1");
}

TEST(FormatFixed, OrdinaryColumns) {
  EXPECT_EQ(FormatFixed(123.456, 10, 3), "   123.456");
  EXPECT_EQ(FormatFixed(-123.456, 10, 1), "    -123.5");
  EXPECT_EQ(FormatFixed(1234.5678, 4, 2), "1234.57");
  EXPECT_EQ(FormatFixed(42, 10, 4), "   42.0000");
  EXPECT_EQ(FormatFixed(0.1 + 0.2, 6, 2), "  0.30");
}

TEST(FormatFixed, RoundsHalfAwayFromZeroOnFifteenDigits) {
  // Each of these is just below the half in binary; the old format saw the
  // decimal half and rounded it up.
  EXPECT_EQ(FormatFixed(2.675, 8, 2), "    2.68");
  EXPECT_EQ(FormatFixed(1.005, 6, 2), "  1.01");
  EXPECT_EQ(FormatFixed(0.045, 5, 2), " 0.05");
  EXPECT_EQ(FormatFixed(0.95, 5, 1), "  1.0");
  EXPECT_EQ(FormatFixed(1.45, 5, 1), "  1.5");
  EXPECT_EQ(FormatFixed(-2.675, 8, 2), "   -2.68");
  // Halves go away from zero, not to even.
  EXPECT_EQ(FormatFixed(2.5, 4, 0), "  3.");
  EXPECT_EQ(FormatFixed(3.5, 4, 0), "  4.");
  EXPECT_EQ(FormatFixed(-2.5, 4, 0), " -3.");
  EXPECT_EQ(FormatFixed(99.995, 7, 2), " 100.00");
  EXPECT_EQ(FormatFixed(999999999999999.9, 5, 1), "1000000000000000.0");
}

TEST(FormatFixed, ManyDecimalsShowTheFifteenDigits) {
  EXPECT_EQ(FormatFixed(0.1, 25, 20), "   0.10000000000000000000");
  EXPECT_EQ(FormatFixed(1.0 / 3.0, 19, 17), "0.33333333333333300");
}

TEST(FormatFixed, NonFiniteValuesAreWrittenAsSuch) {
  EXPECT_EQ(FormatFixed(std::numeric_limits<double>::infinity(), 6, 2), "   inf");
  EXPECT_EQ(FormatFixed(std::numeric_limits<double>::quiet_NaN(), 6, 2), "   nan");
}

// The expected text of the integer k / 10^d in a field of width w.
std::string Expected(long long k, int w, int d) {
  const bool negative = k < 0;
  std::string digits = std::to_string(negative ? -k : k);
  if (static_cast<int>(digits.size()) <= d) {
    digits.insert(0, static_cast<std::size_t>(d + 1 - static_cast<int>(digits.size())), '0');
  }
  std::string integer = digits.substr(0, digits.size() - d);
  std::string fraction = digits.substr(digits.size() - d);
  if (integer == "0") integer.clear();
  if (negative) integer.insert(0, "-");
  if (integer.empty()) integer = "0";
  const int int_width = std::max(w - d - 1, 0);
  if (static_cast<int>(integer.size()) < int_width) {
    integer.insert(0, static_cast<std::size_t>(int_width) - integer.size(), ' ');
  }
  return integer + "." + fraction;
}

TEST(FormatFixed, RandomValuesAroundHalves) {
  std::mt19937_64 random(20240611);
  std::uniform_int_distribution<long long> counts(0, 99999999);
  std::uniform_int_distribution<int> decimals(0, 4);
  for (int n = 0; n < 20000; ++n) {
    const long long k = counts(random);
    const double dk = static_cast<double>(k);  // exact: k < 2^53
    const int d = decimals(random);
    const double scale = std::pow(10.0, d);
    const int w = 10;
    SCOPED_TRACE("k=" + std::to_string(k) + " d=" + std::to_string(d));
    ASSERT_EQ(FormatFixed((dk + 0.5) / scale, w, d), Expected(k + 1, w, d));
    ASSERT_EQ(FormatFixed((dk + 0.4) / scale, w, d), Expected(k, w, d));
    ASSERT_EQ(FormatFixed((dk + 0.6) / scale, w, d), Expected(k + 1, w, d));
    ASSERT_EQ(FormatFixed(-(dk + 0.5) / scale, w, d), Expected(-(k + 1), w, d));
    ASSERT_EQ(FormatFixed(static_cast<double>(k) / scale, w, d), Expected(k, w, d));
  }
}

TEST(FormatFixed, ReadsBackWithinHalfAUnit) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> values(-1e6, 1e6);
  for (int n = 0; n < 20000; ++n) {
    const double x = values(random);
    const int d = n % 6;
    const std::string text = FormatFixed(x, 12, d);
    ASSERT_GE(CharCount(text), 12u) << text;
    ASSERT_NEAR(Val(text), x, 0.5 * std::pow(10.0, -d) + 1e-9) << text;
  }
}

TEST(ReplaceText, ReplacesInCapitalsKeepingTheReplacement) {
  EXPECT_EQ(ReplaceText("fichier.mtf", ".MTF", ".nod"), "FICHIER.nod");
  EXPECT_EQ(ReplaceText("abcabc", "b", "x"), "AxCAxC");
  EXPECT_EQ(ReplaceText("reseau", "z", "y"), "RESEAU");
  EXPECT_EQ(ReplaceText("été", "t", "_"), "É_É");
}

TEST(ReplaceText, StartsAgainFromTheBeginning) {
  EXPECT_EQ(ReplaceText("aaa", "aa", "b"), "bA");
  EXPECT_EQ(ReplaceText("aab", "ab", "B"), "B");
  EXPECT_EQ(ReplaceText("aab", "ab", "b"), "Ab");
}

TEST(ReplaceText, EmptySearchOrSelfContainingReplacementEnds) {
  EXPECT_EQ(ReplaceText("abc", "", "x"), "ABC");
  EXPECT_EQ(ReplaceText("a-a", "a", "xA"), "xA-xA");
}

}  // namespace
}  // namespace pluvane
