#include "foundation/processes.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "foundation/errors.h"

extern char** environ;

namespace pluvane {

namespace {

// What a started process ended with: its exit code, 128 + the signal that
// killed it, or -1 when it could not be waited for.
constexpr int kCannotWait = -1;

// Starts the command; the system's error code on failure, else 0 with `pid` set.
int StartProcess(const std::string& command_line, const std::string& working_folder, pid_t& pid) {
  std::vector<std::string> args = SplitCommandLine(command_line);
  if (args.empty()) return ENOENT;
  std::vector<char*> argv;
  for (auto& arg : args) argv.push_back(arg.data());
  argv.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  int error = 0;
  if (!working_folder.empty()) {
    error = posix_spawn_file_actions_addchdir_np(&actions, working_folder.c_str());
  }
  if (error == 0) error = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  return error;
}

// Waits for the process, polling every `interval` and letting the window's
// events run between two polls.
int WaitProcess(UserInterface& ui, pid_t pid, std::chrono::milliseconds interval) {
  int status = 0;
  while (true) {
    pid_t done = ::waitpid(pid, &status, WNOHANG);
    if (done == pid) break;
    if (done < 0) {
      if (errno == EINTR) continue;
      return kCannotWait;
    }
    ui.PumpEvents();
    std::this_thread::sleep_for(interval);
  }
  if (WIFEXITED(status)) return WEXITSTATUS(status);
  if (WIFSIGNALED(status)) return 128 + WTERMSIG(status);
  return kCannotWait;
}

}  // namespace

std::vector<std::string> SplitCommandLine(std::string_view command_line) {
  std::vector<std::string> args;
  std::string current;
  bool in_token = false, quoted = false;
  for (char c : command_line) {
    if (c == '"') {
      quoted = !quoted;
      in_token = true;
    } else if (!quoted && (c == ' ' || c == '\t')) {
      if (in_token) args.push_back(current);
      current.clear();
      in_token = false;
    } else {
      current += c;
      in_token = true;
    }
  }
  if (in_token) args.push_back(current);
  return args;
}

int RunAndWait(UserInterface& ui, const std::string& command_line,
               const std::string& working_folder) {
  pid_t pid = 0;
  int error = StartProcess(command_line, working_folder, pid);
  if (error == 0) {
    WaitProcess(ui, pid, std::chrono::milliseconds(20));
    return 0;
  }
  AppError pending(error, SystemErrorText(error));
  ShowError(ui, &pending, "erreur no " + std::to_string(error) + " (" + command_line + ")");
  return error;
}

int StartProgram(UserInterface& ui, const std::string& command_line,
                 const std::string& working_folder) {
  pid_t pid = 0;
  const int error = StartProcess(command_line, working_folder, pid);
  if (error == 0) {
    // Nobody waits for the program; this thread only collects its end, so
    // that no finished process lingers.
    std::thread([pid] {
      int status = 0;
      while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
      }
    }).detach();
    return 0;
  }
  AppError pending(error, SystemErrorText(error));
  ShowError(ui, &pending, "erreur no " + std::to_string(error) + " (" + command_line + ")");
  return error;
}

std::int32_t ShellAndWait(UserInterface& ui, const std::string& command_line, int window_style) {
  (void)window_style;
  constexpr std::int32_t kObjectError = -2147221504;
  pid_t pid = 0;
  int error = StartProcess(command_line, "", pid);
  if (error != 0) return error + kObjectError;
  return WaitProcess(ui, pid, std::chrono::milliseconds(100));
}

bool EditFile(UserInterface& ui, const std::string& path, const std::string& app_folder) {
  if (ui.EditFile(path)) return true;
  ui.ShowMessage(
      "L'éditeur NotePad.exe ou WordPad.exe non trouvé dans votre système.\r\n"
      "Placez-le dans le répertoire" +
          app_folder,
      "Editer " + path, MessageIcon::kInformation);
  return false;
}

std::string GetWinVersion() { return {}; }

}  // namespace pluvane
