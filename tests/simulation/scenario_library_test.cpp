#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "network/library_rows.h"
#include "foundation/expect_message.h"
#include "drawing/surface_helpers.h"
#include "scenario_fixture.h"
#include "simulation/frm_scn_sim_param.h"
#include "simulation/frm_scn_sim_param_plus.h"

namespace pluvane {
namespace {

constexpr const char* kAddTitle = "Ajout de scenario";

std::string AddQuestion(const std::string& from) {
  return "Les données du scenario '" + from +
         "'\rseront regénérées dans le nouveau scenario.\r\rVoulez-vous confirmer...";
}

class ScenarioLibraryTest : public ScenarioTest {
 protected:
  FrmScnSimParam Form() {
    return FrmScnSimParam(surface_, state_, ui_, [this](FormController& form) {
      opened_.push_back(form.Caption());
      if (on_open_) on_open_(form);
    });
  }
  int ScenarioObject(const std::string& id) {
    const int saved = surface_.CurrentObject();
    const int n = FindObject2(surface_, "iName", 111, "Id", id);
    surface_.SetCurrentObject(saved);
    return n;
  }
  std::vector<std::string> TagNames(int object) {
    surface_.SetCurrentObject(object);
    std::vector<std::string> names;
    for (int i = 0; i < surface_.ObjTagCount(); ++i) names.push_back(surface_.ObjTagName(i));
    return names;
  }
  std::vector<std::string> opened_;
  std::function<void(FormController&)> on_open_;
};

TEST_F(ScenarioLibraryTest, LoadsTheScenariosInSearchOrder) {
  AddScenario("Scn-B", "CAQ_1", 104);
  AddRecord(104, "CAQ_1");
  AddScenario("Scn-A", "CAQ_1", 104);
  surface_.SetObjTag("UsId", "Décennale");
  FrmScnSimParam form = Form();
  EXPECT_EQ(form.Caption(), "Scénarii de simulation");
  Grid& g = form.grid();
  EXPECT_EQ(g.ColHead(1), "Désignation du scénario (16 car)");
  EXPECT_EQ(g.ColHead(2), "Titre du scénario (80 car)");
  EXPECT_EQ(g.ColHead(3), "Paramétrage du scénario");
  ASSERT_EQ(g.MaxRows(), 2);
  EXPECT_EQ(g.Text(1, 1), "Scn-B");
  EXPECT_EQ(g.Text(1, 2), "Scn-A");
  EXPECT_EQ(g.Text(2, 2), "Décennale");
  EXPECT_EQ(g.Text(3, 1), "&Editer...");
  EXPECT_EQ(g.Type(3, 1).kind, CellType::kButton);
}

TEST_F(ScenarioLibraryTest, FirstScenarioIsAddedWithoutQuestion) {
  FrmScnSimParam form = Form();
  form.Run("mnAdd");
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(form.grid().Text(1, 1), "Scn-1");
  EXPECT_EQ(form.grid().Text(2, 1), "Scn-1");
  const int n = ScenarioObject("Scn-1");
  ASSERT_GT(n, 10);
  EXPECT_EQ(Tag(n, "UsId"), "Scn-1");
  EXPECT_EQ(Tag(n, "iName"), "111");
  EXPECT_EQ(Tag(n, "iGroup"), "-1");
}

TEST_F(ScenarioLibraryTest, AddingAfterACurrentRowAnsweredNoTakesNothingOver) {
  AddScenario("Base", "CAQ_1", 104);
  FrmScnSimParam form = Form();
  ui_.QueueNo();
  form.Run("mnAdd");
  ExpectLastMessage(ui_, AddQuestion("Base"), kAddTitle, MessageIcon::kQuestion, "yesno");
  EXPECT_EQ(form.grid().Text(1, 2), "Scn-2");
  const int n = ScenarioObject("Scn-2");
  ASSERT_GT(n, 10);
  std::vector<std::string> names = TagNames(n);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"Id", "UsId", "iGroup", "iName"}));
}

TEST_F(ScenarioLibraryTest, AddingAnsweredYesTakesOverTheSettings) {
  AddScenario("Base", "CAQ_1", 104, "");
  surface_.SetObjTag("CalcMode", "2: mode dimensionnement");
  FrmScnSimParam form = Form();
  ui_.QueueYes();
  form.Run("mnAdd");
  const int n = ScenarioObject("Scn-2");
  EXPECT_EQ(Tag(n, "Id"), "Scn-2");
  EXPECT_EQ(Tag(n, "UsId"), "Scn-2");
  EXPECT_EQ(Tag(n, "CalcMode"), "2: mode dimensionnement");
  EXPECT_EQ(Tag(n, "IdPluie"), "CAQ_1");
  EXPECT_EQ(Tag(n, "iPluie"), "104");
  EXPECT_EQ(Tag(ScenarioObject("Base"), "UsId"), "Base");
}

TEST_F(ScenarioLibraryTest, DoubleNameTakesTheSuffix) {
  AddScenario("Scn-2", "", 104);
  FrmScnSimParam form = Form();
  ui_.QueueNo();
  form.Run("mnAdd");
  ASSERT_EQ(ui_.Messages().size(), 2u);
  EXPECT_EQ(ui_.Messages()[0].title, "Contrôle de doublon");
  EXPECT_EQ(ui_.Messages()[0].text,
            "Attention à la colonne 'Désignation du scénario (16 car)'\rdoublon entre les lignes 1 "
            "et 2");
  EXPECT_EQ(ui_.Messages()[1].text, AddQuestion("Scn-2"));
  EXPECT_EQ(form.grid().Text(1, 2), "Scn-2-1");
  EXPECT_GT(ScenarioObject("Scn-2-1"), 10);
}

