// The downstream boundary condition (frmClav): whether the hydrograph that
// leaves the network there is exported.
#pragma once

#include "editors/tag_grid_form.h"

namespace pluvane {

class FrmClav : public TagGridForm {
 public:
  explicit FrmClav(EditorContext& context);
};

}  // namespace pluvane
