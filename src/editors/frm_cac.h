// frmCac, the editor of a circular collector: invert levels, diameter,
// length, Strickler coefficient, mean depth under the road and the fictive
// reservoir of a surcharged pipe.
#pragma once

#include "editors/tag_grid_form.h"

namespace pluvane {

class FrmCac : public TagGridForm {
 public:
  static constexpr int kDiameterRow = 4;

  explicit FrmCac(EditorContext& context);

  // Refuses a diameter below 0.00001, then stores the rows.
  void cmdOk() override;
};

}  // namespace pluvane
