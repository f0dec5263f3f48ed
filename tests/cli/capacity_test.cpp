// pluvane-cli capacity, run as the user runs it, on the example network.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/program_folder.h"
#include "drawing/surface.h"
#include "drawing/surface_helpers.h"
#include "drawing/surface_object.h"
#include "foundation/paths.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

ProgramRun Capacity(const std::string& arguments) {
  return RunCommandLine("env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM " +
                        std::string(PLUVANE_BIN) + "/pluvane-cli capacity " + arguments + " 2>&1");
}

std::string Row(const std::string& label, const std::string& words) {
  std::string padded = label;
  padded.resize(8, ' ');
  return "\"" + padded + "  " + words + "\r\n";
}

class CapacityCommandTest : public ::testing::Test {
 protected:
  void SetUp() override {
    network_ = folder_.File("Demo.mtf");
    std::filesystem::copy_file(std::string(PLUVANE_DATA) + "/Exemples/Demo.mtf", network_);
    std::filesystem::create_directories(folder_.File("Decennale"));
    sor_ = folder_.File("Decennale/Decennale_Demo.Sor");
  }
  void Sor(const std::string& mode, const std::string& rows) {
    WriteBytes(sor_, "  Mode de calcul : " + mode + "\r\n" + rows);
  }
  TempFolder folder_;
  std::string network_;
  std::string sor_;
};

TEST_F(CapacityCommandTest, WritesTheMapsNetworkWithItsTagsAndColours) {
  Sor("Diagnostic", Row("Cac_1", "0.0 0.5 10 1.0 0.4 9 0") + Row("Cac_2", "0.0 1.3 10 1.0 1.2 9 1"));
  const std::string out = folder_.File("carte.mtf");
  const ProgramRun run = Capacity(network_ + " --scenario Decennale -o " + out);
  ASSERT_EQ(run.status, 0) << run.output;
  EXPECT_NE(run.output.find(out), std::string::npos);
  Surface map;
  ASSERT_TRUE(map.LoadFile(out, 0));
  const int c1 = FindObject(map, "libell", TagMatch("Cac_1"));
  const int c2 = FindObject(map, "libell", TagMatch("Cac_2"));
  const int c3 = FindObject(map, "libell", TagMatch("Cac_3"));
  ASSERT_NE(c1, 0);
  EXPECT_EQ(TagOfObject(map, c1, "Taux"), "   50.00");
  EXPECT_EQ(map.ObjectShape(c1)->line_color, 65535);   // class 50 of pluvane.ini
  EXPECT_EQ(map.ObjectShape(c2)->line_color, 8388736); // 130 %: the last class
  EXPECT_EQ(map.ObjectShape(c3)->line_color, 218 + 256 * 218 + 65536 * 218);
  EXPECT_FALSE(FileExist(folder_.File("Decennale/ficSor.tmp")));
}

TEST_F(CapacityCommandTest, DrawsThePictureWithItsLegend) {
  const std::string report = folder_.File("autre.sor");
  WriteBytes(report, Row("Cac_1", "0.0 0.9 10 1.0 0.4 9 0"));
  const std::string png = folder_.File("carte.png");
  const ProgramRun run = Capacity(network_ + " --sor " + report + " -o " + png);
  ASSERT_EQ(run.status, 0) << run.output;
  EXPECT_EQ(ReadBytes(png).substr(1, 3), "PNG");
}

TEST_F(CapacityCommandTest, RefusalsGiveTheirMessage) {
  ProgramRun run = Capacity(network_ + " --scenario Decennale -o " + folder_.File("c.mtf"));
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("Le fichier Decennale_Demo.Sor  est introuvable ou"), std::string::npos)
      << run.output;

  Sor("Dimensionnement", Row("Cac_1", "0.0 0.5 10 1.0 0.4 9 0"));
  run = Capacity(network_ + " --scenario Decennale -o " + folder_.File("c.mtf"));
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("Cartographie de la capacité de remplissage: Attentention le mode de "
                            "calcul actuel ne correspond pas aux"),
            std::string::npos)
      << run.output;
  EXPECT_FALSE(FileExist(folder_.File("c.mtf")));

  Sor("Diagnostic", Row("Absent", "0.0 0.5 10 1.0 0.4 9 0"));
  run = Capacity(network_ + " --scenario Decennale -o " + folder_.File("c.mtf"));
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("Il y a incohérence de paramétrage du réseau"), std::string::npos);
}

TEST_F(CapacityCommandTest, BadUsage) {
  EXPECT_EQ(Capacity(network_).status, 2);
  EXPECT_EQ(Capacity(network_ + " -o x.doc").status, 2);
  EXPECT_EQ(Capacity(network_ + " --bogus -o x.mtf").status, 2);
}

}  // namespace
}  // namespace pluvane
