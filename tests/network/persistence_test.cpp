#include "network/persistence.h"
#include "network/view_zoom.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/ini_profile.h"
#include "foundation/numbers.h"
#include "network/network_parameters.h"
#include "network/placement.h"
#include "network/session_fixture.h"
#include "drawing/surface_helpers.h"

namespace pluvane {
namespace {

class PersistenceTest : public SessionTest {
 protected:
  int AddElement(int i_name, const std::string& id, std::int32_t x = 1000, std::int32_t y = 1000) {
    const int n = surface_.AddObject(kKindRectangle, x, y, x + 100, y + 100);
    surface_.SetObjTag("iName", i_name);
    surface_.SetObjTag("Id", id);
    surface_.SetObjTag("libell", id);
    return n;
  }
  // Saves the drawing as a network file of the folder and empties it.
  std::string SaveAndClear(const std::string& name) {
    NetworkSession s = Session();
    const std::string path = folder_.File(name);
    EXPECT_TRUE(SaveNetwork(s, path));
    surface_.ClearDrawing();
    state_.NetworkFile.clear();
    ui_.Clear();
    return path;
  }
};

TEST_F(PersistenceTest, NetworkPathsHoldMtfAnywhere) {
  EXPECT_TRUE(IsNetworkPath("/a/reseau.mtf"));
  EXPECT_TRUE(IsNetworkPath("/a/reseau.MTF.bak"));
  EXPECT_TRUE(IsNetworkPath("/a.mtf/plan.png"));
  EXPECT_FALSE(IsNetworkPath("/a/reseau.txt"));
}

TEST_F(PersistenceTest, AskSaveCurrentIsSilentOnAnEmptyDrawing) {
  NetworkSession s = Session();
  EXPECT_EQ(AskSaveCurrent(s, ""), 0);
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(PersistenceTest, AskSaveCurrentNamesThePathOrAQuestionMark) {
  NetworkSession s = Session();
  AddElement(99, "Nod_1");
  EXPECT_EQ(AskSaveCurrent(s, ""), kAnswerYes);
  ExpectLastMessage(ui_, "Voulez-vous sauvegarder le réseau en cours ?\r?", "Sauvegarde",
                    MessageIcon::kQuestion, "yesnocancel");
  ui_.QueueNo();
  EXPECT_EQ(AskSaveCurrent(s, "/x/r.mtf"), kAnswerNo);
  EXPECT_EQ(ui_.Last().text, "Voulez-vous sauvegarder le réseau en cours ?\r/x/r.mtf");
  ui_.QueueCancel();
  EXPECT_EQ(AskSaveCurrent(s, "/x/r.mtf"), kAnswerCancel);
  EXPECT_EQ(ui_.Statuses().back(), "");
}

TEST_F(PersistenceTest, SavingWritesTheParameterRecords) {
  AddElement(99, "Nod_1");
  state_.CalcDuree = 240;
  state_.ZoomFactor = 0.5;
  surface_.SetViewLeft(1234.4);
  const std::string path = SaveAndClear("r.mtf");
  ASSERT_TRUE(surface_.LoadFile(path, 0));
  ASSERT_GT(FindObject(surface_, "Id", kParamReseau), 10);
  EXPECT_EQ(surface_.ObjTagName(0), "Id");
  EXPECT_EQ(surface_.ObjTag("CalcDuree"), "240");
  EXPECT_EQ(surface_.ObjTag("Xecran"), "100000");
  EXPECT_EQ(surface_.ObjTag("XLAMU"), "1");
  EXPECT_EQ(surface_.ObjTag("iName"), "");
  ASSERT_GT(FindObject(surface_, "Id", kZoomFactors), 10);
  EXPECT_EQ(surface_.ObjTag("iGroup"), "-1");
  EXPECT_EQ(surface_.ObjTag("zZoom"), "0.5");
  EXPECT_EQ(surface_.ObjTag("zDx"), "1234");
  EXPECT_EQ(CountByTag(surface_, "Id", kParamReseau), 1);
}

TEST_F(PersistenceTest, OpeningTakesTheExtentsOfTheFile) {
  AddElement(99, "Nod_1");
  state_.LogicWidth = 20000;
  state_.LogicHeight = 20000;
  const std::string path = SaveAndClear("grand.mtf");
  state_.LogicWidth = 5000;
  state_.LogicHeight = 5000;
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, path));
  EXPECT_EQ(state_.LogicWidth, 20000);
  EXPECT_EQ(state_.LogicHeight, 20000);
  EXPECT_EQ(surface_.LogicWidth(), 20000);
  EXPECT_EQ(state_.NetworkFile, path);
  EXPECT_EQ(state_.WorkDir, folder_.Path());
  EXPECT_EQ(ui_.Panel("caption"), path);
  EXPECT_EQ(recent_.Captions().front(), path);
}

TEST_F(PersistenceTest, TheCoordinateSystemIsSavedAndOpenedAgain) {
  AddElement(99, "Nod_1");
  state_.CoordinateSystem = "EPSG:2154";
  const std::string path = SaveAndClear("crs.mtf");
  ASSERT_TRUE(surface_.LoadFile(path, 0));
  ASSERT_GT(FindObject(surface_, "Id", kParamReseau), 10);
  EXPECT_EQ(surface_.ObjTag("SysCoord"), "EPSG:2154");
  surface_.ClearDrawing();
  state_.CoordinateSystem.clear();
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, path));
  EXPECT_EQ(state_.CoordinateSystem, "EPSG:2154");
}

