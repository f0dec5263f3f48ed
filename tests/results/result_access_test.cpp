#include "results/result_access.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "foundation/test_files.h"
#include "shell/app_state.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

const char kCurves[] =
    "'Cac_1'\r\n     0.000     1.000\r\n    10.000     3.000\r\n"
    "'Cac_2'\r\n     0.000     2.000\r\n    10.000     1.000\r\n";

// A network "Demo" in a folder of its own, its scenario "Decennale".
class ResultAccessTest : public ::testing::Test {
 protected:
  ResultAccessTest() {
    state_.AppPath = app_.Path();
    state_.NetworkFile = folder_.File("Demo.mtf");
    state_.ScenarioName = "Decennale";
    views_.show_chooser = [](FormController& form) {
      form.Run("mnSelection");
      form.Run("mnDessiner");
    };
    views_.show_viewer = [this](ViewerState& shown) {
      titles_.push_back(shown.page_title);
      scripts_.push_back(ReadBytes(shown.script));
    };
  }
  std::string Result(const std::string& extension) const {
    return folder_.File("Decennale/Decennale_Demo" + extension);
  }
  bool Enabled(const ResultMenuStates& states, const std::string& name) {
    for (const auto& [entry, enabled] : states) {
      if (entry == name) return enabled;
    }
    ADD_FAILURE() << name << " not decided";
    return false;
  }

  TempFolder folder_;
  TempFolder app_;
  AppState state_;
  ScriptedUi ui_;
  ViewerState viewer_;
  ResultViews views_{viewer_, {}, {}};
  std::vector<std::string> titles_;
  std::vector<std::string> scripts_;
};

TEST_F(ResultAccessTest, OpeningTheMenuMakesTheScenarioFolderTheWorkFolder) {
  const ResultMenuStates states = mnuExploitation(state_);
  EXPECT_TRUE(fs::is_directory(folder_.File("Decennale")));
  EXPECT_EQ(state_.WorkDir, folder_.File("Decennale"));
  EXPECT_EQ(state_.NetworkBase, "Demo");
  for (const char* name : {"mnuExploit_ResDeb", "mnuExploit_ResHys", "mnuExploit_ResLim",
                           "mnuExploit_ResBV", "mnuExploit_ResReso", "mnuExploit_ResCarto"}) {
    EXPECT_FALSE(Enabled(states, name)) << name;
  }
}

TEST_F(ResultAccessTest, EachEntryIsEnabledByItsOwnFile) {
  fs::create_directories(folder_.File("Decennale"));
  WriteBytes(Result(".Deb"), kCurves);
  WriteBytes(Result(".Sor"), "x");
  const ResultMenuStates states = mnuExploitation(state_);
  EXPECT_TRUE(Enabled(states, "mnuExploit_ResDeb"));
  EXPECT_FALSE(Enabled(states, "mnuExploit_ResHys"));
  EXPECT_FALSE(Enabled(states, "mnuExploit_ResLim"));
  EXPECT_FALSE(Enabled(states, "mnuExploit_ResBV"));
  EXPECT_TRUE(Enabled(states, "mnuExploit_ResReso"));
  EXPECT_TRUE(Enabled(states, "mnuExploit_ResCarto"));
}

TEST_F(ResultAccessTest, WithoutScenarioEveryEntryIsGreyAndNoFolderIsMade) {
  state_.ScenarioName.clear();
  const ResultMenuStates states = mnuExploitation(state_);
  for (const auto& [name, enabled] : states) EXPECT_FALSE(enabled) << name;
  // The work folder is the network's folder and a separator.
  EXPECT_EQ(state_.WorkDir, folder_.Path() + "/");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator()), 0);
}

TEST_F(ResultAccessTest, WithoutNetworkNothingIsMadeAndEverythingIsGrey) {
  state_.NetworkFile.clear();
  state_.WorkDir = app_.Path();
  const ResultMenuStates states = mnuExploitation(state_);
  for (const auto& [name, enabled] : states) EXPECT_FALSE(enabled) << name;
  EXPECT_EQ(state_.WorkDir, app_.Path());
}

