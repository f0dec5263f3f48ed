// The consistency checks of the Exploitation menu, from pluvane-cli.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "foundation/scripted_ui.h"

namespace pluvane {

// check NETWORK.mtf [--forbidden] [--doublets] [--orphans]: runs the checks
// named (all three, in that order, when none is) and prints the lines of
// their reports as the report window holds them. 0 when they ran, 1 when the
// network cannot be opened or holds no network, 2 on bad usage.
int CheckCommand(const std::vector<std::string>& args, const std::string& app_path,
                 std::ostream& out, ScriptedUi& ui);

}  // namespace pluvane
