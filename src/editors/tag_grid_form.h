// The common shape of the element editors: a two-column grid, labels in
// column 1 and values in column 2, one row per tag of the element that was
// current when the form opened. Row 1 is the user's label (libell), which
// Ok writes first and checks against the other elements of the kind; the
// other rows follow in order, numbers as numbers (a blank number stays
// blank) and texts as they stand.
// A click on a cell shows its text in the main window's status line.
#pragma once

#include <string>
#include <vector>

#include "editors/editor_context.h"
#include "foundation/form_controller.h"

namespace pluvane {

// One row of the grid: the tag it shows, its label and its value cell.
struct TagRow {
  std::string tag;
  std::string label;
  CellType type;
};

class TagGridForm : public FormController {
 public:
  static constexpr int kLabelCol = 1;
  static constexpr int kValueCol = 2;
  static constexpr int kLabelRow = 1;
  // The grey of the label cells.
  static constexpr std::int32_t kLabelBackColour = kButtonFaceColour;

  std::string Caption() const override { return caption_; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  // cmdOk and cmdAnnul.
  std::vector<FormCommand> Commands() override;
  void ClickCell(Grid& grid, int col, int row) override;

  Grid& grid() { return grid_; }
  // The element edited.
  int Element() const { return element_; }

  virtual void cmdOk();
  void cmdAnnul() { Close(); }

 protected:
  // Fills the grid from the current object's tags; the cursor goes to the
  // value of row 2. A float cell shows its tag with the cell's decimals.
  TagGridForm(EditorContext& context, std::string caption, std::vector<TagRow> rows);

  // Copies the rows to the tags in order. On a duplicate label the old label
  // returns to the tag and the cell, the cursor goes to row 1, nothing else
  // is written and the result is false.
  bool StoreRows();
  // Shows a refusal titled "Erreur de saisie" and puts the cursor on the value of `row`.
  void Refuse(int row, const std::string& message);

  const std::string& OldLabel() const { return old_label_; }

  EditorContext& context_;

 private:
  std::string caption_;
  std::vector<TagRow> rows_;
  Grid grid_;
  int element_ = 0;
  std::string old_label_;
};

// The text of a number in a float cell of `decimals` decimals ("60.00").
std::string CellNumber(double value, int decimals);

}  // namespace pluvane
