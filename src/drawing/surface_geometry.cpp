// Geometry of the surface: bounds, moves, links following their ends, hit
// test, rectangle selection and stacking, grouping.
#include <algorithm>
#include <unordered_map>

#include "drawing/shape_geometry.h"
#include "drawing/surface.h"
#include "drawing/surface_edits.h"

namespace pluvane {

namespace {

// Index of a marker position: 0 and 1 the ends, 4 the middle.
int MarkerSlot(int position) {
  if (position == 0 || position == 1) return position;
  return position == 4 ? 2 : -1;
}

}  // namespace

std::int32_t Surface::ObjLeft() const { return ReadShape().box.left; }
std::int32_t Surface::ObjTop() const { return ReadShape().box.top; }
std::int32_t Surface::ObjRight() const { return ReadShape().box.right; }
std::int32_t Surface::ObjBottom() const { return ReadShape().box.bottom; }

void Surface::GetObjectBounds(std::int32_t& left, std::int32_t& top, std::int32_t& right,
                              std::int32_t& bottom) const {
  const Box& box = ReadShape().box;
  left = box.left;
  top = box.top;
  right = box.right;
  bottom = box.bottom;
}

void Surface::SetObjectBounds(std::int32_t left, std::int32_t top, std::int32_t right,
                              std::int32_t bottom) {
  if (!CurrentReal()) return;
  Step step(*this);
  const Box box{std::min(left, right), std::min(top, bottom), std::max(left, right),
                std::max(top, bottom)};
  const int number = current_;
  EditShape(number, [&box](Shape& shape) { FitShape(shape, box); });
  if (Object(number)->shape.kind == kKindLink) PlaceLinkEnds(number);
  FollowLinks(number);
}

void Surface::ShiftShape(int number, std::int32_t dx, std::int32_t dy) {
  EditShape(number, [dx, dy](Shape& shape) { TranslateShape(shape, dx, dy); });
}

void Surface::MoveObject(std::int32_t dx, std::int32_t dy) {
  const std::vector<int> targets = WriteTargets();
  if (targets.empty()) return;
  Step step(*this);
  for (int number : targets) ShiftShape(number, dx, dy);
  for (int number : targets) {
    if (Object(number)->shape.kind == kKindLink) {
      PlaceLinkEnds(number);
    } else {
      FollowLinks(number);
    }
  }
}

void Surface::PlaceLinkEnds(int link) {
  const SurfaceObject* object = Object(link);
  if (!object || object->shape.kind != kKindLink) return;
  const SurfaceObject* a = Object(object->ends[0]);
  const SurfaceObject* b = Object(object->ends[1]);
  if (!a || !b) return;
  std::vector<Point> points = object->shape.points;
  if (points.size() < 2) points.resize(2);
  points.front() = Centre(a->shape.box);
  points.back() = Centre(b->shape.box);
  if (points == object->shape.points && object->shape.box == BoundsOf(points)) return;
  EditShape(link, [&points](Shape& shape) {
    shape.points = points;
    shape.box = BoundsOf(points);
  });
}

void Surface::FollowLinks(int number) {
  const SurfaceObject* object = Object(number);
  if (!object) return;
  const std::vector<int> links = object->links;
  for (int link : links) PlaceLinkEnds(link);
}

int Surface::LinkEndObject(int end) const { return LinkEndOf(current_, end); }

int Surface::LinkEndMarker(int position) const {
  const int slot = MarkerSlot(position);
  return slot < 0 ? 0 : ReadShape().markers[slot].shape;
}
void Surface::SetLinkEndMarker(int position, int shape) {
  const int slot = MarkerSlot(position);
  if (slot >= 0) EditStyle([&](Shape& s) { s.markers[slot].shape = shape; });
}
double Surface::LinkMarkerWidth(int position) const {
  const int slot = MarkerSlot(position);
  return slot < 0 ? 0 : ReadShape().markers[slot].width;
}
void Surface::SetLinkMarkerWidth(int position, double width) {
  const int slot = MarkerSlot(position);
  if (slot >= 0) EditStyle([&](Shape& s) { s.markers[slot].width = width; });
}
double Surface::LinkMarkerHeight(int position) const {
  const int slot = MarkerSlot(position);
  return slot < 0 ? 0 : ReadShape().markers[slot].height;
}
void Surface::SetLinkMarkerHeight(int position, double height) {
  const int slot = MarkerSlot(position);
  if (slot >= 0) EditStyle([&](Shape& s) { s.markers[slot].height = height; });
}
std::int32_t Surface::LinkMarkerColor(int position) const {
  const int slot = MarkerSlot(position);
  return slot < 0 ? 0 : ReadShape().markers[slot].color;
}
void Surface::SetLinkMarkerColor(int position, std::int32_t color) {
  const int slot = MarkerSlot(position);
  if (slot >= 0) EditStyle([&](Shape& s) { s.markers[slot].color = color; });
}
std::int32_t Surface::LinkMarkerFill(int position) const {
  const int slot = MarkerSlot(position);
  return slot < 0 ? 0 : ReadShape().markers[slot].fill;
}
void Surface::SetLinkMarkerFill(int position, std::int32_t fill) {
  const int slot = MarkerSlot(position);
  if (slot >= 0) EditStyle([&](Shape& s) { s.markers[slot].fill = fill; });
}

void Surface::SetLinkPoint(int position, std::int32_t x, std::int32_t y) {
  const SurfaceObject* object = CurrentReal();
  if (!object || object->shape.kind != kKindLink || position < 2) return;
  std::vector<Point> points = object->shape.points;
  const auto n = static_cast<int>(points.size());
  if (n < 2) return;
  if (x == 0 && y == 0) {
    if (position >= n) return;
    const Point last = points.back();
    points.resize(position - 1);
    points.push_back(last);
  } else if (position < n) {
    points[position - 1] = Point{x, y};
  } else if (position == n) {
    points.insert(points.end() - 1, Point{x, y});
  } else {
    return;
  }
  SetObjectPoints(points);
}

std::vector<Point> Surface::ObjectPoints() const { return ReadShape().points; }

void Surface::SetObjectPoints(const std::vector<Point>& points) {
  const SurfaceObject* object = CurrentReal();
  if (!object) return;
  const bool link = object->shape.kind == kKindLink;
  if (link && points.size() < 2) return;
  Step step(*this);
  const int number = current_;
  EditShape(number, [&points](Shape& shape) {
    shape.points = points;
    if (!points.empty()) shape.box = BoundsOf(points);
  });
  if (link) PlaceLinkEnds(number);
  FollowLinks(number);
}

// ---------------------------------------------------------------------------
// Hit test and rectangle selection

int Surface::HitTest(double x, double y, double tolerance) {
  int hit = 0;
  std::int64_t hit_layer = 0;
  for (std::size_t slot = 0; slot < slots_.size(); ++slot) {
    const SurfaceObject* object = slots_[slot].get();
    if (!object || object->shape.hidden) continue;
    if ((hit == 0 || object->shape.layer > hit_layer) && ShapeHit(object->shape, x, y, tolerance)) {
      hit = NumberOfSlot(slot);
      hit_layer = object->shape.layer;
    }
  }
  if (hit) current_ = hit;
  return hit;
}

int Surface::SelectInRect(std::int32_t left, std::int32_t top, std::int32_t right,
                          std::int32_t bottom, int /*flags*/) {
  const Box rect{std::min(left, right), std::min(top, bottom), std::max(left, right),
                 std::max(top, bottom)};
  for (auto& object : slots_) {
    if (object) Mark(*object, !object->shape.hidden && ShapeTouches(object->shape, rect));
  }
  return selected_count_;
}

// ---------------------------------------------------------------------------
// Stacking and groups

bool Surface::Arrange(int action) {
  switch (action) {
    case 0: {
      Step step(*this);
      return Group();
    }
    case 1: {
      Step step(*this);
      return Ungroup();
    }
    case 2:
    case 3: {
      Step step(*this);
      Restack(action == 3);
      return true;
    }
    case 10:
      return true;
    default:
      return false;
  }
}

void Surface::Restack(bool to_front) {
  std::vector<int> targets = WriteTargets();
  std::stable_sort(targets.begin(), targets.end(), [this](int a, int b) {
    return Object(a)->shape.layer < Object(b)->shape.layer;
  });
  if (!to_front) std::reverse(targets.begin(), targets.end());
  for (int number : targets) {
    const std::int64_t layer = to_front ? ++top_layer_ : --bottom_layer_;
    EditShape(number, [layer](Shape& shape) { shape.layer = layer; });
  }
}

bool Surface::Group() {
  std::vector<int> members;
  for (std::size_t slot = 0; slot < slots_.size(); ++slot)
    if (slots_[slot] && slots_[slot]->selected) members.push_back(NumberOfSlot(slot));
  if (members.empty()) return false;
  // Links between grouped objects go into the group; a link leaving it would
  // lose an end, so such a group is refused.
  std::vector<int> extra_links;
  auto member = [&](int number) {
    return std::binary_search(members.begin(), members.end(), number);
  };
  for (int number : members) {
    const SurfaceObject* object = Object(number);
    if (object->shape.kind == kKindLink && !(member(object->ends[0]) && member(object->ends[1])))
      return false;
    for (int link : object->links) {
      const SurfaceObject* l = Object(link);
      if (!(member(l->ends[0]) && member(l->ends[1]))) return false;
      if (!member(link)) extra_links.push_back(link);
    }
  }
  members.insert(members.end(), extra_links.begin(), extra_links.end());
  std::sort(members.begin(), members.end());
  members.erase(std::unique(members.begin(), members.end()), members.end());

  SurfaceObject group;
  group.shape.kind = kKindGroup;
  std::unordered_map<int, int> position;
  for (std::size_t i = 0; i < members.size(); ++i) position[members[i]] = static_cast<int>(i);
  for (std::size_t i = 0; i < members.size(); ++i) {
    const SurfaceObject* object = Object(members[i]);
    SurfaceObject child;
    child.shape = object->shape;
    child.tags = object->tags;
    child.extra = object->extra;
    if (object->shape.kind == kKindLink)
      child.ends = {position[object->ends[0]], position[object->ends[1]]};
    group.shape.box = i == 0 ? child.shape.box : Union(group.shape.box, child.shape.box);
    group.shape.children.push_back(std::move(child));
  }
  DeleteWithLinks(members);
  group.selected = true;
  current_ = InsertNew(std::move(group));
  return true;
}

bool Surface::Ungroup() {
  std::vector<int> groups;
  if (const SurfaceObject* object = CurrentReal()) {
    if (object->shape.kind == kKindGroup) groups.push_back(current_);
  } else {
    for (std::size_t slot = 0; slot < slots_.size(); ++slot) {
      const SurfaceObject* candidate = slots_[slot].get();
      if (candidate && candidate->selected && candidate->shape.kind == kKindGroup)
        groups.push_back(NumberOfSlot(slot));
    }
  }
  if (groups.empty()) return false;
  for (int number : groups) {
    std::vector<SurfaceObject> children = Object(number)->shape.children;
    DeleteWithLinks({number});
    for (SurfaceObject& child : children) child.selected = true;
    const std::vector<int> numbers = InsertBatch(std::move(children), true);
    if (!numbers.empty()) current_ = numbers.front();
  }
  return true;
}

}  // namespace pluvane
