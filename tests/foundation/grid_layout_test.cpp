#include "foundation/grid_layout.h"

#include <gtest/gtest.h>

namespace pluvane {
namespace {

// A grid with a head row of 300 twips and rows of 240.
Grid Sized(int rows) {
  Grid grid(2, rows);
  grid.SetRowHeight(0, 300);
  for (int row = 1; row <= rows; ++row) grid.SetRowHeight(row, 240);
  return grid;
}

const FormSize kForm{6000, 5000, 5500, 4000};

TEST(SSFitForm, GridShowsTheRowsAskedAndTheFormKeepsItsMargins) {
  FormSize fit = SSFitForm(Sized(20), 10, kForm, 12000);
  EXPECT_DOUBLE_EQ(fit.grid_height, 12 * 240 + 1.5 * 300);
  EXPECT_DOUBLE_EQ(fit.height, 3330 + 1000);
  EXPECT_DOUBLE_EQ(fit.grid_width, 5500);
  EXPECT_DOUBLE_EQ(fit.width, 6000);
}

TEST(SSFitForm, TallerThanTheScreenIsCut) {
  FormSize fit = SSFitForm(Sized(20), 10, kForm, 3000);
  EXPECT_DOUBLE_EQ(fit.grid_height, 2200);
  EXPECT_DOUBLE_EQ(fit.height, 3200);
  // Below the screen height, even within 800 of it, stays as it is.
  fit = SSFitForm(Sized(20), 10, kForm, 3400);
  EXPECT_DOUBLE_EQ(fit.grid_height, 3330);
}

TEST(SSFitForm, NeverBelowFifteenHundred) {
  FormSize fit = SSFitForm(Sized(3), 0, kForm, 12000);
  EXPECT_DOUBLE_EQ(fit.grid_height, 1500);
  EXPECT_DOUBLE_EQ(fit.height, 2500);
  fit = SSFitForm(Sized(3), 10, kForm, 1000);
  EXPECT_DOUBLE_EQ(fit.grid_height, 1500);
}

TEST(SSFitForm, EmptyGridKeepsTheForm) {
  FormSize fit = SSFitForm(Sized(0), 10, kForm, 12000);
  EXPECT_DOUBLE_EQ(fit.width, kForm.width);
  EXPECT_DOUBLE_EQ(fit.height, kForm.height);
  EXPECT_DOUBLE_EQ(fit.grid_width, kForm.grid_width);
  EXPECT_DOUBLE_EQ(fit.grid_height, kForm.grid_height);
}

TEST(SSFitWidth, GridAsWideAsItsColumnsAndForm500Wider) {
  Grid grid(2, 3);
  grid.SetTwipsPerChar(120);
  grid.SetColWidth(0, 4);
  grid.SetColWidth(1, 10);
  grid.SetColWidth(2, 6);
  FormSize fit = SSFitWidth(grid, kForm);
  EXPECT_DOUBLE_EQ(fit.grid_width, 2400);
  EXPECT_DOUBLE_EQ(fit.width, 2900);
  EXPECT_DOUBLE_EQ(fit.height, kForm.height);
  EXPECT_DOUBLE_EQ(fit.grid_height, kForm.grid_height);
}

TEST(SSFitWidth, GridWithoutRowsTakesTheFormsWidth) {
  Grid grid(2, 0);
  FormSize fit = SSFitWidth(grid, kForm);
  EXPECT_DOUBLE_EQ(fit.grid_width, 5500);
  EXPECT_DOUBLE_EQ(fit.width, 6000);
}

TEST(SSSetStyle, LibraryLook) {
  Grid grid(2, 2);
  SSSetStyle(grid);
  EXPECT_TRUE(grid.RowSelect());
  EXPECT_EQ(grid.SelectionBackColour(), kDarkBlue);
  EXPECT_EQ(grid.SelectionForeColour(), kYellow);
  EXPECT_EQ(grid.SelectionBackColour(), 0x800000);  // red 0, green 0, blue 128
  EXPECT_EQ(grid.SelectionForeColour(), 0x00FFFF);  // red 255, green 255, blue 0
  EXPECT_EQ(grid.Font().name, "Arial");
  EXPECT_DOUBLE_EQ(grid.Font().size, 11);
}

}  // namespace
}  // namespace pluvane
