#include "foundation/grid_rows.h"

#include <gtest/gtest.h>

namespace pluvane {
namespace {

Grid Column(std::initializer_list<const char*> texts) {
  Grid grid(2, static_cast<int>(texts.size()));
  int row = 1;
  for (const char* text : texts) grid.SetText(1, row++, text);
  return grid;
}

TEST(SSAddRow, AddsAtTheEndAndOpensItsFirstCell) {
  Grid grid = Column({"a", "b"});
  grid.SetActiveCell(2, 1);
  EXPECT_EQ(SSAddRow(grid), 3);
  EXPECT_EQ(grid.MaxRows(), 3);
  EXPECT_EQ(grid.ActiveCol(), 1);
  EXPECT_EQ(grid.ActiveRow(), 3);
  EXPECT_TRUE(grid.EditMode());
  EXPECT_EQ(grid.Text(1, 2), "b");
  EXPECT_EQ(grid.Text(1, 3), "");
}

TEST(SSAddRow, OnAnEmptyGrid) {
  Grid grid(2, 0);
  EXPECT_EQ(SSAddRow(grid), 1);
  EXPECT_EQ(grid.ActiveRow(), 1);
}

TEST(SSInsertRow, InsertsBeforeTheCursorRowAndKeepsTheCursor) {
  Grid grid = Column({"a", "b", "c"});
  grid.SetActiveCell(2, 2);
  int row = 0;
  EXPECT_EQ(SSInsertRow(grid, row), 4);
  EXPECT_EQ(row, 2);
  EXPECT_EQ(grid.Text(1, 1), "a");
  EXPECT_EQ(grid.Text(1, 2), "");
  EXPECT_EQ(grid.Text(1, 3), "b");
  EXPECT_EQ(grid.ActiveCol(), 2);
  EXPECT_EQ(grid.ActiveRow(), 2);
}

TEST(SSInsertRow, EmptyGridGivesZeroAndStaysEmpty) {
  Grid grid(2, 0);
  int row = 7;
  EXPECT_EQ(SSInsertRow(grid, row), 0);
  EXPECT_EQ(row, 7);
  EXPECT_EQ(grid.MaxRows(), 0);
}

TEST(SSInsertRow, CursorOutsideTheRowsInsertsWithinThem) {
  Grid grid = Column({"a", "b"});
  grid.SetActiveCell(1, 0);
  int row = 0;
  EXPECT_EQ(SSInsertRow(grid, row), 3);
  EXPECT_EQ(row, 1);
  EXPECT_EQ(grid.Text(1, 2), "a");
  grid.SetActiveCell(1, 9);
  EXPECT_EQ(SSInsertRow(grid, row), 4);
  EXPECT_EQ(row, 3);
  EXPECT_EQ(grid.Text(1, 4), "b");
}

TEST(SSDeleteRow, DeletesAndKeepsTheCursorOnThatRow) {
  Grid grid = Column({"a", "b", "c"});
  grid.SetActiveCell(2, 1);
  EXPECT_EQ(SSDeleteRow(grid, 2), 2);
  EXPECT_EQ(grid.Text(1, 2), "c");
  EXPECT_EQ(grid.ActiveRow(), 2);
  EXPECT_EQ(grid.ActiveCol(), 2);
}

TEST(SSDeleteRow, LastRowMovesTheCursorToTheNewLastRow) {
  Grid grid = Column({"a", "b", "c"});
  EXPECT_EQ(SSDeleteRow(grid, 3), 2);
  EXPECT_EQ(grid.ActiveRow(), 2);
  EXPECT_EQ(grid.Text(1, 2), "b");
}

TEST(SSDeleteRow, OnlyRowLeavesAnEmptyGridWithTheCursorOnRowOne) {
  Grid grid = Column({"a"});
  grid.SetActiveCell(2, 1);
  EXPECT_EQ(SSDeleteRow(grid, 1), 0);
  EXPECT_EQ(grid.MaxRows(), 0);
  EXPECT_EQ(grid.ActiveRow(), 1);
  EXPECT_EQ(grid.ActiveCol(), 2);
}

TEST(SSDeleteRow, EmptyGridOrRowOutsideDeletesNothing) {
  Grid empty(2, 0);
  EXPECT_EQ(SSDeleteRow(empty, 1), 0);
  Grid grid = Column({"a", "b"});
  EXPECT_EQ(SSDeleteRow(grid, 0), 2);
  EXPECT_EQ(grid.ActiveRow(), 1);
  EXPECT_EQ(SSDeleteRow(grid, 5), 2);
  EXPECT_EQ(grid.ActiveRow(), 2);
  EXPECT_EQ(grid.Text(1, 1), "a");
  EXPECT_EQ(grid.Text(1, 2), "b");
}

TEST(SSDataRows, CountsRowsBeforeTheFirstBlankOfColumnOne) {
  Grid grid = Column({"a", "b", " ", "d"});
  EXPECT_EQ(SSDataRows(grid, grid.MaxRows()), 2);
  EXPECT_EQ(SSDataRows(grid, 1), 1);
  Grid full = Column({"a", "b"});
  EXPECT_EQ(SSDataRows(full, 2), 2);
  EXPECT_EQ(SSDataRows(full, 5), 2);
  EXPECT_EQ(SSDataRows(Grid(2, 0), 0), 0);
  Grid first_blank = Column({"", "b"});
  EXPECT_EQ(SSDataRows(first_blank, 2), 0);
}

TEST(SSClearRowNotes, ClearsEveryNoteOfTheRowOnly) {
  Grid grid(3, 2);
  for (int col = 0; col <= 3; ++col) {
    grid.SetNote(col, 1, "n");
    grid.SetNote(col, 2, "n");
  }
  SSClearRowNotes(grid, 1);
  for (int col = 0; col <= 3; ++col) {
    EXPECT_EQ(grid.Note(col, 1), "") << col;
    EXPECT_EQ(grid.Note(col, 2), "n") << col;
  }
  SSClearRowNotes(grid, 9);  // outside: nothing happens
}

}  // namespace
}  // namespace pluvane
