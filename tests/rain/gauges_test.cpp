#include <gtest/gtest.h>

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "rain/frm_plu_ht_crb.h"
#include "rain/frm_plu_rayon.h"
#include "rain/frm_plu_xy.h"
#include "rain/frm_preal_bib.h"
#include "rain_fixture.h"
#include "simulation/rain_file.h"

namespace pluvane {
namespace {

class GaugeTest : public RainTest {
 protected:
  int Gauge(const std::string& label, std::int32_t x) {
    const int n = AddGauge(x, 20000, x + 100, 20100);
    surface_.SetObjTag("libell", label);
    return n;
  }
  std::string Generate() {
    const std::string plu = folder_.File("t.PLU");
    EXPECT_EQ(GenFicPlu(surface_, ui_, state_.calibration, "Scn-1", folder_.File("t.Scn"), plu), 1);
    return ReadBytes(plu);
  }
};

TEST_F(GaugeTest, PluXyWritesTheLabelAndPosition) {
  Gauge("P1", 10000);
  const int second = Gauge("P2", 30000);
  surface_.SetCurrentObject(second);
  EditorContext context = Context();
  FrmPluXy form(context);
  EXPECT_EQ(form.Caption(), "Localisation du pluviographe");
  Grid& g = form.grid();
  EXPECT_EQ(g.Text(0, 1), "Identificateur (16 car maxi)=");
  EXPECT_EQ(g.Text(0, 2), "Abscisse X (m)=");
  EXPECT_EQ(g.Text(0, 3), "Ordonnée Y (m)=");
  EXPECT_EQ(g.Text(1, 1), "P2");
  g.SetText(1, 1, " Nord ");
  g.SetText(1, 2, "600100");
  g.SetText(1, 3, "2400200");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(Tag(second, "libell"), "Nord");
  EXPECT_EQ(Tag(second, "Xus"), "600100");
  EXPECT_EQ(Tag(second, "Yus"), "2400200");
}

TEST_F(GaugeTest, ASecondGaugeOfTheSameLabelIsRefused) {
  Gauge("P1", 10000);
  const int second = Gauge("P2", 30000);
  surface_.SetCurrentObject(second);
  const std::string xus = Tag(second, "Xus");
  EditorContext context = Context();
  FrmPluXy form(context);
  form.grid().SetText(1, 1, "p1");
  form.grid().SetText(1, 2, "1234");
  form.Run("cmdOk");
  ExpectLastMessage(ui_, "p1 existe déjà.", "Localisation du pluviographe",
                    MessageIcon::kExclamation);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(form.grid().Text(1, 1), "P2");
  EXPECT_EQ(Tag(second, "libell"), "P2");
  EXPECT_EQ(Tag(second, "Xus"), xus);
}

TEST_F(GaugeTest, TheRadiusIsDrawnWrittenAndRemoved) {
  AddRecord(105, "PST_1");
  surface_.SetObjTag("Ca", "5.9");
  surface_.SetObjTag("Cb", "-0.59");
  surface_.SetObjTag("Duree", "240");
  surface_.SetObjTag("Timax", "60");
  AddScenario("Scn-1", "PST_1", 105);
  EditorContext context = Context();
  {
    FrmPluRayon form(context);
    EXPECT_EQ(form.Caption(), "Rayon d'action de la pluie projet");
    EXPECT_EQ(form.grid().Text(0, 1), "Rayon d'action (m)=");
    EXPECT_EQ(form.grid().Text(0, 2), "Coord Xc (m)=");
    EXPECT_EQ(form.grid().Text(0, 3), "Coord Yc (m)=");
    EXPECT_EQ(form.grid().Text(1, 1), "");
    form.grid().SetText(1, 1, "5000");
    form.grid().SetText(1, 2, "30000");
    form.grid().SetText(1, 3, "60000");
    form.Run("cmdOk");
  }
  const int radius = FindRadius(surface_);
  ASSERT_GT(radius, 10);
  surface_.SetCurrentObject(radius);
  EXPECT_EQ(surface_.ObjectKind(), kKindEllipse);
  EXPECT_EQ(surface_.ObjLeft(), 25000);
  EXPECT_EQ(surface_.ObjTop(), 35000);
  EXPECT_EQ(surface_.ObjRight(), 35000);
  EXPECT_EQ(surface_.ObjBottom(), 45000);
  EXPECT_EQ(Tag(radius, "iName"), "17");
  EXPECT_EQ(Val(Tag(radius, "Xlog")), 30000);
  EXPECT_EQ(Val(Tag(radius, "Ylog")), 40000);
  EXPECT_EQ(Generate(),
            "PPST     'PST_1'\r\n    30000.    60000.    5000.0\r\n      5.90      -.59\r\n"
            "    240.00     60.00\r\n");
  {
    FrmPluRayon form(context);
    EXPECT_EQ(Val(form.grid().Text(1, 1)), 5000);
    EXPECT_EQ(Val(form.grid().Text(1, 2)), 30000);
    form.Run("cmdDel");
  }
  EXPECT_EQ(FindRadius(surface_), 0);
  // Without the radius the storm covers everything.
  EXPECT_EQ(Generate(),
            "PPST     'PST_1'\r\n    50000.    50000. 9999999.0\r\n      5.90      -.59\r\n"
            "    240.00     60.00\r\n");
}

TEST_F(GaugeTest, TheEventLibraryNeedsAGauge) {
  EditorContext context = Context();
  FrmPrealBib library(context);
  EXPECT_TRUE(library.Closed());
  ExpectLastMessage(ui_,
                    "Vous devez créer au moins un pluviomètre pour pouvoir\rdéfinir ensuite sa "
                    "pluviométrie en mode interne.",
                    "Pluviométrie en mode interne", MessageIcon::kInformation);
}

TEST_F(GaugeTest, AnEventIsEditedInItsWorkingFileAndSavedIntoItsTags) {
  Gauge("P1", 10000);
  Gauge("P2", 30000);
  EditorContext context = Context();
  FrmPrealBib library(context);
  ASSERT_FALSE(library.Closed());
  Grid& g = library.grid();
  EXPECT_EQ(g.ColHead(1), "Id. de l'événement pluvieux");
  EXPECT_EQ(g.ColHead(2), "Désignation de l'événement");
  EXPECT_EQ(g.ColHead(3), "Méthode d'interpolation");
  library.Run("mnAdd");
  EXPECT_EQ(g.Text(1, 1), "Pluie1");
  EXPECT_EQ(g.Text(3, 1), "1. Thiessen");
  EXPECT_EQ(Count(103), 0);
  g.SetText(2, 1, "Orage du 12");
  g.SetListIndex(3, 1, 1);
  on_form_ = [&](FormController& form) {
    auto* table = dynamic_cast<FrmPluHtCrb*>(&form);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->Caption(), "Evénement Pluie1 - courbe des hauteurs cumulées H(t)");
    Grid& t = table->grid();
    EXPECT_EQ(t.ColHead(1), " Temps (mn)");
    EXPECT_EQ(t.ColHead(2), "H(t) du pluvio P1");
    EXPECT_EQ(t.ColHead(3), "H(t) du pluvio P2");
    EXPECT_EQ(t.Text(1, 1), "Etat pluvio ->");
    t.SetText(2, 1, "0");
    t.SetText(3, 1, "1");
    table->Run("mnAdd");
    t.SetText(1, 2, "0");
    t.SetText(2, 2, "0");
    t.SetText(3, 2, "0");
    table->Run("mnSave");
    ExpectLastMessage(ui_, "Il faut au moins 2 lignes dans une courbe !", table->Caption(),
                      MessageIcon::kInformation);
    table->Run("mnAdd");
    t.SetText(1, 3, "0");
    t.SetText(2, 3, "2.5");
    table->Run("mnSave");
    ExpectLastMessage(ui_, "Les temps doivent être croissants !\r\n revoir ligne 2",
                      table->Caption(), MessageIcon::kExclamation);
    EXPECT_FALSE(table->Closed());
    t.SetText(1, 3, "10");
    table->Run("mnSave");
    EXPECT_TRUE(table->Closed());
  };
  library.ButtonCell(g, 5, 1);
  EXPECT_EQ(forms_opened_, 1);
  const std::string working = folder_.File("Pluie1.tmp");
  EXPECT_EQ(ReadBytes(working), "Etat pluvio ->\t0\t1\r\n0\t0\t0\r\n10\t2.5\r\n");
  // A blank line of the working file is no row.
  AppendTextLines(working, {"", "20\t3\t1"});
  library.Run("mnSave");
  EXPECT_TRUE(library.Closed());
  const int n = FindRainRecord(surface_, 103, "Pluie1");
  ASSERT_GT(n, 10);
  EXPECT_EQ(Tag(n, "Design"), "Orage du 12");
  EXPECT_EQ(Tag(n, "iModePluie"), "2. Distance pondérée");
  EXPECT_EQ(Tag(n, "NbPt"), "4");
  EXPECT_EQ(Tag(n, "Pt1"), "Etat pluvio ->\t0\t1");
  EXPECT_EQ(Tag(n, "Pt3"), "10\t2.5");
  EXPECT_EQ(Tag(n, "Pt4"), "20\t3\t1");
  EXPECT_FALSE(FileExist(working));

