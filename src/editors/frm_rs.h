// The retention basin with constant leak discharge (frmRs): downstream
// element, overflow, leak discharge, initial level and its filling curve,
// level against free-surface area.
#pragma once

#include <string>

#include "editors/basin_form.h"

namespace pluvane {

class FrmRs : public BasinForm {
 public:
  static constexpr int kRowQf = 4;
  static constexpr int kRowZ0 = 5;

  explicit FrmRs(EditorContext& context);

 protected:
  std::string LevelMessage(double z1, double zn, int n) const override;
};

}  // namespace pluvane
