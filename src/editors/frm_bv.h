// The catchment editor (frmBV): geometry, the production function that turns
// rain into net rain and the transfer function that turns net rain into a
// hydrograph, with their parameters. Each function remembers its own
// parameters in the tags fp_... and fr_...: they are saved when the list of
// functions drops down and shown again when the function is chosen back, so
// a user flipping between functions finds each one's values again.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "editors/tag_grid_form.h"

namespace pluvane {

class FrmBV : public TagGridForm {
 public:
  // Rows of the grid.
  static constexpr int kRowLabel = 1;
  static constexpr int kRowS = 2;
  static constexpr int kRowL = 3;
  static constexpr int kRowSlope = 4;
  static constexpr int kRowCi = 5;
  static constexpr int kRowFpluie = 6;
  static constexpr int kRowFpluie1 = 7;
  static constexpr int kRowFpluie2 = 8;
  static constexpr int kRowFpluie3 = 9;
  static constexpr int kRowFruissel = 10;
  static constexpr int kRowK = 11;
  // Background and text of a parameter cell in use.
  static constexpr std::int32_t kWhite = 0xFFFFFF;
  static constexpr std::int32_t kBlack = 0x000000;

  explicit FrmBV(EditorContext& context);

  // The list cells of rows 6 and 10: the drop-down saves the parameters of the
  // function shown; the choice made then shows those of the function chosen.
  void ListDropDown(Grid& grid, int col, int row) override;

  // Checks surface, length and slope, then stores the rows (label first,
  // tested against the labels of the kind) and closes.
  void cmdOk() override;

  // Rows 7 to 9 for production function `number`: labels, remembered values,
  // unused rows greyed and locked. Outside 1 to 4 the rows stay cleared.
  void FpluieDisplay(int number);
  // The values of rows 7 to 9 that function `number` uses, into its fp_ tags.
  void FpluieSave(int number);
  // Row 11 for transfer function `number` (4 and 5 have an imposed time).
  void FruisselDisplay(int number);
  void FruisselSave(int number);
  // Rows 7 to 9 emptied, white, black and unlocked.
  void pReinitRow7_9();

  // The grey of locked cells, taken from the label cell of row 11 at opening.
  std::int32_t LockedColour() const { return grey_; }

 private:
  // Shows the function now in the list cell of row 6 or 10; an empty cell
  // does nothing.
  void FunctionChosen(int row);
  // The function number of a list cell: its first character.
  int FunctionOf(int row);
  // A tag of the catchment, and writing one at once.
  std::string Tag(std::string_view name) const;
  void SetTag(std::string_view name, std::string_view value);
  // Shows a tag in a parameter row as its cell shows numbers, blank when empty.
  void ShowTag(int row, std::string_view name);
  // The number of a parameter row as a tag keeps it, blank when the cell is.
  std::string NumberOfRow(int row);
  void Lock(int row);
  void Unlock(int row);

  std::int32_t grey_;
};

}  // namespace pluvane
