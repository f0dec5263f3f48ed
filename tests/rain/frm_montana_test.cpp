#include "network/catalogue.h"
#include "rain/frm_montana.h"

#include <gtest/gtest.h>

#include "rain_fixture.h"

namespace pluvane {
namespace {

class FrmMontanaTest : public RainTest {
 protected:
  void Entries() {
    AddMontana("Mont1", "5.9", "-0.59");
    AddMontana("Mont2", "6.7", "-0.55", "Lyon", "20");
  }
};

TEST_F(FrmMontanaTest, OpensOnEveryEntry) {
  Entries();
  FrmMontana form(surface_, state_, ui_);
  Grid& g = form.grid();
  EXPECT_EQ(form.Caption(), "Coefficients régionaux de Montana");
  EXPECT_EQ(g.ColHead(1), "Identif. de Montana");
  EXPECT_EQ(g.ColHead(2), "Désignation de la localisation");
  EXPECT_EQ(g.ColHead(3), "Période de retour");
  EXPECT_EQ(g.ColHead(4), "Coefficient a");
  EXPECT_EQ(g.ColHead(5), "Coefficient b");
  ASSERT_EQ(g.MaxRows(), 2);
  EXPECT_EQ(g.Text(1, 2), "Mont2");
  EXPECT_EQ(g.Text(2, 2), "Lyon");
  EXPECT_EQ(g.Text(3, 2), "20");
  EXPECT_EQ(g.Text(4, 2), "6.7");
  EXPECT_EQ(g.Text(5, 2), "-0.55");
}

TEST_F(FrmMontanaTest, AddNamesTheRowByItsNumberAndSaveCreatesTheEntry) {
  Entries();
  AddMontana("Mont3", "1", "-1");
  FrmMontana form(surface_, state_, ui_);
  form.Run("mnAdd");
  Grid& g = form.grid();
  ASSERT_EQ(g.MaxRows(), 4);
  EXPECT_EQ(g.Text(1, 4), "Mont4");
  g.SetText(2, 4, "Marseille");
  g.SetText(3, 4, "5");
  g.SetText(4, 4, "4.1");
  g.SetText(5, 4, "-0.6");
  form.Run("mnSave");
  EXPECT_TRUE(ui_.Empty());
  const int n = FindRainRecord(surface_, kINameMontana, "Mont4");
  ASSERT_GT(n, 10);
  EXPECT_EQ(Tag(n, "iName"), "102");
  EXPECT_EQ(Tag(n, "Design"), "Marseille");
  EXPECT_EQ(Tag(n, "Pret"), "5");
  EXPECT_EQ(Tag(n, "Ca"), "4.1");
  EXPECT_EQ(Tag(n, "Cb"), "-0.6");
}

TEST_F(FrmMontanaTest, IdentifiersDifferingOnlyInCaseAreRefused) {
  Entries();
  FrmMontana form(surface_, state_, ui_);
  Grid& g = form.grid();
  g.SetText(1, 2, "MONT1");
  g.SetText(4, 1, "9.9");
  form.Run("mnSave");
  ExpectLastMessage(ui_, "Aucun doublon n'est permis.", "Coefficients régionaux de Montana",
                    MessageIcon::kExclamation);
  EXPECT_EQ(g.ActiveRow(), 2);
  // Nothing saved: the first entry keeps its a, the second its name.
  EXPECT_EQ(Tag(FindRainRecord(surface_, kINameMontana, "Mont1"), "Ca"), "5.9");
  EXPECT_EQ(Count(kINameMontana), 2);
  EXPECT_EQ(Tag(FindRainRecord(surface_, kINameMontana, "Mont2"), "Design"), "Lyon");
}

TEST_F(FrmMontanaTest, IdentifiersCountTrimmed) {
  Entries();
  FrmMontana form(surface_, state_, ui_);
  Grid& g = form.grid();
  g.SetText(1, 2, "  Mont1 ");
  form.Run("mnSave");
  ExpectLastMessage(ui_, "Aucun doublon n'est permis.", "Coefficients régionaux de Montana",
                    MessageIcon::kExclamation);
  ui_.Clear();
  g.SetText(1, 2, " Mont2  ");
  g.SetText(4, 2, "7");
  form.Run("mnSave");
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(Count(kINameMontana), 2);
  EXPECT_EQ(Tag(FindRainRecord(surface_, kINameMontana, "Mont2"), "Ca"), "7");
}

TEST_F(FrmMontanaTest, RenameReachesEveryStormButSaveOnlyTheFirstOfEachKind) {
  Entries();
  const int caq1 = AddStorm(104, "CAQ_1", "IdMonta", "Mont1", "Ca", "5.9", "Cb", "-0.59");
  const int caq2 = AddStorm(104, "CAQ_2", "IdMonta", "mont1", "Ca", "5.9", "Cb", "-0.59");
  const int pst1 = AddStorm(105, "PST_1", "IdMonta", "Mont1", "Ca", "5.9", "Cb", "-0.59");
  const int pst2 = AddStorm(105, "PST_2", "IdMonta", "Mont1", "Ca", "5.9", "Cb", "-0.59");
  const int pdt1 = AddStorm(106, "PDT_1", "IdTot", "Mont1", "CaTot", "5.9", "CbTot", "-0.59");
  surface_.SetObjTag("IdInt", "Mont1");
  surface_.SetObjTag("CaInt", "5.9");
  const int pdt2 = AddStorm(106, "PDT_2", "IdInt", "Mont1", "CaInt", "5.9", "CbInt", "-0.59");
  FrmMontana form(surface_, state_, ui_);
  Grid& g = form.grid();
  g.SetText(1, 1, "Paris10");
  form.LeaveCell(g, 1, 1);
  EXPECT_GT(FindRainRecord(surface_, kINameMontana, "Paris10"), 10);
  for (int n : {caq1, caq2, pst1, pst2}) EXPECT_EQ(Tag(n, "IdMonta"), "Paris10");
  EXPECT_EQ(Tag(pdt1, "IdTot"), "Paris10");
  EXPECT_EQ(Tag(pdt1, "IdInt"), "Paris10");
  EXPECT_EQ(Tag(pdt2, "IdInt"), "Paris10");

  g.SetText(4, 1, "6.1");
  g.SetText(5, 1, "-0.6");
  form.Run("mnSave");
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(Tag(caq1, "Ca"), "6.1");
  EXPECT_EQ(Tag(caq1, "Cb"), "-0.6");
  EXPECT_EQ(Tag(caq2, "Ca"), "5.9");
  EXPECT_EQ(Tag(pst1, "Ca"), "6.1");
  EXPECT_EQ(Tag(pst2, "Ca"), "5.9");
  EXPECT_EQ(Tag(pdt1, "CaTot"), "6.1");
  EXPECT_EQ(Tag(pdt1, "CbTot"), "-0.6");
  EXPECT_EQ(Tag(pdt1, "CaInt"), "6.1");
  EXPECT_EQ(Tag(pdt2, "CaInt"), "5.9");
}

TEST_F(FrmMontanaTest, LeavingAnUnchangedOrNewIdentifierRenamesNothing) {
  Entries();
  const int caq = AddStorm(104, "CAQ_1", "IdMonta", "Mont1", "Ca", "5.9", "Cb", "-0.59");
  FrmMontana form(surface_, state_, ui_);
  Grid& g = form.grid();
  form.LeaveCell(g, 1, 1);
  form.Run("mnAdd");
  g.SetText(1, 3, "Neuf");
  form.LeaveCell(g, 1, 3);
  EXPECT_EQ(Tag(caq, "IdMonta"), "Mont1");
  EXPECT_EQ(Count(kINameMontana), 2);
}

TEST_F(FrmMontanaTest, FirstRowCannotBeDeletedAndItsEmptiedCellIsRefused) {
  Entries();
  FrmMontana form(surface_, state_, ui_);
  Grid& g = form.grid();
  g.SetActiveCell(1, 1);
  form.Run("mnDel");
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(g.MaxRows(), 2);
  g.SetText(1, 1, "  ");
  g.SetText(4, 2, "1");
  g.SetActiveCell(1, 2);
  form.Run("mnSave");
  ExpectLastMessage(ui_, "Renseignez tous les identificateurs.",
                    "Coefficients régionaux de Montana", MessageIcon::kNone);
  EXPECT_EQ(g.ActiveRow(), 1);
  EXPECT_EQ(Count(kINameMontana), 2);
  EXPECT_EQ(Tag(FindRainRecord(surface_, kINameMontana, "Mont2"), "Ca"), "6.7");
}

TEST_F(FrmMontanaTest, DeletingAnEntryAsksThenLeavesTheStormsCopy) {
  Entries();
  const int caq = AddStorm(104, "CAQ_1", "IdMonta", "Mont2", "Ca", "6.7", "Cb", "-0.55");
  FrmMontana form(surface_, state_, ui_);
  Grid& g = form.grid();
  g.SetActiveCell(1, 2);
  ui_.QueueNo();
  form.Run("mnDel");
  EXPECT_EQ(g.MaxRows(), 2);
  EXPECT_EQ(Count(kINameMontana), 2);
  ExpectLastMessage(ui_,
                    "attention:\rla suppression des coeff. de Montana Mont2 pourrait perturber\r"
                    "le fonctionnement des pluies de projet utilisant ces coeff.\r"
                    "(ex. pluies de caquot, simple et double triangle)\r"
                    "N'oubliez pas de remettre également à jour les pluies de projet concernées.",
                    "suppression de coef. de Montana", MessageIcon::kQuestion, "yesno");
  ui_.QueueYes();
  form.Run("mnDel");
  EXPECT_EQ(g.MaxRows(), 1);
  EXPECT_EQ(Count(kINameMontana), 1);
  form.Run("mnSave");
  EXPECT_EQ(Tag(caq, "IdMonta"), "Mont2");
  EXPECT_EQ(Tag(caq, "Ca"), "6.7");
  EXPECT_EQ(Tag(caq, "Cb"), "-0.55");
}

TEST_F(FrmMontanaTest, SaveDeletesTheEntriesNoLongerListed) {
  Entries();
  FrmMontana form(surface_, state_, ui_);
  form.grid().SetText(1, 2, "Autre");
  form.Run("mnSave");
  EXPECT_EQ(FindRainRecord(surface_, kINameMontana, "Mont2"), 0);
  EXPECT_GT(FindRainRecord(surface_, kINameMontana, "Autre"), 10);
  EXPECT_EQ(Count(kINameMontana), 2);
}

}  // namespace
}  // namespace pluvane
