// frmDqz: the divider whose shares follow from the water level, each of its
// four branches given a hydraulic type (weir, orifice, Strickler or a given
// curve Q=f(Z)) whose parameters the button of its row opens.
#pragma once

#include "editors/divider_form.h"
#include "editors/dqz_branches.h"
#include "editors/frm_dqz_param.h"

namespace pluvane {

class FrmDqz : public DividerForm {
 public:
  static constexpr const char* kCaption =
      "Dérivation en fonction de la géométrie des collecteurs aval";
  static constexpr const char* kTitle = "Editeur DQZ";
  // Columns of Spread1 after the label and the link.
  static constexpr int kColType = 3;
  static constexpr int kColButton = 4;
  // Point limit of a branch's curve.
  static constexpr int kMaxCurvePoints = 10;

  explicit FrmDqz(EditorContext& context);

  std::vector<Grid*> Grids() override { return {&spread1_}; }
  std::vector<FormCommand> Commands() override;
  // The button "ouvrir..." of a branch row opens its parameters.
  void ButtonCell(Grid& grid, int col, int row) override;

  void OpenBranch(int row);
  void cmdOk();

 private:
  void OpenParameters(const DqzBranch& branch, int type);
  void ReadStrickler(const DqzBranch& branch, int row);
  void EditCurve(const DqzBranch& branch);
};

}  // namespace pluvane
