// Test helpers for georeferencing: a state with extents, symbol size and the
// shipped symbol folder, and calibration points in both their forms.
#pragma once

#include <string>

#include "network/calibration_points.h"
#include "network/catalogue.h"
#include "network/hidden_record.h"
#include "drawing/surface.h"
#include "shell/app_state.h"

namespace pluvane {

inline AppState CalibrationState() {
  AppState state;
  state.LogicWidth = 100000;
  state.LogicHeight = 100000;
  state.SymbolSize = 120;
  state.ScreenBackColor = 12632256;
  state.SymbolDir = std::string(PLUVANE_DATA) + "/Symboles";
  return state;
}

// A map of scale 1 with its origin far away: X = 600000 + Xlog, Y = 200000 - Ylog.
struct MapPoint {
  std::int32_t x_log, y_log;
  double x_cal, y_cal;
};
inline constexpr MapPoint kMapPoints[4] = {{0, 0, 0, 0},
                                           {10000, 10000, 610000, 190000},
                                           {10000, 50000, 610000, 150000},
                                           {60000, 50000, 660000, 150000}};

inline void WritePointTags(Surface& surface, int i_name, int index, const MapPoint& p) {
  surface.SetObjTag("iName", i_name);
  surface.SetObjTag("Id", CalibrationPointId(index));
  surface.SetObjTag("Xlog", p.x_log);
  surface.SetObjTag("Ylog", p.y_log);
  surface.SetObjTag("Xcal", p.x_cal);
  surface.SetObjTag("Ycal", p.y_cal);
}

// The hidden record of point `index` (iName 150); it is left current.
inline int AddHiddenPoint(Surface& surface, const AppState& state, int index, const MapPoint& p) {
  const int n = AddHiddenRecord(surface, state);
  WritePointTags(surface, kINameHiddenCalage, index, p);
  return n;
}

// The visible symbol of point `index` (iName 15), as placement makes it.
inline int AddVisiblePoint(Surface& surface, int index, const MapPoint& p) {
  const int n =
      surface.AddObject(kKindPicture, p.x_log - 60, p.y_log - 60, p.x_log + 60, p.y_log + 60);
  WritePointTags(surface, kINameCalage, index, p);
  return n;
}

inline void AddHiddenPoints(Surface& surface, const AppState& state) {
  for (int i = 1; i <= 3; ++i) AddHiddenPoint(surface, state, i, kMapPoints[i]);
}

}  // namespace pluvane
