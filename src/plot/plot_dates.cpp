#include "plot/plot_dates.h"

#include <cstdio>

#include "foundation/text.h"

namespace pluvane {

namespace {

// Days from 1/1/1970 of a date of the proleptic Gregorian calendar.
std::int64_t DaysFromCivil(std::int64_t y, unsigned m, unsigned d) {
  y -= m <= 2;
  const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m > 2 ? m - 3 : m + 9) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<std::int64_t>(doe) - 719468;
}

void CivilFromDays(std::int64_t z, unsigned& m, unsigned& d) {
  z += 719468;
  const std::int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const unsigned doe = static_cast<unsigned>(z - era * 146097);
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const unsigned mp = (5 * doy + 2) / 153;
  d = doy - (153 * mp + 2) / 5 + 1;
  m = mp < 10 ? mp + 3 : mp - 9;
}

// Days from 1/1/1970 to 30/12/1899.
constexpr std::int64_t kSerialZero = -25569;

bool IsLeap(long y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

// A whole number of 1 to `max_digits` digits.
bool ReadNumber(std::string_view text, std::size_t& at, int max_digits, long& value) {
  const std::size_t start = at;
  value = 0;
  while (at < text.size() && text[at] >= '0' && text[at] <= '9' &&
         at - start < static_cast<std::size_t>(max_digits)) {
    value = value * 10 + (text[at++] - '0');
  }
  return at > start;
}

}  // namespace

bool DateSerialOf(std::string_view text, std::int32_t& serial) {
  std::string date = Trim(text);
  date = date.substr(0, date.find(' '));
  std::size_t at = 0;
  long day = 0, month = 0, year = 0;
  if (!ReadNumber(date, at, 2, day) || at >= date.size() || date[at++] != '/') return false;
  if (!ReadNumber(date, at, 2, month) || at >= date.size() || date[at++] != '/') return false;
  const std::size_t year_start = at;
  if (!ReadNumber(date, at, 4, year) || at != date.size()) return false;
  if (at - year_start <= 2) year += year < 30 ? 2000 : 1900;
  static constexpr int kMonthDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (year < 100 || month < 1 || month > 12 || day < 1) return false;
  if (day > kMonthDays[month - 1] + (month == 2 && IsLeap(year) ? 1 : 0)) return false;
  serial = static_cast<std::int32_t>(
      DaysFromCivil(year, static_cast<unsigned>(month), static_cast<unsigned>(day)) - kSerialZero);
  return true;
}

std::string DayMonthText(std::int32_t serial) {
  unsigned month = 0, day = 0;
  CivilFromDays(static_cast<std::int64_t>(serial) + kSerialZero, month, day);
  char text[8];
  std::snprintf(text, sizeof text, "%02u/%02u", day % 100, month % 100);
  return text;
}

}  // namespace pluvane
