#include "rain/storm_libraries.h"

#include <gtest/gtest.h>

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "rain/frm_pit_plus.h"
#include "rain/frm_storm_plus.h"
#include "rain_fixture.h"
#include "simulation/rain_file.h"

namespace pluvane {
namespace {

class StormLibraryTest : public RainTest {};

TEST_F(StormLibraryTest, EachLibraryHasItsTitleAndListsItsKind) {
  AddRecord(104, "CAQ_1", "Caquot décennal");
  AddRecord(105, "PST_1", "Triangle");
  EditorContext context = Context();
  FrmCaqBib caq(context);
  EXPECT_EQ(caq.Caption(), "Pluie Caquot (CAQ)");
  ASSERT_EQ(caq.grid().MaxRows(), 1);
  EXPECT_EQ(caq.grid().Text(1, 1), "CAQ_1");
  EXPECT_EQ(caq.grid().Text(2, 1), "Caquot décennal");
  EXPECT_EQ(caq.grid().ColHead(2), "Commentaire");
  EXPECT_EQ(caq.grid().ColHead(3), "Edition de données");
  EXPECT_EQ(caq.grid().Text(3, 1), "&Editer...");
  EXPECT_EQ(FrmPstBib(context).Caption(), "Bibliothèque Pluie Simple Triangle (PST)");
  EXPECT_EQ(FrmPdtBib(context).Caption(), "Bibliothèque Pluie Double Triangle (PDT)");
  EXPECT_EQ(FrmPitBib(context).Caption(), "Bibliothèque le la Pluie Synthétique (PIT)");
  EXPECT_EQ(FrmPdtBib(context).grid().MaxRows(), 0);
}

TEST_F(StormLibraryTest, AddNamesTheRowAndMakesTheRecordAtOnce) {
  EditorContext context = Context();
  FrmPstBib library(context);
  library.Run("mnAdd");
  library.Run("mnAdd");
  EXPECT_EQ(library.grid().Text(1, 2), "PST_2");
  const int n = FindRainRecord(surface_, 105, "PST_2");
  ASSERT_GT(n, 10);
  EXPECT_EQ(Tag(n, "iGroup"), "-1");
  EXPECT_EQ(Tag(n, "iName"), "105");
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(StormLibraryTest, ADoubleTakesOneSuffixAndAFurtherClashIsRefusedAtSave) {
  for (const char* id : {"CAQ_1", "CAQ_2", "CAQ_3", "CAQ_5"}) AddRecord(104, id);
  EditorContext context = Context();
  FrmCaqBib library(context);
  library.Run("mnAdd");
  Grid& g = library.grid();
  EXPECT_EQ(g.Text(1, 5), "CAQ_5_1");
  EXPECT_GT(FindRainRecord(surface_, 104, "CAQ_5_1"), 10);
  EXPECT_EQ(FindRainRecord(surface_, 104, "CAQ_5"), FindRainRecord(surface_, 104, "CAQ_5"));
  EXPECT_EQ(Count(104), 5);
  // The sixth row would read CAQ_6: rename the fifth so that the next one clashes twice.
  g.SetText(1, 5, "CAQ_6_1");
  library.LeaveCell(g, 1, 5);
  ui_.Clear();
  library.Run("mnAdd");
  EXPECT_EQ(g.Text(1, 6), "CAQ_6");
  g.SetText(1, 6, "CAQ_6_1");
  library.Run("mnSave");
  ExpectLastMessage(ui_, "Attention à la colonne 'Désignation'\rdoublon entre les lignes 5 et 6",
                    "Contrôle de doublon", MessageIcon::kExclamation);
  EXPECT_FALSE(library.Closed());
}

TEST_F(StormLibraryTest, ADeletedRowIsMarkedAndGoesAtSave) {
  AddRecord(104, "CAQ_1");
  const int second = AddRecord(104, "CAQ_2");
  EditorContext context = Context();
  FrmCaqBib library(context);
  library.grid().SetActiveCell(1, 2);
  library.Run("mnDel");
  EXPECT_EQ(Tag(second, "okDel"), "$");
  EXPECT_EQ(library.grid().MaxRows(), 2);
  library.Run("mnSave");
  EXPECT_TRUE(library.Closed());
  EXPECT_EQ(FindRainRecord(surface_, 104, "CAQ_2"), 0);
  EXPECT_EQ(Count(104), 1);
}

TEST_F(StormLibraryTest, SaveWritesEveryRowTrimmed) {
  AddRecord(106, "PDT_1");
  EditorContext context = Context();
  FrmPdtBib library(context);
  library.grid().SetText(2, 1, "  Orage  ");
  library.Run("mnSave");
  const int n = FindRainRecord(surface_, 106, "PDT_1");
  EXPECT_EQ(Tag(n, "UsId"), "Orage");
  EXPECT_EQ(Tag(n, "iGroup"), "-1");
}

TEST_F(StormLibraryTest, AnEmptyNameIsRefusedAtSave) {
  AddRecord(104, "CAQ_1");
  EditorContext context = Context();
  FrmCaqBib library(context);
  library.grid().SetText(1, 1, " ");
  library.grid().SetText(2, 1, "changé");
  library.Run("mnSave");
  ExpectLastMessage(ui_, "Donnée non renseignée dans la colonne 'Désignation'\r à la ligne 1",
                    "Pluie Caquot (CAQ)", ui_.Last().icon);
  EXPECT_EQ(Tag(FindRainRecord(surface_, 104, "CAQ_1"), "UsId"), "");
}

TEST_F(StormLibraryTest, RenamingAStormRewritesIdPluieInAllScenarios) {
  AddRecord(105, "PST_1");
  const int s1 = AddScenario("Scn-1", "PST_1", 105);
  const int s2 = AddScenario("Scn-2", "pst_1 ", 105);
  const int s3 = AddScenario("Scn-3", "PST_2", 105);
  EditorContext context = Context();
  FrmPstBib library(context);
  library.grid().SetText(1, 1, "Projet10");
  library.LeaveCell(library.grid(), 1, 1);
  EXPECT_GT(FindRainRecord(surface_, 105, "Projet10"), 10);
  EXPECT_EQ(Tag(s1, "IdPluie"), "Projet10");
  EXPECT_EQ(Tag(s2, "IdPluie"), "Projet10");
  EXPECT_EQ(Tag(s3, "IdPluie"), "PST_2");
}

TEST_F(StormLibraryTest, TheEditButtonOpensTheStormAndMakesItsRecordWhenMissing) {
  EditorContext context = Context();
  FrmPdtBib library(context);
  library.grid().SetMaxRows(1);
  library.grid().SetText(1, 1, " PDT_9 ");
  std::string caption;
  on_form_ = [&](FormController& form) {
    ASSERT_NE(dynamic_cast<FrmStormPlus*>(&form), nullptr);
    caption = form.Caption();
  };
  library.ButtonCell(library.grid(), 3, 1);
  EXPECT_EQ(forms_opened_, 1);
  EXPECT_EQ(caption, "Pluie double triangle PDT_9");
  EXPECT_GT(FindRainRecord(surface_, 106, "PDT_9"), 10);
  on_form_ = [&](FormController& form) { EXPECT_NE(dynamic_cast<FrmPitPlus*>(&form), nullptr); };
  FrmPitBib pit(context);
  pit.Run("mnAdd");
  pit.DoubleClickCell(pit.grid(), 1, 1);
  EXPECT_EQ(forms_opened_, 2);
}

class StormPlusTest : public RainTest {
 protected:
  void Entries() {
    AddMontana("Mont1", "5.9", "-0.59", "Paris", "10");
    AddMontana("Mont2", "6.7", "-0.55", "Lyon", "20");
  }
  // Chooses entry `row` of the library for the Montana grid `grid`.
  void Choose(FrmStormPlus& form, Grid& grid, int row) {
    form.ButtonCell(grid, FrmStormPlus::kColChoose, 1);
    EXPECT_TRUE(form.library().Visible());
    form.DoubleClickCell(form.library(), 1, row);
    EXPECT_FALSE(form.library().Visible());
  }
};

TEST_F(StormPlusTest, AStormWithoutMontanaEntryCannotBeSaved) {
  Entries();
  const int n = AddRecord(104, "CAQ_1");
  EditorContext context = Context();
  FrmCaqPlus form(context, "CAQ_1", n);
  EXPECT_FALSE(form.library().Visible());
  EXPECT_EQ(form.library().MaxRows(), 2);
  form.Run("mnSave");
  ExpectLastMessage(ui_, "Renseignez toutes les données necessaires", "Pluie Caquot CAQ_1",
                    MessageIcon::kExclamation);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(Tag(n, "IdMonta"), "");
  EXPECT_EQ(Tag(n, "Ca"), "");
}

TEST_F(StormPlusTest, ChosenEntryIsCopiedIntoTheStorm) {
  Entries();
  const int n = AddRecord(104, "CAQ_1");
  EditorContext context = Context();
  FrmCaqPlus form(context, "CAQ_1", n);
  Choose(form, form.montana(), 2);
  EXPECT_EQ(ui_.Statuses().back(), "Mont2");
  EXPECT_EQ(form.montana().Text(1, 1), "Mont2");
  EXPECT_EQ(form.montana().Text(4, 1), "6.7");
  form.Run("mnSave");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(Tag(n, "IdMonta"), "Mont2");
  EXPECT_EQ(Tag(n, "Design"), "Lyon");
  EXPECT_EQ(Val(Tag(n, "Pret")), 20);
  EXPECT_EQ(Val(Tag(n, "Ca")), 6.7);
  EXPECT_EQ(Val(Tag(n, "Cb")), -0.55);
  EXPECT_EQ(Tag(n, "iGroup"), "-1");
  EXPECT_EQ(Tag(n, "iName"), "104");
  // Opened again, the storm shows its copy.
  FrmCaqPlus again(context, "CAQ_1", n);
  EXPECT_EQ(again.montana().Text(1, 1), "Mont2");
  EXPECT_EQ(again.montana().Text(2, 1), "Lyon");
}

TEST_F(StormPlusTest, EscapeHidesTheLibraryWithoutChoosing) {
  Entries();
  EditorContext context = Context();
  FrmCaqPlus form(context, "CAQ_1", 0);
  form.ButtonCell(form.montana(), FrmStormPlus::kColChoose, 1);
  form.HideLibrary();
  form.DoubleClickCell(form.library(), 1, 1);
  EXPECT_EQ(form.montana().Text(1, 1), "");
}

TEST_F(StormPlusTest, TheDoubleTriangleAsksForBothEntries) {
  Entries();
  const int n = AddRecord(106, "PDT_1");
  EditorContext context = Context();
  FrmPdtPlus form(context, "PDT_1", n);
  EXPECT_EQ(form.montana().Text(0, 1), "Coef. de Montana pour l'épisode total");
  EXPECT_EQ(form.montana_int().Text(0, 1), "Coef de Montana pour l'épisode intense");
  EXPECT_EQ(form.triangle().Text(0, 1), "Durée totale de l'épisode pluvieux (mn)=");
  EXPECT_EQ(form.triangle().Text(0, 2), "Durée de l'épisode intense (mn)=");
  EXPECT_EQ(form.triangle().Text(0, 3), "Instant du pic pluvieux (mn)=");
  Choose(form, form.montana(), 1);
  form.triangle().SetText(1, 1, "240");
  form.triangle().SetText(1, 2, "30");
  form.triangle().SetText(1, 3, "120");
  form.Run("mnSave");
  ExpectLastMessage(ui_, "Renseignez toutes les données necessaires", "Pluie double triangle PDT_1",
                    MessageIcon::kExclamation);
  EXPECT_EQ(Tag(n, "IdTot"), "");
  Choose(form, form.montana_int(), 2);
  form.Run("mnSave");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(Tag(n, "IdTot"), "Mont1");
  EXPECT_EQ(Tag(n, "DesignTot"), "Paris");
  EXPECT_EQ(Val(Tag(n, "CaTot")), 5.9);
  EXPECT_EQ(Tag(n, "IdInt"), "Mont2");
  EXPECT_EQ(Val(Tag(n, "PretInt")), 20);
  EXPECT_EQ(Val(Tag(n, "CbInt")), -0.55);
  EXPECT_EQ(Val(Tag(n, "DureeTot")), 240);
  EXPECT_EQ(Val(Tag(n, "DureeInt")), 30);
  EXPECT_EQ(Val(Tag(n, "Timax")), 120);
}

TEST_F(StormPlusTest, TimaxOutsideTheDurationIsNotChecked) {
  Entries();
  const int n = AddRecord(105, "PST_1");
  EditorContext context = Context();
  FrmPstPlus form(context, "PST_1", n);
  EXPECT_EQ(form.triangle().Text(0, 1), "Durée totale de la précipitation (mn)=");
  EXPECT_EQ(form.triangle().Text(0, 2), "Instant du pic pluvieux (mn)=");
  Choose(form, form.montana(), 1);
  form.triangle().SetText(1, 1, "60");
  form.Run("mnSave");
  ExpectLastMessage(ui_, "Renseignez toutes les données necessaires", "Pluie simple triangle PST_1",
                    MessageIcon::kExclamation);
  form.triangle().SetText(1, 2, "200");
  form.Run("mnSave");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(Val(Tag(n, "Duree")), 60);
  EXPECT_EQ(Val(Tag(n, "Timax")), 200);
}

TEST_F(StormPlusTest, AnEditedSimpleTriangleGeneratesItsBlock) {
  Entries();
  const int n = AddRecord(105, "PST_1");
  AddScenario("Scn-1", "PST_1", 105);
  EditorContext context = Context();
  FrmPstPlus form(context, "PST_1", n);
  Choose(form, form.montana(), 1);
  form.triangle().SetText(1, 1, "240");
  form.triangle().SetText(1, 2, "60.5");
  form.Run("mnSave");
  const std::string plu = folder_.File("t.PLU");
  ASSERT_EQ(GenFicPlu(surface_, ui_, state_.calibration, "Scn-1", folder_.File("t.Scn"), plu), 1);
  EXPECT_EQ(ReadBytes(plu),
            "PPST     'PST_1'\r\n"
            "    50000.    50000. 9999999.0\r\n"
            "      5.90      -.59\r\n"
            "    240.00     60.50\r\n");
}

class PitPlusTest : public RainTest {};

TEST_F(PitPlusTest, ACurveNeedsTwoRowsAndRisingTimes) {
  const int n = AddRecord(107, "PIT_1");
  EditorContext context = Context();
  FrmPitPlus form(context, "PIT_1", n);
  Grid& g = form.grid();
  EXPECT_EQ(g.ColHead(1), "Temps (mn)");
  EXPECT_EQ(g.ColHead(2), "Intensité (mm/h)");
  form.Run("mnAdd");
  g.SetText(1, 1, "0");
  g.SetText(2, 1, "10");
  form.Run("mnSave");
  ExpectLastMessage(ui_, "Il faut au moins 2 lignes dans une courbe !", "Pluie de projet I(t)",
                    MessageIcon::kInformation);
  form.Run("mnAdd");
  form.Run("mnSave");
  ExpectLastMessage(ui_, "Renseignez toutes les données necessaires", "Pluie de projet I(t)",
                    MessageIcon::kExclamation);
  g.SetText(1, 2, "10");
  g.SetText(2, 2, "50");
  form.Run("mnAdd");
  g.SetText(1, 3, "10");
  g.SetText(2, 3, "5");
  form.Run("mnSave");
  ExpectLastMessage(ui_, "Les temps doivent être croissants !\r\n revoir ligne 2",
                    "Pluie de projet I(t)", MessageIcon::kExclamation);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(Tag(n, "NbPt"), "");
  g.SetText(1, 3, "20");
  form.Run("mnSave");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(Tag(n, "NbPt"), "3");
  EXPECT_EQ(Val(Tag(n, "X3")), 20);
  EXPECT_EQ(Val(Tag(n, "Y2")), 50);
  FrmPitPlus again(context, "PIT_1", n);
  EXPECT_EQ(again.grid().MaxRows(), 3);
  EXPECT_EQ(Val(again.grid().Text(2, 3)), 5);
}

TEST_F(PitPlusTest, VisuShowsTheCurveThroughTheViewer) {
  EditorContext context = Context();
  FrmPitPlus form(context, "PIT_1", 0);
  Grid& g = form.grid();
  g.SetMaxRows(3);
  const char* values[3][2] = {{"0", "0"}, {"10", "60"}, {"30", "0"}};
  for (int r = 0; r < 3; ++r) {
    g.SetText(1, r + 1, values[r][0]);
    g.SetText(2, r + 1, values[r][1]);
  }
  form.Run("mnVisu");
  ASSERT_EQ(shown_.size(), 1u);
  EXPECT_EQ(shown_[0], folder_.File("Vistrel.Mst"));
  EXPECT_EQ(viewer_.page_title, " Pluie synthétique PluieIt");
  EXPECT_TRUE(FileExist(folder_.File("xy.crb")));
  EXPECT_EQ(ReadBytes(folder_.File("Vistrel.Mst")), ReadBytes(folder_.File("xy.mst")));
}

}  // namespace
}  // namespace pluvane

namespace pluvane {
namespace {

class StormGenerationTest : public RainTest {
 protected:
  std::string Generate() {
    const std::string plu = folder_.File("t.PLU");
    EXPECT_EQ(GenFicPlu(surface_, ui_, state_.calibration, "Scn-1", folder_.File("t.Scn"), plu), 1);
    return ReadBytes(plu);
  }
};

TEST_F(StormGenerationTest, AnEditedCaquotGeneratesItsBlock) {
  AddMontana("Mont1", "5.9", "-0.59");
  AddScenario("Scn-1", "CAQ_1", 104);
  EditorContext context = Context();
  FrmCaqBib library(context);
  library.Run("mnAdd");
  on_form_ = [](FormController& form) {
    auto& storm = dynamic_cast<FrmStormPlus&>(form);
    storm.ButtonCell(storm.montana(), FrmStormPlus::kColChoose, 1);
    storm.DoubleClickCell(storm.library(), 1, 1);
    storm.Run("mnSave");
  };
  library.ButtonCell(library.grid(), 3, 1);
  library.Run("mnSave");
  EXPECT_EQ(Generate(), "CAQ       'CAQ_1'\r\n      5.90      -.59\r\n");
}

TEST_F(StormGenerationTest, AnEditedDoubleTriangleGeneratesItsBlock) {
  AddMontana("Mont1", "5.9", "-0.59");
  AddMontana("Mont2", "12.25", "-0.8");
  AddScenario("Scn-1", "PDT_1", 106);
  const int n = AddRecord(106, "PDT_1");
  EditorContext context = Context();
  FrmPdtPlus form(context, "PDT_1", n);
  form.ButtonCell(form.montana(), FrmStormPlus::kColChoose, 1);
  form.DoubleClickCell(form.library(), 1, 1);
  form.ButtonCell(form.montana_int(), FrmStormPlus::kColChoose, 1);
  form.DoubleClickCell(form.library(), 1, 2);
  form.triangle().SetText(1, 1, "240");
  form.triangle().SetText(1, 2, "30");
  form.triangle().SetText(1, 3, "100");
  form.Run("mnSave");
  EXPECT_EQ(Generate(),
            "PPDT     'PDT_1'\r\n    50000.    50000. 9999999.0\r\n      5.90      -.59\r\n"
            "     12.25      -.80\r\n    240.00     30.00    100.00\r\n");
}

TEST_F(StormGenerationTest, AnEditedSyntheticStormGeneratesItsBlock) {
  AddScenario("Scn-1", "PIT_1", 107);
  EditorContext context = Context();
  FrmPitPlus form(context, "PIT_1", 0);
  form.Run("mnAdd");
  form.Run("mnAdd");
  form.grid().SetText(1, 1, "0");
  form.grid().SetText(2, 1, "0");
  form.grid().SetText(1, 2, "15");
  form.grid().SetText(2, 2, "72.5");
  form.Run("mnSave");
  EXPECT_EQ(
      Generate(),
      "PPHY     'PIT_1'\r\n    50000.    50000. 9999999.0\r\n    2\r\n      0.00      0.00\r\n"
      "     15.00     72.50\r\n");
}

}  // namespace
}  // namespace pluvane

namespace pluvane {
namespace {

TEST_F(StormLibraryTest, ADeletedRowOpensNoEdition) {
  AddRecord(104, "CAQ_1");
  EditorContext context = Context();
  FrmCaqBib library(context);
  library.grid().SetActiveCell(1, 1);
  library.Run("mnDel");
  library.ButtonCell(library.grid(), 3, 1);
  EXPECT_EQ(forms_opened_, 0);
}

}  // namespace
}  // namespace pluvane
