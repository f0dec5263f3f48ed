// The records of a control file as the page renderer draws from them: the
// page, and for each frame its outline, scale, grid and curves, then the free
// comments. Every default that depends on a blank field is already settled.
#pragma once

#include <cstdint>
#include <string>

namespace pluvane {

struct CtlPage {
  std::string code;  // as written, trimmed ("A4H", or any unknown text)
  double width = 29.7;
  double height = 21.0;
  double left_offset = 0.095;
  double bottom_offset = 0.04;
  int frame_count = 0;
};

struct CtlFrame {
  int rank = 0;
  int curve_count = 0;
  double left = 0, right = 0, bottom = 0, top = 0;  // page cm
  std::string title;
  int style = 0;
  int width = 0;
  std::int32_t colour = 0;
  double text_size = 6;      // points
  int font = 0;              // index into kPlotFonts, already in range
  std::string extra_colour;  // carried along, never drawn
};

// Kept from one frame to the next: a scale line that is refused leaves the
// values of the frame before.
struct CtlScale {
  double x_min = 0, x_max = 0, y_min = 0, y_max = 0;
  double x_step = 0, y_step = 0;
  int x_spacing = 0, y_spacing = 0;
  double label_size = 4;
  std::string x_title, y_title;
  std::string y_title_placement = "H";  // "H" horizontal, anything else vertical
  std::string outline;                  // "F" box, "O" two axes, anything else none
  std::string x_format = "######0.00";  // in date mode the origin date's text
  std::string y_format = "######0.00";
  bool date_mode = false;
  std::int32_t origin = 0;  // day number of the origin in date mode
};

struct CtlGrid {
  int x_every = 0;  // a vertical line every so many X ticks, 0 none
  int y_every = 0;
  int style = 0;
  int width = 0;
  std::int32_t colour = 0;
  std::int32_t fill = 0;  // fill colour of the frame, 0 none
};

struct CtlPlot {
  std::string name;  // as in the statement; a "*" asks for vertical bars
  std::string file;
  int style = 0;
  int width = 0;
  std::int32_t colour = 0;
  double constant = 4;  // the written 6 divided by 1.5; nothing uses it
  std::string symbol;   // legend text, its first character the symbol of kind 8
  int kind = 0;
  std::string fill = "0";  // "0" means the line colour
  int symbol_size = 3;     // screen pixels
  int filled = 0;
};

struct CtlComment {
  double size = 0;      // points
  double x = 0, y = 0;  // page cm
  double angle = 0;
  std::string text;
  int font = 0;  // index into kPlotFonts, already in range
  std::int32_t extra = 0;
  std::int32_t colour = 0;
  std::string h_align;  // "G", "M", "D" or empty
  std::string v_align;  // "H", "M", "B" or empty
};

}  // namespace pluvane
