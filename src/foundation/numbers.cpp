#include "foundation/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

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

}  // namespace

double Val(std::string_view text) {
  std::size_t i = 0;
  const std::size_t n = text.size();
  while (i < n && (text[i] == ' ' || text[i] == '\t')) ++i;
  std::string number;
  if (i < n && (text[i] == '+' || text[i] == '-')) number += text[i++];
  bool digits = false;
  while (i < n && IsDigit(text[i])) number += text[i++], digits = true;
  if (i < n && text[i] == '.') {
    number += text[i++];
    while (i < n && IsDigit(text[i])) number += text[i++], digits = true;
  }
  if (!digits) return 0;
  if (i < n && (text[i] == 'E' || text[i] == 'e' || text[i] == 'D' || text[i] == 'd')) {
    std::size_t j = i + 1;
    std::string exponent = "e";
    if (j < n && (text[j] == '+' || text[j] == '-')) exponent += text[j++];
    bool exp_digits = false;
    while (j < n && IsDigit(text[j])) exponent += text[j++], exp_digits = true;
    if (exp_digits) number += exponent;
  }
  // from_chars reads the point whatever the locale of the process.
  const char* first = number.c_str();
  if (*first == '+') ++first;
  double value = 0;
  auto [end, error] = std::from_chars(first, number.c_str() + number.size(), value);
  if (error != std::errc() || !std::isfinite(value)) return 0;
  return value;
}

std::int32_t ValLong(std::string_view text) { return ToLong(Val(text)); }

std::int16_t ValInt(std::string_view text) { return ToInt(Val(text)); }

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
