// Scripts of every form, compiled and compared byte for byte with control
// files written by hand from the column tables (see data/make_expected.py and
// the .fields beside each expected file).
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "plot/plot_command.h"

namespace pluvane {
namespace {

class CtlGolden : public ::testing::TestWithParam<const char*> {};

TEST_P(CtlGolden, CompilesPageOneAsWrittenByHand) {
  TempFolder folder;
  const std::string name = GetParam();
  const std::string data = PLUVANE_TEST_DATA;
  const std::string script = folder.File(name + ".Mst");
  WriteBytes(script, ReadBytes(data + "/scripts/" + name + ".Mst"));
  ScriptedUi ui;
  ASSERT_TRUE(CompileScriptPage(ui, script, folder.File("copy.ctl")));
  EXPECT_TRUE(ui.Empty()) << ui.Last().text;
  const std::string expected = ReadBytes(data + "/expected/" + name + ".ctl");
  ASSERT_FALSE(expected.empty());
  EXPECT_EQ(ReadBytes(folder.File("P1.ctl")), expected);
  EXPECT_EQ(ReadBytes(folder.File("copy.ctl")), expected);
}

INSTANTIATE_TEST_SUITE_P(Scripts, CtlGolden,
                         ::testing::Values("s01_writer_example", "s02_curve_script",
                                           "s03_grid_plotxy", "s04_long_profile", "s05_lower_case",
                                           "s06_short_words", "s07_missing_fields", "s08_comments",
                                           "s09_three_frames", "s10_dates", "s11_dates_bitwise",
                                           "s12_plotxyz", "s13_a3_portrait", "s14_a3_titled",
                                           "s15_two_scales", "s16_frame_without_curve",
                                           "s17_long_texts", "s18_numbers", "s19_unclosed_quote",
                                           "s20_two_pages", "s21_end_stops", "s22_mixed_case"));

TEST(CtlGoldenPages, TwoPagesCutIntoTwoFilesAndEndStopsTheCut) {
  TempFolder folder;
  const std::string data = PLUVANE_TEST_DATA;
  ScriptedUi ui;
  WriteBytes(folder.File("a.Mst"), ReadBytes(data + "/scripts/s20_two_pages.Mst"));
  ASSERT_TRUE(CompileScriptPage(ui, folder.File("a.Mst"), ""));
  EXPECT_TRUE(FileExist(folder.File("P2.TMP")));
  EXPECT_EQ(ReadBytes(folder.File("P2.TMP")),
            "PAGE \"A3\" \"H\"\r\nCADRE 1 2 1 2 \"deux\"\r\nPLOTXY 1 \"g.crb\" \"d\"\r\n"
            "ENDCADRE\r\nENDPAGE\r\n");
  std::filesystem::remove(folder.File("P2.TMP"));
  WriteBytes(folder.File("b.Mst"), ReadBytes(data + "/scripts/s21_end_stops.Mst"));
  ASSERT_TRUE(CompileScriptPage(ui, folder.File("b.Mst"), ""));
  EXPECT_FALSE(FileExist(folder.File("P2.TMP")));
}

}  // namespace
}  // namespace pluvane
