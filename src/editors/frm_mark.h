// The result output marker (frmMark): whether the hydrograph at its node is
// exported.
#pragma once

#include "editors/element_form.h"

namespace pluvane {

class FrmMark : public ElementForm {
 public:
  explicit FrmMark(EditorContext& context);
};

}  // namespace pluvane
