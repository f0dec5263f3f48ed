// The exchange of library records between networks, from pluvane-cli.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "foundation/scripted_ui.h"

namespace pluvane {

// copy-records SOURCE.mtf DEST.mtf --kind N: the Go button of the form
// "Export de données alpha vers un autre Mtf" for the type "N:", on SOURCE
// opened as the program opens it; DEST is rewritten in place and SOURCE is
// never written. Prints the status line; 0 when copied, 1 when refused or
// when there is nothing of that kind, 2 on bad usage.
int CopyRecordsCommand(const std::vector<std::string>& args, const std::string& app_path,
                       std::ostream& out, ScriptedUi& ui);

}  // namespace pluvane
