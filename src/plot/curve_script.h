// The plot script that shows chosen curves of a result file: the titles by
// the file's kind, the colours, widths and styles of the curves in their
// order, and the script itself over an automatic scale.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/user_interface.h"

namespace pluvane {

// The frame title of a kind of curve file, by its extension in any case
// ("DEB", "HYS", "LIM", "APP"); any other kind takes the page title.
std::string TitleOfCurveKind(const std::string& extension, const std::string& page_title);
// The axis titles of the kind; empty for the kinds without.
void AxisTitlesOfCurveKind(const std::string& extension, std::string& x_title,
                           std::string& y_title);

struct CurveLook {
  int style = 0;
  int width = 2;
  std::int32_t colour = 16711680;
};

// The look of the i-th curve (from 1) given the look of the one before: six
// colours in turn, a multiple of 6 above 6 keeping the colour before; widths
// 2, then 4 from the 19th; styles 0, 2 from the 7th, 1 from the 13th, 2 from
// the 19th.
CurveLook NextCurveLook(int i, const CurveLook& before);

// Extracts the curves named in `list_file` (one a line) from `curve_file` into
// the list file, scales them and writes `script_file`: one frame with one
// curve per name, the curve file named by its last component. False, with no
// script, when the scale finds no data.
bool WriteCurveScript(UserInterface& ui, const std::string& list_file,
                      const std::string& script_file, const std::string& curve_file,
                      const std::string& extension, const std::string& page_title);

}  // namespace pluvane
