#include "shell/frm_preference.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/ini_profile.h"
#include "foundation/test_files.h"
#include "shell/app_state.h"
#include "shell/configuration.h"

namespace pluvane {
namespace {

class FrmPreferenceTest : public ::testing::Test {
 protected:
  void SetUp() override {
    state_.AppPath = app_.Path();
    ini_ = IniFilePath(state_);
    IniWrite("Paramètres", "Taille des symboles", "80", ini_);
    IniWrite("Paramètres", "Epaisseur de trait", "40", ini_);
    IniWrite("Paramètres", "Résolution Maxi", "100000", ini_);
    IniWrite("Autres", "FlashScreen", "True", ini_);
  }
  TempFolder app_;
  AppState state_;
  ScriptedUi ui_;
  std::string ini_;
  int rescaled_ = 0;
};

TEST_F(FrmPreferenceTest, OpensOnTheFourSettings) {
  FrmPreference form(state_, ui_, [&] { ++rescaled_; });
  Grid& g = form.grid();
  EXPECT_EQ(g.MaxRows(), 4);
  EXPECT_EQ(g.Text(0, 1), "Taille des symboles");
  EXPECT_EQ(g.Text(0, 2), "Epaisseur de trait");
  EXPECT_EQ(g.Text(0, 3), "Résolution Maxi");
  EXPECT_EQ(g.Text(0, 4), "FlashScreen");
  EXPECT_EQ(g.Text(1, 1), "80");
  EXPECT_EQ(g.Text(1, 2), "40");
  EXPECT_EQ(g.Text(1, 3), "100000");
  EXPECT_EQ(g.Text(1, 4), "1");
  EXPECT_EQ(g.Type(1, 4).kind, CellType::kCheckBox);
}

TEST_F(FrmPreferenceTest, OkWritesTheKeysSetsTheExtentsAndAsksForARefresh) {
  FrmPreference form(state_, ui_, [&] { ++rescaled_; });
  form.grid().SetText(1, 1, "120");
  form.grid().SetText(1, 2, "25.5");
  form.grid().SetText(1, 3, "20000");
  form.grid().SetText(1, 4, "0");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(IniRead("Paramètres", "Taille des symboles", 40, ini_), "120");
  EXPECT_EQ(IniRead("Paramètres", "Epaisseur de trait", 40, ini_), "25.5");
  EXPECT_EQ(IniRead("Paramètres", "Résolution Maxi", 40, ini_), "20000");
  EXPECT_EQ(IniRead("Autres", "FlashScreen", 10, ini_), "0");
  EXPECT_EQ(state_.LogicWidth, 20000);
  EXPECT_EQ(state_.LogicHeight, 20000);
  EXPECT_EQ(state_.SymbolSize, 120);
  EXPECT_EQ(state_.CurrentMode, "MDREFRESH");
  EXPECT_EQ(rescaled_, 1);
}

TEST_F(FrmPreferenceTest, ANonPositiveValueIsRefusedAndNothingIsWritten) {
  FrmPreference form(state_, ui_, [&] { ++rescaled_; });
  form.grid().SetText(1, 3, "abc");
  form.Run("cmdOk");
  ExpectLastMessage(ui_, "La valeur de 'Résolution Maxi' doit être un nombre positif.",
                    "Préférences", MessageIcon::kExclamation);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(form.grid().ActiveRow(), 3);
  EXPECT_EQ(IniRead("Paramètres", "Résolution Maxi", 40, ini_), "100000");
  EXPECT_EQ(rescaled_, 0);
  EXPECT_EQ(state_.CurrentMode, "");
}

TEST_F(FrmPreferenceTest, CancelWritesNothing) {
  FrmPreference form(state_, ui_, [&] { ++rescaled_; });
  form.grid().SetText(1, 1, "999");
  form.Run("cmdCancel");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(IniRead("Paramètres", "Taille des symboles", 40, ini_), "80");
}

}  // namespace
}  // namespace pluvane
