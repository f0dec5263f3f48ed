// Reversing the flow of selected links ("&Inverser le sens d'écoulement"):
// each is made again with its ends exchanged, keeping its style, markers and
// tags, with sNodAm and sNodAv exchanged. Invert levels stay as they were:
// the engineer enters them again.
#pragma once

#include "foundation/user_interface.h"
#include "drawing/surface.h"

namespace pluvane {

// Reverses every selected link and reports the count in the status line; with
// no link selected, says so and changes nothing. Returns how many were
// reversed. The new links are left selected. One undo step.
int mnuUtil_XChange(Surface& surface, UserInterface& ui);

}  // namespace pluvane
