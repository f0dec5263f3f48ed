// The parts of a plot page, drawn in this order for each frame: title and
// legend (which may lower the frame's working top), outline, axes with their
// ticks, labels, titles and grid, then each curve; the free comments last.
#pragma once

#include <string>
#include <vector>

#include "foundation/user_interface.h"
#include "plot/ctl_records.h"
#include "plot/plot_page.h"

namespace pluvane {

// Base tick length, cm.
inline constexpr double kTickLength = 0.2;
// Length of a legend entry's sample, cm.
inline constexpr double kLegendSample = 1.0;

// The title at the top of the frame and, unless `no_legend`, a legend of the
// curves that have a legend text. Lowers the working top below what it
// placed, and closes the title's band with a box.
void DrawFrameTitle(PlotPage& page, const CtlFrame& frame, const std::vector<CtlPlot>& plots,
                    bool no_legend);

// "F" a closed box from the working top down, "O" the left and bottom axes,
// anything else nothing. A fill colour other than 0 fills the box.
void DrawFrameBox(PlotPage& page, const std::string& outline, int style, int width,
                  std::int32_t colour, std::int32_t fill);

// Ticks, labels and titles of both axes, then the grid. Y limits closer than
// 0.001 are widened by one Y step first, in the page's window.
void DrawAxes(PlotPage& page, const CtlFrame& frame, const CtlScale& scale, const CtlGrid& grid);

// One curve of `count` points. A run-time error ends the curve with its
// message; the caller goes on with the next.
void PlotUcm(UserInterface& ui, PlotPage& page, const std::vector<double>& x,
             const std::vector<double>& y, int count, bool bars, const CtlPlot& plot);

// The symbol of curve kinds 2 to 8 around device point (x, y); other kinds
// draw nothing. `size` in screen pixels, 0 meaning 4.
void DrawPointSymbol(PlotPage& page, int kind, std::int32_t x, std::int32_t y, int size,
                     const std::string& symbol);

void DrawComments(PlotPage& page, const std::vector<CtlComment>& comments);

// Line and fill attributes of a curve, by its kind.
void SetCurveStyle(PlotPage& page, const CtlPlot& plot);
// The drawn character of kind 8: the first of the left-trimmed legend text, "*" if none.
std::string SymbolCharacter(const std::string& symbol);

}  // namespace pluvane
