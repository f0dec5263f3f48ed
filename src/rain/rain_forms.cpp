#include "rain/rain_forms.h"

#include "rain/frm_montana.h"
#include "rain/frm_plu_import.h"
#include "rain/frm_plu_rayon.h"
#include "rain/frm_plu_xy.h"
#include "rain/frm_pradar_bib.h"
#include "rain/frm_preal_bib.h"
#include "rain/storm_libraries.h"

namespace pluvane {

std::unique_ptr<FormController> MakeRainForm(const std::string& name, EditorContext& context) {
  if (name == "mnuPlu_Proj_Montana" || name == "frmMontana") {
    return std::make_unique<FrmMontana>(context.surface, context.state, context.ui);
  }
  if (name == "mnuPlu_Proj_Caquot" || name == "frmCaqBib")
    return std::make_unique<FrmCaqBib>(context);
  if (name == "mnuPlu_Proj_1Tri" || name == "frmPstBib")
    return std::make_unique<FrmPstBib>(context);
  if (name == "mnuPlu_Proj_2Tri" || name == "frmPdtBib")
    return std::make_unique<FrmPdtBib>(context);
  if (name == "mnuPlu_Proj_Synth" || name == "frmPitBib")
    return std::make_unique<FrmPitBib>(context);
  if (name == "mnuPlu_Real_Pluvio" || name == "frmPrealBib") {
    return std::make_unique<FrmPrealBib>(context);
  }
  if (name == "mnuPlu_Real_Hyeto") return std::make_unique<FrmPluImport>(context, "PPHY");
  if (name == "mnuPlu_Real_PlvExt") return std::make_unique<FrmPluImport>(context, "PR");
  if (name == "mnuPlu_Real_Radar" || name == "frmPradarBib") {
    return std::make_unique<FrmPradarBib>(context);
  }
  if (name == "frmPluXy") return std::make_unique<FrmPluXy>(context);
  if (name == "frmPluRayon") return std::make_unique<FrmPluRayon>(context);
  return nullptr;
}

}  // namespace pluvane
