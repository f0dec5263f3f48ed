#include "drawing/surface_helpers.h"

#include <algorithm>
#include <cmath>

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"

namespace pluvane {

namespace {

constexpr int kNodeKind = 99;

}  // namespace

int FindObject(Surface& surface, std::string_view tag_name, const TagMatch& value) {
  CursorKeeper keeper(surface);
  int found = 0;
  if (tag_name == kTagId && !value.numeric()) {
    found = surface.FindById(value.text());
    if (found) surface.SetCurrentObject(found);
  } else {
    found = surface.FindByTag(tag_name, value, true);
  }
  if (found > 0) keeper.Release();
  return std::max(found, 0);
}

std::vector<int> FindObjectList(const Surface& surface, std::string_view tag_name,
                                const TagMatch& value) {
  return surface.FindAllByTag(tag_name, value);
}

int CountByTag(const Surface& surface, std::string_view tag_name, const TagMatch& value) {
  return surface.CountByTag(tag_name, value);
}

int CountByName(const Surface& surface, int i_name) {
  return CountByTag(surface, kTagIName, i_name);
}

int CountLabel(const Surface& surface, int i_name, std::string_view label) {
  int count = 0;
  for (int n : surface.FindAllByTag(kTagIName, i_name))
    if (EqualsNoCase(surface.TagOf(n, "libell"), label)) ++count;
  return count;
}

int SelectByTag(Surface& surface, std::string_view tag_name, const TagMatch& value) {
  CursorKeeper keeper(surface);
  surface.DeselectAll();
  const std::vector<int> matches = surface.FindAllByTag(tag_name, value);
  for (int n : matches) {
    surface.SetCurrentObject(n);
    surface.SetSelected(true);
  }
  return static_cast<int>(matches.size());
}

int DeleteByTagId(Surface& surface, std::string_view id) {
  CursorKeeper keeper(surface);
  const std::vector<int> numbers = FindObjectList(surface, kTagId, std::string(id));
  int count = 0;
  surface.BeginStep("");
  for (int number : numbers) {
    if (surface.DeleteObject(number) > 0) ++count;
  }
  surface.EndStep();
  return count;
}

int FindObject2(Surface& surface, std::string_view tag1, const TagMatch& value1,
                std::string_view tag2, const TagMatch& value2) {
  const int found = FindFirstWithBoth(surface, tag1, value1, tag2, value2);
  if (found) surface.SetCurrentObject(found);
  return found;
}

int FindFirstWithBoth(const Surface& surface, std::string_view tag1, const TagMatch& value1,
                      std::string_view tag2, const TagMatch& value2) {
  for (int n = surface.FindByTagFrom(tag1, value1, 0); n > 0;
       n = surface.FindByTagFrom(tag1, value1, n)) {
    if (value2.Matches(surface.TagOf(n, tag2))) return n;
  }
  return 0;
}

std::vector<int> SelectedObjects(Surface& surface) {
  CursorKeeper keeper(surface);
  std::vector<int> selected;
  surface.SetCurrentObject(kSelection);
  for (int n = surface.FirstSelected(); n > 0; n = surface.NextSelected()) selected.push_back(n);
  return selected;
}

bool IdNumberOf(std::string_view id, int& number) {
  const std::size_t underscore = id.find('_');
  if (underscore == std::string_view::npos) return false;
  number = ValLong(id.substr(underscore + 1));
  return true;
}

int MaxIdNumber(const Surface& surface, int i_name) {
  int largest = 0;
  bool any = false;
  for (int n : surface.FindAllByTag(kTagIName, i_name)) {
    int number = 0;
    if (!IdNumberOf(surface.TagOf(n, kTagId), number)) continue;
    largest = any ? std::max(largest, number) : number;
    any = true;
  }
  return largest < 0 ? 0 : largest;
}

std::array<int, 100> MaxIdNumbers(const Surface& surface) {
  std::array<int, 100> largest{};
  std::array<bool, 100> any{};
  for (int n : surface.Objects()) {
    double kind = 0;
    if (!ReadWholeNumber(surface.TagOf(n, kTagIName), kind) || kind < 1 || kind > 99 ||
        kind != std::floor(kind)) {
      continue;
    }
    int number = 0;
    if (!IdNumberOf(surface.TagOf(n, kTagId), number)) continue;
    const auto i = static_cast<std::size_t>(kind);
    largest[i] = any[i] ? std::max(largest[i], number) : number;
    any[i] = true;
  }
  for (int& number : largest) number = std::max(number, 0);
  return largest;
}

std::pair<double, double> ObjectCentre(const Surface& surface, int number) {
  const Shape* shape = surface.ObjectShape(number);
  if (!shape || number < kFirstObjectNumber) return {0, 0};
  return {(static_cast<double>(shape->box.left) + shape->box.right) / 2,
          (static_cast<double>(shape->box.top) + shape->box.bottom) / 2};
}

double NodeHalfSize(Surface& surface, double symbol_size) {
  CursorKeeper keeper(surface);
  const int node = surface.FindByTag(kTagIName, kNodeKind, true);
  if (node <= 0) return surface.ViewHeight() / 150;
  const double half = (static_cast<double>(surface.ObjRight()) - surface.ObjLeft()) / 2;
  return half >= 1 ? half : symbol_size;
}

std::string TagOfObject(const Surface& surface, int number, std::string_view name) {
  return std::string(surface.TagOf(number, name));
}

std::array<Marker, 3> ReadLinkMarkers(const Surface& surface) {
  std::array<Marker, 3> markers;
  for (std::size_t i = 0; i < kLinkMarkerPositions.size(); ++i) {
    const int p = kLinkMarkerPositions[i];
    markers[i] =
        Marker{surface.LinkEndMarker(p), surface.LinkMarkerWidth(p), surface.LinkMarkerHeight(p),
               surface.LinkMarkerColor(p), surface.LinkMarkerFill(p)};
  }
  return markers;
}

void WriteLinkMarkers(Surface& surface, const std::array<Marker, 3>& markers) {
  for (std::size_t i = 0; i < kLinkMarkerPositions.size(); ++i) {
    const int p = kLinkMarkerPositions[i];
    const Marker& m = markers[i];
    surface.SetLinkEndMarker(p, m.shape);
    surface.SetLinkMarkerWidth(p, m.width);
    surface.SetLinkMarkerHeight(p, m.height);
    surface.SetLinkMarkerColor(p, m.color);
    surface.SetLinkMarkerFill(p, m.fill);
  }
}

}  // namespace pluvane
