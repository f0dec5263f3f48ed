// Test helper: places an element symbol carrying the tags every element has.
#pragma once

#include <string>

#include "drawing/surface.h"

namespace pluvane {

// A picture symbol from (0, 0) to (size, size) with iName, Id and libell (the
// Id when no label is given). It is left current.
inline int AddElement(Surface& surface, int i_name, const std::string& id,
                      const std::string& label = "", std::int32_t size = 100) {
  const int n = surface.AddObject(kKindPicture, 0, 0, size, size);
  surface.SetObjTag("iName", i_name);
  surface.SetObjTag("Id", id);
  surface.SetObjTag("libell", label.empty() ? id : label);
  return n;
}

}  // namespace pluvane