TEST_F(PersistenceTest, ANetworkWithoutCoordinateSystemOpensWithNone) {
  AddElement(99, "Nod_1");
  const std::string path = SaveAndClear("sans.mtf");
  ASSERT_TRUE(surface_.LoadFile(path, 0));
  ASSERT_GT(FindObject(surface_, "Id", kParamReseau), 10);
  // No tag at all when there is none: older programs read the file as before.
  for (int i = 0; i < surface_.ObjTagCount(); ++i) EXPECT_NE(surface_.ObjTagName(i), "SysCoord");
  surface_.ClearDrawing();
  state_.CoordinateSystem = "EPSG:4326";
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, path));
  EXPECT_EQ(state_.CoordinateSystem, "");
}

TEST_F(PersistenceTest, ANetworkWithoutZoomFactorsKeepsThePresentZoom) {
  AddElement(99, "Nod_1", 30000, 30000);
  const std::string path = folder_.File("sans_zoom.mtf");
  ASSERT_TRUE(surface_.SaveFile(path, kNativeFormat));
  surface_.ClearDrawing();
  state_.ZoomFactor = 0.3;
  surface_.SetViewLeft(25000);
  surface_.SetViewTop(25000);
  surface_.SetViewWidth(30000);
  surface_.SetViewHeight(30000);
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, path));
  EXPECT_EQ(state_.ZoomFactor, 0.3);
  EXPECT_EQ(surface_.ViewLeft(), 25000);
  EXPECT_EQ(surface_.ViewWidth(), 30000);
}

TEST_F(PersistenceTest, ANetworkWithoutZoomFactorsIsNeverCutAtTheEdgeOfTheView) {
  AddElement(99, "Nod_1", 10000, 20000);
  AddElement(99, "Nod_2", 90000, 30000);
  const std::string path = folder_.File("sans_zoom.mtf");
  ASSERT_TRUE(surface_.SaveFile(path, kNativeFormat));
  surface_.ClearDrawing();
  // The first view of the program: a quarter of the drawing, which holds Nod_1 alone.
  state_.ClientWidth = 1000;
  state_.ClientHeight = 500;
  ZoomToRect(surface_, state_, 0, 0, 50000, 25000);
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, path));
  // Both nodes in the view, the network in its middle, a margin of 5 % around it.
  const double left = surface_.ViewLeft(), top = surface_.ViewTop();
  const double width = surface_.ViewWidth(), height = surface_.ViewHeight();
  EXPECT_NEAR(left + width / 2, (10000 + 90100) / 2.0, 1);
  EXPECT_NEAR(top + height / 2, (20000 + 30100) / 2.0, 1);
  EXPECT_NEAR(width, 80100 * 1.1, 1);
  EXPECT_NEAR(height, width / 2, 1);
  EXPECT_LT(left, 10000);
  EXPECT_GT(left + width, 90100);
}

