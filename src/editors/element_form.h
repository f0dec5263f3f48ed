// What every element editor shares: it opens on the surface's current
// element, shows a two-column grid (label, value) whose rows are bound to the
// element's tags, copies a clicked cell to the status line, tests the label
// (row 1) against the labels of the element's kind, and writes the rows back
// on Ok. The forms add their own rows, checks and tables.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editors/editor_context.h"
#include "foundation/form_controller.h"
#include "foundation/grid.h"

namespace pluvane {

// One row of the grid: the tag it shows, its label, the cell of its value.
struct TagRow {
  std::string tag;
  std::string label;
  CellType type;
};

class ElementForm : public FormController {
 public:
  static constexpr int kLabelCol = 1;
  static constexpr int kValueCol = 2;
  // The grey of the label cells.
  static constexpr std::int32_t kLabelBackColour = kButtonFaceColour;

  ElementForm(EditorContext& context, std::string caption, std::vector<TagRow> rows);

  std::string Caption() const override { return caption_; }
  std::vector<Grid*> Grids() override { return {&spread1_}; }
  std::vector<FormCommand> Commands() override;
  // A click shows the cell's text in the status line.
  void ClickCell(Grid& grid, int col, int row) override;

  Grid& spread1() { return spread1_; }
  // The object number of the element edited.
  int Element() const { return element_; }

  // Checks, then stores the rows and closes. A refused check leaves the form
  // open with nothing written.
  virtual void cmdOk();
  void cmdAnnul() { Close(); }

 protected:
  // A tag of the element edited, and writing it; the cursor is kept.
  std::string Tag(std::string_view name) const;
  void SetTag(std::string_view name, std::string_view value);
  // Fills the grid's value cells from the tags of their rows.
  void LoadRows();
  // The label of row 1 against the labels of the kind. Taken: the message,
  // the old label back in the cell and the cursor on row 1, false.
  bool LabelAccepted();
  // Writes rows from..to of the grid to their tags, in order.
  void StoreRows(int from, int to);
  // Commands after Ok and Annuler, in the order of their buttons.
  virtual std::vector<FormCommand> MoreCommands() { return {}; }

  EditorContext& context_;
  const int element_;
  // The label at opening, which a refused label goes back to.
  const std::string old_label_;
  Grid spread1_;
  std::vector<TagRow> rows_;

 private:
  std::string caption_;
};

}  // namespace pluvane
