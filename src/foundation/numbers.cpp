#include "foundation/numbers.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace pluvane {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

template <typename Int>
Int ClampTo(double value) {
  if (std::isnan(value)) return 0;
  if (value >= static_cast<double>(std::numeric_limits<Int>::max()))
    return std::numeric_limits<Int>::max();
  if (value <= static_cast<double>(std::numeric_limits<Int>::min()))
    return std::numeric_limits<Int>::min();
  return static_cast<Int>(value);
}

// Powers of ten that a double holds exactly.
constexpr double kExactTens[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                 1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::uint64_t kExactMantissa = std::uint64_t{1} << 53;
constexpr int kMostTens = 22;

// Decimal digits taken one by one into a whole number, as long as it holds.
void TakeDigit(char c, std::uint64_t& whole, bool& overflow) {
  const auto digit = static_cast<std::uint64_t>(c - '0');
  if (whole > (std::numeric_limits<std::uint64_t>::max() - digit) / 10) {
    overflow = true;
  } else {
    whole = whole * 10 + digit;
  }
}

}  // namespace

// The number's extent is found first; when its digits and exponent fit a
// double exactly, one multiplication or division by a power of ten gives the
// correctly rounded value, the same as a full conversion and without building
// a text. Anything else goes through from_chars.
double Val(std::string_view text) {
  std::size_t i = 0;
  const std::size_t n = text.size();
  while (i < n && (text[i] == ' ' || text[i] == '\t')) ++i;
  bool negative = false;
  if (i < n && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
  const std::size_t start = i;
  std::uint64_t mantissa = 0;
  bool overflow = false, digits = false;
  int decimals = 0;
  while (i < n && IsDigit(text[i])) TakeDigit(text[i++], mantissa, overflow), digits = true;
  if (i < n && text[i] == '.') {
    ++i;
    while (i < n && IsDigit(text[i])) {
      TakeDigit(text[i++], mantissa, overflow);
      ++decimals;
      digits = true;
    }
  }
  if (!digits) return 0;
  std::size_t end = i;
  std::size_t exponent_at = std::string_view::npos;
  int exponent = 0;
  if (i < n && (text[i] == 'E' || text[i] == 'e' || text[i] == 'D' || text[i] == 'd')) {
    std::size_t j = i + 1;
    bool exponent_negative = false;
    if (j < n && (text[j] == '+' || text[j] == '-')) exponent_negative = text[j++] == '-';
    const std::size_t exponent_digits = j;
    while (j < n && IsDigit(text[j])) {
      // Past any power a double can reach, the exact figure no longer matters.
      if (exponent < 100000) exponent = exponent * 10 + (text[j] - '0');
      ++j;
    }
    if (j > exponent_digits) {
      exponent_at = i;
      end = j;
      if (exponent_negative) exponent = -exponent;
    } else {
      exponent = 0;
    }
  }
  const int tens = exponent - decimals;
  if (!overflow && mantissa <= kExactMantissa && tens >= -kMostTens && tens <= kMostTens) {
    const auto whole = static_cast<double>(mantissa);
    const double value = tens < 0 ? whole / kExactTens[-tens] : whole * kExactTens[tens];
    return negative ? -value : value;
  }
  std::string number(text.substr(start, end - start));
  if (exponent_at != std::string_view::npos) number[exponent_at - start] = 'e';
  if (negative) number.insert(number.begin(), '-');
  // from_chars reads the point whatever the locale of the process.
  double value = 0;
  auto [last, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error != std::errc() || !std::isfinite(value)) return 0;
  return value;
}

std::int32_t ValLong(std::string_view text) { return ToLong(Val(text)); }

std::int16_t ValInt(std::string_view text) { return ToInt(Val(text)); }

std::int32_t ValRoundLong(std::string_view text) { return RoundLong(Val(text)); }

std::int16_t ValRoundInt(std::string_view text) {
  return ClampTo<std::int16_t>(std::nearbyint(Val(text)));
}

std::int32_t ToLong(double value) { return ClampTo<std::int32_t>(std::trunc(value)); }

std::int16_t ToInt(double value) { return ClampTo<std::int16_t>(std::trunc(value)); }

std::int32_t RoundLong(double value) { return ClampTo<std::int32_t>(std::nearbyint(value)); }

std::string NumToText(double value) {
  if (value == 0 || std::isnan(value)) return "0";
  char buffer[64];
  auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value,
                                    std::chars_format::general, 15);
  std::string text(buffer, end);
  // The old conversion wrote the exponent as E-05 or E+20.
  auto e = text.find('e');
  if (e != std::string::npos) {
    text[e] = 'E';
    std::size_t digits = text.size() - e - 2;
    if (digits < 2) text.insert(e + 2, 2 - digits, '0');
  }
  return text;
}

}  // namespace pluvane
