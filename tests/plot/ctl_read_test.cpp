#include "plot/ctl_read.h"

#include <gtest/gtest.h>

#include "foundation/errors.h"
#include "foundation/expect_message.h"
#include "foundation/text.h"
#include "plot/plot_dates.h"

namespace pluvane {
namespace {

std::vector<std::string> Expected(const std::string& name) {
  std::vector<std::string> lines;
  EXPECT_TRUE(ReadTextLines(std::string(PLUVANE_TEST_DATA) + "/expected/" + name + ".ctl", lines));
  return lines;
}

TEST(ReadCtlPage, KnownCodesGiveTheirSizeAndAnyOtherTextIsA4Landscape) {
  CtlPage a3v = ReadCtlPage(Expected("s13_a3_portrait")[0]);
  EXPECT_EQ(a3v.code, "A3V");
  EXPECT_DOUBLE_EQ(a3v.width, 29.7);
  EXPECT_DOUBLE_EQ(a3v.height, 42.0);
  EXPECT_DOUBLE_EQ(a3v.left_offset, 0.04);
  EXPECT_DOUBLE_EQ(a3v.bottom_offset, 0.095);
  EXPECT_EQ(a3v.frame_count, 1);
  CtlPage titled = ReadCtlPage(Expected("s14_a3_titled")[0]);
  EXPECT_EQ(titled.code, "A3Vx");
  EXPECT_DOUBLE_EQ(titled.width, 29.7);
  EXPECT_DOUBLE_EQ(titled.height, 21.0);
  EXPECT_DOUBLE_EQ(titled.left_offset, 0.095);
  CtlPage a0 = ReadCtlPage("  A0H1    ");
  EXPECT_DOUBLE_EQ(a0.width, 118.8);
  EXPECT_DOUBLE_EQ(a0.height, 84.0);
}

TEST(ReadCtlFrame, TakesItsColumns) {
  CtlFrame frame = ReadCtlFrame(Expected("s01_writer_example")[1]);
  EXPECT_EQ(frame.rank, 1);
  EXPECT_EQ(frame.curve_count, 1);
  EXPECT_DOUBLE_EQ(frame.left, 2);
  EXPECT_DOUBLE_EQ(frame.right, 28);
  EXPECT_DOUBLE_EQ(frame.bottom, 2);
  EXPECT_DOUBLE_EQ(frame.top, 20);
  EXPECT_EQ(frame.title, "title");
  EXPECT_EQ(frame.style, 6);
  EXPECT_EQ(frame.width, 1);
  EXPECT_EQ(frame.colour, 0);
  EXPECT_DOUBLE_EQ(frame.text_size, 6);
  EXPECT_EQ(frame.font, 0);
  EXPECT_EQ(frame.extra_colour, "65535");
}

TEST(ReadCtlFrame, ATextSizeOfZeroInTheScriptReachesTheRendererAsEight) {
  EXPECT_DOUBLE_EQ(ReadCtlFrame(Expected("s06_short_words")[1]).text_size, 8);
  // Only a hand-made control file can hold a size below 0.001: it reads 6.
  std::string line = Expected("s06_short_words")[1];
  line.replace(146, 8, "0    .00");
  EXPECT_DOUBLE_EQ(ReadCtlFrame(line).text_size, 6);
}

TEST(ReadCtlFrame, AFontIndexBeyondTheTableIsArial) {
  EXPECT_EQ(ReadCtlFrame(Expected("s15_two_scales")[1]).font, 0);
  EXPECT_EQ(ReadCtlFrame(Expected("s05_lower_case")[1]).font, 3);
}

TEST(ReadCtlScale, ReadsAllFieldsWithTheirDefaults) {
  ScriptedUi ui;
  CtlScale scale;
  ASSERT_TRUE(ReadCtlScale(ui, Expected("s01_writer_example")[2], 1, scale));
  EXPECT_TRUE(ui.Empty());
  EXPECT_DOUBLE_EQ(scale.x_max, 100);
  EXPECT_DOUBLE_EQ(scale.y_max, 10);
  EXPECT_DOUBLE_EQ(scale.x_step, 10);
  EXPECT_DOUBLE_EQ(scale.y_step, 1);
  EXPECT_EQ(scale.x_spacing, 5);
  EXPECT_EQ(scale.y_spacing, 2);
  EXPECT_DOUBLE_EQ(scale.label_size, 5);
  EXPECT_EQ(scale.x_title, "x title");
  EXPECT_EQ(scale.y_title, "y title");
  EXPECT_EQ(scale.y_title_placement, "V");
  EXPECT_EQ(scale.outline, "F");
  EXPECT_FALSE(scale.date_mode);
  // A blank placement is "H", a label size of 0 is 4.
  ASSERT_TRUE(ReadCtlScale(ui, Expected("s22_mixed_case")[2], 1, scale));
  EXPECT_EQ(scale.y_title_placement, "H");
  EXPECT_DOUBLE_EQ(scale.label_size, 4);
}

TEST(ReadCtlScale, AnEmptyQuotedFormatIsBlankAndReadsAsTheDefault) {
  ScriptedUi ui;
  CtlScale scale;
  const std::string line = Expected("s08_comments")[2];
  EXPECT_EQ(line.substr(164, 20), std::string(20, ' '));
  ASSERT_TRUE(ReadCtlScale(ui, line, 1, scale));
  EXPECT_EQ(scale.x_format, "######0.00");
  EXPECT_EQ(scale.y_format, "######0.00");
}

TEST(ReadCtlScale, LimitsAreCutToTwoDecimalsAndStepsToThree) {
  ScriptedUi ui;
  CtlScale scale;
  ASSERT_TRUE(ReadCtlScale(ui, Expected("s15_two_scales")[2], 1, scale));
  EXPECT_DOUBLE_EQ(scale.x_max, 0.45);
  EXPECT_DOUBLE_EQ(scale.x_min, 0);
  EXPECT_DOUBLE_EQ(scale.y_min, -0.45);
  EXPECT_DOUBLE_EQ(scale.y_max, 7.99);
  EXPECT_DOUBLE_EQ(scale.x_step, 0);
  EXPECT_DOUBLE_EQ(scale.y_step, 0.123);
  EXPECT_EQ(scale.x_title, "seconde");
  EXPECT_EQ(scale.outline, "O");
}

TEST(ReadCtlScale, ReversedLimitsAreRefusedAndTheRestStaysUnread) {
  std::string line = Expected("s01_writer_example")[2];
  line.replace(20, 10, "20     .00");  // Y minimum above Y maximum
  ScriptedUi ui;
  CtlScale scale;
  scale.x_step = 99;
  EXPECT_FALSE(ReadCtlScale(ui, line, 3, scale));
  ExpectLastMessage(ui, "Revoir la ligne Echelle du Cadre 3\nIncoherence des X,Y minmax !",
                    "Echelle incohérente dans le fic Mst", MessageIcon::kCritical);
  EXPECT_DOUBLE_EQ(scale.x_step, 99);
  // Equal limits pass.
  line.replace(20, 10, "10     .00");
  ui.Clear();
  EXPECT_TRUE(ReadCtlScale(ui, line, 3, scale));
  EXPECT_TRUE(ui.Empty());
}

TEST(ReadCtlScale, DateModeCountsDaysFromTheOrigin) {
  ScriptedUi ui;
  CtlScale scale;
  ASSERT_TRUE(ReadCtlScale(ui, Expected("s10_dates")[2], 1, scale));
  EXPECT_TRUE(scale.date_mode);
  EXPECT_DOUBLE_EQ(scale.x_min, 0);
  EXPECT_DOUBLE_EQ(scale.x_max, 14);
  EXPECT_EQ(scale.x_format, "01/06/2020");
  std::int32_t origin = 0;
  ASSERT_TRUE(DateSerialOf("01/06/2020", origin));
  EXPECT_EQ(scale.origin, origin);
  EXPECT_EQ(DayMonthText(scale.origin + 30), "01/07");
}

TEST(ReadCtlScale, TheBitwiseDateTestFailsForSlashesAtThreeAndFour) {
  ScriptedUi ui;
  CtlScale scale;
  ASSERT_TRUE(ReadCtlScale(ui, Expected("s11_dates_bitwise")[2], 1, scale));
  EXPECT_FALSE(scale.date_mode);
  EXPECT_DOUBLE_EQ(scale.x_min, 1);
  EXPECT_DOUBLE_EQ(scale.x_max, 1);
}

TEST(ReadCtlScale, DateModeComparesTheXLimitsOfTheFrameBefore) {
  ScriptedUi ui;
  CtlScale scale;
  scale.x_min = 5;
  scale.x_max = 1;
  EXPECT_FALSE(ReadCtlScale(ui, Expected("s10_dates")[2], 2, scale));
  ExpectLastMessage(ui, "Revoir la ligne Echelle du Cadre 2\nIncoherence des X,Y minmax !",
                    "Echelle incohérente dans le fic Mst", MessageIcon::kCritical);
}

TEST(ReadCtlScale, DateModeWithoutOriginIsRefused) {
  std::string line = Expected("s10_dates")[2];
  line.replace(164, 10, "          ");
  ScriptedUi ui;
  CtlScale scale;
  EXPECT_FALSE(ReadCtlScale(ui, line, 1, scale));
  ExpectLastMessage(ui,
                    "Revoir la ligne Echelle du cadre  1\nLa date origine n'est pas renseignée !",
                    "Echelle en date dans le fic Mst", MessageIcon::kCritical);
}

TEST(ReadCtlScale, ADateThatIsNoDateRaisesTheConversionError) {
  std::string line = Expected("s10_dates")[2];
  line.replace(0, 10, "45/45/2020");
  ScriptedUi ui;
  CtlScale scale;
  try {
    ReadCtlScale(ui, line, 1, scale);
    FAIL();
  } catch (const AppError& error) {
    EXPECT_EQ(error.number(), 13);
  }
}

TEST(ReadCtlGrid, TakesItsColumns) {
  CtlGrid grid = ReadCtlGrid(Expected("s05_lower_case")[3]);
  EXPECT_EQ(grid.x_every, 5);
  EXPECT_EQ(grid.y_every, 4);
  EXPECT_EQ(grid.style, 2);
  EXPECT_EQ(grid.width, 0);
  EXPECT_EQ(grid.colour, 8421504);
  EXPECT_EQ(grid.fill, 16777215);
  EXPECT_EQ(ReadCtlGrid(Expected("s01_writer_example")[3]).fill, 0);
}

TEST(ReadCtlPlot, ASevenWordPlotxyFillsWithTheLineColourInSmallHollowSymbols) {
  CtlPlot plot = ReadCtlPlot(Expected("s01_writer_example")[4]);
  EXPECT_EQ(plot.name, "curve");
  EXPECT_EQ(plot.file, "file");
  EXPECT_EQ(plot.style, 0);
  EXPECT_EQ(plot.width, 2);
  EXPECT_EQ(plot.colour, 16711680);
  EXPECT_DOUBLE_EQ(plot.constant, 4);
  EXPECT_EQ(plot.symbol, "");
  EXPECT_EQ(plot.kind, 1);
  EXPECT_EQ(plot.fill, "0");
  EXPECT_EQ(plot.symbol_size, 3);
  EXPECT_EQ(plot.filled, 0);
}

TEST(ReadCtlPlot, TakesEveryWord) {
  CtlPlot plot = ReadCtlPlot(Expected("s05_lower_case")[4]);
  EXPECT_EQ(plot.kind, 4);
  EXPECT_EQ(plot.symbol, "o");
  EXPECT_EQ(plot.fill, "65280");
  EXPECT_EQ(plot.symbol_size, 5);
  EXPECT_EQ(plot.filled, 1);
  EXPECT_EQ(ReadCtlPlot(Expected("s04_long_profile")[4]).name, "*ZTN_B1");
}

TEST(ReadCtlComment, NormalisesTheAlignments) {
  std::vector<std::string> lines = Expected("s08_comments");
  EXPECT_EQ(ReadCtlCount(lines[5]), 3);
  CtlComment first = ReadCtlComment(lines[6]);
  EXPECT_DOUBLE_EQ(first.size, 10);
  EXPECT_DOUBLE_EQ(first.x, 1);
  EXPECT_DOUBLE_EQ(first.y, 20);
  EXPECT_EQ(first.text, "avant le cadre");
  EXPECT_EQ(first.h_align, "G");
  EXPECT_EQ(first.v_align, "H");
  CtlComment second = ReadCtlComment(lines[7]);
  EXPECT_DOUBLE_EQ(second.angle, 45);
  EXPECT_EQ(second.font, 2);
  EXPECT_EQ(second.colour, 16711680);
  EXPECT_EQ(second.h_align, "D");
  EXPECT_EQ(second.v_align, "B");
  CtlComment third = ReadCtlComment(lines[8]);
  EXPECT_EQ(third.font, 12);
  EXPECT_EQ(third.h_align, "");
  EXPECT_EQ(third.v_align, "");
}

TEST(PlotDates, ReadDayFirst) {
  std::int32_t a = 0, b = 0;
  ASSERT_TRUE(DateSerialOf("1/1/1900", a));
  EXPECT_EQ(a, 2);
  ASSERT_TRUE(DateSerialOf("31/12/99", b));
  ASSERT_TRUE(DateSerialOf("31/12/1999", a));
  EXPECT_EQ(a, b);
  EXPECT_FALSE(DateSerialOf("29/02/2021", a));
  EXPECT_TRUE(DateSerialOf("29/02/2020 12:00", a));
  EXPECT_FALSE(DateSerialOf("1/5", a));
  EXPECT_EQ(DayMonthText(a), "29/02");
}

}  // namespace
}  // namespace pluvane
