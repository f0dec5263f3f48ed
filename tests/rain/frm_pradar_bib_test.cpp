#include "rain/frm_pradar_bib.h"

#include <gtest/gtest.h>

#include "rain_fixture.h"
#include "simulation/rain_file.h"

namespace pluvane {
namespace {

class RadarTest : public RainTest {};

TEST_F(RadarTest, PathsAreChosenSavedAndWrittenWhole) {
  EditorContext context = Context();
  FrmPradarBib library(context);
  EXPECT_EQ(library.Caption(), "Bibliothèque des événements pluvieux de source radar");
  Grid& g = library.grid();
  EXPECT_EQ(g.ColHead(1), "Désignation de l'événement");
  EXPECT_EQ(g.ColHead(2), "Commentaire");
  EXPECT_EQ(g.ColHead(3), "Fichier des surfaces actives des sous-BV découpés (*.CRB)");
  EXPECT_EQ(g.ColHead(5), "Fichier des hyétogrammes des mailles radars (*.PRF)");
  library.Run("mnAdd");
  EXPECT_EQ(g.Text(4, 1), "parcourir...");
  ui_.Queue("/data/radar juin/surfaces actives.Crb");
  library.ButtonCell(g, 4, 1);
  EXPECT_EQ(ui_.Last().kind, "open");
  ui_.Queue("/data/radar juin/mailles.Prf");
  library.ButtonCell(g, 6, 1);
  EXPECT_EQ(g.Text(3, 1), "/data/radar juin/surfaces actives.Crb");
  g.SetText(1, 1, "Orage");
  g.SetText(5, 1, " /data/radar juin/mailles.Prf ");
  library.Run("mnSave");
  EXPECT_TRUE(library.Closed());
  const int n = FindRainRecord(surface_, 108, "Orage");
  ASSERT_GT(n, 10);
  EXPECT_EQ(Tag(n, "CrbFile"), "/data/radar juin/surfaces actives.Crb");
  EXPECT_EQ(Tag(n, "PrfFile"), "/data/radar juin/mailles.Prf");
  EXPECT_EQ(Tag(n, "iGroup"), "-1");
  AddScenario("Scn-1", "Orage", 108);
  const std::string plu = folder_.File("t.PLU");
  ASSERT_EQ(GenFicPlu(surface_, ui_, state_.calibration, "Scn-1", folder_.File("t.Scn"), plu), 1);
  EXPECT_EQ(ReadBytes(plu),
            "PRAD    'Orage'\r\n/data/radar juin/surfaces actives.Crb\r\n"
            "/data/radar juin/mailles.Prf\r\n");
}

TEST_F(RadarTest, ARenamedEventStaysTheScenariosRain) {
  AddRecord(108, "Radar1");
  const int scenario = AddScenario("Scn-1", "Radar1", 108);
  EditorContext context = Context();
  FrmPradarBib library(context);
  library.grid().SetText(1, 1, "Orage");
  library.LeaveCell(library.grid(), 1, 1);
  library.Run("mnSave");
  EXPECT_EQ(Tag(scenario, "IdPluie"), "Orage");
  EXPECT_GT(FindRainRecord(surface_, 108, "Orage"), 10);
  EXPECT_EQ(Count(108), 1);
}

TEST_F(RadarTest, ACancelledChooserLeavesThePath) {
  AddRecord(108, "Radar1");
  surface_.SetObjTag("CrbFile", "a.Crb");
  EditorContext context = Context();
  FrmPradarBib library(context);
  library.ButtonCell(library.grid(), 4, 1);
  EXPECT_EQ(library.grid().Text(3, 1), "a.Crb");
}

}  // namespace
}  // namespace pluvane

namespace pluvane {
namespace {

TEST_F(RadarTest, ADoubleClickOpensNothingWhereRowsHaveNoEdition) {
  EditorContext context = Context();
  FrmPradarBib library(context);
  library.grid().SetMaxRows(1);
  library.grid().SetText(1, 1, "Orage");
  library.DoubleClickCell(library.grid(), 1, 1);
  EXPECT_EQ(forms_opened_, 0);
  EXPECT_EQ(Count(108), 0);
}

}  // namespace
}  // namespace pluvane
