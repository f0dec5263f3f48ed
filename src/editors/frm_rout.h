// The hydrologic routing reach (frmRout): the mean section, the length and the
// slope of the collector that the hydrograph is routed along.
#pragma once

#include "editors/element_form.h"

namespace pluvane {

class FrmRout : public ElementForm {
 public:
  explicit FrmRout(EditorContext& context);
};

}  // namespace pluvane
