#include "shell/frm_impfile_dlg.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/ini_profile.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "shell/app_state.h"
#include "shell/configuration.h"

namespace pluvane {
namespace {

class BackgroundPlan : public ::testing::Test {
 protected:
  BackgroundPlan() {
    state_.AppPath = folder_.Path();
    state_.LogicWidth = 100000;
    state_.LogicHeight = 80000;
    WriteBytes(IniFilePath(state_), "[Paramètres]\r\n");
    surface_.SetViewLeft(500);
    surface_.SetViewTop(700);
    surface_.SetViewWidth(40000);
    surface_.SetViewHeight(30000);
    plan_ = folder_.File("plan.png");
    WriteBytes(plan_, "not really a picture");
  }
  void SetFactor(const std::string& factor) {
    IniWrite(kSectionParameters, "Facteur d'affichage", factor, IniFilePath(state_));
  }
  // A file of that name in the folder, for the plans that need only exist.
  std::string Picture(const std::string& name) {
    const std::string path = folder_.File(name);
    WriteBytes(path, "x");
    return path;
  }
  std::string Factor() {
    return IniRead(kSectionParameters, "Facteur d'affichage", 255, IniFilePath(state_));
  }

  TempFolder folder_;
  Surface surface_;
  AppState state_;
  ScriptedUi ui_;
  std::string plan_;
};

TEST_F(BackgroundPlan, TheListOffersTheOldTypesAndTwoPlacings) {
  EXPECT_EQ(
      FrmImpfileDlg::TypeFilters(),
      (std::vector<std::string>{"*.emf", "*.bmp", "*.jpg", "*.tif", "*.gif", "*.wmf", "*.*"}));
  EXPECT_EQ(FrmImpfileDlg::PlacingModes(),
            (std::vector<std::string>{"1. Coin supérieur gauche", "2. Centrage au milieu"}));
}

TEST_F(BackgroundPlan, AcceptsOnlyThePictureExtensionsWhateverTheirCase) {
  for (const char* name :
       {"a.mtf", "a.gif", "a.wmf", "a.tif", "a.jpg", "a.emf", "a.bmp", "A.JPG", "plan.Bmp"}) {
    EXPECT_TRUE(FrmImpfileDlg::IsAcceptedExtension(name)) << name;
  }
  for (const char* name : {"a.png", "a.dxf", "a.jpeg", "a.tiff", "plan", "a.txt"}) {
    EXPECT_FALSE(FrmImpfileDlg::IsAcceptedExtension(name)) << name;
  }
}

TEST_F(BackgroundPlan, AnotherFormatIsRefusedAndNothingChanges) {
  FrmImpfileDlg form(surface_, state_, ui_);
  EXPECT_FALSE(form.cmdOk(folder_.File("plan.dxf"), 1));
  ExpectLastMessage(ui_, "Format non supporté comme fond de plan !", "Pluvane",
                    MessageIcon::kExclamation);
  EXPECT_EQ(surface_.BackgroundPicture(), "");
  EXPECT_EQ(surface_.ViewLeft(), 500);
  EXPECT_EQ(Factor(), "");
}

TEST_F(BackgroundPlan, TopLeftPlacingShowsTheWholeScaledSpace) {
  const std::string plan = Picture("plan.jpg");
  SetFactor("2");
  FrmImpfileDlg form(surface_, state_, ui_);
  ASSERT_TRUE(form.cmdOk(plan, 1));
  EXPECT_EQ(surface_.BackgroundPicture(), plan);
  EXPECT_EQ(surface_.BackgroundMode(), 0);
  EXPECT_DOUBLE_EQ(surface_.BackgroundScale(), 2);
  EXPECT_EQ(surface_.ViewLeft(), 0);
  EXPECT_EQ(surface_.ViewTop(), 0);
  EXPECT_EQ(surface_.ViewWidth(), 200000);
  EXPECT_EQ(surface_.ViewHeight(), 160000);
  EXPECT_EQ(surface_.CurrentObject(), kPage);
  EXPECT_EQ(Factor(), "2");
  ASSERT_FALSE(ui_.Statuses().empty());
  EXPECT_EQ(ui_.Statuses().back(), "Image de fond d'ecran : " + plan);
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(BackgroundPlan, CentredPlacingMovesTheViewToTheMiddle) {
  const std::string plan = Picture("plan.bmp");
  SetFactor("0.5");
  FrmImpfileDlg form(surface_, state_, ui_);
  ASSERT_TRUE(form.cmdOk(plan, 2));
  EXPECT_EQ(surface_.BackgroundMode(), 4);
  EXPECT_DOUBLE_EQ(surface_.BackgroundScale(), 0.5);
  EXPECT_DOUBLE_EQ(surface_.ViewLeft(), (100000 * 0.5 - 40000) / 2);
  EXPECT_DOUBLE_EQ(surface_.ViewTop(), (80000 * 0.5 - 30000) / 2);
  EXPECT_EQ(surface_.ViewWidth(), 40000);
  EXPECT_EQ(surface_.ViewHeight(), 30000);
  EXPECT_EQ(Factor(), "0.5");
}

TEST_F(BackgroundPlan, ATinyOrMissingFactorCountsAsOne) {
  const std::string plan = Picture("plan.gif");
  for (const char* factor : {"", "0", "0.0000001", "-0.0000005"}) {
    SetFactor(factor);
    FrmImpfileDlg form(surface_, state_, ui_);
    ASSERT_TRUE(form.cmdOk(plan, 1)) << factor;
    EXPECT_DOUBLE_EQ(surface_.BackgroundScale(), 1) << factor;
    EXPECT_EQ(surface_.ViewWidth(), 100000) << factor;
    EXPECT_EQ(Factor(), "1") << factor;
    EXPECT_DOUBLE_EQ(state_.BackgroundFactor, 1);
  }
}

TEST_F(BackgroundPlan, ANegativeFactorLoadsThePictureButLeavesScaleAndView) {
  const std::string plan = Picture("plan.tif");
  SetFactor("-3");
  surface_.SetBackgroundScale(0.8);
  FrmImpfileDlg form(surface_, state_, ui_);
  ASSERT_TRUE(form.cmdOk(plan, 2));
  EXPECT_EQ(surface_.BackgroundPicture(), plan);
  EXPECT_EQ(surface_.BackgroundMode(), 4);
  EXPECT_DOUBLE_EQ(surface_.BackgroundScale(), 0.8);
  EXPECT_EQ(surface_.ViewLeft(), 500);
  EXPECT_EQ(surface_.ViewWidth(), 40000);
  EXPECT_EQ(Factor(), "-3");
  EXPECT_EQ(ui_.Statuses().back(), "Image de fond d'ecran : " + plan);
}

TEST_F(BackgroundPlan, APictureThatCannotBeReadFailsWithTheRoutinesName) {
  const std::string plan = Picture("plan.emf");
  FrmImpfileDlg form(surface_, state_, ui_);
  form.picture_readable = [](const std::string&) { return false; };
  EXPECT_FALSE(form.cmdOk(plan, 1));
  ExpectLastMessage(ui_, "erreur dans pFileImportExt", "Pluvane", MessageIcon::kExclamation);
  EXPECT_EQ(surface_.BackgroundPicture(), "");
  EXPECT_EQ(surface_.ViewLeft(), 500);
}

TEST_F(BackgroundPlan, AMissingFileFailsTheSameWay) {
  FrmImpfileDlg form(surface_, state_, ui_);
  EXPECT_FALSE(form.cmdOk(folder_.File("absent.jpg"), 1));
  ExpectLastMessage(ui_, "erreur dans pFileImportExt", "Pluvane", MessageIcon::kExclamation);
}

TEST_F(BackgroundPlan, AFactorTooLargeForTheViewReportsTheZoomStep) {
  const std::string plan = Picture("plan.jpg");
  SetFactor("100000");
  FrmImpfileDlg form(surface_, state_, ui_);
  EXPECT_TRUE(form.cmdOk(plan, 1));
  ExpectLastMessage(ui_, "erreur DisplayZoomToutBkGround", "Pluvane", MessageIcon::kExclamation);
  EXPECT_EQ(surface_.ViewLeft(), 500);
  EXPECT_EQ(surface_.ViewWidth(), 40000);
  EXPECT_EQ(surface_.BackgroundPicture(), plan);
}

TEST_F(BackgroundPlan, AnUnknownPlacingIsTakenAsTheTopLeftCorner) {
  const std::string plan = Picture("plan.jpg");
  FrmImpfileDlg form(surface_, state_, ui_);
  ASSERT_TRUE(form.cmdOk(plan, 7));
  EXPECT_EQ(surface_.BackgroundMode(), 0);
  EXPECT_EQ(surface_.ViewLeft(), 0);
}

}  // namespace
}  // namespace pluvane
