#include "foundation/grid_clipboard.h"

#include <gtest/gtest.h>

#include <vector>

namespace pluvane {
namespace {

TEST(SSPaste, WithoutSelectionPastesAtTheCursor) {
  Grid grid(3, 4);
  grid.SetActiveCell(2, 3);
  SSPaste(grid, "1.5\t2\r\n3\t4\r\n5\t6\r\n");
  EXPECT_EQ(grid.Text(2, 3), "1.5");
  EXPECT_EQ(grid.Text(3, 3), "2");
  EXPECT_EQ(grid.Text(2, 4), "3");
  EXPECT_EQ(grid.Text(3, 4), "4");
  EXPECT_EQ(grid.MaxRows(), 4);  // the third line falls outside the grid
  EXPECT_EQ(grid.Text(1, 3), "");
}

TEST(SSPaste, SelectedBlockIsFilledWithTheValue) {
  Grid grid(3, 3);
  grid.AddSelection({2, 1, 3, 2});
  SSPaste(grid, "7");
  EXPECT_EQ(grid.Text(2, 1), "7");
  EXPECT_EQ(grid.Text(3, 1), "7");
  EXPECT_EQ(grid.Text(2, 2), "7");
  EXPECT_EQ(grid.Text(3, 2), "7");
  EXPECT_EQ(grid.Text(1, 1), "");
  EXPECT_EQ(grid.Text(2, 3), "");
}

TEST(SSPaste, EachBlockGetsItsOwnPaste) {
  Grid grid(3, 4);
  grid.AddSelection({1, 1, 1, 2});
  grid.AddSelection({3, 3, 3, 4});
  SSPaste(grid, "x");
  EXPECT_EQ(grid.Text(1, 1), "x");
  EXPECT_EQ(grid.Text(1, 2), "x");
  EXPECT_EQ(grid.Text(3, 3), "x");
  EXPECT_EQ(grid.Text(3, 4), "x");
  EXPECT_EQ(grid.Text(2, 2), "");
}

TEST(SSPaste, SeveralCellsIntoABlockSpreadThenTheFirstFillsTheBlock) {
  Grid grid(2, 3);
  grid.AddSelection({1, 1, 1, 3});
  SSPaste(grid, "a\tb\nc\n");
  EXPECT_EQ(grid.Text(1, 1), "a");
  EXPECT_EQ(grid.Text(2, 1), "b");
  EXPECT_EQ(grid.Text(1, 2), "a");
  EXPECT_EQ(grid.Text(1, 3), "a");
}

TEST(SSPaste, LockedCellsAndCellsOutsideAreSpared) {
  Grid grid(2, 2);
  grid.SetText(2, 2, "fixe");
  grid.SetLocked(2, 2, true);
  grid.AddSelection({1, 1, 5, 9});
  SSPaste(grid, "0");
  EXPECT_EQ(grid.Text(1, 1), "0");
  EXPECT_EQ(grid.Text(2, 1), "0");
  EXPECT_EQ(grid.Text(1, 2), "0");
  EXPECT_EQ(grid.Text(2, 2), "fixe");
  EXPECT_EQ(grid.MaxRows(), 2);
}

TEST(SSPaste, RedrawIsOffDuringABlockPaste) {
  Grid grid(2, 2);
  grid.AddSelection({1, 1, 2, 2});
  std::vector<GridChange> changes;
  grid.AddListener([&](const GridChange& c) { changes.push_back(c); });
  SSPaste(grid, "1");
  ASSERT_EQ(changes.size(), 1u);
  EXPECT_EQ(changes[0].kind, GridChange::kCells);
  EXPECT_TRUE(grid.Redraw());
}

TEST(SSPaste, EmptyClipboardChangesNothing) {
  Grid grid(1, 1);
  grid.SetText(1, 1, "a");
  SSPaste(grid, "");
  EXPECT_EQ(grid.Text(1, 1), "a");
}

TEST(IsPasteKey, ControlV) {
  EXPECT_TRUE(IsPasteKey(86, true));
  EXPECT_TRUE(IsPasteKey(118, true));
  EXPECT_FALSE(IsPasteKey(86, false));
  EXPECT_FALSE(IsPasteKey(67, true));
}

}  // namespace
}  // namespace pluvane

namespace pluvane {
namespace {

TEST(SSCopy, TheSelectedBlockAsASpreadsheetCopiesIt) {
  Grid grid(3, 3);
  grid.SetText(1, 1, "a");
  grid.SetText(2, 1, "1.5");
  grid.SetText(1, 2, "b");
  grid.SetText(3, 2, "z");
  grid.AddSelection({1, 1, 2, 2});
  EXPECT_EQ(SSCopy(grid), "a\t1.5\r\nb\t\r\n");
}

TEST(SSCopy, WithoutSelectionTheCellAtTheCursor) {
  Grid grid(2, 2);
  grid.SetText(2, 2, "42");
  grid.SetActiveCell(2, 2);
  EXPECT_EQ(SSCopy(grid), "42\r\n");
  grid.SetActiveCell(0, 0);
  EXPECT_EQ(SSCopy(grid), "");
}

TEST(SSCopy, ACopyPastedElsewhereGivesTheSameCells) {
  Grid from(2, 3), to(2, 3);
  for (int row = 1; row <= 3; ++row) {
    from.SetText(1, row, "x" + std::to_string(row));
    from.SetText(2, row, std::to_string(row * 10));
  }
  from.AddSelection({1, 1, 2, 3});
  to.SetActiveCell(1, 1);
  SSPaste(to, SSCopy(from));
  for (int row = 1; row <= 3; ++row) {
    EXPECT_EQ(to.Text(1, row), from.Text(1, row));
    EXPECT_EQ(to.Text(2, row), from.Text(2, row));
  }
}

}  // namespace
}  // namespace pluvane
