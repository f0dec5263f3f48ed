#include "plot/number_pattern.h"

#include <cmath>
#include <cstdio>

#include "foundation/numbers.h"

namespace pluvane {

std::string FormatByPattern(double value, std::string_view pattern) {
  const std::size_t first = pattern.find_first_of("#0");
  if (first == std::string_view::npos) return NumToText(value);
  const std::size_t last = pattern.find_last_of("#0");
  const std::string_view places = pattern.substr(first, last - first + 1);
  const std::size_t point = places.find('.');
  const std::string_view whole = places.substr(0, point);
  const std::string_view part =
      point == std::string_view::npos ? std::string_view() : places.substr(point + 1);
  int decimals = 0;
  for (char c : part) decimals += c == '#' || c == '0';
  int zeros = 0;  // integer digits always shown
  for (char c : whole) zeros += c == '0';

  const double scale = std::pow(10.0, decimals);
  double rounded = std::round(std::fabs(value) * scale) / scale;
  char digits[400];
  std::snprintf(digits, sizeof digits, "%.*f", decimals, rounded);
  std::string text = digits;
  std::string integer = text.substr(0, text.find('.'));
  const std::string fraction =
      decimals > 0 ? text.substr(text.find('.')) : (point != std::string_view::npos ? "." : "");
  if (integer == "0" && zeros == 0) integer.clear();
  while (static_cast<int>(integer.size()) < zeros) integer.insert(0, "0");
  const bool negative = value < 0 && rounded != 0;
  return std::string(pattern.substr(0, first)) + (negative ? "-" : "") + integer + fraction +
         std::string(pattern.substr(last + 1));
}

}  // namespace pluvane
