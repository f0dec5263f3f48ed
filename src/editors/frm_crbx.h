// frmCrbx, the editor of the small X/Y tables of the program: the outline of
// a section, the Q=f(Z) law of a divider branch, the laws of basins and
// injections. The caller writes the curve to a file (curve_tags.h), opens the
// editor on it, and reads the file back once the editor has closed: the
// editor itself writes only to the file.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "editors/editor_context.h"
#include "foundation/form_controller.h"

namespace pluvane {

// What the caller sets before the editor opens.
struct CrbxParams {
  std::string file;        // the curve file edited (tmp.crb in the working folder)
  std::string curve_name;  // the curve's name in that file
  int point_limit = 10;    // the rows that mnInsert may reach
  // Heads of columns 1 to 4; columns 3 and 4 exist only when theirs is not empty.
  std::array<std::string, 4> labels;
  std::string caption;     // the form's caption, the title of its messages
  std::string plot_title;  // the page title of mnVisu
  // The mode of the program while the editor opens: "SEC" under the section
  // library (column 2 holds the heights), empty or another kind elsewhere.
  std::string mode;
};

class FrmCrbx : public FormController {
 public:
  static constexpr int kDecimals = 3;
  static constexpr double kLimit = 9999999999.999;

  // Loads the curve of that name from the file, if both exist.
  FrmCrbx(EditorContext& context, CrbxParams params);

  std::string Caption() const override { return params_.caption; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }
  const CrbxParams& params() const { return params_; }
  int Columns() const { return grid_.MaxCols(); }

  void mnVisu();
  void mnAdd();
  void mnInsert();
  void mnDelete();
  void mnSave();

 private:
  // Writes the kept rows to the file; returns how many were kept.
  int WriteFile();

  EditorContext& context_;
  CrbxParams params_;
  Grid grid_;
};

}  // namespace pluvane
