// The catchment outlet (frmHyBv): its dry-weather flow and the equivalent
// free surface of the network upstream.
#pragma once

#include "editors/element_form.h"

namespace pluvane {

class FrmHyBv : public ElementForm {
 public:
  explicit FrmHyBv(EditorContext& context);
};

}  // namespace pluvane
