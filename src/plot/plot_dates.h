// Dates of a date scale: a day/month/year text read as a day number (days
// from 30/12/1899, the old date serial), and a day number shown as "dd/mm" for
// the labels of a date axis.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace pluvane {

// Reads "d/m/y" (day first, a year of two digits is 1930 to 2029), with an
// optional time behind a blank that does not count. False when the text is no
// date.
bool DateSerialOf(std::string_view text, std::int32_t& serial);

// The day and month of a day number, "dd/mm".
std::string DayMonthText(std::int32_t serial);

}  // namespace pluvane
