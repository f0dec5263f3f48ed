// The hydrologic routing reach (frmRout): the mean section, the length and the
// slope of the collector that the hydrograph is routed along.
#pragma once

#include "editors/tag_grid_form.h"

namespace pluvane {

class FrmRout : public TagGridForm {
 public:
  explicit FrmRout(EditorContext& context);
};

}  // namespace pluvane
