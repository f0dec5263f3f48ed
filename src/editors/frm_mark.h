// The result output marker (frmMark): whether the hydrograph at its node is
// exported.
#pragma once

#include "editors/tag_grid_form.h"

namespace pluvane {

class FrmMark : public TagGridForm {
 public:
  explicit FrmMark(EditorContext& context);
};

}  // namespace pluvane
