// The fixed columns of the control file: the three field writers of the
// script compiler (text right-aligned, integer left-aligned, fixed point with
// cut decimals), the "@@@@@@@@@@" right alignment, and the reading of a field
// back by its columns. Widths and columns count characters.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace pluvane {

// The text right-aligned in `width`; an empty text gives `width` blanks, a
// text as long as the field or longer is cut to its first `width` characters.
std::string CtlText(std::string_view text, int width);

// The integer's digits padded with blanks on the right; a longer number is
// not cut and shifts what follows.
std::string CtlInt(std::int32_t value, int width);

// The number's shortest text form with any exponent written out, its integer
// digits padded with blanks on the right to width - decimals - 1, a ".", and
// its decimals cut (not rounded) or filled with zeros to `decimals`; a decimal
// part that reads as at most 0.00001 becomes all zeros. "6" at width 8 with 2
// decimals is "6     .00".
std::string CtlFixed(double value, int width, int decimals);

// The text right-aligned in `width` as the "@" format does it: never cut.
std::string CtlRight(std::string_view text, int width);

// Characters `first` to `first + width - 1` (1-based) of a control line.
std::string CtlField(std::string_view line, int first, int width);

// The number a control field holds: its blanks do not count, so that the
// fixed-point form "0      .45" reads 0.45.
double CtlNumber(std::string_view field);

}  // namespace pluvane
