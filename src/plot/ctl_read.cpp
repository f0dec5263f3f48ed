#include "plot/ctl_read.h"

#include <array>

#include "foundation/errors.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "plot/ctl_fields.h"
#include "plot/plot_dates.h"
#include "plot/plot_fonts.h"
#include "plot/script_words.h"

namespace pluvane {

namespace {

struct PageSize {
  const char* code;
  double width, height, left_offset, bottom_offset;
};

constexpr std::array<PageSize, 10> kPageSizes = {{
    {"A4H", 29.7, 21.0, 0.095, 0.04},
    {"A4V", 21.0, 29.7, 0.04, 0.095},
    {"A3H", 42.0, 29.7, 0.095, 0.04},
    {"A3V", 29.7, 42.0, 0.04, 0.095},
    {"A2H", 59.4, 42.0, 0.095, 0.04},
    {"A2V", 42.0, 59.4, 0.04, 0.095},
    {"A1H", 84.0, 59.4, 0.095, 0.04},
    {"A1V", 59.4, 84.0, 0.04, 0.095},
    {"A0H", 118.8, 84.0, 0.095, 0.04},
    {"A0V", 84.0, 118.8, 0.04, 0.095},
}};

std::string Text(std::string_view line, int first, int width) {
  return Trim(CtlField(line, first, width));
}

double Number(std::string_view line, int first, int width) {
  return CtlNumber(CtlField(line, first, width));
}

int Int(std::string_view line, int first, int width) { return ToLong(Number(line, first, width)); }

// A text field whose blank stands for `fallback`.
std::string TextOr(std::string_view line, int first, int width, const char* fallback) {
  std::string text = Text(line, first, width);
  return text.empty() ? fallback : text;
}

// Position of the "/" in a field, 0 when none.
int SlashAt(std::string_view line, int first, int width) {
  return static_cast<int>(CharFind(CtlField(line, first, width), "/"));
}

std::int32_t DateOrThrow(std::string_view text) {
  std::int32_t serial = 0;
  if (!DateSerialOf(text, serial)) throw AppError(13, "Incompatibilité de type");
  return serial;
}

// Upper-cased alignment word, kept when it is one of `allowed`.
std::string Alignment(std::string_view line, int first, std::string_view allowed) {
  std::string word = UCase(Text(line, first, 8));
  return word.size() == 1 && allowed.find(word) != std::string_view::npos ? word : std::string();
}

}  // namespace

CtlPage ReadCtlPage(std::string_view line) {
  CtlPage page;
  page.code = Text(line, 1, 5);
  page.frame_count = Int(line, 6, 5);
  for (const PageSize& size : kPageSizes) {
    if (page.code == size.code) {
      page.width = size.width;
      page.height = size.height;
      page.left_offset = size.left_offset;
      page.bottom_offset = size.bottom_offset;
    }
  }
  return page;
}

CtlFrame ReadCtlFrame(std::string_view line) {
  CtlFrame frame;
  frame.rank = Int(line, 1, 5);
  frame.curve_count = Int(line, 6, 5);
  frame.left = Number(line, 11, 8);
  frame.right = Number(line, 19, 8);
  frame.bottom = Number(line, 27, 8);
  frame.top = Number(line, 35, 8);
  frame.title = Text(line, 43, 80);
  frame.style = Int(line, 123, 8);
  frame.width = Int(line, 131, 8);
  frame.colour = Int(line, 139, 8);
  frame.text_size = Number(line, 147, 8);
  if (frame.text_size < 0.001) frame.text_size = 6;
  frame.font = PlotFontIndex(Number(line, 155, 8));
  frame.extra_colour = Text(line, 163, 10);
  return frame;
}

bool ReadCtlScale(UserInterface& ui, std::string_view line, int frame_rank, CtlScale& scale) {
  // A date scale when both X limits hold a "/"; the positions are and-ed as
  // they always were, so "/" at 3 and at 4 is no date scale.
  scale.date_mode = (SlashAt(line, 1, 10) & SlashAt(line, 11, 10)) != 0;
  std::int32_t date_min = 0, date_max = 0;
  if (scale.date_mode) {
    date_min = DateOrThrow(CtlField(line, 1, 10));
    date_max = DateOrThrow(CtlField(line, 11, 10));
  } else {
    scale.x_min = Number(line, 1, 10);
    scale.x_max = Number(line, 11, 10);
  }
  scale.y_min = Number(line, 21, 10);
  scale.y_max = Number(line, 31, 10);
  // In a date scale the X limits are still those of the frame before.
  if (scale.y_min > scale.y_max || scale.x_min > scale.x_max) {
    ui.ShowMessage("Revoir la ligne Echelle du Cadre" + ScriptNumber(frame_rank) +
                       "\nIncoherence des X,Y minmax !",
                   "Echelle incohérente dans le fic Mst", MessageIcon::kCritical);
    return false;
  }
  scale.x_step = Number(line, 41, 8);
  scale.y_step = Number(line, 49, 8);
  scale.x_spacing = Int(line, 57, 5);
  scale.y_spacing = Int(line, 62, 5);
  scale.label_size = Number(line, 67, 8);
  if (scale.label_size < 0.001) scale.label_size = 4;
  scale.x_title = Text(line, 75, 40);
  scale.y_title = Text(line, 115, 40);
  scale.y_title_placement = TextOr(line, 155, 5, "H");
  scale.outline = Text(line, 160, 5);
  scale.x_format = TextOr(line, 165, 10, "######0.00");
  scale.y_format = TextOr(line, 175, 10, "######0.00");
  if (!scale.date_mode) return true;
  if (scale.x_format.find('/') == std::string::npos) {
    ui.ShowMessage("Revoir la ligne Echelle du cadre " + ScriptNumber(frame_rank) +
                       "\nLa date origine n'est pas renseignée !",
                   "Echelle en date dans le fic Mst", MessageIcon::kCritical);
    return false;
  }
  scale.origin = DateOrThrow(scale.x_format);
  scale.x_min = date_min - scale.origin;
  scale.x_max = date_max - scale.origin;
  return true;
}

CtlGrid ReadCtlGrid(std::string_view line) {
  CtlGrid grid;
  grid.x_every = Int(line, 1, 5);
  grid.y_every = Int(line, 6, 5);
  grid.style = Int(line, 11, 8);
  grid.width = Int(line, 19, 8);
  grid.colour = Int(line, 27, 8);
  grid.fill = Int(line, 35, 10);
  return grid;
}

CtlPlot ReadCtlPlot(std::string_view line) {
  CtlPlot plot;
  plot.name = Text(line, 1, 80);
  plot.file = Text(line, 81, 256);
  plot.style = Int(line, 337, 8);
  plot.width = Int(line, 345, 8);
  plot.colour = Int(line, 353, 8);
  plot.constant = Number(line, 361, 8) / 1.5;
  plot.symbol = Text(line, 369, 40);
  plot.kind = Int(line, 409, 5);
  plot.fill = TextOr(line, 414, 8, "0");
  plot.symbol_size = Int(line, 422, 8);
  if (plot.symbol_size == 0) plot.symbol_size = 3;
  plot.filled = Int(line, 430, 8);
  return plot;
}

int ReadCtlCount(std::string_view line) { return Int(line, 1, 5); }

CtlComment ReadCtlComment(std::string_view line) {
  CtlComment comment;
  comment.size = Number(line, 1, 8);
  comment.x = Number(line, 9, 8);
  comment.y = Number(line, 17, 8);
  comment.angle = Number(line, 25, 5);
  comment.text = Text(line, 30, 100);
  comment.font = PlotFontIndex(Number(line, 130, 8));
  comment.extra = Int(line, 138, 8);
  comment.colour = Int(line, 146, 8);
  comment.h_align = Alignment(line, 154, "GMD");
  comment.v_align = Alignment(line, 162, "HMB");
  return comment;
}

}  // namespace pluvane
