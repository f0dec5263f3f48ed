// What one object of the drawing is made of: its shape (kind, box, style,
// vertices, markers, text), its ordered tags, the members of the network file
// that this program does not know, and, for a group, its children. The page
// state (extent, colours, grid, plan) sits here too, since it is recorded and
// saved the same way.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace pluvane {

// Object kinds (the value of ObjectKind).
inline constexpr int kKindLine = 1;
inline constexpr int kKindRectangle = 2;
inline constexpr int kKindEllipse = 4;
inline constexpr int kKindArc = 5;
inline constexpr int kKindPie = 6;
inline constexpr int kKindChord = 7;
inline constexpr int kKindPolyline = 8;
inline constexpr int kKindPolygon = 9;
inline constexpr int kKindText = 10;
inline constexpr int kKindPicture = 12;
inline constexpr int kKindBezier = 14;
inline constexpr int kKindLink = 21;
inline constexpr int kKindDimension = 22;
// The object that Arrange(0) makes of a selection.
inline constexpr int kKindGroup = 30;

// True for the kinds above.
bool IsKnownKind(int kind);
// Kinds drawn as a chain of segments rather than a filled area.
bool IsLineKind(int kind);

struct Point {
  std::int32_t x = 0;
  std::int32_t y = 0;
  bool operator==(const Point&) const = default;
};

// Bounding rectangle, y growing downwards.
struct Box {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;
  std::int32_t bottom = 0;
  bool operator==(const Box&) const = default;
};

// A marker of a link: at an end (positions 0 and 1) or in the middle (4).
struct Marker {
  int shape = 0;  // 0 none, 5 arrow head
  double width = 0;
  double height = 0;
  std::int32_t color = 0;
  std::int32_t fill = 0;
  bool operator==(const Marker&) const = default;
};

struct TextFormat {
  std::string string;
  std::string font;
  double size = 0;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  std::int32_t color = 0;
  double angle = 0;
  int align = 0;
  bool fill_back = false;
  bool operator==(const TextFormat&) const = default;
};

struct SurfaceObject;

// Everything that is drawn, a group's objects included. Recorded whole by the
// undo journal when any of it changes, so it holds no tags of its own.
struct Shape {
  int kind = kKindRectangle;
  Box box;
  std::int32_t line_color = 0;
  double line_width = 0;
  int line_style = 0;
  std::int32_t fill_color = 0;
  int fill_style = 1;
  bool hidden = false;
  std::string picture;
  std::vector<Point> points;
  std::array<Marker, 3> markers;  // ends 0 and 1, then the middle
  TextFormat text;
  std::int64_t layer = 0;               // stacking: the highest is drawn on top
  std::vector<SurfaceObject> children;  // a group's objects, links bound by position
};

// A tag: an interned name (see TagNames) and its text.
struct Tag {
  std::uint32_t name = 0;
  std::string value;
};

struct SurfaceObject {
  Shape shape;
  std::vector<Tag> tags;
  // For a link: the two end objects. Object numbers in the drawing; positions
  // among the siblings inside a group or in a file being read.
  std::array<std::int32_t, 2> ends = {0, 0};
  nlohmann::ordered_json extra;  // members of the file we do not know
  // Bookkeeping of the drawing, never saved.
  std::vector<std::int32_t> links;  // links bound to this object, ascending
  std::uint64_t born_step = 0;
  bool selected = false;
};

// The page and the logical space.
struct PageState {
  std::int32_t logic_left = 0;
  std::int32_t logic_top = 0;
  std::int32_t logic_width = 100000;
  std::int32_t logic_height = 100000;
  std::int32_t page_color = 0xFFFFFF;
  std::int32_t back_color1 = 0xFFFFFF;
  std::int32_t back_color2 = 0xFFFFFF;
  int grid_on = 0;
  std::int32_t grid_step_x = 1000;
  std::int32_t grid_step_y = 1000;
  int scroll_bars = 0;
  std::string background_picture;
  int background_mode = 0;
  double background_scale = 1;
};

}  // namespace pluvane
