// Every form that the program has, opened on the example network in the one
// generic window, its heads readable and its picture kept in build/shots/forms.
#include <gtest/gtest.h>

#include <QApplication>
#include <filesystem>
#include <memory>

#include "drawing/surface_helpers.h"
#include "foundation/scripted_ui.h"
#include "network/calibration_points.h"
#include "editors/editor_forms.h"
#include "network/catalogue.h"
#include "network/frm_bief_lst.h"
#include "network/frm_bief_user_create.h"
#include "network/frm_calage.h"
#include "network/frm_info_calage.h"
#include "shell/frm_preference.h"
#include "simulation/frm_pluie_liste.h"
#include "simulation/frm_scn_pluie.h"
#include "simulation/frm_scn_sim_param_select.h"
#include "ui/form_pictures_fixture.h"
#include "ui/form_window.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

// The whole grid of a form without tabs shows: nothing to scroll sideways
// (sheets under tabs, as wide as their kind has fields, may scroll on a
// small screen).
class FormPictures : public FormPicturesTest {
 protected:
  void Picture(FormController& form, const std::string& name) {
    FormPicturesTest::Picture(form, name, true);
  }
};

TEST_F(FormPictures, Preferences) {
  FrmPreference form(state(), ui_, [] {});
  Picture(form, "frmPreference");
}

TEST_F(FormPictures, Calibration) {
  FrmCalage form(surface(), state(), ui_);
  Picture(form, "frmCalage");
}

TEST_F(FormPictures, CalibrationPoint) {
  const int point = FindObject(surface(), "iName", std::to_string(kINameHiddenCalage));
  ASSERT_GT(point, 10);
  FrmInfoCalage form(surface(), ui_, point);
  Picture(form, "frmInfoCalage");
}

TEST_F(FormPictures, Reaches) {
  FrmBiefLst list(surface(), state(), ui_);
  Picture(list, "frmBiefLst");
  FrmBiefUserCreate creation(surface(), state(), ui_);
  Picture(creation, "frmBiefUserCreate");
}

TEST_F(FormPictures, RainChoiceAndScenarios) {
  FrmPluieListe rains(surface(), state(), ui_);
  Picture(rains, "frmPluie_Liste");
  FrmScnPluie rain(surface(), state(), ui_);
  Picture(rain, "frmScnPluie");
  FrmScnSimParamSelect choice(surface(), state(), ui_);
  Picture(choice, "frmScnSimParamSelect");
}

// Every element editor on an element of its kind in the example, and the
// section library and the general editor.
TEST_F(FormPictures, ElementEditors) {
  const std::vector<std::pair<std::string, std::string>> editors = {
      {"frmBV", "Bv_1"},   {"frmRout", "Rou_1"}, {"frmHyBv", "Hbv_1"}, {"frmHy", "Hy_1"},
      {"frmCac", "Cac_1"}, {"frmCaf", "Caf_1"},  {"frmCao", "Cao_1"},  {"frmDqq", "Dqq_1"},
      {"frmDqz", "Dqz_1"}, {"frmRs", "Rs_1"},    {"frmRsp", "Rsp_1"},  {"frmClav", "Cla_1"},
      {"frmMark", "Mrk_1"}, {"frmSect", ""},     {"frmEdit", ""}};
  ViewerState viewer;
  for (const auto& [name, id] : editors) {
    if (!id.empty()) {
      const int element = FindObject(surface(), "Id", id);
      ASSERT_GT(element, 0) << id;
      surface().SetCurrentObject(element);
    }
    EditorContext context{surface(), state(), ui_, {}, viewer, {}};
    std::unique_ptr<FormController> form = MakeEditorForm(name, context);
    ASSERT_NE(form, nullptr) << name;
    Picture(*form, name);
  }
}

}  // namespace
}  // namespace pluvane
