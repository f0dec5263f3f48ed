// The edition of a synthetic storm I(t): the points of its intensity curve,
// time rising, at least two of them, and the curve shown in the viewer.
#pragma once

#include <string>
#include <vector>

#include "editors/curve_table_form.h"
#include "editors/editor_context.h"

namespace pluvane {

class FrmPitPlus : public CurveTableForm {
 public:
  // `id` and `number` are the current rain: its name and its record.
  FrmPitPlus(EditorContext& context, std::string id, int number);

  std::string Caption() const override { return "Pluie de projet I(t)"; }

  void mnSave() override;
  void mnVisu() override;

 private:
  EditorContext& context_;
  std::string id_;
  int number_;
};

}  // namespace pluvane
