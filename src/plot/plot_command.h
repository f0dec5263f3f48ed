// A plot script compiled without drawing it: the script is cut into pages in
// its own folder, page 1 becomes P1.ctl there, and the control file may be
// copied elsewhere. What the page renderer does before it draws, for the
// command line and for checks of a script.
#pragma once

#include <string>

#include "foundation/errors.h"
#include "foundation/user_interface.h"

namespace pluvane {

// The report of a run-time error met while a page is compiled or drawn:
// "Erreur dans Morvex, n° ..." titled "Traçage de courbe". `ctl_line` is the
// line of the control file being read, 0 before any.
void ShowMorvexError(UserInterface& ui, const AppError& error, int ctl_line);

// Splits `script`, compiles its page 1 into P1.ctl beside it, and copies that
// to `ctl_copy` when it is not empty. True when all went well; every failure
// has been told through `ui`.
bool CompileScriptPage(UserInterface& ui, const std::string& script, const std::string& ctl_copy);

}  // namespace pluvane
