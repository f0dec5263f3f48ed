// The retention basin with parametric laws (frmRsp): downstream element,
// overflow, initial level and its characteristic curves: level against
// free-surface area, leak discharge and overflow discharge.
#pragma once

#include <string>

#include "editors/basin_form.h"

namespace pluvane {

class FrmRsp : public BasinForm {
 public:
  static constexpr int kRowZ0 = 4;

  explicit FrmRsp(EditorContext& context);

 protected:
  std::string LevelMessage(double z1, double zn, int n) const override;
};

}  // namespace pluvane
