// The gauge's dialog (frmPluXy): its identifier, unique among the gauges,
// and its position in map coordinates. It works on the surface's current
// object, the gauge the main window made current.
#pragma once

#include <string>
#include <vector>

#include "editors/editor_context.h"
#include "foundation/form_controller.h"

namespace pluvane {

class FrmPluXy : public FormController {
 public:
  static constexpr int kRowLabel = 1;
  static constexpr int kRowX = 2;
  static constexpr int kRowY = 3;

  explicit FrmPluXy(EditorContext& context);

  std::string Caption() const override { return "Localisation du pluviographe"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }

  void cmdOk();
  void cmdAnnul() { Close(); }

 private:
  EditorContext& context_;
  int gauge_;
  std::string old_label_;
  Grid grid_;
};

}  // namespace pluvane
