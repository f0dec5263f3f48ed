// Where a window opens: centred on the screen, or with its top-left corner at
// the mouse cursor and kept inside its owner. Pure arithmetic on sizes and
// points; the window layer moves the windows.
#pragma once

namespace pluvane {

struct ScreenPoint {
  int x = 0;
  int y = 0;
  bool operator==(const ScreenPoint&) const = default;
};

struct ScreenSize {
  int width = 0;
  int height = 0;
};

// Top-left corner of a form centred on the screen (halves rounded down).
ScreenPoint CentreForm(ScreenSize screen, ScreenSize form);

// Top-left corner of a form placed at the cursor: a coordinate below 0
// becomes 0; when the form would pass the owner's right or bottom edge, the
// coordinate becomes the owner's size less 1.1 times the form's size, and
// again not less than 0.
ScreenPoint PlaceNearCursor(ScreenPoint cursor, ScreenSize form, ScreenSize owner);

}  // namespace pluvane
