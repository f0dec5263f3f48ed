// Where the pictures of the UI tests go, to be looked at; the test application
// itself is in qt_test_app.h.
#pragma once

#include <filesystem>
#include <string>

#include "qt_test_app.h"

namespace pluvane {

// A file of the build folder's shots/ for the pictures the tests make.
inline std::string SnapshotPath(const std::string& name) {
  const std::filesystem::path folder = std::filesystem::path(PLUVANE_BIN).parent_path() / "shots";
  std::filesystem::create_directories(folder);
  return (folder / name).string();
}

}  // namespace pluvane
