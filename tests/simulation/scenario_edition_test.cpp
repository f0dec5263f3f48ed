#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "drawing/surface_helpers.h"
#include "scenario_fixture.h"
#include "simulation/frm_pluie_liste.h"
#include "simulation/frm_scn_sim_param_plus.h"
#include "simulation/scenario_records.h"

namespace pluvane {
namespace {

class ScenarioEditionTest : public ScenarioTest {
 protected:
  // A scenario as the library creates it: its four tags only.
  int NewScenario(const std::string& id) { return AddRecord(111, id, id); }
  FrmScnSimParamPlus Form(int scenario, const std::string& id) {
    return FrmScnSimParamPlus(surface_, state_, ui_, scenario, id, [this](FormController& form) {
      auto* list = dynamic_cast<FrmPluieListe*>(&form);
      ASSERT_NE(list, nullptr);
      seen_.push_back(state_.IdPluie + "|" + std::to_string(list->grid().ActiveRow()));
      if (select_row_ > 0) {
        list->grid().SetActiveCell(1, select_row_);
        list->Run("mnuSelect");
      } else {
        list->Run("mnuClose");
      }
    });
  }
  void Rains() {
    AddRecord(104, "CAQ_1", "Caquot Paris");
    AddRecord(108, "Radar1", "Orage radar");
    surface_.SetObjTag("iMode", "real");
  }
  std::vector<std::string> seen_;
  int select_row_ = 0;
};

TEST_F(ScenarioEditionTest, EmptySettingsTakeTheirDefaultsAtOnce) {
  const int n = NewScenario("Scn-1");
  {
    FrmScnSimParamPlus form = Form(n, "Scn-1");
    EXPECT_EQ(form.Caption(), "Paramétrage du scénario Scn-1");
    Grid& s1 = form.spread1();
    EXPECT_EQ(s1.Text(0, 1), "Durée de simulation (mn)");
    EXPECT_EQ(s1.Text(0, 2), "Pas de temps de calcul (mn)");
    EXPECT_EQ(s1.Text(0, 3), "Mode de calcul");
    EXPECT_EQ(s1.Text(1, 1), "60");
    EXPECT_EQ(s1.Text(1, 2), "2");
    EXPECT_EQ(s1.ListEntries(1, 3),
              (std::vector<std::string>{"1: mode diagnostic ", "2: mode dimensionnement"}));
    EXPECT_EQ(s1.ListIndex(1, 3), 0);
    Grid& s0 = form.spread0();
    EXPECT_EQ(s0.Text(0, 1), "Scénario de pluie");
    EXPECT_EQ(s0.ColHead(1), "Identifiant");
    EXPECT_EQ(s0.ColHead(2), "Commentaire");
    EXPECT_EQ(s0.ColHead(3), "iName");
    EXPECT_EQ(s0.ColHead(4), "iMode");
    EXPECT_EQ(s0.Text(1, 1), "Parcourir...");
    EXPECT_EQ(state_.IdPluie, "Parcourir...");
  }
  // Left without saving, the defaults stay written; the mode stays empty.
  EXPECT_EQ(Tag(n, "CalcDuree"), "60");
  EXPECT_EQ(Tag(n, "CalcDt"), "2");
  EXPECT_EQ(Tag(n, "IdPluie"), "Parcourir...");
  EXPECT_EQ(Tag(n, "CalcMode"), "");
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(ScenarioEditionTest, StoredSettingsAreShown) {
  const int n = AddScenario("Scn-1", "CAQ_1", 104);
  surface_.SetObjTag("CalcDuree", "180");
  surface_.SetObjTag("CalcMode", "2: mode dimensionnement");
  surface_.SetObjTag("UsIdPluie", "Caquot Paris");
  FrmScnSimParamPlus form = Form(n, "Scn-1");
  EXPECT_EQ(form.spread1().Text(1, 1), "180");
  EXPECT_EQ(form.spread1().ListIndex(1, 3), 1);
  EXPECT_EQ(form.spread0().Text(1, 1), "CAQ_1");
  EXPECT_EQ(form.spread0().Text(2, 1), "Caquot Paris");
  EXPECT_EQ(form.spread0().Text(3, 1), "104");
  EXPECT_EQ(state_.UsIdPluie, "Caquot Paris");
}

TEST_F(ScenarioEditionTest, BrowsingOpensTheListWithoutPreselection) {
  Rains();
  const int n = NewScenario("Scn-1");
  FrmScnSimParamPlus form = Form(n, "Scn-1");
  select_row_ = 2;
  form.ClickRain();
  EXPECT_EQ(seen_, std::vector<std::string>{"|1"});
  EXPECT_EQ(form.spread0().Text(1, 1), "Radar1");
  EXPECT_EQ(form.spread0().Text(2, 1), "Orage radar");
  EXPECT_EQ(form.spread0().Text(3, 1), "108");
  EXPECT_EQ(form.spread0().Text(4, 1), "real");
  EXPECT_EQ(state_.ScnPluieState, "ScnPluieSelected");
}

TEST_F(ScenarioEditionTest, ListPreselectsTheRainShown) {
  Rains();
  const int n = AddScenario("Scn-1", "Radar1", 108, "real");
  FrmScnSimParamPlus form = Form(n, "Scn-1");
  form.ClickRain();
  EXPECT_EQ(seen_, std::vector<std::string>{"Radar1|2"});
  // Closed without a choice: the cells stay.
  EXPECT_EQ(state_.ScnPluieState, "");
  EXPECT_EQ(form.spread0().Text(1, 1), "Radar1");
}

TEST_F(ScenarioEditionTest, SaveWritesTheTagsAndTheCalculationState) {
  Rains();
  const int n = NewScenario("Scn-1");
  FrmScnSimParamPlus form = Form(n, "Scn-1");
  form.spread1().SetText(1, 1, "240");
  form.spread1().SetText(1, 2, "0.5");
  form.spread1().SetListIndex(1, 3, 1);
  select_row_ = 1;
  form.ClickRain();
  form.Run("mnSave");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(Tag(n, "CalcDuree"), "240");
  EXPECT_EQ(Tag(n, "CalcDt"), "0.5");
  EXPECT_EQ(Tag(n, "CalcMode"), "2: mode dimensionnement");
  EXPECT_EQ(Tag(n, "IdPluie"), "CAQ_1");
  EXPECT_EQ(Tag(n, "UsIdPluie"), "Caquot Paris");
  EXPECT_EQ(Tag(n, "iPluie"), "104");
  EXPECT_EQ(Tag(n, "iModePluie"), "");
  EXPECT_DOUBLE_EQ(state_.CalcDuree, 240);
  EXPECT_DOUBLE_EQ(state_.CalcDt, 0.5);
  EXPECT_EQ(state_.CalcMode, 1);
  // The dimensioning mode reads as 1 and shows as " (dim)".
  EXPECT_EQ(CalcModeValue(Tag(n, "CalcMode")), 1);
  EXPECT_EQ(ScenarioStatusText(surface_, "Scn-1"), "Scn-1 (dim)");
}

TEST_F(ScenarioEditionTest, NoRangeTestOnDurationOrStep) {
  const int n = NewScenario("Scn-1");
  FrmScnSimParamPlus form = Form(n, "Scn-1");
  form.spread1().SetText(1, 1, "-5");
  form.spread1().SetText(1, 2, "abc");
  form.Run("mnSave");
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(Tag(n, "CalcDuree"), "-5");
  EXPECT_EQ(Tag(n, "CalcDt"), "abc");
  EXPECT_EQ(Tag(n, "CalcMode"), "1: mode diagnostic ");
  EXPECT_EQ(Tag(n, "IdPluie"), "Parcourir...");
  EXPECT_DOUBLE_EQ(state_.CalcDt, 0);
  EXPECT_EQ(state_.CalcMode, 0);
}

// --- The rain list ------------------------------------------------------------

TEST_F(ScenarioEditionTest, RainListShowsEveryKindInOrder) {
  AddRecord(128, "Hy1", "hyéto");
  AddRecord(127, "Ext1");
  surface_.SetObjTag("iMode", "real");
  AddRecord(105, "PST_1");
  surface_.SetObjTag("iMode", "ignored");
  AddRecord(103, "Pluie1");
  surface_.SetObjTag("iMode", "real");
  FrmPluieListe list(surface_, state_, ui_);
  EXPECT_EQ(list.Caption(), "Liste des pluies");
  Grid& g = list.grid();
  EXPECT_EQ(g.ColHead(1), "Identifiant de la pluie");
  EXPECT_EQ(g.ColHead(2), "Libellé de la pluie");
  EXPECT_EQ(g.ColHead(3), "iName");
  EXPECT_EQ(g.ColHead(4), "iMode (project ou real)");
  EXPECT_EQ(g.ColHead(5), "Mode externe");
  EXPECT_EQ(g.ColWidth(3), 0);
  EXPECT_EQ(g.ColWidth(4), 0);
  ASSERT_EQ(g.MaxRows(), 4);
  const std::vector<std::vector<std::string>> rows = {{"Pluie1", "", "103", "real", ""},
                                                      {"PST_1", "", "105", "", ""},
                                                      {"Ext1", "", "127", "real", "x"},
                                                      {"Hy1", "hyéto", "128", "", "x"}};
  for (int row = 1; row <= 4; ++row) {
    for (int col = 1; col <= 5; ++col) EXPECT_EQ(g.Text(col, row), rows[row - 1][col - 1]);
  }
  list.Run("mnuImport");
  EXPECT_FALSE(list.Closed());
  list.Run("mnuClose");
  EXPECT_TRUE(list.Closed());
  EXPECT_EQ(state_.ScnPluieState, "");
}

TEST_F(ScenarioEditionTest, TwoGaugesOfOneNameStopTheList) {
  const int first = AddGauge(1000, 1000, 1100, 1100);
  surface_.SetCurrentObject(first);
  surface_.SetObjTag("libell", "P1");
  AddGauge(2000, 1000, 2100, 1100);
  surface_.SetObjTag("libell", "p1");
  AddRecord(104, "CAQ_1");
  FrmPluieListe list(surface_, state_, ui_);
  ExpectLastMessage(ui_,
                    "Attention, doublon de pluviomètre non autorisé\r\n2 pluviomètres P1 ont été "
                    "trouvés.",
                    "Controle de cohérence de pluviomètre", MessageIcon::kNone);
  EXPECT_TRUE(list.Closed());
  EXPECT_EQ(list.grid().MaxRows(), 0);
}

TEST_F(ScenarioEditionTest, SelectTakesTheFourFields) {
  Rains();
  state_.IdPluie = "old";
  FrmPluieListe list(surface_, state_, ui_);
  list.grid().SetActiveCell(1, 2);
  list.Run("mnuSelect");
  EXPECT_TRUE(list.Closed());
  EXPECT_EQ(state_.ScnPluieState, "ScnPluieSelected");
  EXPECT_EQ(state_.IdPluie, "Radar1");
  EXPECT_EQ(state_.UsIdPluie, "Orage radar");
  EXPECT_EQ(state_.iPluie, "108");
  EXPECT_EQ(state_.iModePluie, "real");
}

}  // namespace
}  // namespace pluvane
