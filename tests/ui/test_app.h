// The one QApplication of the UI tests, and where their pictures go.
#pragma once

#include <QApplication>
#include <filesystem>
#include <string>

namespace pluvane {

inline QApplication& TestApp() {
  static int argc = 1;
  static char name[] = "test_ui";
  static char* argv[] = {name, nullptr};
  static QApplication* app = new QApplication(argc, argv);
  return *app;
}

// A file of the build folder for the pictures the tests make, to be looked at.
inline std::string SnapshotPath(const std::string& name) {
  const std::filesystem::path folder = std::filesystem::path(PLUVANE_BIN).parent_path() / "shots";
  std::filesystem::create_directories(folder);
  return (folder / name).string();
}

}  // namespace pluvane
