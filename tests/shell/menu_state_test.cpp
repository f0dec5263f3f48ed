#include "shell/menu_state.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/scripted_ui.h"
#include "drawing/surface.h"
#include "shell/app_state.h"

namespace pluvane {
namespace {

bool StateOf(const MenuStates& states, const std::string& name) {
  for (const auto& [menu, enabled] : states) {
    if (menu == name) return enabled;
  }
  ADD_FAILURE() << name << " not in the states";
  return false;
}

int AddNode(Surface& surface) {
  const int n = surface.AddObject(12, 100, 100, 200, 200);
  surface.SetObjTag("iName", "99");
  surface.SetObjTag("iGroup", "99");
  surface.SetObjTag("Id", "Nod_1");
  return n;
}

TEST(RefreshMenus, ADrawingWithoutNodeLeavesOnlyTheImports) {
  Surface surface;
  const MenuStates states = RefreshMenus(surface);
  for (const char* name :
       {"mnuPluie", "mnuOption", "mnuScn", "mnuExploitation", "mnuFile_Export", "mnuUtil"}) {
    EXPECT_FALSE(StateOf(states, name)) << name;
  }
  EXPECT_TRUE(StateOf(states, "mnuFile_Import"));
}

TEST(RefreshMenus, ANodeEnablesTheMenusOfTheNetwork) {
  Surface surface;
  AddNode(surface);
  const MenuStates states = RefreshMenus(surface);
  for (const char* name :
       {"mnuPluie", "mnuOption", "mnuScn", "mnuExploitation", "mnuFile_Export", "mnuUtil"}) {
    EXPECT_TRUE(StateOf(states, name)) << name;
  }
  // The import menu is only touched when the drawing is empty of nodes.
  for (const auto& [menu, enabled] : states) EXPECT_NE(menu, "mnuFile_Import");
}

TEST(RefreshMenus, OtherObjectsThanNodesCountForNothing) {
  Surface surface;
  surface.AddObject(2, 0, 0, 50, 50);
  surface.SetObjTag("iName", "5");
  EXPECT_FALSE(StateOf(RefreshMenus(surface), "mnuScn"));
}

TEST(RefreshMenus, LeavesTheCurrentObjectAsItWas) {
  Surface surface;
  const int node = AddNode(surface);
  surface.SetCurrentObject(node);
  RefreshMenus(surface);
  EXPECT_EQ(surface.CurrentObject(), node);
}

TEST(FileMenuState, AnEmptyDrawingOffersNeitherSaveNorCloseNorExport) {
  Surface surface;
  AppState state;
  const MenuStates states = FileMenuState(surface, state);
  EXPECT_FALSE(StateOf(states, "mnuFile_Save"));
  EXPECT_FALSE(StateOf(states, "mnuFile_SaveAs"));
  EXPECT_FALSE(StateOf(states, "mnuFile_Close"));
  EXPECT_FALSE(StateOf(states, "mnuFile_Export"));
}

TEST(FileMenuState, ABackgroundPlanCanBeClosedAndANamedNetworkExported) {
  Surface surface;
  AppState state;
  surface.SetBackgroundPicture("plan.png");
  state.NetworkFile = "/tmp/Demo.mtf";
  const MenuStates states = FileMenuState(surface, state);
  EXPECT_FALSE(StateOf(states, "mnuFile_Save"));
  EXPECT_FALSE(StateOf(states, "mnuFile_SaveAs"));
  EXPECT_TRUE(StateOf(states, "mnuFile_Close"));
  EXPECT_TRUE(StateOf(states, "mnuFile_Export"));
}

TEST(FileMenuState, TwoObjectsEnableEverything) {
  Surface surface;
  AppState state;
  surface.AddObject(2, 0, 0, 50, 50);
  surface.AddObject(2, 60, 0, 90, 50);
  ASSERT_GE(surface.ObjectCount(kPage), 2);
  const MenuStates states = FileMenuState(surface, state);
  for (const char* name : {"mnuFile_Save", "mnuFile_SaveAs", "mnuFile_Close", "mnuFile_Export"}) {
    EXPECT_TRUE(StateOf(states, name)) << name;
  }
}

TEST(ScenarioGenerationCaption, CarriesTheScenarioName) {
  AppState state;
  EXPECT_EQ(ScenarioGenerationCaption(state), "Génération du &modèle ");
  state.ScenarioName = "Scn-1";
  EXPECT_EQ(ScenarioGenerationCaption(state), "Génération du &modèle Scn-1");
}

TEST(NetworkLoaded, ACommandWithoutNetworkIsToldSo) {
  AppState state;
  ScriptedUi ui;
  EXPECT_FALSE(NetworkLoaded(state, ui));
  ExpectLastMessage(ui, "Un réseau doit être chargé.", "Pluvane", MessageIcon::kExclamation);
  state.NetworkFile = "  ";
  EXPECT_FALSE(NetworkLoaded(state, ui));
  EXPECT_EQ(ui.Messages().size(), 2u);
}

TEST(NetworkLoaded, AnOpenNetworkLetsTheCommandGoOn) {
  AppState state;
  ScriptedUi ui;
  state.NetworkFile = "/tmp/Demo.mtf";
  EXPECT_TRUE(NetworkLoaded(state, ui));
  EXPECT_TRUE(ui.Empty());
}

}  // namespace
}  // namespace pluvane
