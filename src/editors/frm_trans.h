// The hydrograph translator (frmTrans): a link that carries its hydrograph
// unchanged, so only its label is edited. A label already taken is refused as
// elsewhere, with one difference kept on purpose: the old label goes back to
// the tag Id, while libell keeps the refused one.
#pragma once

#include "editors/tag_grid_form.h"

namespace pluvane {

class FrmTrans : public TagGridForm {
 public:
  explicit FrmTrans(EditorContext& context);

  void cmdOk() override;
};

}  // namespace pluvane
