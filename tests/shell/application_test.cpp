#include "shell/application.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>

#include "drawing/surface_helpers.h"
#include "foundation/expect_message.h"
#include "foundation/ini_profile.h"
#include "foundation/test_files.h"
#include "shell/app_state.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

// An application folder made of the shipped data.
class ApplicationTest : public ::testing::Test {
 protected:
  ApplicationTest() : app_(surface_, ui_) {
    fs::copy(PLUVANE_DATA, folder_.Path(), fs::copy_options::recursive);
    ini_ = folder_.File("pluvane.ini");
    saved_cwd_ = fs::current_path();
  }
  ~ApplicationTest() override {
    fs::current_path(saved_cwd_);
    std::setlocale(LC_NUMERIC, "C");
  }
  // A small network file in a folder of the application folder.
  std::string MakeNetwork(const std::string& name) {
    Surface s;
    s.AddObject(kKindRectangle, 50000, 50000, 50100, 50100);
    s.SetObjTag("iName", 99);
    s.SetObjTag("Id", "Nod_3");
    fs::create_directories(folder_.File("reseaux"));
    const std::string path = folder_.File("reseaux/" + name);
    EXPECT_TRUE(s.SaveFile(path, kNativeFormat));
    return path;
  }

  TempFolder folder_;
  Surface surface_;
  ScriptedUi ui_;
  Application app_;
  std::string ini_;
  fs::path saved_cwd_;
};

TEST_F(ApplicationTest, AMissingConfigurationEndsTheStart) {
  fs::remove(ini_);
  EXPECT_FALSE(app_.Load(folder_.Path(), ""));
  ExpectLastMessage(ui_, "Ce fichier de paramétrage est requis !\r\n\r\n" + ini_, "Pluvane",
                    MessageIcon::kExclamation);
}

TEST_F(ApplicationTest, TheFirstLoadSetsTheDrawingFromTheConfiguration) {
  IniWrite("Paramètres", "Résolution Maxi", "60000", ini_);
  IniWrite("Autres", "CoBack Ecran", "12632256", ini_);
  ASSERT_TRUE(app_.Load(folder_.Path(), "  "));
  EXPECT_TRUE(ui_.Empty());
  const AppState& state = app_.state();
  EXPECT_EQ(state.AppPath, folder_.Path());
  EXPECT_EQ(state.WorkDir, folder_.Path());
  EXPECT_EQ(state.CommandLine, "");
  EXPECT_EQ(surface_.LogicWidth(), 60000);
  EXPECT_EQ(surface_.LogicHeight(), 60000);
  EXPECT_EQ(surface_.PageColor(), 12632256);
  EXPECT_EQ(surface_.BackColor1(), 12632256);
  EXPECT_EQ(state.NodeCount, 1);
  EXPECT_EQ(state.calibration.logic_x[1], 20000);
  EXPECT_TRUE(app_.resources().Loaded());
}

TEST_F(ApplicationTest, TheDecimalTestLooksAtTheFirstCharacterOnly) {
  EXPECT_TRUE(app_.DecimalTest("0.5"));
  EXPECT_TRUE(app_.DecimalTest("0,5"));
  EXPECT_TRUE(ui_.Empty());
  EXPECT_FALSE(app_.DecimalTest(",5"));
  ExpectLastMessage(ui_, "Attention le séparateur décimal de votre système doit être un point",
                    "Nombres décimaux valides", MessageIcon::kExclamation);
}

TEST_F(ApplicationTest, TheProgramCountsWithThePointAndGivesTheUserFormatBack) {
  ASSERT_NE(std::setlocale(LC_NUMERIC, "C.UTF-8"), nullptr);
  ASSERT_TRUE(app_.Load(folder_.Path(), ""));
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  EXPECT_EQ(Application::HalfAsText(), "0.5");
  EXPECT_EQ(app_.FirstActivation(), Application::Activation::kReady);
  app_.Unload(4);
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C.UTF-8");
  EXPECT_EQ(app_.state().SavedDecimal, ".");
}

// A French user's locale, whose decimal mark is a comma: the installed one,
// else one made for the test from the system's locale sources.
bool UseFrenchNumbers(const TempFolder& folder) {
  if (std::setlocale(LC_NUMERIC, "fr_FR.UTF-8") != nullptr) return true;
  const std::string made = folder.File("locales");
  fs::create_directories(made);
  const std::string command =
      "localedef -i fr_FR -f UTF-8 '" + made + "/fr_FR.UTF-8' > /dev/null 2>&1";
  if (std::system(command.c_str()) != 0 && !fs::exists(made + "/fr_FR.UTF-8")) return false;
  // The library finds it there for as long as the test runs.
  ::setenv("LOCPATH", made.c_str(), 1);
  return std::setlocale(LC_NUMERIC, "fr_FR.UTF-8") != nullptr;
}

