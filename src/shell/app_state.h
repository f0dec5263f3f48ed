// The one process-wide record of the program: where it runs, the open
// network, the drawing's extents and sizes, the default calculation settings,
// the interaction mode, the element counters and the calibration. Written only
// from the main window's thread; passed by reference to whoever needs it.
#pragma once

#include <array>
#include <cstdint>
#include <string>

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

struct AppState {
  std::string AppPath;      // folder of the programs, without a trailing separator
  // Folder of the shipped data (Symboles, Curseurs, Exemples) and the
  // configuration file in use, both found at start (shell/installation.h);
  // empty until then, when the programs' folder stands for both.
  std::string DataDir;
  std::string IniFile;
  std::string WorkDir;      // follows the folder of the network file
  std::string SymbolDir;
  std::string CommandLine;  // trimmed
  std::string NetworkFile;  // empty when none
  std::string ScenarioName;
  std::int32_t LogicWidth = 0;
  std::int32_t LogicHeight = 0;
  double SymbolSize = 0;
  double LinkThick = 0;
  double ZoomFactor = 1;
  std::int32_t ScreenBackColor = 16777215;
  std::int16_t CalcMode = 0;
  double CalcDuree = 120;
  double CalcDt = 2;
  std::string CurrentMode;
  // Next-number counters per iName, index 1 to 99 (index 0 unused).
  std::array<std::int32_t, 100> ElementCounters{};
  std::int32_t NodeCount = 1;
  // The number chosen for the reach being created, 0 when none is pending.
  std::int32_t PendingReach = 0;
  // The decimal mark of the user's locale found at start, given back at exit.
  std::string SavedDecimal;
  // The locale name of LC_NUMERIC found at start.
  std::string SavedNumericLocale;
  // Docking area of the tool band, as read from the configuration.
  std::int32_t ToolBandPosition = 4;
  // Symbols follow the zoom (on at start).
  bool ScaleWithZoom = true;
  // Scale factor of the background plan; -1 after a network was opened.
  double BackgroundFactor = 1;
  // Polygon input buffer of the user, reserved at start.
  std::int32_t PointBufferSize = 0;
  Calibration calibration;
  // Size of the drawing's client area in pixels, kept up to date by the view;
  // zooms to a rectangle fit the rectangle into it.
  std::int32_t ClientWidth = 1000;
  std::int32_t ClientHeight = 750;

  // Derived from the network and the scenario for a model generation.
  std::string NetworkBase;
  std::string ModelFolder;
  std::string ModelName;

  // The calculation scenario's forms. The rain chosen in the rain list, as its
  // four texts (Id, UsId, kind, mode), and the state the list leaves behind:
  // "ScnPluieSelected" once a rain was taken, empty otherwise.
  std::string IdPluie;
  std::string UsIdPluie;
  std::string iPluie;
  std::string iModePluie;
  std::string ScnPluieState;
};

// The configuration file in use; before the start found it, the one beside
// the programs.
inline std::string IniFilePath(const AppState& state) {
  return state.IniFile.empty() ? JoinPath(state.AppPath, "pluvane.ini") : state.IniFile;
}

// The folder of the shipped data; before the start found it, the programs'.
inline std::string DataFolder(const AppState& state) {
  return state.DataDir.empty() ? state.AppPath : state.DataDir;
}

}  // namespace pluvane
