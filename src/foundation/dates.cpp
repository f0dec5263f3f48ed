#include "foundation/dates.h"

#include <array>
#include <cstdio>

namespace pluvane {

std::string FrenchDateTime(const std::tm& when) {
  static const std::array<const char*, 12> kMonths = {
      "janvier", "février", "mars",      "avril",   "mai",      "juin",
      "juillet", "août",    "septembre", "octobre", "novembre", "décembre"};
  const int month = when.tm_mon >= 0 && when.tm_mon < 12 ? when.tm_mon : 0;
  char day[8], time[16];
  std::snprintf(day, sizeof day, "%02d", when.tm_mday % 100);
  std::snprintf(time, sizeof time, "%02d:%02d:%02d", when.tm_hour % 100, when.tm_min % 100,
                when.tm_sec % 100);
  return std::string(day) + " " + kMonths[month] + " " + std::to_string(when.tm_year + 1900) +
         " " + time;
}

std::tm Now() {
  std::time_t t = std::time(nullptr);
  std::tm local{};
  localtime_r(&t, &local);
  return local;
}

}  // namespace pluvane