TEST_F(ApplicationTest, AUserWhoseDecimalMarkIsACommaGetsItBackAtTheEnd) {
  TempFolder locales;
  if (!UseFrenchNumbers(locales)) {
    GTEST_SKIP() << "Ni la locale fr_FR.UTF-8 ni localedef et ses sources (paquet locales) : "
                    "le test de la virgule décimale ne peut pas se faire.";
  }
  ASSERT_EQ(std::string(std::localeconv()->decimal_point), ",");
  ASSERT_TRUE(app_.Load(folder_.Path(), ""));
  // While the program runs it counts with the point, and the decimal test passes.
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  EXPECT_EQ(Application::HalfAsText(), "0.5");
  EXPECT_EQ(app_.state().SavedDecimal, ",");
  EXPECT_EQ(app_.FirstActivation(), Application::Activation::kReady);
  EXPECT_TRUE(ui_.Messages().empty());
  app_.Unload(4);
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "fr_FR.UTF-8");
  EXPECT_EQ(std::string(std::localeconv()->decimal_point), ",");
  std::setlocale(LC_NUMERIC, "C");
  ::unsetenv("LOCPATH");
}

TEST_F(ApplicationTest, FirstActivationShowsTheQuarterViewAndAFreshNetwork) {
  int abouts = 0;
  app_.show_about = [&] { ++abouts; };
  ASSERT_TRUE(app_.Load(folder_.Path(), ""));
  EXPECT_EQ(app_.FirstActivation(), Application::Activation::kReady);
  EXPECT_EQ(abouts, 0);
  EXPECT_EQ(app_.state().ZoomFactor, 1);
  EXPECT_EQ(surface_.ViewLeft(), 25000);
  EXPECT_EQ(surface_.ViewTop(), 25000);
  EXPECT_EQ(surface_.BackgroundScale(), 0.8);
  // The map of a network without calibration: X = Xlog, Y = H - Ylog.
  EXPECT_EQ(app_.state().calibration.user_y[1], 100000);
  EXPECT_GT(FindObject(surface_, "Id", "ParamReseau"), 10);
  // It runs once.
  EXPECT_EQ(app_.FirstActivation(), Application::Activation::kReady);
}

TEST_F(ApplicationTest, TheAboutPictureShowsWhenFlashScreenIsOn) {
  IniWrite("Autres", "FlashScreen", "True", ini_);
  int abouts = 0;
  app_.show_about = [&] { ++abouts; };
  ASSERT_TRUE(app_.Load(folder_.Path(), ""));
  app_.FirstActivation();
  EXPECT_EQ(abouts, 1);
}

TEST_F(ApplicationTest, ACommandLineOfOneTokenOpensThatNetwork) {
  const std::string path = MakeNetwork("quartier.mtf");
  int shown = 0;
  app_.show_window = [&] { ++shown; };
  ASSERT_TRUE(app_.Load(folder_.Path(), path));
  EXPECT_EQ(app_.FirstActivation(), Application::Activation::kReady);
  EXPECT_EQ(app_.state().NetworkFile, path);
  EXPECT_GT(FindObject(surface_, "Id", "Nod_3"), 10);
  EXPECT_EQ(fs::current_path(), fs::path(folder_.File("reseaux")));
  EXPECT_EQ(shown, 1);
  EXPECT_FALSE(app_.StartMinimised());
}

TEST_F(ApplicationTest, ARelativeFileIsTakenInTheCurrentFolder) {
  MakeNetwork("quartier.mtf");
  fs::current_path(folder_.File("reseaux"));
  ASSERT_TRUE(app_.Load(folder_.Path(), "quartier.mtf 0 12"));
  app_.FirstActivation();
  EXPECT_EQ(app_.state().NetworkFile, folder_.File("reseaux/quartier.mtf"));
  EXPECT_TRUE(app_.StartMinimised());
  EXPECT_EQ(app_.CommandLineStart(), 12);
}

TEST_F(ApplicationTest, ARelativePathWithItsFolderIsTakenFromTheStartFolder) {
  // As `make run` starts the program: from its folder, with Exemples/Demo.mtf.
  MakeNetwork("quartier.mtf");
  fs::current_path(folder_.Path());
  ASSERT_TRUE(app_.Load(folder_.Path(), "reseaux/quartier.mtf"));
  EXPECT_EQ(app_.FirstActivation(), Application::Activation::kReady);
  EXPECT_TRUE(ui_.Messages().empty()) << ui_.Messages().front().text;
  EXPECT_EQ(app_.state().NetworkFile, folder_.File("reseaux/quartier.mtf"));
  EXPECT_GT(FindObject(surface_, "Id", "Nod_3"), 10);
  EXPECT_EQ(fs::current_path(), fs::path(folder_.File("reseaux")));
  // The folder has changed since; the same command line still names the same file.
  EXPECT_EQ(app_.CommandLineStart(), 0);
  EXPECT_EQ(app_.state().NetworkFile, folder_.File("reseaux/quartier.mtf"));
}

