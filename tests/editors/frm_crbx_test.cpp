#include "editors/frm_crbx.h"

#include <gtest/gtest.h>

#include "editor_fixture.h"
#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "plot/curve_file.h"

namespace pluvane {
namespace {

class FrmCrbxTest : public EditorTest {
 protected:
  CrbxParams Params(const std::string& mode = "") {
    CrbxParams p;
    p.file = folder.File("tmp.crb");
    p.curve_name = "CrbX";
    p.point_limit = 3;
    p.labels = {"Cote (ngf)", "Debit (m3/s)", "", ""};
    p.caption = "Q=f(Z)";
    p.plot_title = "Loi paramétrique Q=f(Z)";
    p.mode = mode;
    return p;
  }
  static void Fill(Grid& grid, const std::vector<std::vector<std::string>>& rows) {
    grid.SetMaxRows(static_cast<int>(rows.size()));
    for (std::size_t r = 0; r < rows.size(); ++r)
      for (std::size_t c = 0; c < rows[r].size(); ++c)
        grid.SetText(static_cast<int>(c) + 1, static_cast<int>(r) + 1, rows[r][c]);
  }
};

TEST_F(FrmCrbxTest, OpensOnTheCurveOfTheFile) {
  WriteBytes(folder.File("tmp.crb"),
             "'Autre'\r\n     9.000     9.000\r\n'crbx'\r\n   100.000     0.500\r\n"
             "   101.250     1.000\r\n");
  FrmCrbx form(context, Params());
  EXPECT_EQ(form.Caption(), "Q=f(Z)");
  Grid& grid = form.grid();
  EXPECT_EQ(grid.Caption(), "Q=f(Z)");
  ASSERT_EQ(grid.MaxCols(), 2);
  EXPECT_EQ(grid.ColHead(1), "Cote (ngf)");
  EXPECT_EQ(grid.ColHead(2), "Debit (m3/s)");
  ASSERT_EQ(grid.MaxRows(), 2);
  EXPECT_EQ(grid.Text(1, 1), "100");
  EXPECT_EQ(grid.Text(2, 1), "0.5");
  EXPECT_EQ(grid.Text(1, 2), "101.25");
  EXPECT_EQ(grid.Type(1, 1), CellType::Float(-9999999999.999, 9999999999.999, 3));
  EXPECT_EQ(grid.Type(2, 2), CellType::Float(-9999999999.999, 9999999999.999, 3));
  EXPECT_TRUE(ui.Empty());
}

TEST_F(FrmCrbxTest, ColumnsThreeAndFourOnlyWithTheirLabel) {
  WriteBytes(folder.File("tmp.crb"), "'CrbX'\r\n     1.000     2.000     3.000     4.000\r\n");
  CrbxParams p = Params();
  p.labels = {"Z retenue (ngf)", "Surface au miroir (m2)", "Debit de fuite (m3/s)", ""};
  {
    FrmCrbx form(context, p);
    ASSERT_EQ(form.grid().MaxCols(), 3);
    EXPECT_EQ(form.grid().ColHead(3), "Debit de fuite (m3/s)");
    EXPECT_EQ(form.grid().Text(3, 1), "3");
  }
  p.labels[3] = "Debit de surverse (m3/s)";
  FrmCrbx four(context, p);
  ASSERT_EQ(four.grid().MaxCols(), 4);
  EXPECT_EQ(four.grid().Text(4, 1), "4");
  // No offset is taken from the third column into the second.
  EXPECT_EQ(four.grid().Text(2, 1), "2");
}

TEST_F(FrmCrbxTest, AMissingFileOpensOnOneEmptyRow) {
  FrmCrbx form(context, Params());
  EXPECT_EQ(form.grid().MaxRows(), 1);
  EXPECT_TRUE(form.grid().IsBlank(1, 1));
  EXPECT_TRUE(ui.Empty());
}

TEST_F(FrmCrbxTest, SaveWritesTheRowsUpToTheFirstEmptyX) {
  FrmCrbx form(context, Params());
  Fill(form.grid(), {{"100", "0.5"}, {"101.2345", "-1"}, {"", "7"}, {"103", "8"}});
  form.Run("mnSave");
  EXPECT_TRUE(form.Closed());
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(form.grid().MaxRows(), 2);
  EXPECT_EQ(ReadBytes(folder.File("tmp.crb")),
            "'CrbX'\r\n   100.000     0.500\r\n   101.235    -1.000\r\n");
}

TEST_F(FrmCrbxTest, SaveWritesEveryColumn) {
  CrbxParams p = Params();
  p.labels = {"a", "b", "c", "d"};
  FrmCrbx form(context, p);
  Fill(form.grid(), {{"1", "2", "3", ""}, {"2", "", "", "4.5"}});
  form.Run("mnSave");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(ReadBytes(folder.File("tmp.crb")),
            "'CrbX'\r\n     1.000     2.000     3.000     0.000\r\n"
            "     2.000     0.000     0.000     4.500\r\n");
}

TEST_F(FrmCrbxTest, FewerThanTwoRowsAreRefused) {
  FrmCrbx form(context, Params());
  Fill(form.grid(), {{"1", "2"}, {"", "3"}});
  form.Run("mnSave");
  ExpectLastMessage(ui, "Il faut au moins 2 lignes pour la courbe !", "Q=f(Z)", MessageIcon::kNone);
  EXPECT_FALSE(form.Closed());
  // The file was written all the same, and the grid cut.
  EXPECT_EQ(ReadBytes(folder.File("tmp.crb")), "'CrbX'\r\n     1.000     2.000\r\n");
  EXPECT_EQ(form.grid().MaxRows(), 1);
}

TEST_F(FrmCrbxTest, TheFirstColumnMustNotFall) {
  FrmCrbx form(context, Params());
  Fill(form.grid(), {{"1", "5"}, {"1", "4"}, {"0.999", "3"}});
  form.Run("mnSave");
  ExpectLastMessage(ui, "Les hauteurs doivent être croissants !", "Q=f(Z)", MessageIcon::kNone);
  EXPECT_FALSE(form.Closed());
  // Equal values pass, and the second column may fall.
  form.grid().SetText(1, 3, "1");
  ui.Clear();
  form.Run("mnSave");
  EXPECT_TRUE(ui.Empty());
  EXPECT_TRUE(form.Closed());
}

TEST_F(FrmCrbxTest, SectionModeTestsTheHeightsOfColumnTwo) {
  FrmCrbx form(context, Params("SEC"));
  // Widths may narrow; heights may stay equal but not fall.
  Fill(form.grid(), {{"2", "0"}, {"1", "0.5"}, {"0.5", "0.5"}, {"0", "0.4"}});
  form.Run("mnSave");
  ExpectLastMessage(ui, "Les hauteurs doivent être croissants !", "Q=f(Z)", MessageIcon::kNone);
  EXPECT_FALSE(form.Closed());
  form.grid().SetText(2, 4, "0.6");
  ui.Clear();
  form.Run("mnSave");
  EXPECT_TRUE(ui.Empty());
  EXPECT_TRUE(form.Closed());
}

TEST_F(FrmCrbxTest, AddGoesPastTheLimitInsertStops) {
  FrmCrbx form(context, Params());  // limit 3
  Grid& grid = form.grid();
  ASSERT_EQ(grid.MaxRows(), 1);
  form.Run("mnInsert");
  EXPECT_EQ(grid.MaxRows(), 2);
  form.Run("mnAdd");
  form.Run("mnAdd");
  form.Run("mnAdd");
  EXPECT_EQ(grid.MaxRows(), 5);
  EXPECT_EQ(grid.ActiveRow(), 5);
  form.Run("mnInsert");
  EXPECT_EQ(grid.MaxRows(), 5);
  EXPECT_TRUE(ui.Empty());
  form.Run("mnDelete");
  form.Run("mnDelete");
  EXPECT_EQ(grid.MaxRows(), 3);
  form.Run("mnInsert");
  EXPECT_EQ(grid.MaxRows(), 3);
  form.Run("mnDelete");
  form.Run("mnInsert");
  EXPECT_EQ(grid.MaxRows(), 3);
}

TEST_F(FrmCrbxTest, InsertGoesBeforeTheCurrentRowDeleteRemovesIt) {
  FrmCrbx form(context, Params());
  Grid& grid = form.grid();
  Fill(grid, {{"1", "10"}, {"2", "20"}});
  grid.SetActiveCell(1, 2);
  form.Run("mnInsert");
  ASSERT_EQ(grid.MaxRows(), 3);
  EXPECT_TRUE(grid.IsBlank(1, 2));
  EXPECT_EQ(grid.Text(1, 3), "2");
  EXPECT_EQ(grid.ActiveRow(), 2);
  grid.SetActiveCell(1, 1);
  form.Run("mnDelete");
  ASSERT_EQ(grid.MaxRows(), 2);
  EXPECT_TRUE(grid.IsBlank(1, 1));
  EXPECT_EQ(grid.Text(2, 2), "20");
}

TEST_F(FrmCrbxTest, VisuShowsTheTableThroughVistrelMst) {
  FrmCrbx form(context, Params());
  Fill(form.grid(), {{"100", "0"}, {"101", "2"}, {"102", "5"}});
  form.Run("mnVisu");
  ASSERT_EQ(plots_shown.size(), 1u);
  EXPECT_EQ(plots_shown[0].script, folder.File("Vistrel.Mst"));
  EXPECT_EQ(plots_shown[0].page_title, "Loi paramétrique Q=f(Z)");
  EXPECT_EQ(plots_shown[0].action, kViewerInitial);
  EXPECT_EQ(ReadBytes(folder.File("Vistrel.Mst")), ReadBytes(folder.File("xy.mst")));
  EXPECT_NE(ReadBytes(folder.File("xy.mst")).find("\"Loi param\xE9trique Q=f(Z)\""),
            std::string::npos);
  EXPECT_EQ(ReadBytes(folder.File("xy.crb")),
            "'CrbX2'\r\n   100.000     0.000\r\n   101.000     2.000\r\n   102.000     5.000\r\n");
  // The table is not saved by a plot.
  EXPECT_FALSE(FileExist(folder.File("tmp.crb")));
  EXPECT_FALSE(form.Closed());
}

TEST_F(FrmCrbxTest, VisuOfASectionDrawsItsOutline) {
  FrmCrbx form(context, Params("SEC"));
  // Width 1 at the invert, 2 at 1 m.
  Fill(form.grid(), {{"1", "0"}, {"2", "1"}});
  form.Run("mnVisu");
  ASSERT_EQ(plots_shown.size(), 1u);
  EXPECT_EQ(plots_shown[0].selection_mode, "SEC");
  std::vector<double> x, y;
  int count = 0, status = 0;
  ReadCurve(ui, folder.File("xy.crb"), "CrbX2", x, y, count, status);
  ASSERT_EQ(count, 4);
  EXPECT_EQ(x, (std::vector<double>{-0.5, -1, 1, 0.5}));
  EXPECT_EQ(y, (std::vector<double>{0, 1, 1, 0}));
}

TEST_F(FrmCrbxTest, VisuOfOnePointShowsNothing) {
  FrmCrbx form(context, Params());
  Fill(form.grid(), {{"1", "0"}});
  form.Run("mnVisu");
  EXPECT_TRUE(plots_shown.empty());
  EXPECT_FALSE(FileExist(folder.File("Vistrel.Mst")));
}

}  // namespace
}  // namespace pluvane
