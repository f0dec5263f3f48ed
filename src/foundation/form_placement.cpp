#include "foundation/form_placement.h"

#include <algorithm>
#include <cmath>

namespace pluvane {

namespace {

int PlaceOnAxis(int at, int form, int owner) {
  at = std::max(at, 0);
  if (at + form > owner) {
    at = static_cast<int>(std::lround(owner - 1.1 * form));
    at = std::max(at, 0);
  }
  return at;
}

int Half(int d) { return static_cast<int>(std::floor(d / 2.0)); }

}  // namespace

ScreenPoint CentreForm(ScreenSize screen, ScreenSize form) {
  return {Half(screen.width - form.width), Half(screen.height - form.height)};
}

ScreenPoint PlaceNearCursor(ScreenPoint cursor, ScreenSize form, ScreenSize owner) {
  return {PlaceOnAxis(cursor.x, form.width, owner.width),
          PlaceOnAxis(cursor.y, form.height, owner.height)};
}

}  // namespace pluvane
