#include "results/frm_selection.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

class Selection : public ::testing::Test {
 protected:
  std::string Source(const std::string& text) {
    WriteBytes(folder.File("src.Deb"), text);
    return folder.File("src.Deb");
  }
  std::vector<std::string> Names(FrmSelection& form) {
    std::vector<std::string> names;
    for (int row = 1; row <= form.Spread1.MaxRows(); ++row)
      names.push_back(form.Spread1.Text(1, row));
    return names;
  }
  std::string List() const { return folder.File("IdCrb.Tmp"); }

  TempFolder folder;
  ScriptedUi ui;
};

const char* kCurves =
    "'N3'\r\n     0.000     1.000\r\n'PkFin'\r\n     1.000     2.000\r\n"
    "'N1'\r\n     0.000     1.000\r\n''\r\n'Mark2'\r\n     0.000     1.000\r\n";

TEST_F(Selection, CurveModeListsTheNamesButPkFin) {
  FrmSelection form(ui, "Deb", Source(kCurves), List());
  EXPECT_EQ(form.Caption(), "Choix de courbe à visualiser");
  EXPECT_EQ(form.Spread1.ColHead(1), "Id. courbe");
  EXPECT_EQ(Names(form), (std::vector<std::string>{"N3", "N1", "Mark2"}));
  EXPECT_TRUE(form.Spread1.Locked(1, 1));
  EXPECT_EQ(form.Spread1.Text(2, 1), "0");
  EXPECT_EQ(form.Spread1.Type(2, 1).kind, CellType::kCheckBox);
  EXPECT_EQ(form.Commands()[0].caption, "&Dessiner");
}

TEST_F(Selection, CrbModeSortsByName) {
  FrmSelection form(ui, "crb", Source(kCurves), List());
  EXPECT_EQ(Names(form), (std::vector<std::string>{"Mark2", "N1", "N3"}));
}

TEST_F(Selection, Crb2ModeTakesOnlyMarks) {
  FrmSelection form(ui, "crb2", Source(kCurves), List());
  EXPECT_EQ(Names(form), (std::vector<std::string>{"Mark2"}));
  FrmSelection none(ui, "crb2", Source("'N1'\r\n  0  1\r\n'mark'\r\n"), List());
  EXPECT_EQ(none.Spread1.MaxRows(), 0);
}

TEST_F(Selection, TickedRowsAreWrittenInRowOrder) {
  WriteBytes(List(), "old\r\n");
  FrmSelection form(ui, "Deb", Source(kCurves), List());
  EXPECT_FALSE(FileExist(List()));  // removed on loading
  form.Spread1_Click(3);
  form.Spread1_Click(1);
  form.Spread1_Click(2);
  form.Spread1_Click(2);
  EXPECT_EQ(form.Spread1.Text(2, 2), "0");
  form.Run("mnDessiner");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(ReadBytes(List()), "N3\r\nMark2\r\n");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(Selection, TickAllAndUntickAll) {
  FrmSelection form(ui, "Deb", Source(kCurves), List());
  form.Run("mnSelection");
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(form.Spread1.Text(2, row), "1");
  form.Run("mnDeselect");
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(form.Spread1.Text(2, row), "0");
}

TEST_F(Selection, NothingTickedIsToldAndTheFormStays) {
  FrmSelection form(ui, "Deb", Source(kCurves), List());
  form.mnDessiner();
  ExpectLastMessage(ui, "aucune ligne n'a été cochée !!!", "Choix de courbe à visualiser",
                    MessageIcon::kNone);
  EXPECT_FALSE(form.Closed());
  EXPECT_FALSE(FileExist(List()));
}

TEST_F(Selection, EmptyFileGivesAnEmptyGridAndNothingTicked) {
  FrmSelection form(ui, "Deb", Source(""), List());
  EXPECT_EQ(form.Spread1.MaxRows(), 0);
  form.mnDessiner();
  ExpectLastMessage(ui, "aucune ligne n'a été cochée !!!", "Choix de courbe à visualiser",
                    MessageIcon::kNone);
}

TEST_F(Selection, CloseWritesNoList) {
  FrmSelection form(ui, "Deb", Source(kCurves), List());
  form.Spread1_Click(1);
  form.Run("mnClose");
  EXPECT_TRUE(form.Closed());
  EXPECT_FALSE(FileExist(List()));
}

TEST_F(Selection, IdentifierModes) {
  const std::string source = Source("  Nod_1 \r\n\r\nCac_2\r\n   \r\n");
  FrmSelection identif(ui, "identif", source, List());
  EXPECT_EQ(identif.Caption(), "Choix d'élément à restituer");
  EXPECT_EQ(identif.Spread1.ColHead(1), "identifiant");
  EXPECT_EQ(Names(identif), (std::vector<std::string>{"Nod_1", "Cac_2"}));
  FrmSelection exporting(ui, "export", source, List());
  EXPECT_EQ(exporting.Caption(), "choix d'élément à exporter");
  EXPECT_EQ(exporting.Commands()[0].caption, "&Export");
  exporting.mnDessiner();
  ExpectLastMessage(ui, "aucune ligne n'a été cochée !!!", "choix d'élément à exporter",
                    MessageIcon::kNone);
}

TEST_F(Selection, MissingSourceIsTold) {
  const std::string missing = folder.File("absent.Deb");
  FrmSelection form(ui, "identif", missing, List());
  ExpectLastMessage(
      ui, "Fichier " + missing + " introuvable!\nEnregistrer les données et Quitter le programme!",
      "", MessageIcon::kNone);
  EXPECT_EQ(form.Spread1.MaxRows(), 0);
  FrmSelection curves(ui, "Deb", missing, List());
  EXPECT_EQ(ui.Messages().size(), 2u);
  EXPECT_EQ(curves.Spread1.MaxRows(), 0);
}

}  // namespace
}  // namespace pluvane
