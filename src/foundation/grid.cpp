#include "foundation/grid.h"

#include <algorithm>

#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

const Cell& EmptyCell() {
  static const Cell empty;
  return empty;
}

// Splits on one separator character, keeping empty fields.
std::vector<std::string> SplitOn(std::string_view text, char separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  while (true) {
    std::size_t end = text.find(separator, start);
    if (end == std::string_view::npos) {
      parts.emplace_back(text.substr(start));
      return parts;
    }
    parts.emplace_back(text.substr(start, end - start));
    start = end + 1;
  }
}

// A new cell of a column: its format without text or note.
Cell FormattedCell(const Cell& format) {
  Cell cell;
  cell.type = format.type;
  cell.locked = format.locked;
  cell.back_colour = format.back_colour;
  cell.fore_colour = format.fore_colour;
  return cell;
}

}  // namespace

Grid::Grid(int max_cols, int max_rows) {
  columns_.resize(static_cast<std::size_t>(std::max(max_cols, 0)) + 1);
  rows_.resize(static_cast<std::size_t>(std::max(max_rows, 0)) + 1, MakeRow());
}

Grid::Row Grid::MakeRow() const {
  Row row;
  row.cells.reserve(columns_.size());
  for (const auto& column : columns_) row.cells.push_back(FormattedCell(column.format));
  return row;
}

// --- Size -------------------------------------------------------------------

void Grid::SetMaxRows(int count) {
  count = std::max(count, 0);
  int old = MaxRows();
  if (count > old) {
    InsertRows(old + 1, count - old);
  } else if (count < old) {
    DeleteRows(count + 1, old - count);
  }
}

void Grid::SetMaxCols(int count) {
  count = std::max(count, 0);
  int old = MaxCols();
  if (count == old) return;
  bool growing = count > old;
  GridChange before{growing ? GridChange::kColsInserting : GridChange::kColsRemoving,
                    std::min(old, count) + 1, 0, std::max(old, count), 0};
  Notify(before);
  columns_.resize(static_cast<std::size_t>(count) + 1);
  for (auto& row : rows_) {
    row.cells.resize(columns_.size());
    if (growing) {
      for (int c = old + 1; c <= count; ++c) row.cells[c] = FormattedCell(columns_[c].format);
    }
  }
  before.kind = growing ? GridChange::kColsInserted : GridChange::kColsRemoved;
  Notify(before);
}

void Grid::InsertRows(int row, int count) {
  if (count <= 0 || row < 1 || row > MaxRows() + 1) return;
  GridChange change{GridChange::kRowsInserting, 0, row, 0, row + count - 1};
  Notify(change);
  rows_.insert(rows_.begin() + row, static_cast<std::size_t>(count), MakeRow());
  change.kind = GridChange::kRowsInserted;
  Notify(change);
  ClearSelection();
}

void Grid::DeleteRows(int row, int count) {
  if (count <= 0 || row < 1 || row > MaxRows()) return;
  int last = std::min(row + count - 1, MaxRows());
  GridChange change{GridChange::kRowsRemoving, 0, row, 0, last};
  Notify(change);
  rows_.erase(rows_.begin() + row, rows_.begin() + last + 1);
  change.kind = GridChange::kRowsRemoved;
  Notify(change);
  ClearSelection();
}

int Grid::DataRowCnt() const {
  for (int row = MaxRows(); row >= 1; --row) {
    for (int col = 1; col <= MaxCols(); ++col) {
      if (!IsBlank(col, row)) return row;
    }
  }
  return 0;
}

// --- Cells ------------------------------------------------------------------

const Cell& Grid::At(int col, int row) const {
  if (col < 0 || row < 0 || col > MaxCols() || row > MaxRows()) return EmptyCell();
  return rows_[row].cells[col];
}

Cell* Grid::Mutable(int col, int row) {
  if (col < 0 || row < 0 || col > MaxCols() || row > MaxRows()) return nullptr;
  return &rows_[row].cells[col];
}

void Grid::UpdateCell(int col, int row, const std::function<void(Cell&)>& change) {
  Cell* cell = Mutable(col, row);
  if (!cell) return;
  change(*cell);
  CellsChanged(col, row, col, row);
}

void Grid::UpdateColumn(int col, const std::function<void(Cell&)>& change) {
  if (col < 0 || col > MaxCols()) return;
  change(columns_[col].format);
  for (int row = 1; row <= MaxRows(); ++row) change(rows_[row].cells[col]);
  CellsChanged(col, 1, col, MaxRows());
}

void Grid::SetText(int col, int row, std::string_view text) {
  Cell* cell = Mutable(col, row);
  if (!cell) return;
  cell->text = text;
  if (cell->type.kind == CellType::kList) {
    auto entries = SplitOn(cell->type.list, '\t');
    auto found = std::find(entries.begin(), entries.end(), cell->text);
    cell->list_index = found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
  }
  CellsChanged(col, row, col, row);
}

double Grid::Value(int col, int row) const { return Val(Text(col, row)); }

bool Grid::IsBlank(int col, int row) const {
  const std::string& text = Text(col, row);
  return text.find_first_not_of(' ') == std::string::npos;
}

void Grid::SetType(int col, int row, const CellType& type) {
  UpdateCell(col, row, [&](Cell& cell) {
    cell.type = type;
    cell.list_index = -1;
  });
}

void Grid::SetLocked(int col, int row, bool locked) {
  UpdateCell(col, row, [&](Cell& cell) { cell.locked = locked; });
}

void Grid::SetBackColour(int col, int row, std::int32_t colour) {
  UpdateCell(col, row, [&](Cell& cell) { cell.back_colour = colour; });
}

