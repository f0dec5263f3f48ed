// `capacity`: the capacity map of a scenario built as the map window builds
// it, then written as a network file (the map's copy, with its result tags
// and its colours) or drawn with its legend into a picture.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "drawing/surface.h"
#include "shell/cli.h"

namespace pluvane {

class ScriptedUi;

// Draws the map and its legend into a picture file; false when it could not.
using CapacityPictureWriter =
    std::function<bool(const Surface& map, const Surface& legend, const std::string& path,
                       const std::string& network_folder, const std::string& symbol_folder)>;

// `capacity NETWORK.mtf [--scenario NAME] [--sor FILE] -o OUT.mtf|svg|pdf|png`.
// 0 written, 1 refused (a message says why), 2 bad usage. Without a picture
// writer only .mtf is written.
int CapacityCommand(const std::vector<std::string>& args, const std::string& app_path,
                    std::ostream& out, ScriptedUi& ui, const CapacityPictureWriter& writer);

// The command for pluvane-cli's table.
CliCommand CapacityCliCommand(CapacityPictureWriter writer);

}  // namespace pluvane
