// frmSect, the section library: one row per section of the drawing, its Id
// and a button that opens the section's outline (top widths and heights) in
// the curve editor. Ajouter, Insérer and Supprimer work on rows; Supprimer
// also deletes the section from the drawing at once. Enregistrer makes a
// section for each new name. While the library is open the curve editor runs
// in the section mode ("SEC"): the heights of column 2 must rise.
#pragma once

#include <string>
#include <vector>

#include "editors/editor_context.h"
#include "foundation/form_controller.h"

namespace pluvane {

class FrmSect : public FormController {
 public:
  static constexpr int kIdCol = 1;
  static constexpr int kCurveCol = 2;
  static constexpr int kPointLimit = 10;
  // The mode handed to the curve editor.
  static constexpr const char* kMode = "SEC";
  static constexpr const char* kButtonText = "&ouvrir...";
  static constexpr const char* kCurveFile = "tmp.crb";
  static constexpr const char* kCurveName = "CrbX";

  explicit FrmSect(EditorContext& context);

  std::string Caption() const override { return "Géométrie des collecteurs... "; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;
  // The button of column 2 opens the curve editor on the row's section.
  void ButtonCell(Grid& grid, int col, int row) override;

  Grid& grid() { return grid_; }

  void mnuAdd();
  void mnuIns();
  void mnuDel();
  void mnuSave();
  void mnuQuit() { Close(); }
  // Ctrl+V: the clipboard's text pasted as the grid toolkit does it.
  void Paste(const std::string& clipboard_text);
  // The curve editor on the section of the row; its points are read back
  // into the section once the editor has closed.
  void OpenCurve(int row);

 private:
  void ShowButton(int row);
  void ShowButtons();

  EditorContext& context_;
  Grid grid_;
  bool showing_buttons_ = false;
};

}  // namespace pluvane
