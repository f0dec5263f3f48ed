// frmEdit, the general editor: every element of the network in one window,
// one sheet per kind of element (the tabs), one row per element, one column
// per field, so that the user edits in bulk what the element editors edit one
// at a time. Each sheet keeps the object numbers of its rows in an array
// parallel to them; grid edits reach the elements only through mnSave.
//
// The window shows the sheets as tabs (TabCount, TabCaption, ClickTab).
#pragma once

#include <string>
#include <vector>

#include "editors/edit_sheets.h"
#include "editors/editor_context.h"
#include "editors/element_label.h"
#include "foundation/form_controller.h"

namespace pluvane {

class FrmEdit : public FormController {
 public:
  static constexpr const char* kCaption = "Editeur général des éléments du réseau";
  static constexpr const char* kButton = "&ouvrir...";

  explicit FrmEdit(EditorContext& context);
  ~FrmEdit() override;
  FrmEdit(const FrmEdit&) = delete;
  FrmEdit& operator=(const FrmEdit&) = delete;

  std::string Caption() const override { return kCaption; }
  // The grids of all sheets, in the order of the tabs.
  std::vector<Grid*> Grids() override;
  std::vector<FormCommand> Commands() override;

  // --- Tabs -----------------------------------------------------------------
  int TabCount() const override { return static_cast<int>(sheets_.size()); }
  // The caption of a tab (from 0), empty for a kind without element.
  std::string TabCaption(int tab) const override;
  // The tab shown, -1 when no kind has an element.
  int CurrentTab() const override { return current_; }
  // A tab without caption cannot be entered: the former tab stays. Otherwise
  // the highlight goes and the sheet chosen is filled from the tags.
  void ClickTab(int tab) override;
  Grid& Sheet(int tab) { return sheets_.at(static_cast<std::size_t>(tab)).grid; }
  // The element kind of a tab, and the object numbers of its rows.
  int SheetIName(int tab) const;
  const std::vector<int>& SheetObjects(int tab) const;

  // --- Cells ----------------------------------------------------------------
  // A click highlights the row's element and shows the cell's text.
  void ClickCell(Grid& grid, int col, int row) override;
  // The button of a row opens its curve in the curve editor.
  void ButtonCell(Grid& grid, int col, int row) override;
  // A list drops down: the sections' list warns when there is no section.
  void ListDropDown(Grid& grid, int col, int row) override;

  // --- Commands -------------------------------------------------------------
  // Stores every row of the current sheet in its element.
  void mnSave();
  // Prints the current sheet.
  void mnPrint();
  // Writes every sheet to the network's .Txt in the working folder.
  void mnuSave2Txt();
  void mnQuit();

  // The rows of a sheet as text: the heads, then one line per element, the
  // cells joined by tabs (button cells empty).
  std::vector<std::string> SheetLines(int tab) const;

 private:
  struct SheetState {
    const SheetLayout* layout;
    std::vector<int> objects;  // parallel to the rows
    Grid grid;
  };

  SheetState* SheetOf(const Grid& grid);
  int ColumnOf(const SheetState& sheet, SheetCell cell) const;
  void Fill(SheetState& sheet);
  // The heads and tool tips of the parameter columns after the function of the row.
  void ShowParameterHeads(SheetState& sheet, int row);
  void SetParameterNotes(SheetState& sheet, int row);
  // Stores one row; false when its element could not be reached.
  bool SaveRow(SheetState& sheet, int row, LabelCounts& labels);
  void EditCurve(SheetState& sheet, int col, int row);

  EditorContext& context_;
  std::vector<SheetState> sheets_;
  int current_ = -1;
  bool filling_ = false;
};

}  // namespace pluvane
