// The check-list from which the user takes the lines to act on: the curves of
// a curve file to draw, or identifiers to show or to export. Loading fills the
// grid from the source file by the mode; mnDessiner writes the ticked names to
// the list file, one a line; mnClose leaves without writing, so that no list
// file tells the caller the choice was dropped.
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/grid.h"
#include "foundation/user_interface.h"

namespace pluvane {

class FrmSelection : public FormController {
 public:
  // `mode`: "identif", "export", or the extension of a curve file ("crb2"
  // lists only the names holding "Mark"). The list file is removed at once.
  FrmSelection(UserInterface& ui, std::string mode, std::string source, std::string list_file);

  std::string Caption() const override { return caption_; }
  std::vector<Grid*> Grids() override { return {&Spread1}; }
  std::vector<FormCommand> Commands() override;

  // A click on a name swaps its tick (the check box swaps itself).
  void ClickCell(Grid& grid, int col, int row) override {
    if (&grid == &Spread1 && col == 1) Spread1_Click(row);
  }
  // A click on a row swaps "1" and "0" in its check column.
  void Spread1_Click(int row);
  void mnDessiner();
  void mnSelection();
  void mnDeselect();
  void mnClose();

  // Column 1 the name, column 2 "1" when ticked and "0" when not.
  Grid Spread1;

 private:
  void Fill(const std::vector<std::string>& names);
  void TickAll(const char* value);

  UserInterface& ui_;
  std::string mode_;
  std::string source_;
  std::string list_file_;
  std::string caption_;
  std::string draw_caption_ = "&Dessiner";
};

// The entries of a curve file for the chooser: every quoted name but "PkFin"
// and empty ones, in the file's order; with `marks_only` those holding "Mark".
// A missing file shows its message and gives none.
std::vector<std::string> CurveNamesOf(UserInterface& ui, const std::string& file, bool marks_only);

}  // namespace pluvane
