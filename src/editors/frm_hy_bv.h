// The catchment outlet (frmHyBv): its dry-weather flow and the equivalent
// free surface of the network upstream.
#pragma once

#include "editors/tag_grid_form.h"

namespace pluvane {

class FrmHyBv : public TagGridForm {
 public:
  explicit FrmHyBv(EditorContext& context);
};

}  // namespace pluvane
