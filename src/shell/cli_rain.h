// The rain commands of pluvane-cli.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "foundation/scripted_ui.h"

namespace pluvane {

// import-rain NETWORK.mtf FILE --key KEY -o OUT.mtf: the import of the
// external rain library on that key and that file, the network written to
// OUT.mtf whatever came of it. 0 when the import ran, 1 when it was refused,
// 2 on bad usage.
int ImportRainCommand(const std::vector<std::string>& args, const std::string& app_path,
                      std::ostream& out, ScriptedUi& ui);

}  // namespace pluvane
