#include <gtest/gtest.h>

#include "network/network_parameters.h"
#include "drawing/surface_helpers.h"
#include "scenario_fixture.h"
#include "simulation/frm_scn_pluie.h"
#include "simulation/frm_scn_sim_param_select.h"
#include "simulation/scenario_records.h"

namespace pluvane {
namespace {

class ScenarioChoiceTest : public ScenarioTest {};

TEST_F(ScenarioChoiceTest, WithoutScenarioAnEmptyOneIsCreated) {
  FrmScnSimParamSelect form(surface_, state_, ui_);
  EXPECT_EQ(form.Caption(), "Choix d'un scenario de simulation");
  EXPECT_EQ(form.grid().ColHead(1), "Liste de scénarii disponibles");
  const int n = FindObject(surface_, "iName", 111);
  ASSERT_GT(n, 10);
  EXPECT_EQ(Tag(n, "Id"), "");
  EXPECT_EQ(Tag(n, "UsId"), "");
  EXPECT_EQ(Tag(n, "iGroup"), "-1");
  EXPECT_EQ(form.grid().ListEntries(1, 1), std::vector<std::string>{" : "});
}

TEST_F(ScenarioChoiceTest, CurrentScenarioIsPreselected) {
  AddScenario("Scn-1", "CAQ_1", 104);
  AddScenario("Scn-2", "CAQ_1", 104);
  surface_.SetObjTag("UsId", "Centennale");
  state_.ScenarioName = "Scn-2";
  FrmScnSimParamSelect form(surface_, state_, ui_);
  EXPECT_EQ(form.grid().ListEntries(1, 1),
            (std::vector<std::string>{"Scn-1 : Scn-1", "Scn-2 : Centennale"}));
  EXPECT_EQ(form.grid().Text(1, 1), "Scn-2 : Centennale");
}

TEST_F(ScenarioChoiceTest, OkMakesTheScenarioCurrent) {
  AddScenario("Scn-1", "CAQ_1", 104);
  const int chosen = AddScenario("Scn-2", "CAQ_1", 104);
  surface_.SetObjTag("CalcMode", "2: mode dimensionnement");
  surface_.SetObjTag("CalcDuree", "300");
  surface_.SetObjTag("CalcDt", "5");
  FrmScnSimParamSelect form(surface_, state_, ui_);
  form.grid().SetListIndex(1, 1, 1);
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(state_.ScenarioName, "Scn-2");
  EXPECT_EQ(ui_.Panel("sbrSCN"), "Scn-2 (dim)");
  EXPECT_EQ(state_.CalcMode, 1);
  EXPECT_DOUBLE_EQ(state_.CalcDuree, 300);
  EXPECT_DOUBLE_EQ(state_.CalcDt, 5);
  EXPECT_TRUE(ui_.Empty());
  // The drawing keeps the choice for its next opening.
  const int current = FindObject(surface_, "iName", 112);
  ASSERT_GT(current, 10);
  EXPECT_EQ(Tag(current, "Id"), "Scn-2");
  EXPECT_EQ(Tag(current, "UsId"), "Scn-2");
  EXPECT_EQ(CountByName(surface_, 111), 2);
  EXPECT_EQ(Tag(chosen, "Id"), "Scn-2");
  EXPECT_EQ(GenerationMenuCaption(surface_, state_), "Génération du &modèle Scn-2 (dim)");
}

TEST_F(ScenarioChoiceTest, NetworkParametersAreReadAgainLast) {
  AddScenario("Scn-1", "CAQ_1", 104);
  CreateBlankParamReseau(surface_, state_);
  ASSERT_GT(FindObject(surface_, "Id", "ParamReseau"), 10);
  surface_.SetObjTag("CalcDuree", "90");
  FrmScnSimParamSelect form(surface_, state_, ui_);
  form.grid().SetListIndex(1, 1, 0);
  form.Run("cmdOk");
  EXPECT_EQ(state_.ScenarioName, "Scn-1");
  EXPECT_EQ(ui_.Panel("sbrSCN"), "Scn-1 (diag)");
  EXPECT_DOUBLE_EQ(state_.CalcDuree, 90);
}

TEST_F(ScenarioChoiceTest, ChoosingTwiceKeepsOneCurrentRecord) {
  AddScenario("Scn-1", "CAQ_1", 104);
  AddScenario("Scn-2", "CAQ_1", 104);
  for (int index : {0, 1}) {
    FrmScnSimParamSelect form(surface_, state_, ui_);
    form.grid().SetListIndex(1, 1, index);
    form.Run("cmdOk");
  }
  EXPECT_EQ(CountByName(surface_, 112), 1);
  EXPECT_EQ(Tag(FindObject(surface_, "iName", 112), "Id"), "Scn-2");
  EXPECT_EQ(ui_.Panel("sbrSCN"), "Scn-2 (diag)");
}

TEST_F(ScenarioChoiceTest, OkWithoutChoiceMakesAnUnnamedScenarioCurrent) {
  AddScenario("Scn-1", "CAQ_1", 104);
  FrmScnSimParamSelect form(surface_, state_, ui_);
  EXPECT_EQ(form.grid().Text(1, 1), "");
  form.Run("cmdOk");
  EXPECT_EQ(state_.ScenarioName, "");
  EXPECT_EQ(CountByName(surface_, 111), 2);
  // A scenario without CalcMode reads as mode -1, which is not diagnostic.
  EXPECT_EQ(ui_.Panel("sbrSCN"), " (dim)");
}

TEST_F(ScenarioChoiceTest, CancelChangesNothing) {
  AddScenario("Scn-1", "CAQ_1", 104);
  state_.ScenarioName = "Old";
  FrmScnSimParamSelect form(surface_, state_, ui_);
  form.Run("cmdAnnul");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(state_.ScenarioName, "Old");
  EXPECT_EQ(FindObject(surface_, "iName", 112), 0);
}

TEST_F(ScenarioChoiceTest, UnknownScenarioHasNoModeText) {
  EXPECT_EQ(ScenarioStatusText(surface_, "Nowhere"), "Nowhere");
  EXPECT_EQ(CalcModeValue("1: mode diagnostic "), 0);
  EXPECT_EQ(CalcModeValue("2: mode dimensionnement"), 1);
  EXPECT_EQ(CalcModeValue(""), -1);
}

TEST_F(ScenarioChoiceTest, FindRecordIsTrimmedAndCaseBlind) {
  const int n = AddRecord(104, " Caq_1 ");
  AddRecord(105, "CAQ_1");
  surface_.SetCurrentObject(kPage);
  EXPECT_EQ(FindRecord(surface_, 104, "caq_1"), n);
  EXPECT_EQ(surface_.CurrentObject(), n);
  surface_.SetCurrentObject(kPage);
  EXPECT_EQ(FindRecord(surface_, 104, "CAQ_2"), 0);
  EXPECT_EQ(surface_.CurrentObject(), kPage);
}

TEST_F(ScenarioChoiceTest, FindRecordInLeavesTheCursor) {
  const int n = AddRecord(104, " Caq_1 ");
  AddRecord(105, "CAQ_1");
  surface_.SetCurrentObject(kPage);
  const Surface& drawing = surface_;
  EXPECT_EQ(FindRecordIn(drawing, 104, "caq_1"), n);
  EXPECT_EQ(FindRecordIn(drawing, 105, "caq_2"), 0);
  EXPECT_EQ(surface_.CurrentObject(), kPage);
}

// --- The older rain scenario --------------------------------------------------

TEST_F(ScenarioChoiceTest, RainScenarioListsTheRainsAndSavesTheChoice) {
  AddRecord(104, "CAQ_1");
  surface_.SetObjTag("Design", "Paris");
  AddRecord(103, "Pluie1");
  surface_.SetObjTag("Design", "Orage");
  surface_.SetObjTag("iMode", "real");
  AddRecord(127, "Ext1");
  {
    FrmScnPluie form(surface_, state_, ui_);
    Grid& g = form.grid();
    EXPECT_EQ(g.ColHead(1), "choix d'une pluie");
    EXPECT_EQ(g.ColHead(2), "Identif. du scénario");
    EXPECT_EQ(g.ColHead(3), "Type de pluie");
    EXPECT_EQ(g.MaxRows(), 2);
    EXPECT_EQ(g.ListEntries(1, 1),
              (std::vector<std::string>{"103 : Pluie1 : Orage : real",
                                        "104 : CAQ_1 : Pluie Caquot : Paris"}));
    g.SetListIndex(1, 1, 0);
    g.SetText(2, 1, "Orage de mai");
    form.Run("cmdOk");
    EXPECT_TRUE(form.Closed());
  }
  const int n = FindObject(surface_, "Id", "ScnPluie");
  ASSERT_GT(n, 10);
  EXPECT_EQ(Tag(n, "iName"), "109");
  EXPECT_EQ(Tag(n, "iGroup"), "-1");
  EXPECT_EQ(Tag(n, "iPluie"), "103");
  EXPECT_EQ(Tag(n, "IdPluie"), "Pluie1");
  EXPECT_EQ(Tag(n, "Design"), "Orage");
  EXPECT_EQ(Tag(n, "UsId"), "103 : Pluie1 : Orage : real");
  EXPECT_EQ(Tag(n, "Type"), "Real");
  EXPECT_EQ(Tag(n, "iMode"), "real");
  EXPECT_EQ(Tag(n, "iRow"), "2");
  EXPECT_EQ(Tag(n, "L1C2"), "Orage de mai");

  FrmScnPluie again(surface_, state_, ui_);
  EXPECT_EQ(again.grid().Text(1, 1), "103 : Pluie1 : Orage : real");
  EXPECT_EQ(again.grid().Text(2, 1), "Orage de mai");
  EXPECT_EQ(again.grid().Text(3, 1), "Real");
  again.grid().SetListIndex(1, 1, 1);
  again.Run("cmdOk");
  EXPECT_EQ(CountByName(surface_, 109), 1);
  EXPECT_EQ(Tag(n, "Type"), "Project");
  EXPECT_EQ(Tag(n, "iPluie"), "104");
  EXPECT_EQ(Tag(n, "Design"), "Pluie Caquot");
}

}  // namespace
}  // namespace pluvane
