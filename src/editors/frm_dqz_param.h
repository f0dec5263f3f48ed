// frmDqzParam: the three parameters of a weir or an orifice branch of a
// level-law divider, written to the branch's tags at once on Ok.
#pragma once

#include "editors/dqz_branches.h"
#include "editors/editor_context.h"
#include "foundation/form_controller.h"

namespace pluvane {

class FrmDqzParam : public FormController {
 public:
  static constexpr int kColLabel = 1;
  static constexpr int kColValue = 2;

  // `type` 1 (weir) or 2 (orifice) gives the labels; `caption` is the one the
  // divider's editor gives ("Seuil déversant", "Orifice").
  FrmDqzParam(EditorContext& context, int element, const DqzBranch& branch, int type,
              std::string caption);

  std::string Caption() const override { return caption_; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;
  Grid& grid() { return grid_; }

  // Clears the branch's former parameters up to its point count, writes the
  // three values and closes.
  void cmdOk();
  void cmdAnnul() { Close(); }

 private:
  EditorContext& context_;
  int element_;
  const DqzBranch& branch_;
  std::string caption_;
  Grid grid_;
};

}  // namespace pluvane
