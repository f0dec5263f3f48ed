// Drawing page 1 of a plot script on a surface: the script is cut into pages
// and compiled in the work folder, then its control file is read line by line
// in step with the drawing of frames, curves and comments. Every object made
// is an ordinary object of the surface, which the viewer lets the user move
// and restyle. See plot_page.h for the units of a plot surface.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "foundation/user_interface.h"
#include "drawing/surface.h"

namespace pluvane {

// Draws the first page of `script` on `surface` (which the caller has
// cleared) and sets the surface's logical extent to the page. The page files
// and P1.ctl are written in `work_dir`. `no_legend` leaves the legends out;
// `equal_scales` stretches the page so that a unit of X and a unit of Y of the
// first frame have the same length (the viewer's section mode). Every failure
// is told through `ui`; the result is 0.
int MorvexDraw(UserInterface& ui, bool no_legend, Surface& surface, const std::string& script,
               const std::string& work_dir, bool equal_scales = false);
// The same, telling whether page 1 could be compiled and drawn.
bool DrawScriptOn(UserInterface& ui, bool no_legend, Surface& surface, const std::string& script,
                  const std::string& work_dir, bool equal_scales = false);

// A plot drawn away from any window, for the picture writers.
struct PlotPicture {
  std::unique_ptr<Surface> surface;
  // The page in logical units (1000 to the cm): the extent to paint.
  std::int32_t width = 0;
  std::int32_t height = 0;
  // False when the script could not be compiled (its message was told).
  bool drawn = false;
};

// Compiles page 1 of `script` in `work_dir` (the script's folder when empty)
// and draws it on a new surface.
PlotPicture DrawScriptPage(UserInterface& ui, const std::string& script,
                           const std::string& work_dir = "");

}  // namespace pluvane
