// The rain forms by the name of the menu command or form that opens them:
// mnuPlu_Proj_Montana, mnuPlu_Proj_Caquot, mnuPlu_Proj_1Tri, mnuPlu_Proj_2Tri,
// mnuPlu_Proj_Synth, mnuPlu_Real_Pluvio, mnuPlu_Real_Hyeto,
// mnuPlu_Real_PlvExt, mnuPlu_Real_Radar, and the forms frmPluXy (the gauge,
// on the current object) and frmPluRayon. The rain list (mnuPlu_Lst) belongs
// to the scenarios.
#pragma once

#include <memory>
#include <string>

#include "editors/editor_context.h"
#include "foundation/form_controller.h"

namespace pluvane {

// The form, or null for a name that is not a rain form's. A form may come back
// closed already (the event library without any gauge, after its message):
// the host then does not show it.
std::unique_ptr<FormController> MakeRainForm(const std::string& name, EditorContext& context);

}  // namespace pluvane
