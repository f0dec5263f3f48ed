// pluvane-cli: the program's treatments without a window. Each command starts
// as the program does where it needs to (pluvane.ini beside the programs),
// prints every message to the error stream as "title: text", answers every
// question with its default, and returns 0 on success, 1 when the treatment
// refused, 2 on bad usage.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace pluvane {

// `args` are the words after the program's name; `app_path` is the folder of
// the programs.
int RunCli(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
           std::ostream& err);

// The usage text of `pluvane-cli --help`.
std::string CliUsage();

}  // namespace pluvane
