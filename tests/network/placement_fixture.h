// Test fixture for the catalogue and the placement rules: a drawing of
// 10000 x 10000 logical units whose map is the logical space upright
// (X = Xlog, Y = 10000 - Ylog), the shipped symbols, and a scripted user.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "foundation/scripted_ui.h"
#include "network/georeferencing.h"
#include "network/placement.h"
#include "drawing/surface.h"
#include "shell/app_state.h"

namespace pluvane {

using TagList = std::vector<std::pair<std::string, std::string>>;

class PlacementTest : public ::testing::Test {
 protected:
  PlacementTest() {
    state.AppPath = "/opt/pluvane";
    state.SymbolDir = std::string(PLUVANE_DATA) + "/Symboles";
    state.LogicWidth = 10000;
    state.LogicHeight = 10000;
    state.SymbolSize = 20;
    state.LinkThick = 3;
    state.ZoomFactor = 1;
    surface.SetScale(0, 0, 10000, 10000, 16384);
    // With no node yet, new symbols are a 150th of the view's height: 100 here.
    surface.SetViewHeight(15000);
    DefaultCalibrationFromCorners(state.calibration, 10000, 10000);
  }

  int Symbol(const char* key, double x, double y, int node = 0) {
    return DrawSymbol(surface, state, ui, x, y, key, node);
  }
  int Node(double x, double y) { return Symbol("X_NOD", x, y); }
  int Link(const char* key, int from, int to) {
    return DrawLink(surface, state, key, from, to, 0, 0);
  }

  TagList Tags(int number) {
    const int saved = surface.CurrentObject();
    surface.SetCurrentObject(number);
    TagList tags;
    for (int i = 0; i < surface.ObjTagCount(); ++i) {
      tags.emplace_back(surface.ObjTagName(i), surface.ObjTagValue(i));
    }
    surface.SetCurrentObject(saved);
    return tags;
  }
  std::string TagOf(int number, const char* name) {
    const int saved = surface.CurrentObject();
    surface.SetCurrentObject(number);
    std::string value = surface.ObjTag(name);
    surface.SetCurrentObject(saved);
    return value;
  }
  Box BoxOf(int number) const { return surface.ObjectShape(number)->box; }

  Surface surface;
  AppState state;
  ScriptedUi ui;
};

}  // namespace pluvane
