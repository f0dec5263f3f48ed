#include "foundation/grid_curves.h"

#include <gtest/gtest.h>

#include "foundation/scripted_ui.h"
#include "grid_fixture.h"

namespace pluvane {
namespace {

const std::string kCurves = std::string(PLUVANE_TEST_DATA) + "/courbes.crb";
const std::string kAccents = std::string(PLUVANE_TEST_DATA) + "/accents_cp1252.crb";

std::vector<std::string> ColumnTexts(const Grid& grid, int col) {
  std::vector<std::string> texts;
  for (int row = 1; row <= grid.MaxRows(); ++row) texts.push_back(grid.Text(col, row));
  return texts;
}

using Texts = std::vector<std::string>;

TEST(SSLoadCurve2, OffsetOfTheFirstPointLiftsEveryY) {
  Grid grid(2, 0);
  int count = 0;
  EXPECT_TRUE(SSLoadCurve2(grid, kCurves, "Bv_1", count));
  EXPECT_EQ(count, 3);
  EXPECT_EQ(grid.MaxRows(), 3);
  EXPECT_EQ(ColumnTexts(grid, 1), (Texts{"0", "10", "20"}));
  EXPECT_EQ(ColumnTexts(grid, 2), (Texts{"3.5", "4.5", "5.5"}));
}

TEST(SSLoadCurve2, OnlyTheFirstCurveOfTheNameIsRead) {
  Grid grid(2, 0);
  int count = 0;
  EXPECT_TRUE(SSLoadCurve2(grid, kCurves, "bV_1", count));
  EXPECT_EQ(count, 3);
  EXPECT_EQ(grid.Text(2, 1), "3.5");
}

TEST(SSLoadCurve2, NameIsCaseBlindAndBlanksAroundItDoNotCount) {
  Grid grid(2, 0);
  int count = 0;
  EXPECT_TRUE(SSLoadCurve2(grid, kCurves, "  CAC_2", count));
  EXPECT_EQ(count, 2);  // the blank line between the points is skipped
  EXPECT_EQ(ColumnTexts(grid, 1), (Texts{"1", "2"}));
  // The third field of the first point, 3, is the offset.
  EXPECT_EQ(ColumnTexts(grid, 2), (Texts{"5", "6"}));
}

TEST(SSLoadCurve2, LastLineWithoutLineEndIsRead) {
  Grid grid(2, 5);
  int count = 0;
  EXPECT_TRUE(SSLoadCurve2(grid, kCurves, "Fin", count));
  EXPECT_EQ(count, 2);
  EXPECT_EQ(grid.MaxRows(), 2);
  EXPECT_EQ(ColumnTexts(grid, 2), (Texts{"6", "8"}));
}

TEST(SSLoadCurve2, HeaderWithoutPointsGivesAnEmptyGrid) {
  Grid grid(2, 4);
  int count = 9;
  EXPECT_TRUE(SSLoadCurve2(grid, kCurves, "Vide", count));
  EXPECT_EQ(count, 0);
  EXPECT_EQ(grid.MaxRows(), 0);
}

TEST(SSLoadCurve2, MissingCurveOrFileLeavesTheGridAlone) {
  Grid grid(2, 1);
  grid.SetText(1, 1, "garde");
  int count = 9;
  EXPECT_FALSE(SSLoadCurve2(grid, kCurves, "Absente", count));
  EXPECT_EQ(count, 0);
  count = 9;
  EXPECT_FALSE(SSLoadCurve2(grid, kCurves + ".manque", "Bv_1", count));
  EXPECT_EQ(count, 0);
  EXPECT_EQ(grid.MaxRows(), 1);
  EXPECT_EQ(grid.Text(1, 1), "garde");
}

TEST(SSLoadCurve2, AccentedNamesOfAWindows1252File) {
  Grid grid(2, 0);
  int count = 0;
  EXPECT_TRUE(SSLoadCurve2(grid, kAccents, "FOSSÉ AMONT", count));
  EXPECT_EQ(count, 2);
  // Fields are counted in characters: the é ends the first field.
  EXPECT_EQ(ColumnTexts(grid, 1), (Texts{"1.5", "3"}));
  EXPECT_EQ(ColumnTexts(grid, 2), (Texts{"2", "4"}));
  EXPECT_TRUE(SSLoadCurve2(grid, kAccents, "noue évasée", count));
  EXPECT_EQ(count, 1);
}

TEST(SSLoadCurve3, ThreeColumnsWithoutOffset) {
  Grid grid(3, 0);
  int count = 0;
  EXPECT_TRUE(SSLoadCurve3(grid, kCurves, "Bv_1", count));
  EXPECT_EQ(count, 3);
  EXPECT_EQ(ColumnTexts(grid, 2), (Texts{"1", "2", "3"}));
  EXPECT_EQ(ColumnTexts(grid, 3), (Texts{"2.5", "0", "9"}));
}

TEST(SSLoadCurve4, FourColumnsAndTheGridWidensIfNeeded) {
  Grid grid(2, 0);
  int count = 0;
  EXPECT_TRUE(SSLoadCurve4(grid, kCurves, "Cac_2", count));
  EXPECT_EQ(count, 2);
  EXPECT_EQ(grid.MaxCols(), 4);
  EXPECT_EQ(ColumnTexts(grid, 2), (Texts{"2", "3"}));
  EXPECT_EQ(ColumnTexts(grid, 3), (Texts{"3", "4"}));
  EXPECT_EQ(ColumnTexts(grid, 4), (Texts{"4", "5"}));
}

// A grid of X in column 1 and two series, owned by the form "Loi".
Grid Series(GridRows rows) { return FilledGrid(3, rows, "Loi"); }

TEST(SSToCurveArrays, WholeGridUpToTheFirstBlankRow) {
  ScriptedUi ui;
  Grid grid = Series(
      {{"0", "1", "10"}, {"1", "2", "20"}, {"2", "3", "30"}, {"", "9", "9"}, {"1", "9", "9"}});
  CurveArrays arrays;
  EXPECT_TRUE(SSToCurveArrays(grid, "SAPP", arrays, ui));
  EXPECT_EQ(arrays.x, (std::vector<double>{0, 1, 2}));
  ASSERT_EQ(arrays.y.size(), 2u);
  EXPECT_EQ(arrays.y[0], (std::vector<double>{1, 2, 3}));
  EXPECT_EQ(arrays.y[1], (std::vector<double>{10, 20, 30}));
  EXPECT_TRUE(ui.Empty());
}

TEST(SSToCurveArrays, OneSelectedBlockStillTakesTheWholeGrid) {
  ScriptedUi ui;
  Grid grid = Series({{"0", "1", "10"}, {"1", "2", "20"}});
  grid.AddSelection({2, 2, 2, 2});
  CurveArrays arrays;
  EXPECT_TRUE(SSToCurveArrays(grid, "", arrays, ui));
  EXPECT_EQ(arrays.x.size(), 2u);
  EXPECT_EQ(arrays.y.size(), 2u);
}

TEST(SSToCurveArrays, TwoBlocksGiveXAndTheSeries) {
  ScriptedUi ui;
  Grid grid = Series({{"0", "5", "50"}, {"1", "6", "60"}, {"2", "7", "70"}, {"3", "8", "80"}});
  grid.AddSelection({1, 2, 1, 4});
  grid.AddSelection({2, 1, 3, 4});
  CurveArrays arrays;
  EXPECT_TRUE(SSToCurveArrays(grid, "", arrays, ui));
  EXPECT_EQ(arrays.x, (std::vector<double>{1, 2, 3}));
  ASSERT_EQ(arrays.y.size(), 2u);
  EXPECT_EQ(arrays.y[0], (std::vector<double>{5, 6, 7}));
  EXPECT_EQ(arrays.y[1], (std::vector<double>{50, 60, 70}));
}

TEST(SSToCurveArrays, AbscissaeMustRise) {
  ScriptedUi ui;
  Grid grid = Series({{"0", "1", "1"}, {"2", "1", "1"}, {"2", "1", "1"}});
  grid.SetActiveCell(3, 1);
  CurveArrays arrays;
  arrays.x = {42};
  EXPECT_FALSE(SSToCurveArrays(grid, "Pluvio", arrays, ui));
  ASSERT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(ui.Last().text, "Les abscisses doivent être croissantes");
  EXPECT_EQ(ui.Last().title, "Loi");
  EXPECT_EQ(ui.Last().icon, MessageIcon::kExclamation);
  EXPECT_EQ(grid.ActiveCol(), 1);
  EXPECT_EQ(grid.ActiveRow(), 2);
  EXPECT_TRUE(arrays.x.empty());
  EXPECT_TRUE(arrays.y.empty());
}

TEST(SSToCurveArrays, SectionHeightsMustRise) {
  ScriptedUi ui;
  Grid grid = Series({{"0", "1"}, {"1", "2"}, {"2", "3"}, {"4", "3"}, {"3", "4"}});
  grid.AddSelection({1, 2, 1, 5});
  grid.AddSelection({2, 2, 2, 5});
  CurveArrays arrays;
  EXPECT_FALSE(SSToCurveArrays(grid, "SEC", arrays, ui));
  ASSERT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(ui.Last().text, "Les hauteurs doivent être croissantes");
  EXPECT_EQ(ui.Last().title, "Loi");
  EXPECT_EQ(ui.Last().icon, MessageIcon::kExclamation);
  EXPECT_EQ(grid.ActiveCol(), 1);
  EXPECT_EQ(grid.ActiveRow(), 4);
}

TEST(SSToCurveArrays, EmptyGridGivesEmptyArrays) {
  ScriptedUi ui;
  Grid grid(3, 0);
  CurveArrays arrays;
  EXPECT_TRUE(SSToCurveArrays(grid, "SEC", arrays, ui));
  EXPECT_TRUE(arrays.x.empty());
  EXPECT_EQ(arrays.y.size(), 2u);
  EXPECT_TRUE(arrays.y[0].empty());
  EXPECT_TRUE(ui.Empty());
}

}  // namespace
}  // namespace pluvane
