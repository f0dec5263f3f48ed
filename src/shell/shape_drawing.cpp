#include "shell/shape_drawing.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cmath>
#include <numbers>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"

namespace pluvane {

namespace {

struct DrawingTool {
  const char* menu;
  int edit_mode;
};

// The menus of "Tools de dessin" and the shapes of the actions pop-up.
constexpr std::array<DrawingTool, 27> kDrawingTools = {{
    {"mnuSelectEditMode", 11},
    {"mnuSelectSelectionMode", 11},
    {"mnuSelectViewMode", kEditView},
    {"mnuSelectRotationMode", kEditRotation},
    {"MnuPlaceLine", kEditLine},
    {"MnuPlaceCotation", kEditDimension},
    {"MnuPlacePolyLine", kEditPolyline},
    {"MnuPlacePolygon", kEditPolygon},
    {"MnuPlaceRectangle", kEditRectangle},
    {"MnuPlaceEllipse", kEditEllipse},
    {"MnuPlaceArc", kEditArc},
    {"MnuPlacePie", kEditPie},
    {"MnuPlaceChord", kEditChord},
    {"MnuPlaceBezier", kEditBezier},
    {"MnuPlaceTxt", kEditText},
    {"mnuUtil_PlaceTxt", kEditText},
    {"mnuPlaceLink", kEditFreeLink},
    {"myARC", kEditArc},
    {"myCHORD", kEditChord},
    {"myDIMLINE", kEditDimension},
    {"myELLIPSE", kEditEllipse},
    {"myLINE", kEditLine},
    {"myPIE", kEditPie},
    {"myPOLYGON", kEditPolygon},
    {"myPOLYLINE", kEditPolyline},
    {"myRECT", kEditRectangle},
    {"myTEXT", kEditText},
}};

// The name of a shape in its undo step.
const char* ShapeName(int edit_mode) {
  switch (edit_mode) {
    case kEditLine:
      return "Ligne";
    case kEditRectangle:
      return "Rectangle";
    case kEditEllipse:
      return "Ellipse";
    case kEditArc:
      return "Arc";
    case kEditPie:
      return "Secteur";
    case kEditChord:
      return "Corde";
    case kEditPolyline:
      return "Polyligne";
    case kEditPolygon:
      return "Polygone";
    case kEditText:
      return "Texte";
    case kEditBezier:
      return "Bézier";
    case kEditFreeLink:
      return "Liaison";
    case kEditDimension:
      return "Cotation";
    default:
      return "Dessin";
  }
}

bool IsDraggedMode(int mode) {
  return mode == kEditLine || mode == kEditRectangle || mode == kEditEllipse || mode == kEditArc ||
         mode == kEditPie || mode == kEditChord || mode == kEditDimension;
}

bool IsVertexMode(int mode) {
  return mode == kEditPolyline || mode == kEditPolygon || mode == kEditBezier;
}

// Kinds whose vertices say all of their shape, and so can turn.
bool TurnsByVertices(int kind) {
  return kind == kKindLine || kind == kKindPolyline || kind == kKindPolygon ||
         kind == kKindBezier || kind == kKindDimension;
}

Point ToPoint(double x, double y) { return Point{RoundLong(x), RoundLong(y)}; }

// The angle of a point seen from a centre, in degrees counter-clockwise on
// the screen (y grows downwards).
double ScreenAngle(double cx, double cy, double x, double y) {
  return std::atan2(cy - y, x - cx) * 180 / std::numbers::pi;
}

double Normalised(double degrees) {
  double a = std::fmod(degrees, 360.0);
  if (a < 0) a += 360;
  return std::round(a * 100) / 100;
}

}  // namespace

std::optional<int> DrawingEditModeOf(const std::string& menu) {
  for (const DrawingTool& tool : kDrawingTools) {
    if (menu == tool.menu) return tool.edit_mode;
  }
  return std::nullopt;
}

std::string DrawingToolStatus(int edit_mode) {
  if (IsDraggedMode(edit_mode)) return kDragStatus;
  if (IsVertexMode(edit_mode)) return kVertexStatus;
  if (edit_mode == kEditText) return kTextStatus;
  if (edit_mode == kEditFreeLink) return kFreeLinkStatus;
  if (edit_mode == kEditRotation) return kTurnStatus;
  return "";
}

bool IsDrawingEditMode(int edit_mode) {
  return IsDraggedMode(edit_mode) || IsVertexMode(edit_mode) || edit_mode == kEditText ||
         edit_mode == kEditFreeLink || edit_mode == kEditRotation;
}

void ShapeDrawing::Cancel() {
  pending_ = false;
  mode_ = 0;
  points_.clear();
  first_end_ = 0;
}

bool ShapeDrawing::Press(int button, int hit, double x, double y) {
  const int mode = surface_.EditMode();
  if (button != 1) return false;
  if (pending_ && mode_ != mode) Cancel();
  const Point p = ToPoint(x, y);
  if (IsDraggedMode(mode) || mode == kEditText) {
    Cancel();
    pending_ = true;
    mode_ = mode;
    points_ = {p};
  } else if (IsVertexMode(mode)) {
    pending_ = true;
    mode_ = mode;
    // A double click presses twice on the same point: one vertex.
    if (points_.empty() || !(points_.back() == p)) points_.push_back(p);
  } else if (mode == kEditFreeLink) {
    const Shape* shape = hit > 0 ? surface_.ObjectShape(hit) : nullptr;
    if (shape == nullptr || shape->kind == kKindLink) {
      Cancel();
      return false;
    }
    if (!pending_) {
      pending_ = true;
      mode_ = mode;
      first_end_ = hit;
      return false;
    }
    if (hit == first_end_) return false;
    const int first = first_end_;
    Cancel();
    CursorKeeper keep(surface_);
    UndoStep step(surface_, std::string("Annuler : ") + ShapeName(kEditFreeLink));
    return surface_.AddLink(first, hit) > 0;
  } else if (mode == kEditRotation) {
    Cancel();
    const std::vector<int> selected = SelectedObjects(surface_);
    if (selected.empty()) return false;
    Box box = surface_.ObjectShape(selected.front())->box;
    for (int n : selected) {
      const Box& b = surface_.ObjectShape(n)->box;
      box = Box{std::min(box.left, b.left), std::min(box.top, b.top), std::max(box.right, b.right),
                std::max(box.bottom, b.bottom)};
    }
    pending_ = true;
    mode_ = mode;
    centre_x_ = (static_cast<double>(box.left) + box.right) / 2;
    centre_y_ = (static_cast<double>(box.top) + box.bottom) / 2;
    start_x_ = x;
    start_y_ = y;
  }
  return false;
}

bool ShapeDrawing::Release(int button, double x, double y) {
  if (button != 1 || !pending_) return false;
  if (IsDraggedMode(mode_)) {
    const int mode = mode_;
    const Point from = points_.front();
    Point to = ToPoint(x, y);
    if (square_) {
      const std::int64_t dx = static_cast<std::int64_t>(to.x) - from.x;
      const std::int64_t dy = static_cast<std::int64_t>(to.y) - from.y;
      const std::int64_t side = std::max(std::llabs(dx), std::llabs(dy));
      to = Point{static_cast<std::int32_t>(from.x + (dx < 0 ? -side : side)),
                 static_cast<std::int32_t>(from.y + (dy < 0 ? -side : side))};
    }
    Cancel();
    return PlaceDragged(mode, from, to);
  }
  if (mode_ == kEditText) {
    const Point at = points_.front();
    Cancel();
    return PlaceText(at);
  }
  if (mode_ == kEditRotation) {
    const bool turned = Turn(x, y);
    Cancel();
    return turned;
  }
  return false;
}

bool ShapeDrawing::DoubleClick() {
  if (!pending_ || !IsVertexMode(mode_)) return false;
  return PlaceVertices();
}

bool ShapeDrawing::Enter() { return DoubleClick(); }

bool ShapeDrawing::PlaceDragged(int edit_mode, Point from, Point to) {
  const bool line = edit_mode == kEditLine || edit_mode == kEditDimension;
  if (line ? from == to : (from.x == to.x || from.y == to.y)) return false;
  CursorKeeper keep(surface_);
  UndoStep step(surface_, std::string("Annuler : ") + ShapeName(edit_mode));
  const int kind = edit_mode;  // the edit modes of shapes are their kinds
  last_placed_ = surface_.AddObject(kind, from.x, from.y, to.x, to.y);
  if (last_placed_ <= 0) return false;
  if (kind == kKindLine || kind == kKindDimension) {
    surface_.SetObjectPoints({from, to});
  } else if (kind == kKindArc || kind == kKindPie || kind == kKindChord) {
    // The start and end rays: through the corner pressed and the next corner
    // on its side, so that three quarters of the ellipse are drawn; the
    // corner released closes the box.
    surface_.SetObjectPoints({from, Point{to.x, from.y}, to});
  }
  return true;
}

bool ShapeDrawing::PlaceVertices() {
  const int mode = mode_;
  std::vector<Point> points = points_;
  Cancel();
  const std::size_t least = mode == kEditPolygon ? 3 : 2;
  if (points.size() < least) return false;
  if (mode == kEditBezier) points = SmoothBezier(points);
  const Box box = [&points] {
    Box b{points[0].x, points[0].y, points[0].x, points[0].y};
    for (const Point& p : points) {
      b = Box{std::min(b.left, p.x), std::min(b.top, p.y), std::max(b.right, p.x),
              std::max(b.bottom, p.y)};
    }
    return b;
  }();
  CursorKeeper keep(surface_);
  UndoStep step(surface_, std::string("Annuler : ") + ShapeName(mode));
  if (surface_.AddObject(mode, box.left, box.top, box.right, box.bottom) <= 0) return false;
  surface_.SetObjectPoints(points);
  return true;
}

bool ShapeDrawing::PlaceText(Point at) {
  const std::optional<std::string> text = ui_.AskText(kPlaceTextPrompt, kPlaceTextTitle, "");
  if (!text || text->empty()) return false;
  const double per_pixel =
      surface_.ViewHeight() / std::max<std::int32_t>(settings_.ClientHeight, 1);
  const double height = std::max(1.0, std::round(kTextPixels * per_pixel));
  // The box is what the text covers roughly, so that a click finds it.
  std::size_t characters = 0;
  for (unsigned char c : *text) {
    if ((c & 0xC0) != 0x80) ++characters;
  }
  const auto width = static_cast<std::int32_t>(std::lround(height * 0.6 * static_cast<double>(characters)));
  const auto h = static_cast<std::int32_t>(height);
  CursorKeeper keep(surface_);
  UndoStep step(surface_, std::string("Annuler : ") + ShapeName(kEditText));
  if (surface_.AddObject(kKindText, at.x, at.y, at.x + width, at.y + h) <= 0) return false;
  surface_.SetTextString(*text);
  if (surface_.TextFontName().empty()) surface_.SetTextFontName("Arial");
  surface_.SetTextSize(-height);
  return true;
}

bool ShapeDrawing::Turn(double x, double y) {
  const double delta = ScreenAngle(centre_x_, centre_y_, x, y) -
                       ScreenAngle(centre_x_, centre_y_, start_x_, start_y_);
  if (std::fabs(std::remainder(delta, 360.0)) < 0.01) return false;
  const double radians = delta * std::numbers::pi / 180;
  const double c = std::cos(radians), s = std::sin(radians);
  const std::vector<int> selected = SelectedObjects(surface_);
  CursorKeeper keep(surface_);
  UndoStep step(surface_, "Annuler : Rotation");
  bool turned = false;
  for (int n : selected) {
    const Shape* shape = surface_.ObjectShape(n);
    if (shape == nullptr) continue;
    surface_.SetCurrentObject(n);
    if (shape->kind == kKindText) {
      surface_.SetTextAngle(Normalised(surface_.TextAngle() + delta));
      turned = true;
    } else if (!texts_only_ && TurnsByVertices(shape->kind) && !shape->points.empty()) {
      std::vector<Point> points = shape->points;
      for (Point& p : points) {
        const double dx = p.x - centre_x_, dy = p.y - centre_y_;
        p = ToPoint(centre_x_ + dx * c + dy * s, centre_y_ - dx * s + dy * c);
      }
      surface_.SetObjectPoints(points);
      turned = true;
    }
  }
  return turned;
}

std::optional<RubberShape> ShapeDrawing::Rubber() const {
  if (!pending_) return std::nullopt;
  RubberShape rubber;
  if (mode_ == kEditFreeLink) {
    rubber.kind = kKindLine;
    rubber.points.push_back(ObjectCentre(surface_, first_end_));
  } else if (mode_ == kEditRotation) {
    rubber.kind = kKindLine;
    rubber.points.emplace_back(centre_x_, centre_y_);
  } else if (mode_ == kEditText) {
    return std::nullopt;
  } else {
    rubber.kind = mode_;
    for (const Point& p : points_) rubber.points.emplace_back(p.x, p.y);
  }
  return rubber;
}

std::vector<Point> ShapeDrawing::SmoothBezier(const std::vector<Point>& through) {
  if (through.size() < 2) return through;
  std::vector<Point> out{through.front()};
  const auto n = through.size();
  for (std::size_t i = 0; i + 1 < n; ++i) {
    const Point& p0 = through[i == 0 ? 0 : i - 1];
    const Point& p1 = through[i];
    const Point& p2 = through[i + 1];
    const Point& p3 = through[std::min(i + 2, n - 1)];
    out.push_back(ToPoint(p1.x + (p2.x - p0.x) / 6.0, p1.y + (p2.y - p0.y) / 6.0));
    out.push_back(ToPoint(p2.x - (p3.x - p1.x) / 6.0, p2.y - (p3.y - p1.y) / 6.0));
    out.push_back(p2);
  }
  return out;
}

}  // namespace pluvane
