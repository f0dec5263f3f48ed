// What the two flow-divider editors share (frmDqq and frmDqz): the grid
// Spread1 of the divider's label and its four branches, the list of the links
// leaving its node with their object numbers in the same order, the rule of
// distinct branches, the highlight of the divider and its links on the plan,
// and the storing of the label and the branches.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "editors/editor_context.h"
#include "editors/leaving_links.h"
#include "foundation/form_controller.h"

namespace pluvane {

class DividerForm : public FormController {
 public:
  // Rows of Spread1.
  static constexpr int kRowLabel = 1;
  static constexpr int kRowAval = 2;
  static constexpr int kRowCount = 3;
  static constexpr int kRowDer1 = 4;
  static constexpr int kRowDer2 = 5;
  static constexpr int kRowDer3 = 6;
  // The rows of the branches, main downstream link first.
  static constexpr std::array<int, 4> kBranchRows{kRowAval, kRowDer1, kRowDer2, kRowDer3};
  // Columns of Spread1: the label of the row, then its value.
  static constexpr int kColLabel = 1;
  static constexpr int kColValue = 2;

  ~DividerForm() override;
  DividerForm(const DividerForm&) = delete;
  DividerForm& operator=(const DividerForm&) = delete;

  std::string Caption() const override { return caption_; }
  Grid& spread1() { return spread1_; }
  // The links leaving the divider's node, as listed in the branch rows.
  const LeavingLinks& links() const { return links_; }
  // The divider's object number.
  int element() const { return element_; }

  // A click on the link of a branch highlights that link and shows its Id in
  // the status line; a click elsewhere shows the cell's text there.
  void ClickCell(Grid& grid, int col, int row) override;
  void cmdAnnul() { Unload(); }

  static bool IsBranchRow(int row);

 protected:
  // Opens on the surface's current object, with `cols` columns in Spread1.
  DividerForm(EditorContext& context, std::string caption, int cols);

  // The branch rows must be filled in columns kColValue to `last_col`;
  // otherwise the cursor goes to the first empty cell and the message is
  // shown under the caption. True when all are filled.
  bool CheckBranchesFilled(int last_col);
  // True, after the message, the old name put back and the cursor on row 1,
  // when the label of row 1 is already taken by another element of the kind.
  bool LabelRefused();
  // Writes libell, IdAval, NbDer and IdDer_a to IdDer_c on the divider.
  void StoreBranches();
  // Number of derivations: the links that leave the node, less one.
  int DerivationCount() const { return static_cast<int>(links_.handles.size()) - 1; }
  // Writes to Spread1 without the rule of distinct branches.
  void SetQuietly(int col, int row, const std::string& text);
  // Closes the form and removes the highlight.
  void Unload();

  EditorContext& context_;
  Grid spread1_;

 private:
  // The rule of distinct branches after a choice on `row`, and its highlight.
  void BranchChosen(int row);

  std::string caption_;
  int element_ = 0;
  std::string old_label_;
  LeavingLinks links_;
  bool quiet_ = false;
};

}  // namespace pluvane
