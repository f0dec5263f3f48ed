#include "plot/viewer_placing.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "foundation/text.h"
#include "plot/plot_font_faces.h"
#include "plot/plot_objects.h"

namespace pluvane {

namespace {

// Placed texts start in the type size of the plot's own labels.
constexpr double kTextPoints = 8;
// No fill: the curves stay visible under a placed rectangle.
constexpr int kNoFill = 1;

std::int32_t Logical(double value) {
  return static_cast<std::int32_t>(std::clamp(std::lround(value), -1000000000L, 1000000000L));
}

int PlaceLine(Surface& surface, Point a, Point b) {
  if (a.x == b.x && a.y == b.y) return 0;
  const int number = surface.AddObject(kKindPolyline, std::min(a.x, b.x), std::min(a.y, b.y),
                                       std::max(a.x, b.x), std::max(a.y, b.y));
  surface.SetObjectPoints({a, b});
  return number;
}

int PlaceRectangle(Surface& surface, Point a, Point b) {
  if (a.x == b.x || a.y == b.y) return 0;
  const int number = surface.AddObject(kKindRectangle, std::min(a.x, b.x), std::min(a.y, b.y),
                                       std::max(a.x, b.x), std::max(a.y, b.y));
  surface.SetFillStyle(kNoFill);
  return number;
}

int PlaceText(UserInterface& ui, Surface& surface, Point at) {
  const std::optional<std::string> answer =
      ui.AskText("Entrez le texte à placer", "Placer un texte", "");
  if (!answer || Trim(*answer).empty()) return 0;
  const std::int32_t height = TextHeight(kTextPoints);
  const std::int32_t width = TextWidth(*answer, kTextPoints);
  const int number = surface.AddObject(kKindText, at.x, at.y, at.x + width, at.y + height);
  surface.SetTextString(*answer);
  surface.SetTextFontName(PlotFontFace(0));
  surface.SetTextSize(-static_cast<double>(height));
  return number;
}

}  // namespace

bool IsPlacingMode(int edit_mode) {
  return edit_mode == kEditLine || edit_mode == kEditRectangle || edit_mode == kEditText;
}

int PlaceViewerObject(UserInterface& ui, Surface& surface, double x1, double y1, double x2,
                      double y2) {
  const int mode = surface.EditMode();
  if (!IsPlacingMode(mode)) return 0;
  surface.SetEditMode(kEditSelection);
  const Point a{Logical(x1), Logical(y1)}, b{Logical(x2), Logical(y2)};
  int number = 0;
  if (mode == kEditLine) number = PlaceLine(surface, a, b);
  if (mode == kEditRectangle) number = PlaceRectangle(surface, a, b);
  if (mode == kEditText) number = PlaceText(ui, surface, a);
  if (number != 0) surface.Refresh();
  return number;
}

}  // namespace pluvane
