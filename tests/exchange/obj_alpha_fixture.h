// Two networks for the exchange of library records: the open one, on its own
// drawing, and a destination file in a folder of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "drawing/surface.h"
#include "drawing/surface_helpers.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "network/hidden_record.h"
#include "network/network_state.h"

namespace pluvane {

using Tags = std::vector<std::pair<std::string, std::string>>;

// Adds an object with these tags, in their order, and returns its number.
inline int AddRecord(Surface& surface, const NetworkState& state, const Tags& tags) {
  const int number = AddHiddenRecord(surface, state);
  for (const auto& [name, value] : tags) surface.SetObjTag(name, value);
  return number;
}

// The tags of an object, in their order.
inline Tags TagsOf(Surface& surface, int number) {
  const int saved = surface.CurrentObject();
  surface.SetCurrentObject(number);
  Tags tags;
  for (int i = 0; i < surface.ObjTagCount(); ++i) {
    tags.emplace_back(surface.ObjTagName(i), surface.ObjTagValue(i));
  }
  surface.SetCurrentObject(saved);
  return tags;
}

class ObjAlphaTest : public ::testing::Test {
 protected:
  ObjAlphaTest() {
    state_.LogicWidth = 100000;
    state_.LogicHeight = 100000;
    state_.SymbolSize = 60;
    source_.SetScale(0, 0, 100000, 100000, 0);
  }

  // The open network's first objects: two nodes and the parameter records,
  // as a network has them before its libraries.
  void NetworkStart() {
    Node("Nod_1");
    Node("Nod_2");
    AddRecord(source_, state_, {{"Id", "ParamReseau"}, {"CalcMode", "0"}});
    AddRecord(source_, state_, {{"Id", "ZoomFactors"}, {"iGroup", "-1"}, {"zZoom", "1"}});
  }
  int Node(const std::string& id) {
    const int number = source_.AddObject(kKindRectangle, 1000, 1000, 1100, 1100);
    source_.SetObjTag("iName", "99");
    source_.SetObjTag("iGroup", "99");
    source_.SetObjTag("Id", id);
    return number;
  }

  // A destination network file holding these records after its own two nodes.
  std::string Destination(const std::vector<Tags>& records, const std::string& name = "dest.mtf") {
    Surface surface;
    surface.SetScale(0, 0, 50000, 50000, 0);
    for (const char* id : {"Nod_1", "Nod_2"}) {
      surface.AddObject(kKindRectangle, 10, 10, 20, 20);
      surface.SetObjTag("iName", "99");
      surface.SetObjTag("Id", id);
    }
    for (const Tags& tags : records) AddRecord(surface, state_, tags);
    const std::string path = folder_.File(name);
    EXPECT_TRUE(surface.SaveFile(path, kNativeFormat));
    return path;
  }

  // The destination file read back.
  void Reload(Surface& surface, const std::string& path) { ASSERT_TRUE(surface.LoadFile(path, 0)); }

  TempFolder folder_;
  NetworkState state_;
  Surface source_;
  ScriptedUi ui_;
};

}  // namespace pluvane
