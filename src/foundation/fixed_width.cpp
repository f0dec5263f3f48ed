#include "foundation/fixed_width.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "foundation/text.h"

namespace pluvane {

namespace {

std::string PadLeft(const std::string& text, int width) {
  const auto count = static_cast<long long>(CharCount(text));
  if (count >= width) return text;
  return std::string(static_cast<std::size_t>(width - count), ' ') + text;
}

// The digits of |value| to the left and right of the point, rounded half away
// from zero to `decimals` places. The value is first taken to 15 significant
// digits, as the old number formatting did, so 2.675 rounds to 2.68. The
// integer digits are empty when the rounded value is below 1.
void FixedDigits(double value, int decimals, std::string& integer, std::string& fraction) {
  constexpr int kDigits = 15;
  char buf[64];
  auto res = std::to_chars(buf, buf + sizeof buf, std::fabs(value), std::chars_format::scientific,
                           kDigits - 1);
  std::string_view text(buf, res.ptr - buf);
  std::string sig;  // the 15 significant digits
  for (char c : text.substr(0, text.find('e'))) {
    if (c != '.') sig += c;
  }
  int exponent = 0;
  std::string_view exp_text = text.substr(text.find('e') + 1);
  if (!exp_text.empty() && exp_text.front() == '+') exp_text.remove_prefix(1);
  std::from_chars(exp_text.data(), exp_text.data() + exp_text.size(), exponent);
  // Digit j of `sig` has the weight 10^(exponent - j).
  auto digit_at = [&](long long j) { return j >= 0 && j < kDigits ? sig[j] : '0'; };

  std::string digits;  // integer digits then `decimals` fraction digits
  for (long long p = std::max(exponent, 0); p >= 0; --p) digits += digit_at(exponent - p);
  for (long long k = 1; k <= decimals; ++k) digits += digit_at(exponent + k);
  if (digit_at(static_cast<long long>(exponent) + decimals + 1) >= '5') {
    std::size_t i = digits.size();
    while (i > 0 && digits[i - 1] == '9') digits[--i] = '0';
    if (i == 0) {
      digits.insert(digits.begin(), '1');
    } else {
      ++digits[i - 1];
    }
  }
  integer = digits.substr(0, digits.size() - decimals);
  fraction = digits.substr(digits.size() - decimals);
  integer.erase(0, integer.find_first_not_of('0'));
}

}  // namespace

std::string PadText(std::string_view text, int width, int alignment) {
  std::string t = Trim(text);
  if (t.empty()) return " ";
  width = std::max(width, 0);
  if (CharCount(t) > static_cast<std::size_t>(width)) t = CharLeft(t, width);
  const int missing = width - static_cast<int>(CharCount(t));
  switch (alignment) {
    case 0:
      return t + std::string(missing, ' ');
    case 1:
      return std::string(missing / 2, ' ') + t + std::string(missing - missing / 2, ' ');
    case 2:
      return std::string(missing, ' ') + t;
    default:
      return t;
  }
}

std::string PadInt(std::int16_t value, int width) { return PadLeft(std::to_string(value), width); }

std::string PadLong(std::int32_t value, int width) { return PadLeft(std::to_string(value), width); }

std::string FormatFixed(double value, int width, int decimals) {
  decimals = std::max(decimals, 0);
  const int integer_width = std::max(width - decimals - 1, 0);
  if (!std::isfinite(value)) {
    char buf[16];
    auto res = std::to_chars(buf, buf + sizeof buf, value);
    return PadLeft(std::string(buf, res.ptr), width);
  }
  std::string integer, fraction;
  FixedDigits(value, decimals, integer, fraction);
  // The sign stays on a negative value that rounds to nothing, as it did.
  if (value < 0) integer.insert(0, "-");
  if (integer.empty()) integer = "0";
  return PadLeft(integer, integer_width) + "." + fraction;
}

std::string ReplaceText(std::string_view text, std::string_view what,
                        std::string_view replacement) {
  std::string result = UCase(text);
  const std::string target = UCase(what);
  if (target.empty()) return result;
  // A replacement holding the target would be replaced forever: it is then
  // applied once to each occurrence, left to right.
  if (replacement.find(target) != std::string_view::npos) {
    std::size_t at = 0;
    while ((at = result.find(target, at)) != std::string::npos) {
      result.replace(at, target.size(), replacement);
      at += replacement.size();
    }
    return result;
  }
  for (std::size_t at; (at = result.find(target)) != std::string::npos;) {
    result.replace(at, target.size(), replacement);
  }
  return result;
}

}  // namespace pluvane
