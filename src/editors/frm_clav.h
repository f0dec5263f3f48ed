// The downstream boundary condition (frmClav): whether the hydrograph that
// leaves the network there is exported.
#pragma once

#include "editors/element_form.h"

namespace pluvane {

class FrmClav : public ElementForm {
 public:
  explicit FrmClav(EditorContext& context);
};

}  // namespace pluvane