TEST_F(PersistenceTest, TheSavedViewComesBack) {
  AddElement(99, "Nod_1", 40000, 40000);
  state_.ZoomFactor = 0.2;
  surface_.SetViewLeft(35000);
  surface_.SetViewTop(36000);
  const std::string path = SaveAndClear("vue.mtf");
  state_.ZoomFactor = 1;
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, path));
  EXPECT_EQ(state_.ZoomFactor, 0.2);
  EXPECT_EQ(surface_.ViewLeft(), 35000);
  EXPECT_EQ(surface_.ViewTop(), 36000);
  EXPECT_EQ(surface_.ViewWidth(), 20000);
}

TEST_F(PersistenceTest, AFileWithoutNetworkObjectsOpensWithCountersAtZero) {
  surface_.AddObject(kKindEllipse, 0, 0, 10, 10);
  const std::string path = folder_.File("vide.mtf");
  ASSERT_TRUE(surface_.SaveFile(path, kNativeFormat));
  surface_.ClearDrawing();
  state_.ElementCounters.fill(9);
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, path));
  for (int i = 1; i <= 99; ++i) EXPECT_EQ(state_.ElementCounters[i], 0) << i;
  EXPECT_EQ(state_.NodeCount, 0);
}

TEST_F(PersistenceTest, CountersTakeTheLargestNumberOfEachKind) {
  AddElement(5, "Cac_12");
  AddElement(5, "Cac_57");
  AddElement(5, "Cac_3");
  AddElement(99, "Nod_4");
  AddElement(99, "Nod_2");
  const std::string path = SaveAndClear("c.mtf");
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, path));
  EXPECT_EQ(state_.ElementCounters[5], 57);
  EXPECT_EQ(state_.ElementCounters[99], 4);
  EXPECT_EQ(state_.NodeCount, 2);
  // The next ones placed follow the largest numbers.
  state_.SymbolDir = std::string(PLUVANE_DATA) + "/Symboles";
  const int a = DrawSymbol(surface_, state_, ui_, 1000, 1000, "X_NOD");
  const int b = DrawSymbol(surface_, state_, ui_, 3000, 1000, "X_NOD");
  surface_.SetCurrentObject(a);
  EXPECT_EQ(surface_.ObjTag("Id"), "Nod_5");
  const int link = DrawLink(surface_, state_, "X_CAC", a, b, 0, 0);
  ASSERT_GT(link, 10);
  surface_.SetCurrentObject(link);
  EXPECT_EQ(surface_.ObjTag("Id"), "Cac_58");
}

TEST_F(PersistenceTest, LibraryRecordsAndParametersAreHiddenAfterOpening) {
  const int section = AddElement(101, "Ovoide", 500, 500);
  const std::string path = SaveAndClear("lib.mtf");
  (void)section;
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, path));
  ASSERT_GT(FindObject(surface_, "Id", "Ovoide"), 10);
  EXPECT_FALSE(surface_.ObjectVisible());
  EXPECT_EQ(surface_.ObjLeft(), 99950);
  ASSERT_GT(FindObject(surface_, "Id", kParamReseau), 10);
  EXPECT_FALSE(surface_.ObjectVisible());
}

TEST_F(PersistenceTest, OnlyKindsFrom100To999AndTheParametersAreHidden) {
  AddElement(99, "Nod_1", 500, 500);
  AddElement(999, "Dernier", 500, 500);
  AddElement(1000, "Au-dela", 500, 500);
  const std::string path = SaveAndClear("bornes.mtf");
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, path));
  ASSERT_GT(FindObject(surface_, "Id", "Nod_1"), 10);
  EXPECT_TRUE(surface_.ObjectVisible());
  ASSERT_GT(FindObject(surface_, "Id", "Dernier"), 10);
  EXPECT_FALSE(surface_.ObjectVisible());
  ASSERT_GT(FindObject(surface_, "Id", "Au-dela"), 10);
  EXPECT_TRUE(surface_.ObjectVisible());
}

