// The command that makes a new reach (mnuOpt_Bief_New): it arms the "ADDBIEF"
// mode, in which the user selects collectors with the mouse, each click on a
// collector telling its label and its reach; Enter ends the mode, asks the
// number in frmBiefUserCreate, orders the collectors and makes the record.
#pragma once

#include <functional>
#include <string>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "network/create_mode.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

inline constexpr const char* kReachMode = "ADDBIEF";

// Shows a form until it is closed (the window runs it modally; tests play the
// user's part).
using ShowModalForm = std::function<void(FormController&)>;

// Arms the mode: CurrentMode "ADDBIEF", the key X_BIEF, and the status text
// telling the user what to do.
void mnuOpt_Bief_New(NetworkState& state, PlacementState& placement, UserInterface& ui);

// A click in the mode on `object`: for a collector, its label and the number
// of its reach ("?" when it has none) go to the status line, and the text is
// returned; anything else gives an empty text.
std::string ReachClickInfo(Surface& surface, UserInterface& ui, int object);

// The Enter key in the mode: ends it, and makes the reach of the selected
// collectors. Returns the reach record, 0 when none was made.
int EndReachCreation(Surface& surface, NetworkState& state, UserInterface& ui,
                     const ShowModalForm& show_modal);

}  // namespace pluvane
