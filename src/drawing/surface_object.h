// What one object of the drawing is made of: its shape (kind, box, style,
// vertices, markers, text), its ordered tags, the members of the network file
// that this program does not know, and, for a group, its children. The page
// state (extent, colours, grid, plan) sits here too, since it is recorded and
// saved the same way.
#pragma once

#include <array>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
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

// A tag as read: an interned name (see TagNames) and its text, which lives
// in the list it was read from.
struct Tag {
  std::uint32_t name = 0;
  std::string_view value;
};

// The ordered tags of an object in one block: the number of tags, their
// names, where the text of each ends, then the texts end to end. The names
// side by side keep a search short in memory. An object without tags holds no
// block. Tags are written far less often than read, so every change builds
// the block again.
class TagBlock {
 public:
  TagBlock() = default;
  TagBlock(const TagBlock& other);
  TagBlock& operator=(const TagBlock& other);
  TagBlock(TagBlock&&) noexcept = default;
  TagBlock& operator=(TagBlock&&) noexcept = default;
  ~TagBlock() = default;

  std::size_t size() const { return block_ ? block_[0] : 0; }
  bool empty() const { return size() == 0; }
  std::uint32_t Name(std::size_t i) const { return block_[1 + i]; }
  std::string_view Value(std::size_t i) const {
    const std::uint32_t* ends = Ends();
    const std::uint32_t begin = i == 0 ? 0 : ends[i - 1];
    return {Text() + begin, ends[i] - begin};
  }
  Tag operator[](std::size_t i) const { return Tag{Name(i), Value(i)}; }
  // Position of the first tag of that name, size() if none.
  std::size_t Find(std::uint32_t name) const;

  // Replaces the tags by `count` tags read from `tag(i)`.
  template <typename Source>
  void Assign(std::size_t count, Source tag);
  void Append(std::uint32_t name, std::string_view value);
  void SetName(std::size_t i, std::uint32_t name) { block_[1 + i] = name; }
  void SetValue(std::size_t i, std::string_view value);
  // Keeps the first `count` tags.
  void Truncate(std::size_t count);
  // The tags from `position` on.
  TagBlock Tail(std::size_t position) const;
  // Appends every tag of `other`.
  void Extend(const TagBlock& other);

  class Iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Tag;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = Tag;
    Iterator(const TagBlock* list, std::size_t i) : list_(list), i_(i) {}
    Tag operator*() const { return (*list_)[i_]; }
    Iterator& operator++() {
      ++i_;
      return *this;
    }
    bool operator==(const Iterator& other) const { return i_ == other.i_; }

   private:
    const TagBlock* list_;
    std::size_t i_;
  };
  Iterator begin() const { return Iterator(this, 0); }
  Iterator end() const { return Iterator(this, size()); }

 private:
  const std::uint32_t* Ends() const { return block_.get() + 1 + size(); }
  const char* Text() const { return reinterpret_cast<const char*>(block_.get() + 1 + 2 * size()); }
  // The end of the last text, the word before the texts.
  std::size_t TextSize() const { return empty() ? 0 : block_[2 * size()]; }
  std::size_t Words() const { return 1 + 2 * size() + (TextSize() + 3) / 4; }
  // A block for `count` tags and `text` characters, its count set.
  static std::unique_ptr<std::uint32_t[]> Allocate(std::size_t count, std::size_t text);

  std::unique_ptr<std::uint32_t[]> block_;
};

template <typename Source>
void TagBlock::Assign(std::size_t count, Source tag) {
  if (count == 0) {
    block_.reset();
    return;
  }
  std::size_t text = 0;
  for (std::size_t i = 0; i < count; ++i) text += tag(i).value.size();
  auto block = Allocate(count, text);
  char* chars = reinterpret_cast<char*>(block.get() + 1 + 2 * count);
  std::uint32_t end = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const Tag t = tag(i);
    t.value.copy(chars + end, t.value.size());
    end += static_cast<std::uint32_t>(t.value.size());
    block[1 + i] = t.name;
    block[1 + count + i] = end;
  }
  block_ = std::move(block);
}

struct SurfaceObject;
// Objects made one by one (read from a file, pasted), placed in the drawing
// without being moved again.
using ObjectBatch = std::vector<std::unique_ptr<SurfaceObject>>;

struct SurfaceObject {
  Shape shape;
  TagBlock tags;
  // For a link: the two end objects. Object numbers in the drawing; positions
  // among the siblings inside a group or in a file being read.
  std::array<std::int32_t, 2> ends = {0, 0};
  // The members of the file this program does not know, as they are written
  // back (each `,"name":value`); null when there are none.
  std::shared_ptr<const std::string> extra;
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
