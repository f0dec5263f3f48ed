#include "shell/frm_param_reseau.h"

#include <gtest/gtest.h>

#include "drawing/surface_helpers.h"
#include "foundation/scripted_ui.h"
#include "shell/app_state.h"

namespace pluvane {
namespace {

class FrmParamReseauTest : public ::testing::Test {
 protected:
  FrmParamReseauTest() {
    state_.LogicWidth = 10000;
    state_.LogicHeight = 10000;
    state_.CalcDuree = 120;
    state_.CalcDt = 2;
    state_.CalcMode = 1;
  }
  std::string Param(const char* tag) {
    const int record = FindObject(surface_, "Id", "ParamReseau");
    if (record <= 0) return "?";
    return surface_.ObjTag(tag);
  }
  Surface surface_;
  AppState state_;
  ScriptedUi ui_;
};

TEST_F(FrmParamReseauTest, OpensOnTheNetworksSettings) {
  FrmParamReseau form(surface_, state_, ui_);
  EXPECT_EQ(form.Caption(), "Paramétrage du réseau");
  Grid& g = form.grid();
  EXPECT_EQ(g.Text(0, 1), "Durée de simulation (mn)");
  EXPECT_EQ(g.Text(0, 2), "Pas de temps de calcul (mn)");
  EXPECT_EQ(g.Text(0, 3), "Mode de calcul");
  EXPECT_EQ(g.Text(0, 4), "Système de coordonnées (EPSG ou WKT)");
  EXPECT_EQ(g.Text(1, 4), "");
  EXPECT_EQ(g.Text(1, 1), "120");
  EXPECT_EQ(g.Text(1, 2), "2");
  EXPECT_EQ(g.ListIndex(1, 3), 1);
}

TEST_F(FrmParamReseauTest, OkSetsThemAndWritesTheRecord) {
  FrmParamReseau form(surface_, state_, ui_);
  form.grid().SetText(1, 1, "240");
  form.grid().SetText(1, 2, "5");
  form.grid().SetListIndex(1, 3, 0);
  form.cmdOk();
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(state_.CalcDuree, 240);
  EXPECT_EQ(state_.CalcDt, 5);
  EXPECT_EQ(state_.CalcMode, 0);
  EXPECT_EQ(Param("CalcDuree"), "240");
  EXPECT_EQ(Param("CalcDt"), "5");
  EXPECT_EQ(Param("CalcMode"), "0");
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(FrmParamReseauTest, ValuesThatCannotBeAreRefused) {
  FrmParamReseau form(surface_, state_, ui_);
  form.grid().SetText(1, 2, "0");
  form.cmdOk();
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(ui_.Last().text, "La valeur de 'Pas de temps de calcul (mn)' doit être un nombre positif.");
  EXPECT_EQ(ui_.Last().title, "Paramétrage du réseau");
  EXPECT_EQ(form.grid().ActiveRow(), 2);
  form.grid().SetText(1, 2, "200");
  form.cmdOk();
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(ui_.Last().text, "Le pas de temps de calcul ne peut dépasser la durée de simulation.");
  EXPECT_EQ(state_.CalcDt, 2);
  EXPECT_EQ(Param("CalcDt"), "?");
}

TEST_F(FrmParamReseauTest, TheCoordinateSystemIsTypedAndKeptInTheRecord) {
  state_.CoordinateSystem = "EPSG:2154";
  FrmParamReseau form(surface_, state_, ui_);
  EXPECT_EQ(form.grid().Text(1, 4), "EPSG:2154");
  form.grid().SetText(1, 4, " EPSG:3945 ");
  form.cmdOk();
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(state_.CoordinateSystem, "EPSG:3945");
  EXPECT_EQ(Param("SysCoord"), "EPSG:3945");
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(FrmParamReseauTest, AnEmptyCoordinateSystemLeavesTheNetworkWithoutOne) {
  state_.CoordinateSystem = "EPSG:2154";
  FrmParamReseau form(surface_, state_, ui_);
  form.grid().SetText(1, 4, "");
  form.cmdOk();
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(state_.CoordinateSystem, "");
  EXPECT_EQ(Param("SysCoord"), "");
}

TEST_F(FrmParamReseauTest, AnUnknownCoordinateSystemIsRefused) {
  state_.CoordinateSystem = "EPSG:2154";
  FrmParamReseau form(surface_, state_, ui_);
  form.grid().SetText(1, 4, "Lambert 93");
  form.cmdOk();
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(ui_.Last().text, "Le système de coordonnées (Lambert 93) est inconnu.");
  EXPECT_EQ(ui_.Last().title, "Paramétrage du réseau");
  EXPECT_EQ(form.grid().ActiveRow(), 4);
  EXPECT_EQ(state_.CoordinateSystem, "EPSG:2154");
  EXPECT_EQ(Param("SysCoord"), "?");
}

TEST_F(FrmParamReseauTest, SetParamRegWritesTheRecordsAsTheyStand) {
  mnuMyUtil_SetParamReg(surface_, state_, ui_);
  EXPECT_EQ(Param("CalcDuree"), "120");
  EXPECT_EQ(Param("CalcMode"), "1");
  EXPECT_GT(FindObject(surface_, "Id", "ZoomFactors"), 0);
  EXPECT_EQ(ui_.Statuses().back(), "ok paramètres du réseau écrits dans le dessin");
}

}  // namespace
}  // namespace pluvane
