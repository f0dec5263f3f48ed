// pluvane-cli: the program's treatments without a window. Each command starts
// as the program does where it needs to (with its configuration, which the
// command line reads and never writes), prints every message to the error stream as "title: text", answers every
// question with its default, and returns 0 on success, 1 when the treatment
// refused, 2 on bad usage.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace pluvane {

class ScriptedUi;

// A command: its arguments (after its name), the folder of the programs, the
// output stream and the messages' sink. Returns the exit status.
using CliCommandRun =
    std::function<int(const std::vector<std::string>& args, const std::string& app_path,
                      std::ostream& out, ScriptedUi& ui)>;

// Adds a command that the core cannot hold (one that needs Qt to draw, say):
// the program registers it before RunCli. `usage` is its part of the usage
// text, lines indented as the others. A name already taken is replaced.
void RegisterCliCommand(const std::string& name, const std::string& usage, CliCommandRun run);

// `args` are the words after the program's name; `app_path` is the folder of
// the programs.
int RunCli(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
           std::ostream& err);

// The usage text of `pluvane-cli --help`.
std::string CliUsage();

}  // namespace pluvane
