// The section library written to a text file that the import reads back
// (.sec): per section its name in apostrophes, the line of its heights and
// the line of its widths, blank-separated. A section that the import would
// refuse (a name holding an apostrophe, fewer than two points, heights that
// do not rise) is left out and named to the user, so that the file always
// imports whole.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"
#include "foundation/user_interface.h"
#include "network/network_state.h"

namespace pluvane {

// Writes the file anew and returns the number of sections written; the Ids
// of those left out go to `skipped`, in the order of the library; -1 when
// the file could not be written.
int WriteSecFile(Surface& surface, const std::string& file, std::vector<std::string>& skipped);

// The message that ends an export.
std::string ExportReport(int count, const std::vector<std::string>& skipped);
inline constexpr const char* kExportTitle = "Export des sections";

// Writes the file and tells the count (and the sections left out) under
// "Export des sections"; -1, with its message, when it could not be written.
int ExportSections(Surface& surface, UserInterface& ui, const std::string& file);

// Option > Exporter des sections: the file asked (the network's name with
// ".sec" offered), written, and the count told. False when the dialog was
// cancelled or the file could not be written.
bool mnuOpt_SecExport(Surface& surface, const NetworkState& state, UserInterface& ui);

}  // namespace pluvane
