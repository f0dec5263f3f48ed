// pluvane-cli: the treatments of the program without a window.
#include <clocale>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "shell/cli.h"
#include "ui/render_command.h"

int main(int argc, char** argv) {
  std::setlocale(LC_NUMERIC, "C");
  std::error_code error;
  std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) self = std::filesystem::absolute(argv[0]);
  // The core's commands, and those that draw, which need Qt.
  std::vector<pluvane::CliCommand> commands = pluvane::CoreCliCommands();
  for (pluvane::CliCommand& command : pluvane::RenderCliCommands()) commands.push_back(command);
  std::vector<std::string> args(argv + 1, argv + argc);
  return pluvane::RunCli(args, commands, self.parent_path().string(), std::cout, std::cerr);
}
