#include "shell/configuration.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "foundation/expect_message.h"
#include "foundation/ini_profile.h"
#include "foundation/test_files.h"
#include "foundation/text.h"
#include "shell/app_state.h"

namespace pluvane {
namespace {

class ConfigurationTest : public ::testing::Test {
 protected:
  void SetUp() override {
    state_.AppPath = app_.Path();
    std::filesystem::create_directories(app_.File("Symboles"));
    std::filesystem::create_directories(app_.File("Curseurs"));
    Set("Paramètres", "Fichier Ressource", "Curseurs");
    Set("Paramètres", "Résolution Maxi", "100000");
    Set("Paramètres", "Position de la BO", "4");
    Set("Paramètres", "Epaisseur de trait", "40");
    Set("Paramètres", "Taille des symboles", "80");
    Set("Autres", "CoBack Ecran", "12632256");
  }
  void Set(const std::string& section, const std::string& key, const std::string& value) {
    ASSERT_TRUE(IniWrite(section, key, value, IniFilePath(state_)));
  }
  bool Load() { return LoadConfiguration(state_, ui_, resources_); }

  TempFolder app_;
  AppState state_;
  ScriptedUi ui_;
  ResourceLibrary resources_;
};

TEST_F(ConfigurationTest, TheSavedZoomFactorIsReadAndZeroGivesOne) {
  Set("Autres", "Zoom Ini", "0.25000000");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.ZoomFactor, 0.25);
  Set("Autres", "Zoom Ini", "0");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.ZoomFactor, 1);
  Set("Autres", "Zoom Ini", "0.000001");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.ZoomFactor, 1);
}

TEST_F(ConfigurationTest, TheFileIsPluvaneIniBesideThePrograms) {
  EXPECT_EQ(IniFilePath(state_), app_.File("pluvane.ini"));
}

TEST_F(ConfigurationTest, ReadsTheStartSettings) {
  ASSERT_TRUE(Load());
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(state_.SymbolDir, app_.File("Symboles"));
  EXPECT_EQ(state_.LogicWidth, 100000);
  EXPECT_EQ(state_.LogicHeight, 100000);
  EXPECT_EQ(state_.ToolBandPosition, 4);
  EXPECT_EQ(state_.LinkThick, 40);
  EXPECT_EQ(state_.SymbolSize, 80);
  EXPECT_EQ(state_.ScreenBackColor, 12632256);
  EXPECT_EQ(state_.ZoomFactor, 1);
  EXPECT_EQ(state_.CalcMode, 0);
  EXPECT_EQ(state_.CalcDuree, 120);
  EXPECT_EQ(state_.CalcDt, 2);
  EXPECT_TRUE(state_.ScaleWithZoom);
  EXPECT_EQ(state_.calibration.XLAMU, 1);
  EXPECT_EQ(state_.PointBufferSize, 10000);
  EXPECT_TRUE(resources_.Loaded());
}

TEST_F(ConfigurationTest, ASmallResolutionIsRaisedTo1000) {
  Set("Paramètres", "Résolution Maxi", "500");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.LogicWidth, 1000);
  EXPECT_EQ(state_.LogicHeight, 1000);
}

TEST_F(ConfigurationTest, ARelativeSymbolsFolderLiesUnderTheApplication) {
  std::filesystem::create_directories(app_.File("Mes Symboles"));
  Set("Paramètres", "Répertoire des symboles", "Mes Symboles");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.SymbolDir, app_.File("Mes Symboles"));
}

TEST_F(ConfigurationTest, ABlankSymbolsFolderIsSymbolesUnderTheApplication) {
  Set("Paramètres", "Répertoire des symboles", "");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.SymbolDir, app_.File("Symboles"));
}

TEST_F(ConfigurationTest, AnAbsoluteSymbolsFolderIsTakenAsItStands) {
  // The read buffer holds 79 characters: keep the path short.
  const std::string folder = "/tmp/plv_sym_" + std::to_string(::getpid());
  std::filesystem::create_directories(folder);
  Set("Paramètres", "Répertoire des symboles", folder);
  EXPECT_TRUE(Load());
  EXPECT_EQ(state_.SymbolDir, folder);
  std::filesystem::remove_all(folder);
}

