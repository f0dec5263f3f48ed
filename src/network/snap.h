// The maintenance command that sets every uninodal element back on its node:
// the node named by its sNodAm, failing that the node under its centre.
#pragma once

#include "foundation/user_interface.h"
#include "drawing/surface.h"

namespace pluvane {

// Gives each element of family 1 or 3 its node's bounds and the node's Id as
// sNodAm, reports the count in the status line and returns it. One undo step.
int mnuUtil_snapSymbol(Surface& surface, UserInterface& ui);

}  // namespace pluvane
