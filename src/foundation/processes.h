// Starting other programs: the engine runs that block the caller until they
// end (while the window keeps repainting), the plot viewer started the same
// way, and a text file shown in the desktop's editor.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/user_interface.h"

namespace pluvane {

// The arguments of a command line: separated by blanks or tabs, a part in
// double quotes keeps its blanks and loses the quotes. Backslashes are plain
// characters.
std::vector<std::string> SplitCommandLine(std::string_view command_line);

// Starts the command in `working_folder` (none when empty) and waits for its
// end, letting the window's events run meanwhile. Returns 0 when it ran, else
// the system's error code of the failed start, also reported through
// ShowError with "erreur no <code> (<command line>)". The program's own exit
// code is not looked at.
int RunAndWait(UserInterface& ui, const std::string& command_line,
               const std::string& working_folder);

// Starts the command and waits for its end, letting events run. Returns its
// exit code (128 + the signal when a signal ended it), or on a failed start
// the error code plus -2147221504. The window style (0 to 6) of the old
// system has no meaning here.
std::int32_t ShellAndWait(UserInterface& ui, const std::string& command_line, int window_style = 6);

// Starts the command in `working_folder` (none when empty) and returns at
// once, the program going on beside this one (its end is collected in the
// background). 0 when it started, else the system's error code, also reported
// through ShowError as RunAndWait does.
int StartProgram(UserInterface& ui, const std::string& command_line,
                 const std::string& working_folder);

// Shows a text file in the desktop's text editor and returns at once. When no
// editor can be started the user is told where to put one (`app_folder`).
bool EditFile(UserInterface& ui, const std::string& path, const std::string& app_folder);

// The Windows version the old editor choice looked at; empty on this platform.
std::string GetWinVersion();

}  // namespace pluvane
