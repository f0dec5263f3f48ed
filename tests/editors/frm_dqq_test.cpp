#include "editors/frm_dqq.h"

#include <gtest/gtest.h>

#include "editors/divider_fixture.h"
#include "editors/editor_forms.h"
#include "foundation/expect_message.h"
#include "simulation/li2_description.h"
#include "simulation/link_files.h"
#include "simulation/node_file.h"

namespace pluvane {
namespace {

constexpr const char* kCaption = "Dérivation en fonction de Q amont";

class FrmDqqTest : public DividerTest {
 protected:
  FrmDqqTest() { Build("X_DQQ"); }

  // Fills the branches and a law of rows {Qamont, Qd1, Qd2, Qd3}.
  void Fill(FrmDqq& form, const std::vector<std::vector<std::string>>& law) {
    Grid& s1 = form.spread1();
    s1.SetText(2, 2, "Cac_2");
    s1.SetText(2, 4, "Cac_3");
    s1.SetText(2, 5, "Fossé");
    s1.SetText(2, 6, "Cac_4");
    Grid& s2 = form.spread2();
    s2.SetMaxRows(static_cast<int>(law.size()));
    for (std::size_t r = 0; r < law.size(); ++r) {
      for (std::size_t c = 0; c < law[r].size(); ++c) {
        s2.SetText(static_cast<int>(c + 1), static_cast<int>(r + 1), law[r][c]);
      }
    }
  }
};

TEST_F(FrmDqqTest, OpensOnTheDividerWithTheLinksLeavingItsNode) {
  Set(divider, {{"IdAval", "Cac_2"}, {"NbPt", "2"}, {"X1", "0"}, {"X2", "1.5"}, {"T2", "0.5"}});
  FrmDqq form(context);
  EXPECT_EQ(form.Caption(), kCaption);
  Grid& s1 = form.spread1();
  EXPECT_EQ(s1.Text(1, 1), "Identificateur (16 car maxi)=");
  EXPECT_EQ(s1.Text(1, 2), "Id. de l'élément aval (16 car maxi)=");
  EXPECT_EQ(s1.Text(1, 3), "Nombre de dérivation=");
  EXPECT_EQ(s1.Text(1, 4), "Id. de la dérivation 1 (16 car maxi)=");
  EXPECT_EQ(s1.Text(1, 5), "Id. de la dérivation 2 (16 car maxi)=");
  EXPECT_EQ(s1.Text(1, 6), "Id. de la dérivation 3 (16 car maxi)=");
  EXPECT_EQ(s1.Text(2, 1), "Dqq_1");
  EXPECT_EQ(s1.Text(2, 2), "Cac_2");
  EXPECT_EQ(s1.Text(2, 3), "3");
  EXPECT_TRUE(s1.Locked(2, 3));
  for (int row : {2, 4, 5, 6}) {
    EXPECT_EQ(s1.Type(2, row), CellType::List("Cac_2\tCac_3\tFossé\tCac_4")) << row;
  }
  EXPECT_EQ(form.links().handles, (std::vector<int>{cac2, cac3, cao, cac4}));
  Grid& s2 = form.spread2();
  EXPECT_EQ(s2.ColHead(1), "Qamont (m3/s)");
  EXPECT_EQ(s2.ColHead(2), "Qd1  (m3/s)");
  EXPECT_EQ(s2.ColHead(3), "Qd2 (m3/s)");
  EXPECT_EQ(s2.ColHead(4), "Qd3 (m3/s)");
  EXPECT_EQ(s2.MaxRows(), 2);
  EXPECT_EQ(s2.Text(1, 2), "1.5");
  EXPECT_EQ(s2.Text(4, 2), "0.5");
  // The divider and its links are highlighted while the form is open.
  EXPECT_EQ(Highlighted(), (std::vector<int>{cac2, cac3, cao, cac4, divider}));
  form.Run("cmdAnnul");
  EXPECT_TRUE(form.Closed());
  EXPECT_TRUE(Highlighted().empty());
  EXPECT_EQ(TagOf(divider, "IdDer_a"), "");
}

TEST_F(FrmDqqTest, TheEditorOfTheKindIsFoundByItsName) {
  auto form = MakeEditorForm("frmDqq", context);
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(form->Caption(), kCaption);
  EXPECT_NE(dynamic_cast<FrmDqq*>(form.get()), nullptr);
}

TEST_F(FrmDqqTest, EqualQamontPassesOkButNotVisu) {
  FrmDqq form(context);
  Fill(form, {{"0", "0", "0", "0"}, {"1", "0.5", "0", "0"}, {"1", "0.5", "0.25", "0"}});
  form.spread2().SetActiveCell(3, 3);
  form.Run("cmdVisu");
  ExpectLastMessage(ui, "Vous devez rentrer des valeurs croissantes de Qam", "Erreur de saisie",
                    MessageIcon::kInformation);
  EXPECT_EQ(form.spread2().ActiveRow(), 2);
  EXPECT_EQ(form.spread2().ActiveCol(), 1);
  EXPECT_TRUE(viewer_scripts.empty());
  ui.Clear();
  form.Run("cmdOk");
  EXPECT_TRUE(ui.Empty());
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(TagOf(divider, "NbPt"), "3");
  EXPECT_EQ(TagOf(divider, "X3"), "1");
  EXPECT_EQ(TagOf(divider, "Z3"), "0.25");
}

TEST_F(FrmDqqTest, VisuDrawsEachDerivationAgainstQamont) {
  FrmDqq form(context);
  Fill(form, {{"0", "0", "0", "0"}, {"2", "1", "0.5", "0.25"}});
  form.Run("cmdVisu");
  EXPECT_TRUE(ui.Empty());
  ASSERT_EQ(viewer_scripts.size(), 1u);
  EXPECT_EQ(viewer_scripts[0], folder.File("Vistrel.Mst"));
  EXPECT_EQ(viewer.page_title, "Dérivation en fonction de Qam : Dqq_1");
  EXPECT_TRUE(FileExist(folder.File("xy.mst")));
  const std::string curves = ReadBytes(folder.File("xy.crb"));
  EXPECT_NE(curves.find("'Qd2'\r\n     0.000     0.000\r\n     2.000     1.000\r\n"),
            std::string::npos);
  EXPECT_NE(curves.find("'Qd4'\r\n     0.000     0.000\r\n     2.000     0.250\r\n"),
            std::string::npos);
  EXPECT_EQ(ReadBytes(folder.File("Vistrel.Mst")), ReadBytes(folder.File("xy.mst")));
  EXPECT_FALSE(form.Closed());
}

TEST_F(FrmDqqTest, ADerivedSumEqualToQamontIsAccepted) {
  FrmDqq form(context);
  Fill(form, {{"0", "0", "0", "0"}, {"0.3", "0.1", "0.2", "0"}, {"2", "1", "0.5", "0.5"}});
  form.Run("cmdOk");
  EXPECT_TRUE(ui.Empty());
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(TagOf(divider, "Y2"), "0.1");
}

TEST_F(FrmDqqTest, ADerivedSumAboveQamontIsRefused) {
  FrmDqq form(context);
  Fill(form, {{"0", "0", "0", "0"}, {"1", "0.5", "0.5", "0.001"}});
  const TagList before = DividerTags();
  form.Run("cmdOk");
  ExpectLastMessage(ui, "La somme des Q derivés doit être <= Q amont !\r\n revoir ligne 2",
                    kCaption, MessageIcon::kInformation);
  EXPECT_EQ(form.spread2().ActiveRow(), 2);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(DividerTags(), before);
}

TEST_F(FrmDqqTest, QamontMustNotDecrease) {
  FrmDqq form(context);
  Fill(form, {{"0", "0", "0", "0"}, {"2", "0", "0", "0"}, {"1.5", "0", "0", "0"}});
  const TagList before = DividerTags();
  form.Run("cmdOk");
  ExpectLastMessage(ui, "Les Qamont doivent être croissants !\r\n revoir ligne 2", kCaption,
                    MessageIcon::kInformation);
  EXPECT_EQ(form.spread2().ActiveRow(), 2);
  EXPECT_EQ(form.spread2().ActiveCol(), 1);
  EXPECT_EQ(DividerTags(), before);
}

TEST_F(FrmDqqTest, TheLawNeedsTwoRowsBeforeTheFirstEmptyQamont) {
  FrmDqq form(context);
  Fill(form, {{"0", "0", "0", "0"}, {"", "1", "0", "0"}, {"2", "1", "0", "0"}});
  const TagList before = DividerTags();
  form.Run("cmdOk");
  ExpectLastMessage(ui, "Il faut au moins 2 lignes pour la loi de dérivation !", kCaption,
                    MessageIcon::kInformation);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(DividerTags(), before);
}

TEST_F(FrmDqqTest, EveryBranchMustBeNamed) {
  FrmDqq form(context);
  Fill(form, {{"0", "0", "0", "0"}, {"1", "0", "0", "0"}});
  form.spread1().SetText(2, 5, "");
  const TagList before = DividerTags();
  form.Run("cmdOk");
  ExpectLastMessage(ui, "Renseignez tous les identificateurs nécessaires.", kCaption,
                    MessageIcon::kExclamation);
  EXPECT_EQ(form.spread1().ActiveRow(), 5);
  EXPECT_EQ(form.spread1().ActiveCol(), 2);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(DividerTags(), before);
}

TEST_F(FrmDqqTest, ATakenNameIsRefusedAndTheOldNameReturns) {
  Set(Symbol("X_DQQ", 0, 0, up), {{"libell", "DEV AMONT"}});
  surface.SetCurrentObject(divider);
  FrmDqq form(context);
  Fill(form, {{"0", "0", "0", "0"}, {"1", "0", "0", "0"}});
  form.spread1().SetText(2, 1, "Dev amont");
  form.spread1().SetActiveCell(2, 4);
  const TagList before = DividerTags();
  form.Run("cmdOk");
  ExpectLastMessage(ui, "Dev amont existe déjà.", "Erreur de saisie", MessageIcon::kInformation);
  EXPECT_EQ(form.spread1().Text(2, 1), "Dqq_1");
  EXPECT_EQ(form.spread1().ActiveRow(), 1);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(DividerTags(), before);
}

TEST_F(FrmDqqTest, TheSameLinkChosenInRows2And4EmptiesRow2) {
  FrmDqq form(context);
  Grid& s1 = form.spread1();
  s1.SetListIndex(2, 2, 1);  // Cac_3
  s1.SetListIndex(2, 5, 0);  // Cac_2
  EXPECT_EQ(s1.Text(2, 2), "Cac_3");
  s1.SetText(2, 4, "cac_3");
  EXPECT_EQ(s1.Text(2, 2), "");
  EXPECT_EQ(s1.Text(2, 4), "cac_3");
  EXPECT_EQ(s1.Text(2, 5), "Cac_2");
  // The link chosen last is highlighted on the plan.
  EXPECT_EQ(Highlighted(), std::vector<int>{cac3});
}

TEST_F(FrmDqqTest, AClickOnABranchShowsItsLinkAndElsewhereTheText) {
  Set(cao, {{"Id", "Cao_9"}});
  FrmDqq form(context);
  Grid& s1 = form.spread1();
  s1.SetText(2, 6, "Fossé");
  form.ClickCell(s1, 2, 6);
  EXPECT_EQ(ui.Statuses().back(), "Cao_9");
  EXPECT_EQ(Highlighted(), std::vector<int>{cao});
  form.ClickCell(s1, 1, 3);
  EXPECT_EQ(ui.Statuses().back(), "Nombre de dérivation=");
}

TEST_F(FrmDqqTest, RowsAreAddedInsertedUpToTenAndDeleted) {
  FrmDqq form(context);
  Grid& s2 = form.spread2();
  for (int i = 0; i < 9; ++i) form.Run("cmdAddLine");
  EXPECT_EQ(s2.MaxRows(), 9);
  s2.SetActiveCell(1, 3);
  form.Run("cmdInsLine");
  EXPECT_EQ(s2.MaxRows(), 10);
  form.Run("cmdInsLine");
  EXPECT_EQ(s2.MaxRows(), 10);
  s2.SetText(1, 4, "7");
  s2.SetActiveCell(1, 4);
  form.Run("cmdDelLine");
  EXPECT_EQ(s2.MaxRows(), 9);
  EXPECT_EQ(s2.Text(1, 4), "");
}

TEST_F(FrmDqqTest, OkReplacesTheFormerLawAndTheBranches) {
  Set(divider, {{"NbPt", "3"}, {"X3", "9"}, {"Y3", "9"}, {"Z3", "9"}, {"T3", "9"}});
  FrmDqq form(context);
  Fill(form, {{"0", "0", "0", "0"}, {"1", "0.25", "0.25", "0.5"}});
  form.spread1().SetText(2, 1, "DEV 1");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(TagOf(divider, "libell"), "DEV 1");
  EXPECT_EQ(TagOf(divider, "IdAval"), "Cac_2");
  EXPECT_EQ(TagOf(divider, "NbDer"), "3");
  EXPECT_EQ(TagOf(divider, "IdDer_a"), "Cac_3");
  EXPECT_EQ(TagOf(divider, "IdDer_b"), "Fossé");
  EXPECT_EQ(TagOf(divider, "IdDer_c"), "Cac_4");
  EXPECT_EQ(TagOf(divider, "NbPt"), "2");
  EXPECT_EQ(TagOf(divider, "T2"), "0.5");
  for (const char* tag : {"X3", "Y3", "Z3", "T3"}) EXPECT_EQ(TagOf(divider, tag), "") << tag;
  EXPECT_TRUE(Highlighted().empty());
}

TEST_F(FrmDqqTest, AnEditedDividerGivesItsEngineRecord) {
  Scenario("Scn-1");
  surface.SetCurrentObject(divider);
  FrmDqq form(context);
  Fill(form, {{"0", "0", "0", "0"}, {"1", "0.25", "0.25", "0.5"}, {"2.5", "1", "0.5", "1"}});
  form.Run("cmdOk");
  ASSERT_TRUE(form.Closed());
  ModelContext model = ModelTest::Context();
  GenFicNod(model, ModelFile(".NOD"));
  ASSERT_EQ(GenFicLi2(model, ModelFile(".LI2")), 6);
  // Ranks: Cac_1, Cac_2, Cac_3, Fossé, Cac_4, then the divider.
  const std::string li2 = ReadBytes(ModelFile(".LI2"));
  ASSERT_EQ(li2.size(), 6u * 812);
  const std::string expected = Li2FromDescription(R"(
    record
    1 3          # NbDer: four links leave the node
    2 0          # Qamont
    3 1
    4 2.5
    5..11 -999
    12 0         # Qd1
    13 0.25
    14 1
    15..21 -999
    22 0         # Qd2
    23 0.25
    24 0.5
    25..31 -999
    32 0         # Qd3
    33 0.5
    34 1
    35..41 -999
  )");
  EXPECT_EQ(li2.substr(5 * 812), expected);
  GenFicLi1(model, ModelFile(".LI1"));
  const std::string li1 = ReadBytes(ModelFile(".LI1"));
  // The divider's line names its downstream link and its three derivations by rank.
  EXPECT_NE(li1.find("        2         3         4         5\r\n"), std::string::npos);
}

}  // namespace
}  // namespace pluvane
