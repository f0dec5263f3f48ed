// Fixed-width fields of the model files: padded texts and integers, the
// fixed-point number format of every numeric column, and the capitalising
// replacement used on file names and tag values. Widths count characters.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace pluvane {

// Trims `text`, cuts it to `width` characters and pads it with blanks:
// alignment 0 on the right, 2 on the left, 1 centred (the odd blank on the
// right); any other alignment leaves it unpadded. An empty text gives one
// blank whatever the width.
std::string PadText(std::string_view text, int width, int alignment);

// Decimal digits right-aligned in `width`; a wider number is left whole.
std::string PadInt(std::int16_t value, int width);
std::string PadLong(std::int32_t value, int width);

// The number as the pattern of width - decimals - 1 "#", ".", decimals "0"
// writes it (rounded half away from zero on its 15 significant digits), the
// integer part right-aligned in width - decimals - 1 characters ("0" when the
// pattern gives no digit, a bare "-" between -1 and 0). The point is always
// there; a number too wide for the field is never cut.
std::string FormatFixed(double value, int width, int decimals);

// Puts `text` and `what` in capitals, then replaces the first occurrence of
// `what` by `replacement` (kept as given) until none is left.
std::string ReplaceText(std::string_view text, std::string_view what, std::string_view replacement);

}  // namespace pluvane
