#include "drawing/tag_match.h"

#include <charconv>
#include <cmath>

#include "foundation/numbers.h"

namespace pluvane {

TagMatch::TagMatch(double number) : text_(NumToText(number)), numeric_(true), number_(number) {}

bool TagMatch::Matches(std::string_view stored) const {
  if (stored == text_) return true;
  if (!numeric_) return false;
  double value = 0;
  return ReadWholeNumber(stored, value) && value == number_;
}

bool ReadWholeNumber(std::string_view text, double& number) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  if (text.empty()) return false;
  const char c = text.front();
  if (!(c == '-' || c == '.' || (c >= '0' && c <= '9'))) return false;  // no "inf", "nan"
  auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && std::isfinite(number);
}

}  // namespace pluvane
