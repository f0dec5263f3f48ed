// The state of the open network: where the programs, their data and their
// configuration are, the network's file and folder, its current scenario and
// default calculation settings, the pending interaction, the element
// counters and the calibration. Part of the application's record (over the
// drawing's settings); the network's functions take this part.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "drawing/drawing_settings.h"
#include "foundation/settings_keys.h"
#include "foundation/paths.h"

namespace pluvane {

// The seven parameters of the affine map between logical and user coordinates,
// and the three calibration points they were solved from.
struct Calibration {
  double XORI = 0;
  double YORI = 0;
  double XMUCOS = 0;
  double XMUSIN = 0;
  double XLAMU = 0;
  double XLASIN = 0;
  double XLACOS = 0;
  // Index 1 to 3 as the calibration points are numbered; index 0 is unused.
  std::array<double, 4> user_x{};
  std::array<double, 4> user_y{};
  std::array<std::int32_t, 4> logic_x{};
  std::array<std::int32_t, 4> logic_y{};
};

struct NetworkState : DrawingSettings {
  std::string AppPath;  // folder of the programs, without a trailing separator
  // Folder of the shipped data (Symboles, Curseurs, Exemples) and the
  // configuration file in use, both found at start (shell/installation.h);
  // empty until then, when the programs' folder stands for both.
  std::string DataDir;
  std::string IniFile;
  std::string WorkDir;  // follows the folder of the network file
  std::string SymbolDir;
  std::string NetworkFile;  // empty when none
  std::string ScenarioName;
  std::int16_t CalcMode = 0;
  double CalcDuree = 120;
  double CalcDt = 2;
  std::string CurrentMode;
  // Next-number counters per iName, index 1 to 99 (index 0 unused).
  std::array<std::int32_t, 100> ElementCounters{};
  std::int32_t NodeCount = 1;
  // The number chosen for the reach being created, 0 when none is pending.
  std::int32_t PendingReach = 0;
  // Scale factor of the background plan; -1 after a network was opened.
  double BackgroundFactor = 1;
  // Polygon input buffer of the user, reserved at start.
  std::int32_t PointBufferSize = 0;
  Calibration calibration;
  // The map's coordinate system as the GIS names it: an EPSG code
  // ("EPSG:2154") or a WKT; empty when none was given. Saved in ParamReseau.
  std::string CoordinateSystem;
};

// The configuration file in use; before the start found it, the one beside
// the programs.
inline std::string IniFilePath(const NetworkState& state) {
  return state.IniFile.empty() ? JoinPath(state.AppPath, kIniFileName) : state.IniFile;
}

// The folder of the shipped data; before the start found it, the programs'.
inline std::string DataFolder(const NetworkState& state) {
  return state.DataDir.empty() ? state.AppPath : state.DataDir;
}

}  // namespace pluvane
