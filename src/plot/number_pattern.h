// Numbers shown by a picture format of digit places, as the axis labels of a
// plot take them: "######0.00", "#########0", "#####0.000".
#pragma once

#include <string>
#include <string_view>

namespace pluvane {

// "0" is a digit always shown, "#" a digit shown when there is one; the
// places after the "." are the decimals, rounded half away from zero. Text
// before the first place and after the last stays as it is. A pattern with no
// digit place gives the plain number-to-text form.
std::string FormatByPattern(double value, std::string_view pattern);

}  // namespace pluvane