TEST_F(ScenarioLibraryTest, InsertNamesTheRowByItsPlaceWithoutCopy) {
  AddScenario("Scn-1", "CAQ_1", 104);
  AddScenario("Autre", "CAQ_1", 104);
  FrmScnSimParam form = Form();
  form.grid().SetActiveCell(1, 2);
  form.Run("mnIns");
  EXPECT_TRUE(ui_.Empty());
  ASSERT_EQ(form.grid().MaxRows(), 3);
  EXPECT_EQ(form.grid().Text(1, 2), "Scn-2");
  EXPECT_EQ(form.grid().Text(1, 3), "Autre");
  EXPECT_EQ(Tag(ScenarioObject("Scn-2"), "IdPluie"), "");
}

TEST_F(ScenarioLibraryTest, DeletedRowGoesAtSave) {
  AddScenario("Scn-1", "CAQ_1", 104);
  AddScenario("Scn-2", "CAQ_1", 104);
  FrmScnSimParam form = Form();
  form.grid().SetActiveCell(1, 1);
  form.Run("mnDel");
  EXPECT_EQ(Tag(ScenarioObject("Scn-1"), "okDel"), "$");
  EXPECT_EQ(form.grid().BackColour(1, 1), kButtonFaceColour);
  EXPECT_EQ(form.grid().ActiveRow(), 2);
  EXPECT_EQ(form.grid().MaxRows(), 2);
  form.grid().SetText(2, 2, "  Titre  ");
  form.Run("mnSave");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(ScenarioObject("Scn-1"), 0);
  EXPECT_EQ(form.DeletedIds(), std::vector<std::string>{"Scn-1"});
  EXPECT_EQ(Tag(ScenarioObject("Scn-2"), "UsId"), "Titre");
}

TEST_F(ScenarioLibraryTest, SaveRefusesAnEmptyName) {
  AddScenario("Scn-1", "CAQ_1", 104);
  FrmScnSimParam form = Form();
  form.grid().SetText(1, 1, "  ");
  form.Run("mnSave");
  ExpectLastMessage(ui_,
                    "Donnée non renseignée dans la colonne 'Désignation du scénario (16 car)'\r à "
                    "la ligne 1",
                    "Scénarii de simulation", MessageIcon::kExclamation);
  EXPECT_FALSE(form.Closed());
}

TEST_F(ScenarioLibraryTest, NameOfSeventeenCharactersIsAccepted) {
  FrmScnSimParam form = Form();
  form.Run("mnAdd");
  form.grid().SetText(1, 1, "Scenario_17_chars");
  form.RenameRow(1, "Scn-1");
  form.Run("mnSave");
  EXPECT_TRUE(ui_.Empty());
  EXPECT_TRUE(form.Closed());
  EXPECT_GT(ScenarioObject("Scenario_17_chars"), 10);
  EXPECT_EQ(ScenarioObject("Scn-1"), 0);
}

TEST_F(ScenarioLibraryTest, EditOpensTheScenarioWithItsDefaults) {
  FrmScnSimParam form = Form();
  form.Run("mnAdd");
  form.ButtonCell(form.grid(), FrmScnSimParam::kColEdit, form.grid().ActiveRow());
  EXPECT_EQ(opened_, std::vector<std::string>{"Paramétrage du scénario Scn-1"});
  // Opened once, a new scenario holds "Parcourir..." as its rain: not empty.
  const int n = ScenarioObject("Scn-1");
  EXPECT_EQ(Tag(n, "IdPluie"), "Parcourir...");
  EXPECT_EQ(Tag(n, "CalcDuree"), "60");
  EXPECT_EQ(Tag(n, "CalcDt"), "2");
  EXPECT_EQ(Tag(n, "CalcMode"), "");
}

TEST_F(ScenarioLibraryTest, TheButtonCellOfARowOpensThatScenario) {
  AddScenario("Scn-1", "CAQ_1", 104);
  AddScenario("Scn-2", "CAQ_1", 104);
  FrmScnSimParam form = Form();
  // A click elsewhere than on the button column opens nothing.
  form.ButtonCell(form.grid(), FrmScnSimParam::kColUsId, 2);
  EXPECT_TRUE(opened_.empty());
  form.ButtonCell(form.grid(), FrmScnSimParam::kColEdit, 2);
  EXPECT_EQ(opened_, std::vector<std::string>{"Paramétrage du scénario Scn-2"});
}

TEST_F(ScenarioLibraryTest, MarkingTheLastRowKeepsTheCursorAndAnOutsideRowDoesNothing) {
  AddScenario("Scn-1", "CAQ_1", 104);
  FrmScnSimParam form = Form();
  SSMarkRowDeleted(surface_, 111, form.grid(), 2);
  EXPECT_EQ(Tag(ScenarioObject("Scn-1"), "okDel"), "");
  EXPECT_EQ(form.grid().BackColour(1, 1), kDefaultColour);
  form.Run("mnDel");
  EXPECT_EQ(Tag(ScenarioObject("Scn-1"), "okDel"), "$");
  EXPECT_EQ(form.grid().ActiveRow(), 1);
  EXPECT_EQ(form.grid().BackColour(3, 1), kButtonFaceColour);
}

}  // namespace
}  // namespace pluvane
