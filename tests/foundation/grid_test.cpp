#include "foundation/grid.h"

#include <gtest/gtest.h>

#include <vector>

namespace pluvane {
namespace {

// Records every change the grid tells, for the adapter's sake.
struct Recorder {
  std::vector<GridChange> changes;
  explicit Recorder(Grid& grid) {
    grid.AddListener([this](const GridChange& c) { changes.push_back(c); });
  }
  std::vector<GridChange::Kind> Kinds() const {
    std::vector<GridChange::Kind> kinds;
    for (const auto& c : changes) kinds.push_back(c.kind);
    return kinds;
  }
};

TEST(Grid, StartsWithItsSizeAndCursorOnFirstCell) {
  Grid grid(3, 2);
  EXPECT_EQ(grid.MaxCols(), 3);
  EXPECT_EQ(grid.MaxRows(), 2);
  EXPECT_EQ(grid.ActiveCol(), 1);
  EXPECT_EQ(grid.ActiveRow(), 1);
  EXPECT_EQ(grid.Text(3, 2), "");
  EXPECT_TRUE(grid.Visible());
  EXPECT_FALSE(grid.EditMode());
}

TEST(Grid, HeadsLiveInRowAndColumnZero) {
  Grid grid(2, 1);
  grid.SetColHead(1, "Id");
  grid.SetText(0, 1, "1");
  EXPECT_EQ(grid.ColHead(1), "Id");
  EXPECT_EQ(grid.Text(1, 0), "Id");
  EXPECT_EQ(grid.Text(0, 1), "1");
}

TEST(Grid, OutOfRangeCellsReadEmptyAndIgnoreWrites) {
  Grid grid(2, 2);
  grid.SetText(3, 1, "x");
  grid.SetText(1, 3, "x");
  grid.SetText(-1, 1, "x");
  EXPECT_EQ(grid.Text(3, 1), "");
  EXPECT_EQ(grid.Text(1, 3), "");
  EXPECT_EQ(grid.Text(-1, -1), "");
  EXPECT_FALSE(grid.Locked(9, 9));
  EXPECT_EQ(grid.Type(9, 9).kind, CellType::kText);
}

TEST(Grid, ValueAndBlankReading) {
  Grid grid(1, 3);
  grid.SetText(1, 1, " 2.5 m");
  grid.SetText(1, 2, "   ");
  EXPECT_DOUBLE_EQ(grid.Value(1, 1), 2.5);
  EXPECT_DOUBLE_EQ(grid.Value(1, 3), 0);
  EXPECT_FALSE(grid.IsBlank(1, 1));
  EXPECT_TRUE(grid.IsBlank(1, 2));
  EXPECT_TRUE(grid.IsBlank(1, 3));
}

TEST(Grid, CellAttributes) {
  Grid grid(2, 2);
  grid.SetType(1, 1, CellType::Float(0, 100, 2));
  grid.SetLocked(1, 1, true);
  grid.SetBackColour(1, 1, 0xFF);
  grid.SetForeColour(1, 1, 0xFF00);
  grid.SetNote(1, 1, "vide");
  const Cell& cell = grid.At(1, 1);
  EXPECT_EQ(cell.type.kind, CellType::kFloat);
  EXPECT_DOUBLE_EQ(cell.type.max, 100);
  EXPECT_EQ(cell.type.decimals, 2);
  EXPECT_TRUE(cell.locked);
  EXPECT_EQ(cell.back_colour, 0xFF);
  EXPECT_EQ(cell.fore_colour, 0xFF00);
  EXPECT_EQ(cell.note, "vide");
  EXPECT_EQ(grid.BackColour(2, 2), kDefaultColour);
  EXPECT_EQ(grid.Note(2, 2), "");
}

TEST(Grid, ListCellsKeepIndexAndTextTogether) {
  Grid grid(1, 1);
  grid.SetType(1, 1, CellType::List("1 Aucune\t2 Horton\t3 SCS"));
  EXPECT_EQ(grid.ListEntries(1, 1), (std::vector<std::string>{"1 Aucune", "2 Horton", "3 SCS"}));
  EXPECT_EQ(grid.ListIndex(1, 1), -1);
  grid.SetListIndex(1, 1, 1);
  EXPECT_EQ(grid.Text(1, 1), "2 Horton");
  grid.SetText(1, 1, "3 SCS");
  EXPECT_EQ(grid.ListIndex(1, 1), 2);
  grid.SetText(1, 1, "autre");
  EXPECT_EQ(grid.ListIndex(1, 1), -1);
  grid.SetListIndex(1, 1, 7);
  EXPECT_EQ(grid.ListIndex(1, 1), -1);
  EXPECT_EQ(grid.Text(1, 1), "");
  EXPECT_TRUE(grid.ListEntries(1, 0).empty());
}

TEST(Grid, ColumnFormatReachesNewRows) {
  Grid grid(2, 1);
  grid.SetColumnType(2, CellType::Integer(1, 10));
  grid.SetColumnLocked(1, true);
  grid.SetColumnColours(1, 0xC0C0C0, 0);
  grid.SetMaxRows(3);
  grid.InsertRows(1, 1);
  for (int row = 1; row <= 4; ++row) {
    EXPECT_EQ(grid.Type(2, row).kind, CellType::kInteger) << row;
    EXPECT_TRUE(grid.Locked(1, row)) << row;
    EXPECT_EQ(grid.BackColour(1, row), 0xC0C0C0) << row;
  }
  EXPECT_FALSE(grid.Locked(1, 0));
}

TEST(Grid, InsertAndDeleteRowsShiftTheRows) {
  Grid grid(1, 3);
  for (int r = 1; r <= 3; ++r) grid.SetText(1, r, std::to_string(r));
  grid.InsertRows(2, 2);
  EXPECT_EQ(grid.MaxRows(), 5);
  EXPECT_EQ(grid.Text(1, 1), "1");
  EXPECT_EQ(grid.Text(1, 2), "");
  EXPECT_EQ(grid.Text(1, 4), "2");
  grid.DeleteRows(2, 2);
  EXPECT_EQ(grid.MaxRows(), 3);
  EXPECT_EQ(grid.Text(1, 2), "2");
  grid.InsertRows(4, 1);  // one past the last appends
  EXPECT_EQ(grid.MaxRows(), 4);
  grid.DeleteRows(3, 10);  // clipped to the last row
  EXPECT_EQ(grid.MaxRows(), 2);
  grid.InsertRows(0, 1);
  grid.InsertRows(9, 1);
  grid.DeleteRows(0, 1);
  grid.DeleteRows(1, 0);
  EXPECT_EQ(grid.MaxRows(), 2);
  EXPECT_EQ(grid.Text(1, 0), "");
}

TEST(Grid, RowHeightsTravelWithTheirRows) {
  Grid grid(1, 2);
  grid.SetRowHeight(2, 500);
  grid.InsertRows(1, 1);
  EXPECT_DOUBLE_EQ(grid.RowHeight(3), 500);
  EXPECT_DOUBLE_EQ(grid.RowHeight(1), 255);
}

TEST(Grid, MaxColsKeepsTheCellsThatRemain) {
  Grid grid(2, 1);
  grid.SetText(1, 1, "a");
  grid.SetText(2, 1, "b");
  grid.SetMaxCols(1);
  EXPECT_EQ(grid.Text(2, 1), "");
  grid.SetMaxCols(3);
  EXPECT_EQ(grid.Text(1, 1), "a");
  EXPECT_EQ(grid.Text(2, 1), "");
  EXPECT_EQ(grid.MaxCols(), 3);
  grid.SetMaxRows(-4);
  EXPECT_EQ(grid.MaxRows(), 0);
}

TEST(Grid, DataRowCntIsTheLastRowWithData) {
  Grid grid(2, 5);
  EXPECT_EQ(grid.DataRowCnt(), 0);
  grid.SetText(2, 3, "x");
  grid.SetText(1, 4, "  ");
  EXPECT_EQ(grid.DataRowCnt(), 3);
}

TEST(Grid, ActiveCell) {
  Grid grid(2, 2);
  grid.SetActiveCell(2, 5);
  EXPECT_EQ(grid.ActiveCol(), 2);
  EXPECT_EQ(grid.ActiveRow(), 5);
  grid.SetActiveCell(-1, -3);
  EXPECT_EQ(grid.ActiveCol(), 0);
  EXPECT_EQ(grid.ActiveRow(), 0);
}

TEST(Grid, SelectedBlocksAreOrderedAndCounted) {
  Grid grid(3, 3);
  EXPECT_FALSE(grid.IsBlockSelected());
  grid.AddSelection({3, 3, 1, 2});
  grid.AddSelection({2, 1, 2, 1});
  EXPECT_TRUE(grid.IsBlockSelected());
  EXPECT_EQ(grid.SelectionCount(), 2);
  EXPECT_EQ(grid.GetSelection(0), (GridBlock{1, 2, 3, 3}));
  EXPECT_EQ(grid.GetSelection(1), (GridBlock{2, 1, 2, 1}));
  EXPECT_EQ(grid.GetSelection(2), GridBlock{});
  grid.ClearSelection();
  EXPECT_EQ(grid.SelectionCount(), 0);
}

TEST(Grid, RowChangesClearTheSelection) {
  Grid grid(1, 3);
  grid.AddSelection({1, 1, 1, 2});
  grid.InsertRows(1, 1);
  EXPECT_FALSE(grid.IsBlockSelected());
}

TEST(Grid, SizesAndLook) {
  Grid grid(2, 1);
  grid.SetColWidth(1, 12);
  grid.SetTwipsPerChar(100);
  EXPECT_DOUBLE_EQ(grid.ColWidth(1), 12);
  EXPECT_DOUBLE_EQ(grid.ColWidthTwips(1), 1200);
  EXPECT_DOUBLE_EQ(grid.ColWidth(5), 0);
  grid.SetCaption("Bassin versant");
  EXPECT_EQ(grid.Caption(), "Bassin versant");
  grid.SetRowSelect(true);
  grid.SetSelectionColours(1, 2);
  EXPECT_TRUE(grid.RowSelect());
  EXPECT_EQ(grid.SelectionBackColour(), 1);
  EXPECT_EQ(grid.SelectionForeColour(), 2);
  grid.SetSingleSeries(true);
  EXPECT_TRUE(grid.SingleSeries());
}

TEST(Grid, ListenersHearRowChangesBeforeAndAfter) {
  Grid grid(2, 2);
  Recorder rec(grid);
  grid.InsertRows(2, 3);
  grid.DeleteRows(1, 1);
  ASSERT_EQ(rec.changes.size(), 4u);
  EXPECT_EQ(rec.changes[0].kind, GridChange::kRowsInserting);
  EXPECT_EQ(rec.changes[0].row1, 2);
  EXPECT_EQ(rec.changes[0].row2, 4);
  EXPECT_EQ(rec.changes[1].kind, GridChange::kRowsInserted);
  EXPECT_EQ(rec.changes[2].kind, GridChange::kRowsRemoving);
  EXPECT_EQ(rec.changes[2].row1, 1);
  EXPECT_EQ(rec.changes[2].row2, 1);
  EXPECT_EQ(rec.changes[3].kind, GridChange::kRowsRemoved);
}

TEST(Grid, ListenersHearSizeCellsCursorAndLayout) {
  Grid grid(2, 2);
  Recorder rec(grid);
  grid.SetMaxRows(4);
  grid.SetMaxRows(1);
  grid.SetMaxCols(3);
  grid.SetMaxCols(2);
  grid.SetText(2, 1, "x");
  grid.SetActiveCell(2, 1);
  grid.SetCaption("t");
  using K = GridChange;
  EXPECT_EQ(rec.Kinds(), (std::vector<GridChange::Kind>{
                             K::kRowsInserting, K::kRowsInserted, K::kRowsRemoving, K::kRowsRemoved,
                             K::kColsInserting, K::kColsInserted, K::kColsRemoving, K::kColsRemoved,
                             K::kCells, K::kActiveCell, K::kLayout}));
  EXPECT_EQ(rec.changes[0].row1, 3);
  EXPECT_EQ(rec.changes[0].row2, 4);
  EXPECT_EQ(rec.changes[2].row1, 2);
  EXPECT_EQ(rec.changes[2].row2, 4);
  EXPECT_EQ(rec.changes[4].col1, 3);
  EXPECT_EQ(rec.changes[8].col1, 2);
  EXPECT_EQ(rec.changes[8].row1, 1);
  EXPECT_EQ(rec.changes[9].col1, 2);
}

TEST(Grid, RedrawOffGathersCellChanges) {
  Grid grid(2, 3);
  Recorder rec(grid);
  grid.SetRedraw(false);
  grid.SetText(1, 1, "a");
  grid.SetText(2, 2, "b");
  EXPECT_TRUE(rec.changes.empty());
  grid.SetRedraw(true);
  ASSERT_EQ(rec.changes.size(), 1u);
  EXPECT_EQ(rec.changes[0].kind, GridChange::kCells);
  EXPECT_EQ(rec.changes[0].col1, 0);
  EXPECT_EQ(rec.changes[0].row1, 0);
  EXPECT_EQ(rec.changes[0].col2, 2);
  EXPECT_EQ(rec.changes[0].row2, 3);
}

TEST(Grid, RemovedListenerHearsNothing) {
  Grid grid(1, 1);
  int heard = 0;
  int id = grid.AddListener([&](const GridChange&) { ++heard; });
  grid.SetText(1, 1, "a");
  grid.RemoveListener(id);
  grid.SetText(1, 1, "b");
  EXPECT_EQ(heard, 1);
}

TEST(Grid, ClipboardPasteFillsFromTheCell) {
  Grid grid(3, 3);
  grid.ClipboardPaste(2, 2, "a\tb\tc\r\nd\te\n");
  EXPECT_EQ(grid.Text(2, 2), "a");
  EXPECT_EQ(grid.Text(3, 2), "b");
  EXPECT_EQ(grid.Text(2, 3), "d");
  EXPECT_EQ(grid.Text(3, 3), "e");
  EXPECT_EQ(grid.Text(1, 2), "");
  EXPECT_EQ(grid.MaxRows(), 3);
  EXPECT_EQ(grid.MaxCols(), 3);
}

TEST(Grid, ClipboardPasteSparesLockedCellsAndKeepsEmptyFields) {
  Grid grid(3, 1);
  grid.SetText(1, 1, "keep");
  grid.SetLocked(1, 1, true);
  grid.SetText(2, 1, "old");
  grid.ClipboardPaste(1, 1, "x\t\tz");
  EXPECT_EQ(grid.Text(1, 1), "keep");
  EXPECT_EQ(grid.Text(2, 1), "");
  EXPECT_EQ(grid.Text(3, 1), "z");
}

TEST(Grid, ClipboardPasteOfNothingChangesNothing) {
  Grid grid(1, 1);
  grid.SetText(1, 1, "a");
  grid.ClipboardPaste(1, 1, "");
  EXPECT_EQ(grid.Text(1, 1), "a");
  grid.ClipboardPaste(0, 0, "x");
  EXPECT_EQ(grid.Text(1, 1), "a");
  EXPECT_EQ(grid.Text(0, 0), "");
}

TEST(Grid, ThousandsOfRowsStayQuick) {
  Grid grid(4, 0);
  grid.SetMaxRows(5000);
  for (int row = 1; row <= 5000; ++row) {
    for (int col = 1; col <= 4; ++col) grid.SetText(col, row, std::to_string(row));
  }
  for (int i = 0; i < 200; ++i) grid.InsertRows(1, 1);
  for (int i = 0; i < 300; ++i) grid.DeleteRows(1, 1);
  EXPECT_EQ(grid.MaxRows(), 4900);
  EXPECT_EQ(grid.Text(4, 1), "101");
  EXPECT_EQ(grid.DataRowCnt(), 4900);
}

}  // namespace
}  // namespace pluvane
