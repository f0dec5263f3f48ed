// Test helper: every object of a drawing with its tags, box and link ends, to
// check networks as a whole.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "foundation/numbers.h"
#include "drawing/surface.h"

namespace pluvane {

struct ObjectView {
  int number = 0;
  int kind = 0;
  Box box;
  std::map<std::string, std::string> tags;
  int ends[2] = {0, 0};

  std::string Tag(const std::string& name) const {
    const auto found = tags.find(name);
    return found == tags.end() ? "" : found->second;
  }
  bool Has(const std::string& name) const { return tags.count(name) != 0; }
  int IName() const { return Has("iName") ? ValInt(Tag("iName")) : -1; }
};

class NetworkView {
 public:
  explicit NetworkView(Surface& surface) {
    const int saved = surface.CurrentObject();
    for (int n = surface.FirstObject(); n > 10; n = surface.NextObject()) {
      ObjectView o;
      o.number = n;
      o.kind = surface.ObjectKind();
      o.box = surface.ObjectShape(n)->box;
      for (int i = 0; i < surface.ObjTagCount(); ++i) {
        o.tags[surface.ObjTagName(i)] = surface.ObjTagValue(i);
      }
      if (o.kind == kKindLink) {
        o.ends[0] = surface.LinkEndObject(0);
        o.ends[1] = surface.LinkEndObject(1);
      }
      objects.push_back(o);
    }
    surface.SetCurrentObject(saved);
  }

  std::vector<ObjectView> OfKind(int i_name) const {
    std::vector<ObjectView> found;
    for (const ObjectView& o : objects) {
      if (o.IName() == i_name) found.push_back(o);
    }
    return found;
  }
  // Counts by iName, over the objects that carry one.
  std::map<int, int> Counts() const {
    std::map<int, int> counts;
    for (const ObjectView& o : objects) {
      if (o.Has("iName")) ++counts[o.IName()];
    }
    return counts;
  }
  const ObjectView* ById(const std::string& id) const {
    for (const ObjectView& o : objects) {
      if (o.Tag("Id") == id) return &o;
    }
    return nullptr;
  }
  const ObjectView* ByNumber(int number) const {
    for (const ObjectView& o : objects) {
      if (o.number == number) return &o;
    }
    return nullptr;
  }

  std::vector<ObjectView> objects;
};

}  // namespace pluvane
