#include "plot/curve_file.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/fixed_width.h"
#include "foundation/paths.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

struct Curve {
  std::vector<double> x, y;
  int count = -1;
  int status = -1;
};

Curve Read(ScriptedUi& ui, const std::string& file, const std::string& name) {
  Curve c;
  ReadCurve(ui, file, name, c.x, c.y, c.count, c.status);
  return c;
}

TEST(ReadCurve, FindsANameInAnotherCaseAndTakesTheFirstOfTwo) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"),
             "'Autre'\r\n     1.000     1.000\r\n'  cac_1 ' suite\r\n     0.000     0.500\r\n"
             "    10.000     1.500\r\n'CAC_1'\r\n     5.000     5.000\r\n");
  ScriptedUi ui;
  Curve c = Read(ui, folder.File("a.crb"), " Cac_1");
  EXPECT_EQ(c.status, kCurveFound);
  EXPECT_EQ(c.count, 2);
  EXPECT_EQ(c.x, (std::vector<double>{0, 10}));
  EXPECT_EQ(c.y, (std::vector<double>{0.5, 1.5}));
  EXPECT_TRUE(ui.Empty());
}

TEST(ReadCurve, AnOffsetOnTheFirstDataLineLiftsTheCurve) {
  TempFolder folder;
  WriteBytes(folder.File("a.Lim"),
             "'N1'\r\n     0.000     1.000   100.000\r\n\r\n    10.000     2.000    50.000\r\n"
             "'N2'\r\n");
  ScriptedUi ui;
  Curve c = Read(ui, folder.File("a.Lim"), "n1");
  EXPECT_EQ(c.count, 2);
  EXPECT_EQ(c.y, (std::vector<double>{101, 102}));
}

TEST(ReadCurve, ALastLineWithoutLineEndIsRead) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"), "'A'\r\n     0.000     1.000\r\n     2.000     3.000");
  ScriptedUi ui;
  Curve c = Read(ui, folder.File("a.crb"), "A");
  EXPECT_EQ(c.count, 2);
  EXPECT_EQ(c.x, (std::vector<double>{0, 2}));
  EXPECT_EQ(c.y, (std::vector<double>{1, 3}));
}

TEST(ReadCurve, TheFilesLastLineLooksForNoOffset) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"), "'A'\r\n     0.000     1.000   100.000\r\n");
  ScriptedUi ui;
  Curve c = Read(ui, folder.File("a.crb"), "A");
  EXPECT_EQ(c.y, (std::vector<double>{1}));
}

TEST(ReadCurve, AFileWithoutHeaderIsReadButHoldsNothing) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"), "\r\n     0.000     1.000\r\n     2.000     3.000\r\n");
  ScriptedUi ui;
  Curve c = Read(ui, folder.File("a.crb"), "A");
  EXPECT_EQ(c.status, kCurveNotFound);
  EXPECT_EQ(c.count, 0);
  EXPECT_TRUE(c.x.empty());
  EXPECT_FALSE(CurveFormatCheck(ui, folder.File("a.crb")));
}

TEST(ReadCurve, AMissingFileIsToldAndTouchesNothing) {
  TempFolder folder;
  ScriptedUi ui;
  const std::string file = folder.File("none.crb");
  Curve c;
  c.x = {7};
  ReadCurve(ui, file, "A", c.x, c.y, c.count, c.status);
  ExpectLastMessage(
      ui, "Fichier " + file + " introuvable!\nEnregistrer les données et Quitter le programme!", "",
      MessageIcon::kNone);
  EXPECT_EQ(c.status, -1);
  EXPECT_EQ(c.x, (std::vector<double>{7}));
}

TEST(ReadCurve, ThreeAndFourColumnsHaveNoOffset) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"),
             "'L'\r\n     1.000     2.000     3.000     4.000\r\n     5.000     6.000     7.000    "
             " 8.000\r\n");
  ScriptedUi ui;
  std::vector<double> x, y, z, t;
  int count = 0, status = 0;
  ReadCurve(ui, folder.File("a.crb"), "L", x, y, z, count, status);
  EXPECT_EQ(y, (std::vector<double>{2, 6}));
  EXPECT_EQ(z, (std::vector<double>{3, 7}));
  ReadCurve(ui, folder.File("a.crb"), "L", x, y, z, t, count, status);
  EXPECT_EQ(t, (std::vector<double>{4, 8}));
  EXPECT_EQ(count, 2);
  EXPECT_EQ(status, kCurveFound);
}

