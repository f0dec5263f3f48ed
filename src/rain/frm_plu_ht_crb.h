// The table of a recorded rain event: the time in column 1, then the
// cumulated height H(t) of each gauge of the drawing, one column per gauge in
// search order; the first row holds the state of each gauge. The table is
// read from the event's working file when there is one, else from its Pt
// tags, and saved to the working file only: the library's save brings it in.
#pragma once

#include <string>
#include <vector>

#include "editors/curve_table_form.h"
#include "editors/editor_context.h"

namespace pluvane {

class FrmPluHtCrb : public CurveTableForm {
 public:
  FrmPluHtCrb(EditorContext& context, std::string id, int number, std::string working_file);

  std::string Caption() const override {
    return "Evénement " + id_ + " - courbe des hauteurs cumulées H(t)";
  }

  // The head row of the gauges' states stays first.
  void mnIns() override;
  void mnDel() override;
  void mnSave() override;
  void mnVisu() override;

 private:
  void FillRow(int row, const std::string& line);

  EditorContext& context_;
  std::string id_;
  std::string working_file_;
};

// The gauges of the drawing in search order (Md_nbPluvio).
std::vector<int> Md_nbPluvio(Surface& surface);

}  // namespace pluvane