TEST_F(ResultAccessTest, FlowsAreShownFromAFreshCopyInCrbDeb) {
  mnuExploitation(state_);
  WriteBytes(Result(".Deb"), kCurves);
  WriteBytes(folder_.File("Decennale/crb.Deb"), "'Ancien'\r\n     0.000     9.000\r\n");
  mnuExploit_ResDeb(state_, ui_, views_);
  ASSERT_EQ(titles_, std::vector<std::string>{"Hydrogramme de routage"});
  EXPECT_NE(scripts_[0].find("\"Cac_1\""), std::string::npos) << scripts_[0];
  EXPECT_EQ(scripts_[0].find("\"Ancien\""), std::string::npos) << scripts_[0];
  EXPECT_EQ(ReadBytes(folder_.File("Decennale/crb.Deb")), kCurves);
}

TEST_F(ResultAccessTest, InflowsJoinTheAppAndHysFilesThenRemoveTheJoin) {
  mnuExploitation(state_);
  WriteBytes(Result(".App"), "'Bv_1'\r\n     0.000     1.000\r\n    10.000     3.000\r\n");
  WriteBytes(Result(".Hys"), "'Hy_1'\r\n     0.000     2.000\r\n    10.000     1.000\r\n");
  mnuExploit_ResHys(state_, ui_, views_);
  ASSERT_EQ(titles_, std::vector<std::string>{"Hydrogramme d'apport"});
  EXPECT_NE(scripts_[0].find("\"Bv_1\""), std::string::npos) << scripts_[0];
  EXPECT_NE(scripts_[0].find("\"Hy_1\""), std::string::npos) << scripts_[0];
  EXPECT_FALSE(fs::exists(folder_.File("Decennale/crb.Hys")));
}

TEST_F(ResultAccessTest, LevelsAreShownFromTheirFile) {
  mnuExploitation(state_);
  WriteBytes(Result(".Lim"), kCurves);
  mnuExploit_ResLim(state_, ui_, views_);
  EXPECT_EQ(titles_, std::vector<std::string>{" Sortie de courbe LIM"});
  EXPECT_TRUE(fs::exists(Result(".Lim")));
}

TEST_F(ResultAccessTest, TextResultsOpenInTheEditor) {
  mnuExploitation(state_);
  WriteBytes(Result(".BV"), "bv");
  WriteBytes(Result(".Sor"), "sor");
  mnuExploit_ResBV(state_, ui_);
  mnuExploit_ResReso(state_, ui_);
  EXPECT_EQ(ui_.EditedFiles(), (std::vector<std::string>{Result(".BV"), Result(".Sor")}));
  EXPECT_TRUE(ui_.Messages().empty());
}

TEST_F(ResultAccessTest, AFileRemovedWhileTheMenuStoodOpenIsTold) {
  fs::create_directories(folder_.File("Decennale"));
  WriteBytes(Result(".BV"), "bv");
  WriteBytes(Result(".Sor"), "sor");
  mnuExploitation(state_);
  fs::remove(Result(".BV"));
  fs::remove(Result(".Sor"));
  mnuExploit_ResBV(state_, ui_);
  ExpectLastMessage(ui_,
                    "Le fichier Decennale_Demo.BV  est introuvable ou\r\nn'a pas encore été "
                    "généré dans\r\n" + folder_.File("Decennale"),
                    "", MessageIcon::kNone);
  mnuExploit_ResReso(state_, ui_);
  ExpectLastMessage(ui_,
                    "Le fichier Decennale_Demo.Sor  est introuvable ou\r\nn'a pas encore été "
                    "généré dans\r\n" + folder_.File("Decennale"),
                    "", MessageIcon::kNone);
  EXPECT_TRUE(ui_.EditedFiles().empty());
  // A curve entry leaves the word to the viewer.
  mnuExploit_ResLim(state_, ui_, views_);
  EXPECT_TRUE(titles_.empty());
  EXPECT_EQ(ui_.Last().title, "Visu de courbe Kalder");
}

TEST_F(ResultAccessTest, NothingHappensWhenNeitherNameIsKnown) {
  mnuExploitation(state_);
  WriteBytes(Result(".BV"), "bv");
  state_.ScenarioName.clear();
  state_.NetworkBase.clear();
  mnuExploit_ResBV(state_, ui_);
  EXPECT_TRUE(ui_.EditedFiles().empty());
  EXPECT_TRUE(ui_.Messages().empty());
}

}  // namespace
}  // namespace pluvane