// The number forms a data line may hold, each in its ten columns.
TEST(ReadCurve, ReadsEveryNumberFormOfItsColumns) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"),
             "'F'\r\n"
             "     1.000    -2.500\r\n"  // the writers' form
             "  .5        5.\r\n"        // no integer part, no decimals
             "+3        1.0D-02\r\n"     // a plus sign, the old exponent
             "1234567.891.5E+03abc\r\n"  // columns that touch, text behind
             "\t7        -0.000\r\n"     // a tab before, a negative zero
             "       abc      12.3\r\n"  // no number reads as 0
             "    42\r\n"                // a short line
             "  1234.5678901\r\n");      // a number cut by its column
  ScriptedUi ui;
  Curve c = Read(ui, folder.File("a.crb"), "F");
  EXPECT_EQ(c.count, 8);
  EXPECT_EQ(c.x, (std::vector<double>{1, 0.5, 3, 1234567.89, 7, 0, 42, 1234.567}));
  EXPECT_EQ(c.y, (std::vector<double>{-2.5, 5, 0.01, 1500, -0.0, 12.3, 0, 8901}));
  EXPECT_TRUE(ui.Empty());
}

// Columns count characters: an accented letter in a line is one column.
TEST(ReadCurve, ColumnsCountCharactersNotBytes) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"),
             "'É'\r\n  é 1.000     2.500     9.000\r\n     3.000é    4.000\r\n");
  ScriptedUi ui;
  Curve c = Read(ui, folder.File("a.crb"), "é");
  EXPECT_EQ(c.count, 2);
  EXPECT_EQ(c.x, (std::vector<double>{0, 3}));
  EXPECT_EQ(c.y, (std::vector<double>{11.5, 9}));  // the offset of 9 too
}

// A Windows-1252 file is read as well, its columns by characters.
TEST(ReadCurve, AWindows1252FileIsReadByCharacters) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"),
             "'D\xe9"
             "bit'\r\n\xe9    1.000     2.000\r\n");
  ScriptedUi ui;
  Curve c = Read(ui, folder.File("a.crb"), "DÉBIT");
  EXPECT_EQ(c.status, kCurveFound);
  EXPECT_EQ(c.x, (std::vector<double>{0}));
  EXPECT_EQ(c.y, (std::vector<double>{2}));
}

// Many curves, the wanted one last: every point of it, in order.
TEST(ReadCurve, TheLastOfManyLongCurvesIsReadWhole) {
  TempFolder folder;
  std::string text;
  for (int curve = 0; curve < 5; ++curve) {
    text += "'C" + std::to_string(curve) + "'\r\n";
    for (int i = 0; i < 20000; ++i)
      text += FormatFixed(i * 0.5, 10, 3) + FormatFixed(curve * 1000 + i * 0.001, 10, 3) + "\r\n";
  }
  WriteBytes(folder.File("a.crb"), text);
  ScriptedUi ui;
  Curve c = Read(ui, folder.File("a.crb"), "c4");
  ASSERT_EQ(c.count, 20000);
  ASSERT_EQ(c.x.size(), 20000u);
  EXPECT_EQ(c.x[19999], 9999.5);
  EXPECT_EQ(c.y[0], 4000);
  EXPECT_EQ(c.y[12345], 4012.345);
  double x_min = 0, x_max = 0, y_min = 0, y_max = 0;
  CurveMinMax(ui, folder.File("a.crb"), x_min, x_max, y_min, y_max);
  EXPECT_EQ(x_max, 9999.5);
  EXPECT_EQ(y_max, 4019.999);
  EXPECT_EQ(y_min, 0);
}

