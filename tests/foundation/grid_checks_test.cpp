#include "foundation/grid_checks.h"

#include <gtest/gtest.h>

#include "foundation/scripted_ui.h"
#include "grid_fixture.h"

namespace pluvane {
namespace {

// A grid of the given rows, its columns headed "Nom", "Valeur", "Note", owned
// by the form "Bibliothèque".
Grid Table(GridRows rows) {
  Grid grid = FilledGrid(3, rows, "Bibliothèque");
  grid.SetColHead(1, "Nom");
  grid.SetColHead(2, "Valeur");
  grid.SetColHead(3, "Note");
  grid.SetActiveCell(3, 1);
  return grid;
}

void ExpectCursor(const Grid& grid, int col, int row) {
  EXPECT_EQ(grid.ActiveCol(), col);
  EXPECT_EQ(grid.ActiveRow(), row);
}

void ExpectMessage(const ScriptedUi& ui, const std::string& text, const std::string& title) {
  ASSERT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(ui.Last().kind, "message");
  EXPECT_EQ(ui.Last().text, text);
  EXPECT_EQ(ui.Last().title, title);
  EXPECT_EQ(ui.Last().icon, MessageIcon::kExclamation);
}

TEST(SSFindDuplicate, NoDuplicateGivesZeroAndSaysNothing) {
  ScriptedUi ui;
  Grid grid = Table({{"A"}, {"B"}, {"C"}});
  EXPECT_EQ(SSFindDuplicate(grid, 1, ui), 0);
  EXPECT_TRUE(ui.Empty());
  ExpectCursor(grid, 3, 1);
}

TEST(SSFindDuplicate, CaseBlindAndTrimmed) {
  ScriptedUi ui;
  Grid grid = Table({{"x"}, {"A"}, {"y"}, {" a "}});
  EXPECT_EQ(SSFindDuplicate(grid, 1, ui), 4);
  ExpectMessage(ui, "Attention à la colonne 'Nom'\rdoublon entre les lignes 2 et 4",
                "Contrôle de doublon");
  ExpectCursor(grid, 1, 2);
}

TEST(SSFindDuplicate, AccentedCapitalsAreEqual) {
  ScriptedUi ui;
  Grid grid = Table({{"Bassin é"}, {"BASSIN É"}});
  EXPECT_EQ(SSFindDuplicate(grid, 1, ui), 2);
}

TEST(SSFindDuplicate, TwoEmptyCellsAreADuplicate) {
  ScriptedUi ui;
  Grid grid = Table({{"a", ""}, {"b", "1"}, {"c", "  "}});
  EXPECT_EQ(SSFindDuplicate(grid, 2, ui), 3);
  ExpectMessage(ui, "Attention à la colonne 'Valeur'\rdoublon entre les lignes 1 et 3",
                "Contrôle de doublon");
  ExpectCursor(grid, 2, 1);
}

TEST(SSFindDuplicate, FirstPairIsTheOneOfTheEarliestRow) {
  ScriptedUi ui;
  // B repeats before A does, but A's first row comes first.
  Grid grid = Table({{"A"}, {"B"}, {"B"}, {"A"}, {"A"}});
  EXPECT_EQ(SSFindDuplicate(grid, 1, ui), 4);
  EXPECT_EQ(ui.Last().text, "Attention à la colonne 'Nom'\rdoublon entre les lignes 1 et 4");
  ExpectCursor(grid, 1, 1);
}

TEST(SSCheckFilled, FirstBlankCellIsReported) {
  ScriptedUi ui;
  Grid grid = Table({{"a", "1"}, {"b", " "}, {"c", ""}});
  EXPECT_FALSE(SSCheckFilled(grid, 2, ui));
  ExpectMessage(ui, "Donnée non renseignée dans la colonne 'Valeur'\r à la ligne 2",
                "Bibliothèque");
  ExpectCursor(grid, 2, 2);
}

TEST(SSCheckFilled, HiddenGridKeepsItsCursor) {
  ScriptedUi ui;
  Grid grid = Table({{"a", ""}});
  grid.SetVisible(false);
  EXPECT_FALSE(SSCheckFilled(grid, 2, ui));
  EXPECT_EQ(ui.Messages().size(), 1u);
  ExpectCursor(grid, 3, 1);
}

TEST(SSCheckFilled, FilledColumnPasses) {
  ScriptedUi ui;
  Grid grid = Table({{"a", "1"}, {"b", "2"}});
  EXPECT_TRUE(SSCheckFilled(grid, 1, ui));
  EXPECT_TRUE(ui.Empty());
}

TEST(SSCheckNoBlank, BlankInsideTheTextIsReportedAsTrue) {
  ScriptedUi ui;
  Grid grid = Table({{" a "}, {"Bv 2"}, {"c d"}});
  EXPECT_TRUE(SSCheckNoBlank(grid, 1, ui));
  ExpectMessage(ui, "Attention Pas de blanc dans \rla colonne 'Nom' ligne 2",
                "Contrôle de valeur interdite");
  ExpectCursor(grid, 1, 2);
}

TEST(SSCheckNoBlank, NamesWithoutBlankGiveFalse) {
  ScriptedUi ui;
  Grid grid = Table({{"  Bv_1  "}, {""}, {"Bv_3"}});
  EXPECT_FALSE(SSCheckNoBlank(grid, 1, ui));
  EXPECT_TRUE(ui.Empty());
  ExpectCursor(grid, 3, 1);
}

TEST(SSCheckAllFilled, RowsFirstThenColumns) {
  ScriptedUi ui;
  Grid grid = Table({{"a", "1", "x"}, {"b", "2", ""}, {"", "3", "z"}});
  EXPECT_FALSE(SSCheckAllFilled(grid, ui));
  ExpectMessage(ui, "Renseignez toutes les données necessaires", "Bibliothèque");
  ExpectCursor(grid, 3, 2);
}

TEST(SSCheckAllFilled, HiddenGridKeepsItsCursor) {
  ScriptedUi ui;
  Grid grid = Table({{"a", "", "x"}});
  grid.SetVisible(false);
  EXPECT_FALSE(SSCheckAllFilled(grid, ui));
  EXPECT_EQ(ui.Messages().size(), 1u);
  ExpectCursor(grid, 3, 1);
}

TEST(SSCheckAllFilled, FullGridPasses) {
  ScriptedUi ui;
  Grid grid = Table({{"a", "1", "x"}});
  EXPECT_TRUE(SSCheckAllFilled(grid, ui));
  EXPECT_TRUE(ui.Empty());
}

TEST(SSCheckRising, TooSmallAStepFails) {
  Grid grid = Table({{"a", "1"}, {"b", "1.00001"}});
  int row = 0;
  EXPECT_FALSE(SSCheckRising(grid, 2, row));
  EXPECT_EQ(row, 1);
  ExpectCursor(grid, 2, 1);
}

TEST(SSCheckRising, FallingValueReportsTheRowBefore) {
  Grid grid = Table({{"a", "0"}, {"b", "5"}, {"c", "10"}, {"d", "7"}});
  int row = 0;
  EXPECT_FALSE(SSCheckRising(grid, 2, row));
  EXPECT_EQ(row, 3);
  ExpectCursor(grid, 2, 3);
}

TEST(SSCheckRising, StepsOfOneTenThousandthPass) {
  Grid grid = Table({{"a", "1"}, {"b", "1.0001"}, {"c", "1.0002"}, {"d", "100000.0003"}});
  int row = -1;
  EXPECT_TRUE(SSCheckRising(grid, 2, row));
  EXPECT_EQ(row, -1);
  ExpectCursor(grid, 3, 1);
}

TEST(SSFindValue, CaseBlindFirstMatch) {
  Grid grid = Table({{"Bv_1"}, {"bv_2"}, {"BV_2"}});
  EXPECT_EQ(SSFindValue("BV_2", 1, grid), 2);
  EXPECT_EQ(SSFindValue("bv_1", 1, grid), 1);
  EXPECT_EQ(SSFindValue("Bv_9", 1, grid), 0);
  EXPECT_EQ(SSFindValue("", 2, grid), 1);
  EXPECT_EQ(SSFindValue("Bv_1", 4, grid), 0);
}

TEST(GridChecks, EmptyGridPassesEveryCheck) {
  ScriptedUi ui;
  Grid grid = Table({});
  int row = 0;
  EXPECT_EQ(SSFindDuplicate(grid, 1, ui), 0);
  EXPECT_TRUE(SSCheckFilled(grid, 1, ui));
  EXPECT_FALSE(SSCheckNoBlank(grid, 1, ui));
  EXPECT_TRUE(SSCheckAllFilled(grid, ui));
  EXPECT_TRUE(SSCheckRising(grid, 1, row));
  EXPECT_EQ(SSFindValue("x", 1, grid), 0);
  EXPECT_TRUE(ui.Empty());
}

TEST(GridChecks, OneRowPassesRisingAndDuplicate) {
  ScriptedUi ui;
  Grid grid = Table({{"a", "3"}});
  int row = 0;
  EXPECT_TRUE(SSCheckRising(grid, 2, row));
  EXPECT_EQ(SSFindDuplicate(grid, 1, ui), 0);
  EXPECT_TRUE(ui.Empty());
}

}  // namespace
}  // namespace pluvane