TEST_F(ApplicationTest, DotsOfARelativePathAreResolved) {
  MakeNetwork("quartier.mtf");
  fs::create_directories(folder_.File("ailleurs"));
  fs::current_path(folder_.File("ailleurs"));
  ASSERT_TRUE(app_.Load(folder_.Path(), "./../reseaux/quartier.mtf"));
  EXPECT_EQ(app_.FirstActivation(), Application::Activation::kReady);
  EXPECT_EQ(app_.state().NetworkFile, folder_.File("reseaux/quartier.mtf"));
}

TEST_F(ApplicationTest, AnotherExtensionEndsInFichierMtfInconnuAndTheWindowCloses) {
  const std::string path = folder_.File("plan.png");
  WriteBytes(path, "png");
  ASSERT_TRUE(app_.Load(folder_.Path(), path));
  EXPECT_EQ(app_.FirstActivation(), Application::Activation::kCloseWindow);
  ExpectLastMessage(ui_, "Fichier MTF inconnu", "Pluvane", MessageIcon::kExclamation);
}

TEST_F(ApplicationTest, ATokenThreeOfMinusOneIsAFailureToo) {
  const std::string path = MakeNetwork("r.mtf");
  ASSERT_TRUE(app_.Load(folder_.Path(), "\"" + path + "\" 1 -1"));
  EXPECT_EQ(app_.FirstActivation(), Application::Activation::kCloseWindow);
  ExpectLastMessage(ui_, "Fichier MTF inconnu", "Pluvane", MessageIcon::kExclamation);
}

TEST_F(ApplicationTest, ClosingTheWindowOffersToSaveAndWritesTheSettings) {
  const std::string path = MakeNetwork("r.mtf");
  ASSERT_TRUE(app_.Load(folder_.Path(), path));
  app_.FirstActivation();
  ui_.Clear();
  ui_.QueueNo();
  app_.Unload(2);
  ExpectLastMessage(ui_, "Voulez-vous sauvegarder le réseau en cours ?",
                    "fichier en cours : " + path, MessageIcon::kQuestion, "yesno");
  EXPECT_EQ(IniRead("Paramètres", "Position de la BO", 10, ini_), "2");
  EXPECT_EQ(IniRead("Fichiers recents", "nbFichiers", 10, ini_), "1");
}

TEST_F(ApplicationTest, QuitCancelledStays) {
  ASSERT_TRUE(app_.Load(folder_.Path(), ""));
  app_.FirstActivation();
  surface_.AddObject(kKindEllipse, 0, 0, 10, 10);
  ui_.QueueCancel();
  EXPECT_FALSE(app_.QuitCommand());
  EXPECT_FALSE(app_.ClosedByMenu());
}

TEST_F(ApplicationTest, QuitCleansTheWorkFolderAndAsksNoMoreAtUnload) {
  ASSERT_TRUE(app_.Load(folder_.Path(), ""));
  app_.FirstActivation();
  WriteBytes(folder_.File("Mst.tmp"), "x");
  WriteBytes(folder_.File("Vistrel.mst"), "x");
  WriteBytes(folder_.File("garde.crb"), "x");
  ui_.Clear();
  EXPECT_TRUE(app_.QuitCommand());
  // Only the blank parameter record stands: no question.
  EXPECT_TRUE(ui_.Empty());
  EXPECT_FALSE(fs::exists(folder_.File("Mst.tmp")));
  EXPECT_FALSE(fs::exists(folder_.File("Vistrel.mst")));
  EXPECT_TRUE(fs::exists(folder_.File("garde.crb")));
  app_.state().NetworkFile = "/x/r.mtf";
  app_.Unload(4);
  EXPECT_TRUE(ui_.Empty());
}

// The zoom factor of the last Save As is the state's from the start of the
// program; a factor of 0 stands for none and gives 1.
TEST_F(ApplicationTest, TheStartReadsTheSavedZoomFactorAndZeroGivesOne) {
  IniWrite("Autres", "Zoom Ini", "0.50000000", ini_);
  ASSERT_TRUE(app_.Load(folder_.Path(), ""));
  EXPECT_EQ(app_.state().ZoomFactor, 0.5);
  IniWrite("Autres", "Zoom Ini", "0", ini_);
  ASSERT_TRUE(app_.Load(folder_.Path(), ""));
  EXPECT_EQ(app_.state().ZoomFactor, 1);
}

}  // namespace
}  // namespace pluvane
