#include "editors/frm_dqz.h"

#include <gtest/gtest.h>

#include "editors/divider_fixture.h"
#include "editors/editor_forms.h"
#include "editors/frm_crbx.h"
#include "foundation/expect_message.h"
#include "simulation/li2_description.h"
#include "simulation/link_files.h"
#include "simulation/node_file.h"

namespace pluvane {
namespace {

constexpr const char* kCaption = "Dérivation en fonction de la géométrie des collecteurs aval";

class FrmDqzTest : public DividerTest {
 protected:
  FrmDqzTest() { Build("X_DQZ"); }

  void Branch(FrmDqz& form, int row, const std::string& link, const std::string& type) {
    form.spread1().SetText(2, row, link);
    form.spread1().SetText(3, row, type);
  }
  void FillAll(FrmDqz& form) {
    Branch(form, 2, "Cac_2", "1. Seuil");
    Branch(form, 4, "Cac_3", "2. Orifice");
    Branch(form, 5, "Fossé", "1. Seuil");
    Branch(form, 6, "Cac_4", "2. Orifice");
  }
  // The parameter dialog answers with these three values and Ok.
  void AnswerParameters(const std::string& a, const std::string& b, const std::string& c) {
    on_form = [a, b, c, this](FormController& form) {
      auto& parameters = dynamic_cast<FrmDqzParam&>(form);
      seen_labels.clear();
      for (int row = 1; row <= 3; ++row) {
        seen_labels.push_back(parameters.grid().Text(1, row));
        seen_values.push_back(parameters.grid().Text(2, row));
      }
      seen_cursor = parameters.grid().ActiveRow();
      parameters.grid().SetText(2, 1, a);
      parameters.grid().SetText(2, 2, b);
      parameters.grid().SetText(2, 3, c);
      parameters.Run("cmdOk");
    };
  }

