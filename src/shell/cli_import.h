// The table import command of pluvane-cli.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "foundation/scripted_ui.h"

namespace pluvane {

// import nodes|bv|ci|pf|po NETWORK.mtf TABLE [--fields FILE.Fld] -o OUT.mtf:
// the import of File > Importer of that kind, the columns from FILE.Fld (by
// default the .Fld beside the table), a table named .Mif meaning the .Mid
// beside it. The node import's question is answered "2". The network is
// written to OUT.mtf unless the import was refused (status 1).
int ImportTableCommand(const std::vector<std::string>& args, const std::string& app_path,
                       std::ostream& out, ScriptedUi& ui);

}  // namespace pluvane