TEST(CurveFormatCheck, LooksAtTheFirstLineThatIsNotBlank) {
  TempFolder folder;
  ScriptedUi ui;
  WriteBytes(folder.File("a.crb"), "\r\n   \r\n'A' 3\r\n");
  EXPECT_TRUE(CurveFormatCheck(ui, folder.File("a.crb")));
  WriteBytes(folder.File("b.crb"), "");
  EXPECT_FALSE(CurveFormatCheck(ui, folder.File("b.crb")));
  EXPECT_FALSE(CurveFormatCheck(ui, folder.File("none.crb")));
}

TEST(CurveMinMax, AnEmptyLineCountsAsTheOrigin) {
  TempFolder folder;
  WriteBytes(
      folder.File("a.crb"),
      "'A'\r\n     5.000     6.000\r\n\r\n     8.000     9.000\r\n'B'\r\n    10.000     7.000");
  ScriptedUi ui;
  double x_min = 1, x_max = 1, y_min = 1, y_max = 1;
  CurveMinMax(ui, folder.File("a.crb"), x_min, x_max, y_min, y_max);
  EXPECT_DOUBLE_EQ(x_min, 0);
  EXPECT_DOUBLE_EQ(x_max, 10);
  EXPECT_DOUBLE_EQ(y_min, 0);
  EXPECT_DOUBLE_EQ(y_max, 9);
}

TEST(CurveMinMax, NoDataLeavesTheStartValues) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"), "'A'\r\n");
  ScriptedUi ui;
  double x_min = 0, x_max = 0, y_min = 0, y_max = 0;
  CurveMinMax(ui, folder.File("a.crb"), x_min, x_max, y_min, y_max);
  EXPECT_DOUBLE_EQ(x_min, 999999999);
  EXPECT_DOUBLE_EQ(y_max, -9999999999.0);
}

TEST(CurveMinMax, AMissingFileIsToldAndTouchesNothing) {
  TempFolder folder;
  ScriptedUi ui;
  double x_min = 1, x_max = 2, y_min = 3, y_max = 4;
  CurveMinMax(ui, folder.File("none.crb"), x_min, x_max, y_min, y_max);
  ExpectLastMessage(ui, "Fichier " + folder.File("none.crb") + " introuvable!", "",
                    MessageIcon::kNone);
  EXPECT_DOUBLE_EQ(x_min + x_max + y_min + y_max, 10);
}

TEST(XtCourbe, AppendsTheFirstCurveOfThatName) {
  TempFolder folder;
  WriteBytes(
      folder.File("s.crb"),
      "'A' x\r\n     0.000     1.000\r\n\r\n     2.000     3.000\r\n'a'\r\n     9.000     9.000\r\n"
      "'B'\r\n     4.000     4.000\r\n'C'\r\n     5.000     5.000\r\n     6.000     6.000");
  WriteBytes(folder.File("d.crb"), "'Z'\r\n");
  ScriptedUi ui;
  EXPECT_EQ(XtCourbe(ui, "a", folder.File("s.crb"), folder.File("d.crb")), 0);
  EXPECT_EQ(XtCourbe(ui, "B", folder.File("s.crb"), folder.File("d.crb")), 2);
  EXPECT_EQ(XtCourbe(ui, "none", folder.File("s.crb"), folder.File("d.crb")), 2);
  EXPECT_EQ(XtCourbe(ui, " c ", folder.File("s.crb"), folder.File("d.crb")), 0);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(
      ReadBytes(folder.File("d.crb")),
      "'Z'\r\n'A' x\r\n     0.000     1.000\r\n     2.000     3.000\r\n"
      "'B'\r\n     4.000     4.000\r\n'C'\r\n     5.000     5.000\r\n     6.000     6.000\r\n");
}

TEST(XtCourbe, AMissingSourceIsTold) {
  TempFolder folder;
  ScriptedUi ui;
  EXPECT_EQ(XtCourbe(ui, "A", folder.File("none.crb"), folder.File("d.crb")), 1);
  ExpectLastMessage(ui,
                    "Erreur XtCourbe : Fichier  '" + folder.File("none.crb") + "'  non trouvé!!!",
                    "", MessageIcon::kNone);
  EXPECT_FALSE(FileExist(folder.File("d.crb")));
}

}  // namespace
}  // namespace pluvane