void Grid::SetForeColour(int col, int row, std::int32_t colour) {
  UpdateCell(col, row, [&](Cell& cell) { cell.fore_colour = colour; });
}

void Grid::SetNote(int col, int row, std::string_view note) {
  UpdateCell(col, row, [&](Cell& cell) { cell.note = note; });
}

std::vector<std::string> Grid::ListEntries(int col, int row) const {
  const Cell& cell = At(col, row);
  if (cell.type.kind != CellType::kList || cell.type.list.empty()) return {};
  return SplitOn(cell.type.list, '\t');
}

void Grid::SetListIndex(int col, int row, int index) {
  Cell* cell = Mutable(col, row);
  if (!cell) return;
  auto entries = ListEntries(col, row);
  if (index < 0 || index >= static_cast<int>(entries.size())) {
    cell->list_index = -1;
    cell->text.clear();
  } else {
    cell->list_index = index;
    cell->text = entries[index];
  }
  CellsChanged(col, row, col, row);
}

void Grid::SetColumnType(int col, const CellType& type) {
  UpdateColumn(col, [&](Cell& cell) {
    cell.type = type;
    cell.list_index = -1;
  });
}

void Grid::SetColumnLocked(int col, bool locked) {
  UpdateColumn(col, [&](Cell& cell) { cell.locked = locked; });
}

void Grid::SetColumnColours(int col, std::int32_t back_colour, std::int32_t fore_colour) {
  UpdateColumn(col, [&](Cell& cell) {
    cell.back_colour = back_colour;
    cell.fore_colour = fore_colour;
  });
}

void Grid::ClipboardPaste(int col, int row, std::string_view text) {
  if (text.empty()) return;
  auto lines = SplitOn(text, '\n');
  // The line end after the last line makes no line of its own.
  if (lines.size() > 1 && lines.back().empty()) lines.pop_back();
  bool was_on = redraw_;
  SetRedraw(false);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::string_view line = lines[i];
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    int r = row + static_cast<int>(i);
    if (r < 1 || r > MaxRows()) continue;
    auto fields = SplitOn(line, '\t');
    for (std::size_t j = 0; j < fields.size(); ++j) {
      int c = col + static_cast<int>(j);
      if (c < 1 || c > MaxCols() || Locked(c, r)) continue;
      SetText(c, r, fields[j]);
    }
  }
  SetRedraw(was_on);
}

// --- Cursor and selection -----------------------------------------------------

void Grid::SetActiveCell(int col, int row) {
  active_col_ = std::max(col, 0);
  active_row_ = std::max(row, 0);
  Notify({GridChange::kActiveCell, active_col_, active_row_, active_col_, active_row_});
}

GridBlock Grid::GetSelection(int index) const {
  if (index < 0 || index >= SelectionCount()) return {};
  return selection_[index];
}

void Grid::AddSelection(GridBlock block) {
  if (block.col1 > block.col2) std::swap(block.col1, block.col2);
  if (block.row1 > block.row2) std::swap(block.row1, block.row2);
  selection_.push_back(block);
  Notify({GridChange::kSelectionChanged});
}

void Grid::ClearSelection() {
  if (selection_.empty()) return;
  selection_.clear();
  Notify({GridChange::kSelectionChanged});
}

// --- Sizes and look -------------------------------------------------------------

double Grid::ColWidth(int col) const {
  if (col < 0 || col > MaxCols()) return 0;
  return columns_[col].width;
}

void Grid::SetColWidth(int col, double chars) {
  if (col < 0 || col > MaxCols()) return;
  columns_[col].width = std::max(chars, 0.0);
  Layout();
}

double Grid::RowHeight(int row) const {
  if (row < 0 || row > MaxRows()) return kDefaultRowHeight;
  return rows_[row].height;
}

void Grid::SetRowHeight(int row, double twips) {
  if (row < 0 || row > MaxRows()) return;
  rows_[row].height = std::max(twips, 0.0);
  Layout();
}

void Grid::SetTwipsPerChar(double twips) {
  if (twips > 0) twips_per_char_ = twips;
  Layout();
}

void Grid::SetCaption(std::string_view caption) {
  caption_ = caption;
  Layout();
}

void Grid::SetVisible(bool visible) {
  visible_ = visible;
  Layout();
}

void Grid::SetEditMode(bool on) {
  edit_mode_ = on;
  Layout();
}

void Grid::SetRowSelect(bool on) {
  row_select_ = on;
  Layout();
}

void Grid::SetSelectionColours(std::int32_t back_colour, std::int32_t fore_colour) {
  selection_back_colour_ = back_colour;
  selection_fore_colour_ = fore_colour;
  Layout();
}

void Grid::SetFont(const FontChoice& font) {
  font_ = font;
  Layout();
}

void Grid::SetRedraw(bool on) {
  redraw_ = on;
  if (on && cells_pending_) {
    cells_pending_ = false;
    Notify({GridChange::kCells, 0, 0, MaxCols(), MaxRows()});
  }
}

// --- Listeners --------------------------------------------------------------------

int Grid::AddListener(Listener listener) {
  listeners_.emplace_back(next_listener_, std::move(listener));
  return next_listener_++;
}

void Grid::RemoveListener(int id) {
  std::erase_if(listeners_, [id](const auto& entry) { return entry.first == id; });
}

void Grid::CellsChanged(int col1, int row1, int col2, int row2) {
  if (row2 < row1 || col2 < col1) return;
  if (!redraw_) {
    cells_pending_ = true;
    return;
  }
  Notify({GridChange::kCells, col1, row1, col2, row2});
}

void Grid::Notify(const GridChange& change) {
  for (const auto& entry : listeners_) entry.second(change);
}

}  // namespace pluvane