  // The second gauge has no value on the third row: the rain file writes 0 for it.
  AddScenario("Scn-1", "Pluie1", 103, "2. Distance pondérée");
  EXPECT_EQ(Generate(),
            "PR     'Pluie1'\r\n    2    1\r\n"
            "   'Plu_1'\r\n    10050.    79950.\r\n    3\r\n"
            "      0.00      0.00\r\n     10.00      2.50\r\n     20.00      3.00\r\n\r\n"
            "   'Plu_2'\r\n    30050.    79950.\r\n    3\r\n"
            "      0.00      0.00\r\n     10.00      0.00\r\n     20.00      1.00\r\n\r\n");
}

TEST_F(GaugeTest, TheTableOpensFromTheTagsWhenNoWorkingFileStands) {
  Gauge("P1", 10000);
  const int n = AddRecord(103, "Pluie1");
  surface_.SetObjTag("NbPt", "3");
  surface_.SetObjTag("Pt1", "Etat pluvio ->\t0");
  surface_.SetObjTag("Pt2", "0\t0");
  surface_.SetObjTag("Pt3", "10\t4");
  EditorContext context = Context();
  FrmPluHtCrb table(context, "Pluie1", n, folder_.File("Pluie1.tmp"));
  ASSERT_EQ(table.grid().MaxRows(), 3);
  EXPECT_EQ(table.grid().Text(2, 3), "4");
  table.Run("mnVisu");
  ASSERT_EQ(shown_.size(), 1u);
  EXPECT_EQ(viewer_.page_title, " Courbe Pluvio");
}

TEST_F(GaugeTest, ClosingTheLibraryWithoutSavingDropsTheWorkingFiles) {
  Gauge("P1", 10000);
  const int n = AddRecord(103, "Pluie1");
  surface_.SetObjTag("NbPt", "1");
  WriteTextLines(folder_.File("Pluie1.tmp"), {"Etat pluvio ->\t0", "0\t0", "5\t1"});
  WriteTextLines(folder_.File("Autre.tmp"), {"x"});
  EditorContext context = Context();
  FrmPrealBib library(context);
  library.Run("mnClose");
  EXPECT_FALSE(FileExist(folder_.File("Pluie1.tmp")));
  EXPECT_FALSE(FileExist(folder_.File("Autre.tmp")));
  EXPECT_EQ(Tag(n, "NbPt"), "1");
}

TEST_F(GaugeTest, TheEventLibraryChecksItsIdentifiersAndRenamesScenarios) {
  Gauge("P1", 10000);
  AddRecord(103, "Pluie1");
  AddRecord(103, "Pluie2");
  const int scenario = AddScenario("Scn-1", "Pluie2", 103);
  EditorContext context = Context();
  FrmPrealBib library(context);
  Grid& g = library.grid();
  g.SetText(1, 2, "PLUIE1");
  library.Run("mnSave");
  ExpectLastMessage(ui_, "Aucun doublon n'est permis.", "Pluviométrie en mode interne",
                    MessageIcon::kExclamation);
  EXPECT_FALSE(library.Closed());
  g.SetText(1, 2, "Orage");
  library.LeaveCell(g, 1, 2);
  EXPECT_EQ(Tag(scenario, "IdPluie"), "Orage");
  g.SetText(1, 1, "");
  library.Run("mnSave");
  ExpectLastMessage(ui_, "Renseignez tous les identificateurs.", "Pluviométrie en mode interne",
                    MessageIcon::kNone);
  EXPECT_EQ(Count(103), 2);
}

}  // namespace
}  // namespace pluvane

namespace pluvane {
namespace {

class RadiusTest : public RainTest {};

TEST_F(RadiusTest, ACircleJustDrawnShowsItsCentreAndRadiusAndReplacesTheOldOne) {
  const int old_radius = AddRadius(0, 0, 100, 100);
  surface_.SetObjTag("Rayon", "50");
  const int drawn = AddRadius(20000, 60000, 30000, 70000);
  surface_.SetCurrentObject(drawn);
  EditorContext context = Context();
  FrmPluRayon form(context);
  EXPECT_EQ(form.grid().Text(1, 1), "5000");
  EXPECT_EQ(form.grid().Text(1, 2), "25000");
  EXPECT_EQ(form.grid().Text(1, 3), "35000");
  form.grid().SetText(1, 1, "4000");
  form.Run("cmdOk");
  EXPECT_FALSE(Exists(old_radius));
  ASSERT_TRUE(Exists(drawn));
  EXPECT_EQ(FindRadius(surface_), drawn);
  EXPECT_EQ(Tag(drawn, "Rayon"), "4000");
  EXPECT_EQ(Count(17), 1);
}

}  // namespace
}  // namespace pluvane
