#include "rain/frm_plu_import.h"

#include <gtest/gtest.h>

#include <fstream>

#include "foundation/paths.h"
#include "rain_fixture.h"

namespace pluvane {
namespace {

class PluImportTest : public RainTest {
 protected:
  std::string File(const std::string& bytes, const std::string& name) {
    const std::string path = folder_.File(name);
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }
};

TEST_F(PluImportTest, EachKeyHasItsTitleAndColumns) {
  EditorContext context = Context();
  FrmPluImport pr(context, "PR");
  EXPECT_EQ(pr.Caption(), "Bibliothèque des pluies réelles externes issues des pluviomètres");
  EXPECT_EQ(pr.grid().ColHead(1), "Désignation de l'événement");
  EXPECT_EQ(pr.grid().ColHead(2), "Commentaire");
  EXPECT_EQ(pr.grid().ColHead(3), "Fichier des enregistrements Hcum(t)");
  EXPECT_EQ(pr.kind(), 127);
  FrmPluImport hy(context, "PPHY");
  EXPECT_EQ(hy.Caption(), "Bibliothèque des hyétogrammes externes");
  EXPECT_EQ(hy.grid().ColHead(3), "Fichier des enregistrements I(t)");
  EXPECT_EQ(hy.kind(), 128);
  EXPECT_EQ(FrmPluImport(context, "CAQ").Caption(),
            "Bibliothèque des pluies de projet externes type Caquot");
  EXPECT_EQ(FrmPluImport(context, "PPST").Caption(),
            "Bibliothèque des pluies de projet externes type simple triangle");
  EXPECT_EQ(FrmPluImport(context, "PPDT").Caption(),
            "Bibliothèque des pluies de projet externes type double triangles");
  EXPECT_EQ(FrmPluImport(context, "PRAD").Caption(),
            "Bibliothèque des pluies réelles externes issues des données radar");
}

TEST_F(PluImportTest, RowsAreNamedChosenAndSavedWithTheirFile) {
  EditorContext context = Context();
  FrmPluImport library(context, "PR");
  Grid& g = library.grid();
  library.Run("mnAdd");
  EXPECT_EQ(g.Text(1, 1), "xPR_1");
  library.Run("mnIns");
  EXPECT_EQ(g.Text(1, 1), "Prx_1");
  ui_.Queue("/pluies/juin 2024.plu");
  library.ButtonCell(g, 4, 2);
  const UiMessage& asked = ui_.Last();
  EXPECT_EQ(asked.kind, "open");
  EXPECT_EQ(asked.title, "Importer un événnement pluviométrique Hcum(t)");
  EXPECT_EQ(g.Text(3, 2), "/pluies/juin 2024.plu");
  library.Run("mnSave");
  const int n = FindRainRecord(surface_, 127, "xPR_1");
  ASSERT_GT(n, 10);
  EXPECT_EQ(Tag(n, "FileSpec"), "/pluies/juin 2024.plu");
  EXPECT_EQ(Tag(n, "iGroup"), "-1");
}

TEST_F(PluImportTest, ImporterAsksAFileAndImportsItsBlocks) {
  const std::string path = File("PPHY 'Hy1'\n 0 0 1\n 2\n 0 0\n 10 20\n", "hy.txt");
  EditorContext context = Context();
  FrmPluImport library(context, "PPHY");
  ui_.Queue(path);
  library.Run("mnImporter");
  EXPECT_EQ(ui_.Messages().front().title, "Importer le fichier pluie");
  EXPECT_EQ(library.last_import().imported, 1);
  EXPECT_GT(FindRainRecord(surface_, 107, "Hy1"), 10);
  // A cancelled chooser imports nothing.
  library.Run("mnImporter");
  EXPECT_EQ(Count(107), 1);
}

TEST_F(PluImportTest, TheListedFilesAreLoadedAndAMissingOneIsNamed) {
  const std::string path = File("CAQ 'C1'\n 5 -0.5\n", "c.plu");
  const std::string missing = folder_.File("absent.plu");
  EditorContext context = Context();
  FrmPluImport library(context, "CAQ");
  Grid& g = library.grid();
  g.SetMaxRows(2);
  g.SetText(1, 1, "a");
  g.SetText(3, 1, missing);
  g.SetText(1, 2, "b");
  g.SetText(3, 2, path);
  library.Run("mnLoad");
  EXPECT_EQ(ui_.Messages().front().text, "fichier introuvable:\r" + missing);
  EXPECT_NE(
      std::find(ui_.Statuses().begin(), ui_.Statuses().end(), "c.plu en cours de chargement..."),
      ui_.Statuses().end());
  EXPECT_GT(FindRainRecord(surface_, 104, "C1"), 10);
  g.SetActiveCell(1, 2);
  library.Run("mnEdit");
  ASSERT_EQ(ui_.EditedFiles().size(), 1u);
  EXPECT_EQ(ui_.EditedFiles()[0], path);
}

}  // namespace
}  // namespace pluvane
