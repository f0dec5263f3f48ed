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

// One command: its name, its part of the usage text (lines indented as the
// others), and what runs it.
struct CliCommand {
  std::string name;
  std::string usage;
  CliCommandRun run;
};

// The commands of the core: info, generate, run, recap. The program adds
// those that need Qt to draw (plot, render) to make its one table.
std::vector<CliCommand> CoreCliCommands();

// `args` are the words after the program's name; `app_path` is the folder of
// the programs.
int RunCli(const std::vector<std::string>& args, const std::vector<CliCommand>& commands,
           const std::string& app_path, std::ostream& out, std::ostream& err);

// The usage text of `pluvane-cli --help`, the commands in the order of their names.
std::string CliUsage(const std::vector<CliCommand>& commands);

}  // namespace pluvane
