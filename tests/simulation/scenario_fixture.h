// A drawing for the scenario forms and the rain file: a 100000 x 100000
// logical page whose map is the page itself, upright (X = Xlog,
// Y = 100000 - Ylog), a scripted user, a temporary folder, and the records
// built as the libraries and forms write them.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "network/default_tags.h"
#include "network/georeferencing.h"
#include "network/hidden_record.h"
#include "drawing/surface.h"
#include "shell/app_state.h"

namespace pluvane {

class ScenarioTest : public ::testing::Test {
 protected:
  ScenarioTest() {
    state_.AppPath = folder_.Path();
    state_.WorkDir = folder_.Path();
    state_.LogicWidth = 100000;
    state_.LogicHeight = 100000;
    state_.SymbolSize = 120;
    surface_.SetScale(0, 0, state_.LogicWidth, state_.LogicHeight, 16384);
    DefaultCalibrationFromCorners(state_.calibration, 100000, 100000);
  }

  // A library record as the rain libraries save it: iGroup, iName, Id, UsId.
  int AddRecord(int i_name, const std::string& id, const std::string& comment = "") {
    const int n = AddHiddenRecord(surface_, state_);
    surface_.SetObjTag("iGroup", -1);
    surface_.SetObjTag("iName", i_name);
    surface_.SetObjTag("Id", id);
    surface_.SetObjTag("UsId", comment);
    return n;
  }
  // A calculation scenario as the library and its edition form leave it.
  int AddScenario(const std::string& id, const std::string& id_pluie, int i_pluie,
                  const std::string& mode_pluie = "") {
    const int n = AddRecord(111, id, id);
    surface_.SetObjTag("CalcDuree", "60");
    surface_.SetObjTag("CalcDt", "2");
    surface_.SetObjTag("CalcMode", "1: mode diagnostic ");
    surface_.SetObjTag("IdPluie", id_pluie);
    surface_.SetObjTag("UsIdPluie", "");
    surface_.SetObjTag("iPluie", std::to_string(i_pluie));
    surface_.SetObjTag("iModePluie", mode_pluie);
    return n;
  }
  // A gauge symbol placed with its box, tagged by the creation routine.
  int AddGauge(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
    const int n = surface_.AddObject(kKindPicture, left, top, right, bottom);
    CreateDefaultTags(surface_, state_, "X_PLU", false);
    return n;
  }
  // The radius of action drawn as the ellipse of its box.
  int AddRadius(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
    const int n = surface_.AddObject(kKindEllipse, left, top, right, bottom);
    CreateDefaultTags(surface_, state_, "X_RAYON", false);
    return n;
  }
  std::string Tag(int object, const std::string& name) {
    const int saved = surface_.CurrentObject();
    surface_.SetCurrentObject(object);
    std::string value = surface_.ObjTag(name);
    surface_.SetCurrentObject(saved);
    return value;
  }

  TempFolder folder_;
  Surface surface_;
  AppState state_;
  ScriptedUi ui_;
};

}  // namespace pluvane
