// Style of objects and of the defaults, and the page: each write is recorded.
#include "drawing/surface.h"
#include "drawing/surface_edits.h"

namespace pluvane {

std::int32_t Surface::LineColor() const { return ReadShape().line_color; }
void Surface::SetLineColor(std::int32_t color) {
  EditStyle([color](Shape& s) { s.line_color = color; });
}
double Surface::LineWidth() const { return ReadShape().line_width; }
void Surface::SetLineWidth(double width) {
  EditStyle([width](Shape& s) { s.line_width = width; });
}
int Surface::LineStyle() const { return ReadShape().line_style; }
void Surface::SetLineStyle(int style) {
  EditStyle([style](Shape& s) { s.line_style = style; });
}
std::int32_t Surface::FillColor() const { return ReadShape().fill_color; }
void Surface::SetFillColor(std::int32_t color) {
  EditStyle([color](Shape& s) { s.fill_color = color; });
}
int Surface::FillStyle() const { return ReadShape().fill_style; }
void Surface::SetFillStyle(int style) {
  EditStyle([style](Shape& s) { s.fill_style = style; });
}
std::string Surface::ObjectPicture() const { return ReadShape().picture; }
void Surface::SetObjectPicture(std::string_view file) {
  EditStyle([file](Shape& s) { s.picture = std::string(file); });
}
bool Surface::ObjectVisible() const {
  return (current_ == kDefaults || CurrentReal()) && !ReadShape().hidden;
}
void Surface::SetObjectVisible(bool visible) {
  EditStyle([visible](Shape& s) { s.hidden = !visible; });
}

std::string Surface::TextString() const { return ReadShape().text.string; }
void Surface::SetTextString(std::string_view text) {
  EditStyle([text](Shape& s) { s.text.string = std::string(text); });
}
std::string Surface::TextFontName() const { return ReadShape().text.font; }
void Surface::SetTextFontName(std::string_view font) {
  EditStyle([font](Shape& s) { s.text.font = std::string(font); });
}
double Surface::TextSize() const { return ReadShape().text.size; }
void Surface::SetTextSize(double size) {
  EditStyle([size](Shape& s) { s.text.size = size; });
}
bool Surface::TextBold() const { return ReadShape().text.bold; }
void Surface::SetTextBold(bool on) {
  EditStyle([on](Shape& s) { s.text.bold = on; });
}
bool Surface::TextItalic() const { return ReadShape().text.italic; }
void Surface::SetTextItalic(bool on) {
  EditStyle([on](Shape& s) { s.text.italic = on; });
}
bool Surface::TextUnderline() const { return ReadShape().text.underline; }
void Surface::SetTextUnderline(bool on) {
  EditStyle([on](Shape& s) { s.text.underline = on; });
}
bool Surface::TextStrike() const { return ReadShape().text.strike; }
void Surface::SetTextStrike(bool on) {
  EditStyle([on](Shape& s) { s.text.strike = on; });
}
std::int32_t Surface::TextColor() const { return ReadShape().text.color; }
void Surface::SetTextColor(std::int32_t color) {
  EditStyle([color](Shape& s) { s.text.color = color; });
}
double Surface::TextAngle() const { return ReadShape().text.angle; }
void Surface::SetTextAngle(double angle) {
  EditStyle([angle](Shape& s) { s.text.angle = angle; });
}
int Surface::TextAlign() const { return ReadShape().text.align; }
void Surface::SetTextAlign(int align) {
  EditStyle([align](Shape& s) { s.text.align = align; });
}
bool Surface::TextFillBack() const { return ReadShape().text.fill_back; }
void Surface::SetTextFillBack(bool on) {
  EditStyle([on](Shape& s) { s.text.fill_back = on; });
}

// ---------------------------------------------------------------------------
// Page and logical space

void Surface::SetLogicLeft(std::int32_t value) {
  EditPage([value](PageState& p) { p.logic_left = value; });
}
void Surface::SetLogicTop(std::int32_t value) {
  EditPage([value](PageState& p) { p.logic_top = value; });
}
void Surface::SetLogicWidth(std::int32_t value) {
  EditPage([value](PageState& p) { p.logic_width = value; });
}
void Surface::SetLogicHeight(std::int32_t value) {
  EditPage([value](PageState& p) { p.logic_height = value; });
}

void Surface::SetScale(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height,
                       int flags) {
  EditPage([&](PageState& p) {
    p.logic_left = left;
    p.logic_top = top;
    p.logic_width = width;
    p.logic_height = height;
  });
  if (flags & 16384) SetAutoScale(3);
}

void Surface::SetAutoScale(int mode) {
  auto_scale_ = mode;
  if (mode != 3) return;
  view_left_ = page_.logic_left;
  view_top_ = page_.logic_top;
  view_width_ = page_.logic_width;
  view_height_ = page_.logic_height;
}

void Surface::SetPageColor(std::int32_t color) {
  EditPage([color](PageState& p) { p.page_color = color; });
}
void Surface::SetBackColor1(std::int32_t color) {
  EditPage([color](PageState& p) { p.back_color1 = color; });
}
void Surface::SetBackColor2(std::int32_t color) {
  EditPage([color](PageState& p) { p.back_color2 = color; });
}
void Surface::SetGridOn(int mode) {
  EditPage([mode](PageState& p) { p.grid_on = mode; });
}
void Surface::SetGridStepX(std::int32_t step) {
  EditPage([step](PageState& p) { p.grid_step_x = step; });
}
void Surface::SetGridStepY(std::int32_t step) {
  EditPage([step](PageState& p) { p.grid_step_y = step; });
}
void Surface::SetScrollBars(int mode) {
  EditPage([mode](PageState& p) { p.scroll_bars = mode; });
}
void Surface::SetBackgroundPicture(std::string_view file) {
  EditPage([file](PageState& p) { p.background_picture = std::string(file); });
}
void Surface::SetBackgroundMode(int mode) {
  EditPage([mode](PageState& p) { p.background_mode = mode; });
}
void Surface::SetBackgroundScale(double scale) {
  EditPage([scale](PageState& p) { p.background_scale = scale; });
}

}  // namespace pluvane
