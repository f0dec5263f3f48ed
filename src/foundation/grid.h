// The data grid of a form, as the form's controller sees it: rows and columns
// counted from 1 (row 0 holds the column heads, column 0 the row heads), typed
// and locked cells with colours and notes, the active cell, the selected
// blocks, sizes and the look. Controllers read and write it; the desktop side
// shows it through a table-model adapter that follows the change notices.
// Cells are addressed (col, row), in the order the old grid took them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/user_interface.h"

namespace pluvane {

// A colour of -1 stands for the grid's own (window and window-text colours).
inline constexpr std::int32_t kDefaultColour = -1;
// Colours are 24-bit with blue in the high byte.
inline constexpr std::int32_t kButtonFaceColour = 0xF0F0F0;
inline constexpr std::int32_t kDarkBlue = 0x800000;
inline constexpr std::int32_t kYellow = 0x00FFFF;

// What a cell accepts and how it is edited.
struct CellType {
  enum Kind { kText, kInteger, kFloat, kList, kButton, kCheckBox };
  Kind kind = kText;
  // Range of integer and float cells (no range when min == max), decimals of floats.
  double min = 0;
  double max = 0;
  int decimals = 0;
  // Tab-separated entries of a list cell.
  std::string list;
  // Most characters a text cell takes from the keyboard; 0 for no limit.
  int max_length = 0;
  // A list cell that also takes a text typed in its box, in the list or not.
  bool typed = false;

  static CellType Text(int max_length = 0) { return {kText, 0, 0, 0, {}, max_length}; }
  static CellType Integer(double min, double max) { return {kInteger, min, max, 0, {}}; }
  static CellType Float(double min, double max, int decimals) {
    return {kFloat, min, max, decimals, {}};
  }
  static CellType List(std::string entries) { return {kList, 0, 0, 0, std::move(entries)}; }
  static CellType Button() { return {kButton, 0, 0, 0, {}}; }
  static CellType CheckBox() { return {kCheckBox, 0, 0, 0, {}}; }
  bool operator==(const CellType&) const = default;
};

struct Cell {
  std::string text;
  CellType type;
  int list_index = -1;  // selected entry of a list cell, -1 for none
  bool locked = false;
  std::int32_t back_colour = kDefaultColour;
  std::int32_t fore_colour = kDefaultColour;
  std::string note;
};

// A rectangle of cells, corners included.
struct GridBlock {
  int col1 = 0;
  int row1 = 0;
  int col2 = 0;
  int row2 = 0;
  bool operator==(const GridBlock&) const = default;
};

// What changed, for the listeners. Row and column changes come in pairs, the
// first sent before the change and the second after it, so that a table-model
// adapter can bracket them; everything else is sent after the change.
struct GridChange {
  enum Kind {
    kCells,          // cells col1..col2, row1..row2 changed (text or attributes)
    kRowsInserting,  // rows row1..row2 are about to appear
    kRowsInserted,
    kRowsRemoving,  // rows row1..row2 are about to go
    kRowsRemoved,
    kColsInserting,  // columns col1..col2 are about to appear
    kColsInserted,
    kColsRemoving,
    kColsRemoved,
    kActiveCell,  // the cursor moved to (col1, row1)
    kSelectionChanged,  // the selected blocks changed
    kLayout,      // sizes, look, caption, visibility or edit mode changed
  };
  Kind kind;
  int col1 = 0;
  int row1 = 0;
  int col2 = 0;
  int row2 = 0;
};

class Grid {
 public:
  using Listener = std::function<void(const GridChange&)>;

  explicit Grid(int max_cols = 1, int max_rows = 0);
  // A grid is owned by one form; a copy would carry the view's listeners along.
  Grid(const Grid&) = delete;
  Grid& operator=(const Grid&) = delete;
  Grid(Grid&&) = default;
  Grid& operator=(Grid&&) = default;

  // --- Size -------------------------------------------------------------
  int MaxRows() const { return static_cast<int>(rows_.size()) - 1; }
  int MaxCols() const { return static_cast<int>(columns_.size()) - 1; }
  // New rows and columns take their column's format; negative counts give 0.
  void SetMaxRows(int count);
  void SetMaxCols(int count);
  // Inserts `count` rows before `row` (1 to MaxRows + 1) and deletes `count`
  // rows from `row` on; MaxRows follows. Out-of-range requests do nothing.
  void InsertRows(int row, int count);
  void DeleteRows(int row, int count);
  // The number of the last row holding a non-blank cell, 0 if none.
  int DataRowCnt() const;

  // --- Cells ------------------------------------------------------------
  // Out-of-range cells read as empty, unlocked text cells; writes to them are ignored.
  const Cell& At(int col, int row) const;
  const std::string& Text(int col, int row) const { return At(col, row).text; }
  // On a list cell the text also selects the entry equal to it (-1 if none).
  void SetText(int col, int row, std::string_view text);
  // Val of the cell's text.
  double Value(int col, int row) const;
  // True when the cell's text is empty once trimmed.
  bool IsBlank(int col, int row) const;
  const std::string& ColHead(int col) const { return Text(col, 0); }
  void SetColHead(int col, std::string_view text) { SetText(col, 0, text); }

