#include "shell/installation.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "foundation/paths.h"
#include "foundation/settings_keys.h"

namespace pluvane {

namespace {

bool Writable(const std::string& path) { return ::access(path.c_str(), W_OK) == 0; }

// The shipped data: beside the programs, else in ../share/pluvane.
std::string DataDirOf(const std::string& app_path) {
  if (FileExist(JoinPath(app_path, kIniFileName)) || FolderExist(JoinPath(app_path, "Symboles"))) {
    return app_path;
  }
  std::error_code error;
  const std::filesystem::path shared =
      (std::filesystem::path(app_path).parent_path() / "share" / "pluvane").lexically_normal();
  if (std::filesystem::is_directory(shared, error)) return shared.string();
  return app_path;
}

// Copies the shipped configuration to the user's folder; false when it could
// not be made.
bool MakeUserCopy(const std::string& shipped, const std::string& copy) {
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(copy).parent_path(), error);
  if (error) return false;
  return std::filesystem::copy_file(shipped, copy, error) && !error;
}

}  // namespace

std::string UserConfigHome() {
  const char* xdg = std::getenv("XDG_CONFIG_HOME");
  if (xdg != nullptr && std::filesystem::path(xdg).is_absolute()) return xdg;
  const char* home = std::getenv("HOME");
  if (home != nullptr && *home != '\0') return JoinPath(home, ".config");
  return "";
}

Installation LocateInstallation(const std::string& app_path, bool make_user_copy) {
  Installation found;
  found.data_dir = DataDirOf(app_path);
  const std::string shipped = JoinPath(found.data_dir, kIniFileName);
  // The portable layout writes its configuration where it stands.
  if (found.data_dir == app_path && (!FileExist(shipped) || (Writable(shipped) && Writable(app_path)))) {
    found.ini_file = shipped;
    return found;
  }
  found.ini_file = shipped;
  const std::string home = UserConfigHome();
  if (home.empty()) return found;
  const std::string copy = JoinPath(JoinPath(home, "pluvane"), kIniFileName);
  if (FileExist(copy) || (make_user_copy && FileExist(shipped) && MakeUserCopy(shipped, copy))) {
    found.ini_file = copy;
  }
  return found;
}

}  // namespace pluvane
