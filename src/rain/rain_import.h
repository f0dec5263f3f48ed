// The import of a rain text file into the network: every block of the chosen
// key becomes a rain record of the matching kind. A names pass comes first, so
// that a rain that exists already stops the whole import before anything is
// written; then each block is its own step, a faulty one left out with its
// message while the others go in.
#pragma once

#include <string>

#include "drawing/surface.h"
#include "foundation/user_interface.h"
#include "network/network_state.h"

namespace pluvane {

// The kind of rain a key imports: PR 103, CAQ 104, PPST 105, PPDT 106, PPHY 107,
// PRAD 108; 0 for any other key.
int ImportedKind(const std::string& key);

struct RainImportResult {
  bool refused = false;  // the file was missing or empty, or a name exists
  int imported = 0;
};

// Imports the blocks of `key` (compared in capitals) from the file at `path`.
// Messages go through `ui`, the count to the status line.
RainImportResult ImportRainFile(Surface& surface, const NetworkState& state, UserInterface& ui,
                                const std::string& key, const std::string& path);

// True when a gauge of that Id or libell stands in the drawing; otherwise the
// message of the gauge-existence check is shown.
bool CheckGaugeExists(Surface& surface, UserInterface& ui, const std::string& name);

}  // namespace pluvane
