// The radius of action of the design storms (frmPluRayon): one object of kind
// 17 with the Id "Rayon", drawn on the plan as the circle it covers. Without
// it a design storm covers the whole network.
#pragma once

#include <string>
#include <vector>

#include "editors/editor_context.h"
#include "foundation/form_controller.h"

namespace pluvane {

class FrmPluRayon : public FormController {
 public:
  static constexpr int kRowRadius = 1;
  static constexpr int kRowX = 2;
  static constexpr int kRowY = 3;

  // On the radius just drawn when it is the current object, else on the
  // drawing's radius if any.
  explicit FrmPluRayon(EditorContext& context);

  std::string Caption() const override { return "Rayon d'action de la pluie projet"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }

  // Creates the radius if missing, places and sizes it, writes its tags.
  void cmdOk();
  // Deletes the radius.
  void cmdDel();
  void cmdAnnul() { Close(); }

 private:
  EditorContext& context_;
  int radius_ = 0;
  Grid grid_;
};

// The radius object (kind 17, Id "Rayon"), 0 when there is none.
int FindRadius(Surface& surface);

}  // namespace pluvane
