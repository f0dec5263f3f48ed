// pluvane-cli render, run as the user runs it.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "cli/program_folder.h"
#include "foundation/test_files.h"
#include "drawing/surface.h"

namespace pluvane {
namespace {

using CliRun = ProgramRun;

CliRun RunCli(const std::string& arguments) {
  return RunCommandLine("env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM " +
                        std::string(PLUVANE_BIN) + "/pluvane-cli " + arguments + " 2>&1");
}

class RenderCommandTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Surface surface;
    const int a = surface.AddObject(12, 1000, 1000, 1400, 1400);
    surface.SetObjectPicture("NOD.wmf");
    const int b = surface.AddObject(12, 5000, 3000, 5400, 3400);
    surface.SetObjectPicture("NOD.wmf");
    surface.AddLink(a, b);
    surface.SetLineColor(0xFF0000);
    surface.SetLineWidth(-40);
    network_ = folder_.File("reseau.mtf");
    ASSERT_TRUE(surface.SaveFile(network_, kNativeFormat));
  }
  TempFolder folder_;
  std::string network_;
};

TEST_F(RenderCommandTest, WritesAPngOfTheGivenWidthWithoutADisplay) {
  const std::string png = folder_.File("reseau.png");
  const CliRun run = RunCli("render " + network_ + " -o " + png + " --width 640");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_NE(run.output.find(png), std::string::npos);
  const std::string bytes = ReadBytes(png);
  ASSERT_GT(bytes.size(), 24u);
  EXPECT_EQ(bytes.substr(1, 3), "PNG");
  // The width stands big-endian at byte 16 of the header.
  const auto width =
      (static_cast<unsigned char>(bytes[18]) << 8) | static_cast<unsigned char>(bytes[19]);
  EXPECT_EQ(width, 640);
}

TEST_F(RenderCommandTest, WritesSvgAndPdf) {
  const std::string svg = folder_.File("reseau.svg");
  const std::string pdf = folder_.File("reseau.pdf");
  EXPECT_EQ(RunCli("render " + network_ + " -o " + svg).status, 0);
  EXPECT_EQ(RunCli("render " + network_ + " --output " + pdf).status, 0);
  EXPECT_NE(ReadBytes(svg).find("<svg"), std::string::npos);
  EXPECT_EQ(ReadBytes(pdf).substr(0, 4), "%PDF");
}

TEST_F(RenderCommandTest, RefusesWhatItCannotDo) {
  CliRun run = RunCli("render " + network_ + " -o " + folder_.File("reseau.dxf"));
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("Pluvane: Erreur de sauvegarde : format d'image non reconnu (dxf)"),
            std::string::npos)
      << run.output;
  const std::string bad = folder_.File("bad.mtf");
  WriteBytes(bad, "not a network");
  run = RunCli("render " + bad + " -o " + folder_.File("bad.png"));
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("Pluvane: Le fichier " + bad +
                            " ne peut pas être lu comme un réseau Pluvane."),
            std::string::npos)
      << run.output;
  run = RunCli("render " + folder_.File("plan.txt") + " -o " + folder_.File("x.png"));
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("n'est pas de type Pluvane !!!"), std::string::npos);
  run = RunCli("render " + network_ + " -o " + folder_.File("none/x.png"));
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("Pluvane: Erreur de sauvegarde : écriture impossible de " +
                            folder_.File("none/x.png")),
            std::string::npos)
      << run.output;
}

TEST_F(RenderCommandTest, BadUsageEndsWithTwoAndTheUsage) {
  for (const std::string& args :
       {std::string("render"), "render " + network_, "render " + network_ + " -o",
        "render " + network_ + " -o x.png --width 0",
        "render " + network_ + " -o x.png --width 12a",
        "render " + network_ + " -o x.png --bogus"}) {
    const CliRun run = RunCli(args);
    EXPECT_EQ(run.status, 2) << args;
    EXPECT_NE(run.output.find("render NETWORK.mtf -o OUT.svg|pdf|png [--width PIXELS]"),
              std::string::npos)
        << args;
  }
  const CliRun help = RunCli("--help");
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.output.find("  render NETWORK.mtf"), std::string::npos);
  EXPECT_NE(help.output.find("  plot SCRIPT.Mst"), std::string::npos);
}

TEST(PlotCommand, CompilesPageOneAndCopiesTheControlFile) {
  TempFolder folder;
  const std::string script = folder.File("s.Mst");
  std::filesystem::copy_file(std::string(PLUVANE_TESTS) + "/plot/data/scripts/s01_writer_example.Mst",
                             script);
  const std::string ctl = folder.File("copie.ctl");
  const CliRun run = RunCli("plot " + script + " --ctl " + ctl);
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_EQ(run.output.substr(run.output.size() - ctl.size() - 1), ctl + "\n");
  EXPECT_EQ(ReadBytes(ctl),
            ReadBytes(std::string(PLUVANE_TESTS) + "/plot/data/expected/s01_writer_example.ctl"));
  EXPECT_TRUE(std::filesystem::exists(folder.File("P1.ctl")));
}

TEST(PlotCommand, AMissingScriptIsRefusedAndBadWordsAreTwo) {
  TempFolder folder;
  const CliRun run = RunCli("plot " + folder.File("absent.Mst"));
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find(": "), std::string::npos);
  EXPECT_EQ(RunCli("plot").status, 2);
  EXPECT_EQ(RunCli("plot a.Mst --ctl").status, 2);
  EXPECT_EQ(RunCli("plot --help").status, 0);
}

TEST(CommandLineProgram, DrawsWithoutTheWidgets) {
  // The command line draws on Qt Gui alone: no widget, no printing library.
  std::string libraries;
  FILE* pipe = popen(("ldd " + std::string(PLUVANE_BIN) + "/pluvane-cli").c_str(), "r");
  ASSERT_NE(pipe, nullptr);
  char buffer[512];
  while (std::fgets(buffer, sizeof buffer, pipe)) libraries += buffer;
  pclose(pipe);
  EXPECT_NE(libraries.find("libQt6Gui"), std::string::npos) << libraries;
  EXPECT_EQ(libraries.find("libQt6Widgets"), std::string::npos) << libraries;
  EXPECT_EQ(libraries.find("libQt6PrintSupport"), std::string::npos) << libraries;
}

}  // namespace
}  // namespace pluvane
