// An empty sheet for the benchmarks that place their own objects: the
// program's state working in a folder of the build, with the shipped symbols,
// a surface scaled to `size` logical units square and the map of its corners.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "drawing/surface.h"
#include "network/georeferencing.h"
#include "shell/app_state.h"

// The folder `name` of the build, made if missing.
inline std::filesystem::path BenchFolder(const std::string& name) {
  const std::filesystem::path folder = std::filesystem::path(PLUVANE_BENCH_OUT) / name;
  std::filesystem::create_directories(folder);
  return folder;
}

inline void PrepareSheet(pluvane::Surface& surface, pluvane::AppState& state,
                         const std::filesystem::path& folder, std::int32_t size) {
  state.AppPath = folder.string();
  state.WorkDir = folder.string();
  state.SymbolDir = std::string(PLUVANE_SOURCE_DATA) + "/Symboles";
  state.LogicWidth = size;
  state.LogicHeight = size;
  state.SymbolSize = 120;
  surface.SetScale(0, 0, size, size, 16384);
  pluvane::DefaultCalibrationFromCorners(state.calibration, size, size);
}