  const CellType& Type(int col, int row) const { return At(col, row).type; }
  void SetType(int col, int row, const CellType& type);
  bool Locked(int col, int row) const { return At(col, row).locked; }
  void SetLocked(int col, int row, bool locked);
  std::int32_t BackColour(int col, int row) const { return At(col, row).back_colour; }
  void SetBackColour(int col, int row, std::int32_t colour);
  std::int32_t ForeColour(int col, int row) const { return At(col, row).fore_colour; }
  void SetForeColour(int col, int row, std::int32_t colour);
  const std::string& Note(int col, int row) const { return At(col, row).note; }
  void SetNote(int col, int row, std::string_view note);

  // List cells (TypeComboBoxList, TypeComboBoxCurSel): the entries, and the
  // selected index, which also sets the text to that entry (empty for -1).
  std::vector<std::string> ListEntries(int col, int row) const;
  int ListIndex(int col, int row) const { return At(col, row).list_index; }
  void SetListIndex(int col, int row, int index);

  // Column formats: applied to the column's data rows now and to the rows
  // made later (SetMaxRows, InsertRows).
  void SetColumnType(int col, const CellType& type);
  void SetColumnLocked(int col, bool locked);
  void SetColumnColours(int col, std::int32_t back_colour, std::int32_t fore_colour);

  // Pastes tab-separated cells, lines ended by LF or CR LF, with its first
  // cell at (col, row), as a spreadsheet paste: what falls outside the grid
  // is dropped and locked cells keep their text.
  void ClipboardPaste(int col, int row, std::string_view text);

  // --- Cursor and selection ---------------------------------------------
  int ActiveCol() const { return active_col_; }
  int ActiveRow() const { return active_row_; }
  // The cursor may stand on a row past the last (row 1 of an empty grid);
  // negative numbers give 0.
  void SetActiveCell(int col, int row);

  // The selected blocks, numbered from 0 as the old grid did.
  bool IsBlockSelected() const { return !selection_.empty(); }
  int SelectionCount() const { return static_cast<int>(selection_.size()); }
  // An out-of-range index gives an all-zero block.
  GridBlock GetSelection(int index) const;
  // Corners are put in order. Adding and clearing are what the view reports.
  void AddSelection(GridBlock block);
  void ClearSelection();

  // --- Sizes and look -----------------------------------------------------
  // Column widths in character units, row heights in twips.
  double ColWidth(int col) const;
  void SetColWidth(int col, double chars);
  double RowHeight(int row) const;
  void SetRowHeight(int row, double twips);
  // The width of one character unit in twips (set by the view from its font).
  double TwipsPerChar() const { return twips_per_char_; }
  void SetTwipsPerChar(double twips);
  double ColWidthTwips(int col) const { return ColWidth(col) * twips_per_char_; }

  // The caption of the form that owns the grid, used as the title of its messages.
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  // Editing mode: the cursor's cell is open for typing.
  bool EditMode() const { return edit_mode_; }
  void SetEditMode(bool on);
  // Whole-row selection and the colours of the selected rows.
  bool RowSelect() const { return row_select_; }
  void SetRowSelect(bool on);
  std::int32_t SelectionBackColour() const { return selection_back_colour_; }
  std::int32_t SelectionForeColour() const { return selection_fore_colour_; }
  void SetSelectionColours(std::int32_t back_colour, std::int32_t fore_colour);
  const FontChoice& Font() const { return font_; }
  void SetFont(const FontChoice& font);
  // Marks a grid whose columns after the first hold one series only (the plot
  // of a grid then draws one curve).
  bool SingleSeries() const { return single_series_; }
  void SetSingleSeries(bool on) { single_series_ = on; }

  // Off, cell changes are gathered and told as one change of the whole grid
  // when it comes back on. Row and column changes are always told at once.
  bool Redraw() const { return redraw_; }
  void SetRedraw(bool on);

  // --- Listeners ------------------------------------------------------------
  // Returns an id for RemoveListener.
  int AddListener(Listener listener);
  void RemoveListener(int id);

 private:
  struct Column {
    Cell format;  // type, lock and colours given to new cells
    double width = 9;
  };
  struct Row {
    std::vector<Cell> cells;
    double height = kDefaultRowHeight;
  };
  static constexpr double kDefaultRowHeight = 255;

  Cell* Mutable(int col, int row);
  // Applies a change to one cell, or to a column's format and its data cells,
  // and tells the listeners.
  void UpdateCell(int col, int row, const std::function<void(Cell&)>& change);
  void UpdateColumn(int col, const std::function<void(Cell&)>& change);
  Row MakeRow() const;
  void CellsChanged(int col1, int row1, int col2, int row2);
  void Notify(const GridChange& change);
  void Layout() { Notify({GridChange::kLayout}); }

  std::vector<Column> columns_;  // index 0 is the row-head column
  std::vector<Row> rows_;        // index 0 is the column-head row
  int active_col_ = 1;
  int active_row_ = 1;
  std::vector<GridBlock> selection_;
  double twips_per_char_ = 120;
  std::string caption_;
  bool visible_ = true;
  bool edit_mode_ = false;
  bool row_select_ = false;
  std::int32_t selection_back_colour_ = kDefaultColour;
  std::int32_t selection_fore_colour_ = kDefaultColour;
  FontChoice font_{"MS Sans Serif", 8};
  bool single_series_ = false;
  bool redraw_ = true;
  bool cells_pending_ = false;
  std::vector<std::pair<int, Listener>> listeners_;
  int next_listener_ = 1;
};

}  // namespace pluvane
