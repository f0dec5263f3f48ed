// The two number primitives that every file and tag goes through: the
// leading-number parse `Val` and the plain number-to-text conversion. Both use
// the point as decimal mark whatever the user's locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace pluvane {

// The number that a text begins with, after leading blanks and tabs: an
// optional sign, digits with at most one point, an optional exponent (E or D).
// 0 when the text does not begin with a number, or when it is out of range.
double Val(std::string_view text);

// Val truncated toward zero to a 16- or 32-bit integer, clamped to the range.
std::int32_t ValLong(std::string_view text);
std::int16_t ValInt(std::string_view text);

// Val rounded half to even to a 32- or 16-bit integer, clamped: a tag's
// number read as an integer ("3.5" gives 4, "2.5" gives 2).
std::int32_t ValRoundLong(std::string_view text);
std::int16_t ValRoundInt(std::string_view text);

// Truncates toward zero and clamps to the 32-bit range (NaN gives 0).
std::int32_t ToLong(double value);
std::int16_t ToInt(double value);

// Rounds half to even, as the old conversions to integer did, then clamps.
std::int32_t RoundLong(double value);

// Plain number-to-text: at most 15 significant digits, point as decimal mark,
// no trailing zeros, exponent form (1E-05, 1.5E+20) beyond that range.
std::string NumToText(double value);

}  // namespace pluvane
