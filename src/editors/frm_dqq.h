// frmDqq: the divider whose shares follow a law of discharges, the derived
// discharges Qd1, Qd2 and Qd3 given against the upstream discharge Qamont
// point by point (Spread2), stored in NbPt and X, Y, Z, T i.
#pragma once

#include "editors/divider_form.h"

namespace pluvane {

class FrmDqq : public DividerForm {
 public:
  static constexpr const char* kCaption = "Dérivation en fonction de Q amont";
  // Rows that Insert may make.
  static constexpr int kMaxPoints = 10;

  explicit FrmDqq(EditorContext& context);

  std::vector<Grid*> Grids() override { return {&spread1_, &spread2_}; }
  std::vector<FormCommand> Commands() override;
  Grid& spread2() { return spread2_; }

  void cmdOk();
  void cmdAddLine();
  void cmdInsLine();
  void cmdDelLine();
  void cmdVisu();

 private:
  // The rows of the law: those before the first empty Qamont.
  int LawRows() const;
  bool CheckLaw();

  Grid spread2_;
};

}  // namespace pluvane