TEST_F(ConfigurationTest, ASymbolsFolderLongerThanTheBufferIsCut) {
  const std::string folder = "/tmp/" + std::string(80, 'x');
  std::filesystem::create_directories(folder);
  Set("Paramètres", "Répertoire des symboles", folder);
  EXPECT_FALSE(Load());
  std::filesystem::remove_all(folder);
}

TEST_F(ConfigurationTest, AMissingSymbolsFolderStopsTheStartAndNamesTheIniFile) {
  Set("Paramètres", "Répertoire des symboles", "Absent");
  Set("Paramètres", "Résolution Maxi", "5000");
  EXPECT_FALSE(Load());
  ExpectLastMessage(ui_,
                    "Le nom du répertoire des symboles est mal défini dans le fichier \r\n"
                    "pluvane.ini",
                    "Attention!", MessageIcon::kExclamation);
  // None of the later keys was read.
  EXPECT_EQ(state_.LogicWidth, 0);
}

TEST_F(ConfigurationTest, ZeroSizesTakeTheirDefaultsAndNegativeOnesStay) {
  Set("Paramètres", "Epaisseur de trait", "0");
  Set("Paramètres", "Taille des symboles", "");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.LinkThick, 50);
  EXPECT_EQ(state_.SymbolSize, 120);
  Set("Paramètres", "Epaisseur de trait", "-30");
  Set("Paramètres", "Taille des symboles", "-7.5");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.LinkThick, -30);
  EXPECT_EQ(state_.SymbolSize, -7.5);
}

TEST_F(ConfigurationTest, ToolBandPositionZeroIsFour) {
  Set("Paramètres", "Position de la BO", "0");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.ToolBandPosition, 4);
  Set("Paramètres", "Position de la BO", "1");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.ToolBandPosition, 1);
}

TEST_F(ConfigurationTest, BackgroundColourBlankIsWhiteAndOtherTextIsANumber) {
  Set("Autres", "CoBack Ecran", "");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.ScreenBackColor, 16777215);
  Set("Autres", "CoBack Ecran", "gris");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.ScreenBackColor, 0);
  Set("Autres", "CoBack Ecran", "255 rouge");
  ASSERT_TRUE(Load());
  EXPECT_EQ(state_.ScreenBackColor, 255);
}

TEST_F(ConfigurationTest, AMissingPictureLibraryIsReportedAndTheStartGoesOn) {
  Set("Paramètres", "Fichier Ressource", "Absente");
  EXPECT_TRUE(Load());
  ExpectLastMessage(ui_, "Error in loading DLL: Absente", "Pluvane", MessageIcon::kCritical);
  EXPECT_FALSE(resources_.Loaded());
}

TEST_F(ConfigurationTest, ProfileBooleans) {
  EXPECT_TRUE(ProfileBoolean("1"));
  EXPECT_TRUE(ProfileBoolean("-1"));
  EXPECT_TRUE(ProfileBoolean(" True "));
  EXPECT_TRUE(ProfileBoolean("true"));
  EXPECT_FALSE(ProfileBoolean("0"));
  EXPECT_FALSE(ProfileBoolean("False"));
  EXPECT_FALSE(ProfileBoolean(""));
}

TEST_F(ConfigurationTest, ProfileValuesRoundTripWithAccents) {
  EXPECT_TRUE(WriteProfileValue("Autres", "Zoom Ini", 0.25, IniFilePath(state_)));
  EXPECT_EQ(ReadProfileValue("autres", "ZOOM INI", 20, IniFilePath(state_)), "0.25");
  EXPECT_EQ(ReadProfileValue("PARAMÈTRES", "résolution maxi", 4, IniFilePath(state_)), "100");
}

}  // namespace
}  // namespace pluvane