  std::vector<std::string> seen_labels, seen_values;
  int seen_cursor = 0;
};

TEST_F(FrmDqzTest, OpensWithTheTypesOfANewDivider) {
  FrmDqz form(context);
  EXPECT_EQ(form.Caption(), kCaption);
  Grid& s1 = form.spread1();
  EXPECT_EQ(s1.Text(2, 1), "Dqz_1");
  EXPECT_EQ(s1.Text(2, 3), "3");
  for (int row : {2, 4, 5, 6}) {
    EXPECT_EQ(s1.Type(2, row), CellType::List("Cac_2\tCac_3\tFossé\tCac_4")) << row;
    EXPECT_EQ(s1.Type(3, row), CellType::List("1. Seuil\t2. Orifice\t3. Strickler\t4. Z = f(Q)"))
        << row;
    EXPECT_EQ(s1.Text(3, row), "3. Strickler") << row;
    EXPECT_EQ(s1.Type(4, row), CellType::Button()) << row;
    EXPECT_EQ(s1.Text(4, row), "ouvrir...") << row;
  }
  EXPECT_EQ(Highlighted(), (std::vector<int>{cac2, cac3, cao, cac4, divider}));
  auto made = MakeEditorForm("frmDqz", context);
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->Caption(), kCaption);
}

TEST_F(FrmDqzTest, WithOneLinkLeavingAllRowsMustStillBeFilled) {
  // Only one link leaves the node of this divider.
  const int lone = Node(8000, 8000);
  Set(Link("X_CAC", lone, Node(9000, 8000)), {{"libell", "Seul"}});
  const int other = Symbol("X_DQZ", 0, 0, lone);
  surface.SetCurrentObject(other);
  FrmDqz form(context);
  EXPECT_EQ(form.spread1().Text(2, 3), "0");
  Branch(form, 2, "Seul", "3. Strickler");
  form.spread1().SetText(2, 4, "");
  const TagList before = Tags(other);
  form.Run("cmdOk");
  ExpectLastMessage(ui, "Renseignez tous les identificateurs nécessaires.", kCaption,
                    MessageIcon::kExclamation);
  EXPECT_EQ(form.spread1().ActiveRow(), 4);
  EXPECT_EQ(form.spread1().ActiveCol(), 2);
  EXPECT_EQ(Tags(other), before);
  ui.Clear();
  Branch(form, 4, "Rien", "1. Seuil");
  Branch(form, 5, "Rien 2", "1. Seuil");
  form.spread1().SetText(3, 6, "");
  form.Run("cmdOk");
  ExpectLastMessage(ui, "Renseignez tous les identificateurs nécessaires.", kCaption,
                    MessageIcon::kExclamation);
  EXPECT_EQ(form.spread1().ActiveRow(), 6);
  EXPECT_EQ(form.spread1().ActiveCol(), 2);
  ui.Clear();
  Branch(form, 6, "Rien 3", "1. Seuil");
  form.Run("cmdOk");
  EXPECT_TRUE(ui.Empty());
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(TagOf(other, "NbDer"), "0");
  EXPECT_EQ(TagOf(other, "IdDer_c"), "Rien 3");
}

TEST_F(FrmDqzTest, TheSameLinkChosenInRows2And4EmptiesRow2) {
  FrmDqz form(context);
  form.spread1().SetListIndex(2, 2, 2);
  form.spread1().SetListIndex(2, 4, 2);
  EXPECT_EQ(form.spread1().Text(2, 2), "");
  EXPECT_EQ(form.spread1().Text(2, 4), "Fossé");
  EXPECT_EQ(Highlighted(), std::vector<int>{cao});
}

TEST_F(FrmDqzTest, AStricklerBranchOnAnOpenChannelReadsKmin) {
  FrmDqz form(context);
  Branch(form, 5, "Cao_1", "3. Strickler");
  form.ButtonCell(form.spread1(), 4, 5);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(TagOf(divider, "Xdb1"), "45");
  Branch(form, 4, "Cac_3", "3. Strickler");
  form.ButtonCell(form.spread1(), 4, 4);
  EXPECT_EQ(TagOf(divider, "Xda1"), "65");
  // Saved at once: cancelling keeps it.
  form.Run("cmdAnnul");
  EXPECT_EQ(TagOf(divider, "Xdb1"), "45");
}

TEST_F(FrmDqzTest, StricklerIsForCollectorsOnly) {
  const int route_end = Node(7000, 1000);
  Set(Link("X_ROUT", node, route_end), {{"Id", "Rou_9"}});
  FrmDqz form(context);
  const TagList before = DividerTags();
  for (const char* id : {"Rou_9", "Personne"}) {
    ui.Clear();
    Branch(form, 2, id, "3. Strickler");
    form.ButtonCell(form.spread1(), 4, 2);
    ExpectLastMessage(ui, "Le type Strickler n'est possible que pour les collecteurs",
                      "Editeur DQZ", MessageIcon::kInformation);
  }
  EXPECT_EQ(DividerTags(), before);
}

TEST_F(FrmDqzTest, TheButtonNeedsTheLinkAndTheType) {
  FrmDqz form(context);
  form.spread1().SetText(3, 4, "");
  form.spread1().SetText(2, 4, "Cac_3");
  form.ButtonCell(form.spread1(), 4, 4);
  ExpectLastMessage(ui, "L'identif et le type de liaison doivent être connus !", "Editeur DQZ",
                    MessageIcon::kInformation);
  EXPECT_EQ(form.spread1().ActiveRow(), 4);
  EXPECT_EQ(form.spread1().ActiveCol(), 3);
  ui.Clear();
  form.spread1().SetText(2, 2, "");
  form.ButtonCell(form.spread1(), 4, 2);
  ExpectLastMessage(ui, "L'identif et le type de liaison doivent être connus !", "Editeur DQZ",
                    MessageIcon::kInformation);
  EXPECT_EQ(form.spread1().ActiveCol(), 2);
  EXPECT_TRUE(shown_forms.empty());
}

TEST_F(FrmDqzTest, AWeirOpensItsThreeParametersAndSavesThemAtOnce) {
  Set(divider, {{"NbPtDa", "5"}, {"Xda1", "1"}, {"Xda2", "2"}, {"Xda4", "4"}, {"Xda5", "5"}});
  FrmDqz form(context);
  Branch(form, 4, "Cac_3", "1. Seuil");
  AnswerParameters("101.5", "2", "0.4");
  form.ButtonCell(form.spread1(), 4, 4);
  EXPECT_EQ(shown_forms, std::vector<std::string>{"Seuil déversant"});
  EXPECT_EQ(seen_labels, (std::vector<std::string>{
                             "Cote seuil (ngf)=", "Largeur (m)=", "Coefficient de seuil (.)="}));
  // The values of the former type stay on show until replaced.
  EXPECT_EQ(seen_values, (std::vector<std::string>{"1", "2", ""}));
  EXPECT_EQ(seen_cursor, 1);
  EXPECT_EQ(TagOf(divider, "Xda1"), "101.5");
  EXPECT_EQ(TagOf(divider, "Xda3"), "0.4");
  EXPECT_EQ(TagOf(divider, "Xda4"), "");
  EXPECT_EQ(TagOf(divider, "Xda5"), "");
  EXPECT_EQ(TagOf(divider, "NbPtDa"), "5");
  Branch(form, 6, "Cac_4", "2. Orifice");
  AnswerParameters("99", "0.3", "0.6");
  form.ButtonCell(form.spread1(), 4, 6);
  EXPECT_EQ(shown_forms.back(), "Orifice");
  EXPECT_EQ(seen_labels, (std::vector<std::string>{"Cote radier d'orifice (ngf)=", "Diamètre (m)=",
                                                   "Coefficient d'orifice (.)="}));
  EXPECT_EQ(TagOf(divider, "Xdc2"), "0.3");
  form.Run("cmdAnnul");
  EXPECT_EQ(TagOf(divider, "Xda1"), "101.5");
  EXPECT_EQ(TagOf(divider, "TypeDer_a"), "3");
}

TEST_F(FrmDqzTest, ACurveBranchIsEditedThroughTheCurveFile) {
  Set(divider,
      {{"NbPtDa", "2"}, {"Xda1", "100"}, {"Yda1", "0"}, {"Xda2", "101.5"}, {"Yda2", "0.8"}});
  FrmDqz form(context);
  Branch(form, 4, "Cac_3", "4. Z = f(Q)");
  std::string file_at_opening;
  on_form = [&](FormController& shown) {
    auto& editor = dynamic_cast<FrmCrbx&>(shown);
    file_at_opening = ReadBytes(folder.File("tmp.crb"));
    EXPECT_EQ(editor.Caption(), "Q=f(Z)");
    EXPECT_EQ(editor.params().plot_title, "Loi paramétrique Q=f(Z)");
    EXPECT_EQ(editor.params().point_limit, 10);
    EXPECT_EQ(editor.params().curve_name, "CrbX");
    EXPECT_EQ(editor.grid().ColHead(1), "Cote (ngf)");
    EXPECT_EQ(editor.grid().ColHead(2), "Debit (m3/s)");
    EXPECT_EQ(editor.Columns(), 2);
    ASSERT_EQ(editor.grid().MaxRows(), 2);
    editor.Run("mnAdd");
    editor.grid().SetText(1, 3, "102");
    editor.grid().SetText(2, 3, "1.5");
    editor.Run("mnSave");
    EXPECT_TRUE(editor.Closed());
  };
  form.ButtonCell(form.spread1(), 4, 4);
  EXPECT_EQ(file_at_opening, "'CrbX'\r\n    100.00      0.00\r\n    101.50      0.80\r\n");
  EXPECT_EQ(TagOf(divider, "NbPtDa"), "3");
  EXPECT_EQ(TagOf(divider, "Xda1"), "    100.00");
  EXPECT_EQ(TagOf(divider, "Yda2"), "      0.80");
  EXPECT_EQ(TagOf(divider, "Xda3"), "    102.00");
  EXPECT_EQ(TagOf(divider, "Yda3"), "      1.50");
  EXPECT_EQ(TagOf(divider, "NbPtAv"), "0");
}

TEST_F(FrmDqzTest, CancellingTheParametersWritesNothing) {
  FrmDqz form(context);
  Branch(form, 2, "Cac_2", "2. Orifice");
  on_form = [](FormController& shown) {
    dynamic_cast<FrmDqzParam&>(shown).grid().SetText(2, 1, "7");
    shown.Run("cmdAnnul");
  };
  form.ButtonCell(form.spread1(), 4, 2);
  EXPECT_EQ(TagOf(divider, "Xav1"), "0");
}

TEST_F(FrmDqzTest, EveryStricklerRowSetsTheLevelOfTheMainBranch) {
  FrmDqz form(context);
  FillAll(form);
  Branch(form, 5, "Cao_1", "3. Strickler");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(TagOf(divider, "Xav1"), "11");
  EXPECT_EQ(TagOf(divider, "TypeDer_b"), "3. Strickler");
  EXPECT_EQ(TagOf(divider, "TypeAval"), "1. Seuil");
}

TEST_F(FrmDqzTest, TheCountRowRepeatsTheTypeOfTheMainBranch) {
  // A Strickler main branch is followed by the count row, whose number is
  // searched as an Id and found nowhere: the level ends at 0.
  Set(divider, {{"Xav1", "7"}});
  FrmDqz form(context);
  FillAll(form);
  Branch(form, 2, "Cac_2", "3. Strickler");
  form.Run("cmdOk");
  EXPECT_EQ(TagOf(divider, "Xav1"), "0");
}

TEST_F(FrmDqzTest, ATakenNameIsRefusedAndNothingIsWritten) {
  Set(Symbol("X_DQZ", 0, 0, up), {{"libell", "Partiteur"}});
  surface.SetCurrentObject(divider);
  FrmDqz form(context);
  FillAll(form);
  form.spread1().SetText(2, 1, "PARTITEUR");
  const TagList before = DividerTags();
  form.Run("cmdOk");
  ExpectLastMessage(ui, "PARTITEUR existe déjà.", "Erreur de saisie", MessageIcon::kInformation);
  EXPECT_EQ(form.spread1().Text(2, 1), "Dqz_1");
  EXPECT_EQ(form.spread1().ActiveRow(), 1);
  EXPECT_EQ(DividerTags(), before);
  // A divider of the other kind may bear the name.
  ui.Clear();
  Set(divider, {{"libell", "Dqz_1"}});
  const int dqq = Symbol("X_DQQ", 0, 0, up);
  Set(dqq, {{"libell", "Partage"}});
  form.spread1().SetText(2, 1, "Partage");
  form.Run("cmdOk");
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(TagOf(divider, "libell"), "Partage");
}

TEST_F(FrmDqzTest, AnEditedDividerGivesItsEngineRecord) {
  Scenario("Scn-1");
  surface.SetCurrentObject(divider);
  FrmDqz form(context);
  FillAll(form);
  AnswerParameters("100.2", "3", "0.38");
  form.ButtonCell(form.spread1(), 4, 2);
  AnswerParameters("99", "0.3", "0.6");
  form.ButtonCell(form.spread1(), 4, 4);
  Branch(form, 5, "Fossé", "3. Strickler");
  Set(cao, {{"Id", "Fossé"}});
  form.ButtonCell(form.spread1(), 4, 5);
  Branch(form, 6, "Cac_4", "4. Z = f(Q)");
  on_form = [](FormController& shown) {
    Grid& grid = dynamic_cast<FrmCrbx&>(shown).grid();
    grid.SetMaxRows(2);
    grid.SetText(1, 1, "98.5");
    grid.SetText(2, 1, "0");
    grid.SetText(1, 2, "99.25");
    grid.SetText(2, 2, "0.75");
    shown.Run("mnSave");
  };
  form.ButtonCell(form.spread1(), 4, 6);
  form.Run("cmdOk");
  ASSERT_TRUE(form.Closed());
  ModelContext model = ModelTest::Context();
  GenFicNod(model, ModelFile(".NOD"));
  ASSERT_EQ(GenFicLi2(model, ModelFile(".LI2")), 6);
  const std::string li2 = ReadBytes(ModelFile(".LI2"));
  ASSERT_EQ(li2.size(), 6u * 812);
  const std::string expected = Li2FromDescription(R"(
    record
    1 3          # NbDer
    2 1          # TypeAval: weir
    3 2          # TypeDer_a: orifice
    4 3          # TypeDer_b: Strickler
    5 4          # TypeDer_c: a curve
    6 11         # Xav1: ZRam of the Strickler branch's channel, over the weir level
    7 3          # Xav2, Xav3: width and coefficient of the weir
    8 0.38
    26 99        # Xda1 to Xda3: the orifice
    27 0.3
    28 0.6
    46 45        # Xdb1: Kmin of the channel
    66 98.5      # Xdc1, Xdc2: levels of the curve of two points
    67 99.25
    68..75 -999
    76 0         # Ydc1, Ydc2: its discharges
    77 0.75
    78..85 -999
  )");
  EXPECT_EQ(li2.substr(5 * 812), expected);
}

}  // namespace
}  // namespace pluvane
