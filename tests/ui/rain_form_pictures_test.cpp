// The rain forms opened on the example network in the generic window, their
// heads readable and their pictures kept in build/shots/forms.
#include <gtest/gtest.h>

#include <QApplication>
#include <filesystem>

#include "drawing/surface_helpers.h"
#include "foundation/scripted_ui.h"
#include "network/catalogue.h"
#include "plot/plot_viewer.h"
#include "rain/frm_montana.h"
#include "rain/frm_pit_plus.h"
#include "rain/frm_plu_ht_crb.h"
#include "rain/frm_plu_import.h"
#include "rain/frm_plu_rayon.h"
#include "rain/frm_plu_xy.h"
#include "rain/frm_pradar_bib.h"
#include "rain/frm_preal_bib.h"
#include "rain/frm_storm_plus.h"
#include "rain/rain_records.h"
#include "rain/storm_libraries.h"
#include "ui/form_pictures_fixture.h"
#include "ui/form_window.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

class RainFormPictures : public FormPicturesTest {
 protected:
  EditorContext Context() {
    return EditorContext{surface(), state(), ui_, [](FormController&) {}, viewer_,
                         [](ViewerState&) {}};
  }
  int First(int kind) { return FindObject(surface(), "iName", std::to_string(kind)); }

  ViewerState viewer_;
};

TEST_F(RainFormPictures, MontanaAndDesignStorms) {
  EditorContext context = Context();
  FrmMontana montana(surface(), state(), ui_);
  Picture(montana, "frmMontana");
  FrmCaqBib caq(context);
  Picture(caq, "frmCaqBib");
  FrmPstBib pst(context);
  Picture(pst, "frmPstBib");
  FrmPdtBib pdt(context);
  Picture(pdt, "frmPdtBib");
  FrmPitBib pit(context);
  Picture(pit, "frmPitBib");
  const int caquot = First(kINameCaquot);
  FrmCaqPlus caq_plus(context, TagOfObject(surface(), caquot, "Id"), caquot);
  Picture(caq_plus, "frmCaq_Plus");
  const int simple = First(kINameSimpleTriangle);
  FrmPstPlus pst_plus(context, TagOfObject(surface(), simple, "Id"), simple);
  Picture(pst_plus, "frmPst_Plus");
  const int twice = First(kINameDoubleTriangle);
  FrmPdtPlus pdt_plus(context, TagOfObject(surface(), twice, "Id"), twice);
  Picture(pdt_plus, "frmPdt_Plus");
  const int synthetic = First(kINameSynthetic);
  FrmPitPlus pit_plus(context, TagOfObject(surface(), synthetic, "Id"), synthetic);
  Picture(pit_plus, "frmPit_Plus");
}

TEST_F(RainFormPictures, GaugesRecordedRadarAndExternalRain) {
  EditorContext context = Context();
  FrmPrealBib events(context);
  Picture(events, "frmPrealBib");
  const int event = First(kINameRealRain);
  FrmPluHtCrb table(context, TagOfObject(surface(), event, "Id"), event,
                    state().WorkDir + "/absent.tmp");
  Picture(table, "frmPluHtCrb");
  surface().SetCurrentObject(First(kINamePLU));
  FrmPluXy gauge(context);
  Picture(gauge, "frmPluXy");
  FrmPluRayon radius(context);
  Picture(radius, "frmPluRayon");
  FrmPradarBib radar(context);
  Picture(radar, "frmPradarBib");
  FrmPluImport external(context, "PR");
  Picture(external, "frmPluImport");
}

}  // namespace
}  // namespace pluvane