TEST_F(PersistenceTest, TheCurrentScenarioIsShownWithItsMode) {
  AddElement(99, "Nod_1");
  AddElement(111, "Crue");
  surface_.SetObjTag("CalcMode", "2: mode dimensionnement");
  AddElement(112, "Crue");
  const std::string path = SaveAndClear("scn.mtf");
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, path));
  EXPECT_EQ(state_.ScenarioName, "Crue");
  EXPECT_EQ(ui_.Panel("sbrSCN"), "Crue (dim)");
}

TEST_F(PersistenceTest, APathWithoutMtfIsNotOpened) {
  NetworkSession s = Session();
  AddElement(99, "Nod_1");
  EXPECT_FALSE(OpenNetwork(s, true, "/tmp/plan.png"));
  ExpectLastMessage(ui_, "/tmp/plan.png n'est pas de type Pluvane !!!", "Pluvane",
                    MessageIcon::kExclamation);
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
}

TEST_F(PersistenceTest, AnUnreadableFileLeavesTheDrawingAsItWas) {
  const std::string path = folder_.File("casse.mtf");
  WriteBytes(path, "{ pas du json");
  AddElement(99, "Nod_1");
  NetworkSession s = Session();
  EXPECT_FALSE(OpenNetwork(s, true, path));
  ExpectLastMessage(ui_, "Le fichier " + path + " ne peut pas être lu comme un réseau Pluvane.",
                    "Pluvane", MessageIcon::kExclamation);
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
  EXPECT_EQ(state_.NetworkFile, "");
}

TEST_F(PersistenceTest, OpeningOffersToSaveTheNetworkInPlace) {
  AddElement(99, "Nod_1");
  const std::string first = SaveAndClear("un.mtf");
  AddElement(99, "Nod_9");
  const std::string second = SaveAndClear("deux.mtf");
  NetworkSession s = Session();
  ASSERT_TRUE(OpenNetwork(s, true, first));
  ui_.QueueCancel();
  EXPECT_FALSE(OpenNetwork(s, true, second));
  EXPECT_EQ(state_.NetworkFile, first);
  EXPECT_GT(FindObject(surface_, "Id", "Nod_1"), 10);
}

TEST_F(PersistenceTest, TheOpenDialogStartsAtTheExamples) {
  std::filesystem::create_directories(folder_.File("Exemples"));
  NetworkSession s = Session();
  EXPECT_FALSE(OpenNetwork(s, false));
  ExpectLastMessage(ui_, folder_.File("Exemples") + "/*.mtf", "Charger un réseau Pluvane existant",
                    MessageIcon::kNone, "open");
}

TEST_F(PersistenceTest, SavingAsAPictureKeepsThePathAsTheNetworkFile) {
  AddElement(99, "Nod_1");
  NetworkSession s = Session();
  ui_.Queue(folder_.File("plan.wmf"));
  ASSERT_TRUE(SaveNetworkAs(s));
  EXPECT_EQ(ui_.SavedPictures(), (std::vector<std::string>{folder_.File("plan.wmf")}));
  EXPECT_EQ(state_.NetworkFile, folder_.File("plan.wmf"));
}

TEST_F(PersistenceTest, SaveAsWritesTheViewToTheSettingsAndTheRecordsAfterTheFile) {
  AddElement(99, "Nod_1");
  state_.ZoomFactor = 0.125;
  surface_.SetViewLeft(100.6);
  surface_.SetViewTop(200.2);
  NetworkSession s = Session();
  const std::string path = folder_.File("sous.mtf");
  ui_.Queue(path);
  ASSERT_TRUE(SaveNetworkAs(s));
  const std::string ini = folder_.File("pluvane.ini");
  EXPECT_EQ(IniRead("Autres", "Zoom Ini", 20, ini), "0.12500000");
  EXPECT_EQ(IniRead("Autres", "Zoom Dx", 20, ini), "101");
  EXPECT_EQ(IniRead("Autres", "Zoom Dy", 20, ini), "200");
  EXPECT_EQ(IniRead("Paramètres", "Résolution Maxi", 80, ini), "100000");
  // The file was written before the records were made: it holds none.
  EXPECT_GT(FindObject(surface_, "Id", kParamReseau), 10);
  Surface reread;
  ASSERT_TRUE(reread.LoadFile(path, 0));
  EXPECT_EQ(FindObject(reread, "Id", kParamReseau), 0);
}

