// The programs as a user starts them: a program folder of its own (a copy of
// the built programs and of the shipped data, so that no test touches the
// build's pluvane.ini), a work folder to start them from, and a runner that
// starts one there with relative paths and collects what it prints.
#pragma once

#include <sys/stat.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "foundation/test_files.h"

namespace pluvane {

struct ProgramRun {
  int status = -1;
  std::string output;  // standard output and error together
};

// Runs a shell command line and collects what it prints.
inline ProgramRun RunCommandLine(const std::string& command) {
  ProgramRun run;
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return run;
  char buffer[512];
  while (std::fgets(buffer, sizeof buffer, pipe)) run.output += buffer;
  const int status = pclose(pipe);
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return run;
}

// A run with standard output and standard error apart.
struct SplitRun {
  int status = -1;
  std::string out;
  std::string err;
};

class ProgramFolder {
 public:
  ProgramFolder() {
    namespace fs = std::filesystem;
    for (const char* item : {"pluvane.ini", "Symboles", "Curseurs", "Icones", "Exemples"}) {
      fs::copy(fs::path(PLUVANE_DATA) / item, fs::path(app_.Path()) / item,
               fs::copy_options::recursive);
    }
    for (const char* program : {"pluvane", "pluvane-cli"}) {
      fs::copy_file(fs::path(PLUVANE_BIN) / program, fs::path(app_.Path()) / program);
    }
    fs::create_directories(work_.File("Exemples"));
    fs::copy_file(fs::path(PLUVANE_DATA) / "Exemples" / "Demo.mtf",
                  work_.File("Exemples/Demo.mtf"));
  }

  // A stand-in engine program beside the programs.
  void Engine(const std::string& name, const std::string& body) const {
    const std::string path = app_.File(name);
    WriteBytes(path, "#!/bin/sh\n" + body);
    ::chmod(path.c_str(), 0755);
  }

  // Starts `program` of the program folder from the work folder, with no
  // display and a home of its own.
  ProgramRun Start(const std::string& program, const std::string& arguments,
                   const std::string& environment = "") const {
    return RunCommandLine(
        "cd '" + work_.Path() + "' && env -u DISPLAY -u WAYLAND_DISPLAY -u XDG_CONFIG_HOME HOME='" +
        home_.Path() + "' " + environment + " '" + app_.File(program) + "' " + arguments + " 2>&1");
  }

  // Starts pluvane-cli from the work folder with `arguments`.
  SplitRun Cli(const std::string& arguments) const {
    const ProgramRun run = Start("pluvane-cli", arguments + " 2>'" + Work("err.txt") + "' #");
    return {run.status, run.output, ReadBytes(Work("err.txt"))};
  }

  std::string App(const std::string& name) const { return app_.File(name); }
  std::string Work(const std::string& name) const { return work_.File(name); }
  std::string Home(const std::string& name) const { return home_.File(name); }

 private:
  TempFolder app_;
  TempFolder work_;
  TempFolder home_;
};

}  // namespace pluvane
