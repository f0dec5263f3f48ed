#include "plot/ctl_fields.h"

#include <string>

#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

std::string PadRightTo(std::string text, int width) {
  const auto count = static_cast<long long>(CharCount(text));
  if (count < width) text.append(static_cast<std::size_t>(width - count), ' ');
  return text;
}

// Writes an exponent form ("1.5E-05") out in plain digits ("0.000015").
std::string PlainDigits(const std::string& text) {
  std::size_t e = text.find_first_of("EeDd");
  if (e == std::string::npos) return text;
  std::string mantissa = text.substr(0, e);
  const int exponent = static_cast<int>(Val(text.substr(e + 1)));
  std::string sign;
  if (!mantissa.empty() && mantissa.front() == '-') {
    sign = "-";
    mantissa.erase(0, 1);
  }
  std::size_t point = mantissa.find('.');
  std::string digits = mantissa;
  int integer_count = static_cast<int>(mantissa.size());
  if (point != std::string::npos) {
    digits.erase(point, 1);
    integer_count = static_cast<int>(point);
  }
  integer_count += exponent;
  if (integer_count <= 0) {
    return sign + "0." + std::string(static_cast<std::size_t>(-integer_count), '0') + digits;
  }
  if (integer_count >= static_cast<int>(digits.size())) {
    return sign + digits + std::string(integer_count - digits.size(), '0');
  }
  return sign + digits.substr(0, integer_count) + "." + digits.substr(integer_count);
}

}  // namespace

std::string CtlText(std::string_view text, int width) {
  if (Trim(text).empty()) return std::string(static_cast<std::size_t>(width > 0 ? width : 0), ' ');
  return PadText(text, width, 2);
}

std::string CtlInt(std::int32_t value, int width) {
  return PadRightTo(std::to_string(value), width);
}

std::string CtlFixed(double value, int width, int decimals) {
  std::string text = PlainDigits(NumToText(value));
  std::size_t point = text.find('.');
  std::string integer = text.substr(0, point);
  std::string fraction = point == std::string::npos ? "" : text.substr(point + 1);
  if (Val("0." + fraction) <= 0.00001) fraction.clear();
  fraction.resize(static_cast<std::size_t>(decimals > 0 ? decimals : 0), '0');
  return PadRightTo(integer, width - decimals - 1) + "." + fraction;
}

std::string CtlRight(std::string_view text, int width) {
  const auto count = static_cast<long long>(CharCount(text));
  std::string padding =
      count < width ? std::string(static_cast<std::size_t>(width - count), ' ') : std::string();
  return padding + std::string(text);
}

std::string CtlField(std::string_view line, int first, int width) {
  if (first < 1 || width <= 0) return {};
  return CharMid(line, static_cast<std::size_t>(first), static_cast<std::size_t>(width));
}

double CtlNumber(std::string_view field) {
  std::string packed;
  for (char c : field) {
    if (c != ' ' && c != '\t') packed += c;
  }
  return Val(packed);
}

}  // namespace pluvane