TEST_F(PersistenceTest, AFailedSaveIsReportedAndTheNetworkFileStays) {
  AddElement(99, "Nod_1");
  state_.NetworkFile = folder_.File("avant.mtf");
  NetworkSession s = Session();
  EXPECT_FALSE(SaveNetwork(s, folder_.File("absent/dossier/r.mtf")));
  ASSERT_FALSE(ui_.Empty());
  EXPECT_EQ(ui_.Last().text.rfind("Erreur de sauvegarde : ", 0), 0u);
  EXPECT_EQ(state_.NetworkFile, folder_.File("avant.mtf"));
}

TEST_F(PersistenceTest, SaveWithoutAFileRunsSaveAs) {
  AddElement(99, "Nod_1");
  NetworkSession s = Session();
  ui_.QueueCancel();
  EXPECT_FALSE(mnuFile_Save(s));
  ExpectLastMessage(ui_, "", "Sauvegarder le dessin en fichier", MessageIcon::kNone, "save");
}

TEST_F(PersistenceTest, ClosingEmptiesTheDrawingAndLeavesABlankParamReseau) {
  AddElement(99, "Nod_1");
  state_.NetworkFile = "/x/r.mtf";
  state_.ElementCounters[99] = 5;
  state_.CurrentMode = "MDMOVE";
  state_.CoordinateSystem = "EPSG:2154";
  NetworkSession s = Session();
  ui_.QueueNo();
  ASSERT_TRUE(CloseNetwork(s));
  EXPECT_EQ(state_.CoordinateSystem, "");
  EXPECT_EQ(state_.NetworkFile, "");
  EXPECT_EQ(state_.CurrentMode, "");
  EXPECT_EQ(state_.ElementCounters[99], 0);
  EXPECT_EQ(state_.NodeCount, 1);
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
  ASSERT_GT(FindObject(surface_, "Id", kParamReseau), 10);
  EXPECT_EQ(surface_.ObjTagCount(), 4);
  EXPECT_EQ(surface_.ObjTagName(1), "CalcMode");
  EXPECT_EQ(surface_.ObjTagName(3), "CalcDt");
}

TEST_F(PersistenceTest, ClosingCancelledKeepsEverything) {
  AddElement(99, "Nod_1");
  state_.NetworkFile = "/x/r.mtf";
  NetworkSession s = Session();
  ui_.QueueCancel();
  EXPECT_FALSE(CloseNetwork(s));
  EXPECT_EQ(state_.NetworkFile, "/x/r.mtf");
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
}

TEST_F(PersistenceTest, LoadingADrawingBesideAddsItsObjectsSelected) {
  AddElement(99, "Nod_1");
  const std::string path = SaveAndClear("autre.mtf");
  AddElement(99, "Nod_7");
  NetworkSession s = Session();
  ui_.Queue(path);
  ASSERT_TRUE(mnuFile_Load(s));
  EXPECT_GT(FindObject(surface_, "Id", "Nod_1"), 10);
  EXPECT_GT(FindObject(surface_, "Id", "Nod_7"), 10);
  EXPECT_EQ(surface_.ObjectCount(kSelection), 3);
}

TEST_F(PersistenceTest, RecentEntriesThatAreGoneOrOfAnotherKind) {
  const std::string gone = folder_.File("parti.mtf");
  const std::string text = folder_.File("notes.txt");
  WriteBytes(text, "x");
  recent_.Load();
  recent_.Add(text);
  recent_.Add(gone);
  NetworkSession s = Session();
  EXPECT_FALSE(mnuRUF(s, 1));
  ExpectLastMessage(ui_, "Fichier introuvable:\r" + gone, "Pluvane", MessageIcon::kExclamation);
  EXPECT_EQ(recent_.Count(), 2);
  EXPECT_FALSE(mnuRUF(s, 2));
  ExpectLastMessage(ui_, text + " : type de fichier inconnu !", "Pluvane",
                    MessageIcon::kExclamation);
}

}  // namespace
}  // namespace pluvane
