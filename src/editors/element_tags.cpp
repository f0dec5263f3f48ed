#include "editors/element_tags.h"

#include "drawing/surface_guards.h"

namespace pluvane {

void SetTagOfObject(Surface& surface, int element, std::string_view name, std::string_view value) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(element);
  if (surface.CurrentObject() == element) surface.SetObjTag(name, value);
}

}  // namespace pluvane
