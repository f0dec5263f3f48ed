// pluvane-cli profile, run as the user runs it, on the example network.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/program_folder.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class ProfileCommandTest : public ::testing::Test {
 protected:
  ProgramRun Cli(const std::string& arguments) { return folder.Start("pluvane-cli", arguments); }
  ProgramFolder folder;
};

TEST_F(ProfileCommandTest, WritesTheProfileInTheScenarioFolderByDefault) {
  const ProgramRun run = Cli("profile Exemples/Demo.mtf --reach 1");
  ASSERT_EQ(run.status, 0) << run.output;
  // The work folder: the network's folder and the current scenario.
  const std::string work = folder.Work("Exemples/Decennale");
  const std::string curves = ReadBytes(work + "/Prof.crb");
  // Cac_4 (kind 5, no section: no height) from Nod_3 at 49.6 m to Nod_4.
  EXPECT_EQ(curves.substr(0, 52), "'ZR_1'\r\n     0.000    46.800\r\n   150.000    46.000\r\n");
  EXPECT_NE(curves.find("'ZTN_1'\r\n     0.000    49.600\r\n   150.000    48.800\r\n"),
            std::string::npos);
  EXPECT_NE(curves.find("   750.000    42.800\r\n"), std::string::npos);
  const std::string script = ReadBytes(work + "/Prof.Mst");
  EXPECT_EQ(script.substr(0, 35), "PAGE  \"A4\"  \"H\"  \"Profil en long\"\r\n");
  EXPECT_NE(script.find(" Cadre  2  28  2  20  \"Bief 1\"  6 0 0 6 0 0\r\n"), std::string::npos);
  EXPECT_NE(run.output.find(work + "/Prof.Mst"), std::string::npos) << run.output;
}

TEST_F(ProfileCommandTest, DrawsThePageIntoAPictureInTheFolderGiven) {
  const std::string png = folder.Work("profil.png");
  const ProgramRun run = Cli("profile Exemples/Demo.mtf --reach 1 --dir sortie -o profil.png");
  ASSERT_EQ(run.status, 0) << run.output;
  EXPECT_TRUE(fs::exists(folder.Work("sortie/Prof.crb")));
  EXPECT_TRUE(fs::exists(folder.Work("sortie/Prof.Mst")));
  const std::string bytes = ReadBytes(png);
  ASSERT_GT(bytes.size(), 1000u);
  EXPECT_EQ(bytes.substr(1, 3), "PNG");
  EXPECT_NE(run.output.find(png), std::string::npos) << run.output;
}

TEST_F(ProfileCommandTest, RefusalsAndBadUsage) {
  ProgramRun run = Cli("profile Exemples/Demo.mtf --reach 4");
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("pluvane-cli: Le bief 4 n'existe pas dans le réseau."),
            std::string::npos)
      << run.output;
  run = Cli("profile Exemples/Demo.mtf");
  EXPECT_EQ(run.status, 2);
  EXPECT_NE(run.output.find("usage: pluvane-cli"), std::string::npos);
  run = Cli("profile Exemples/Demo.mtf --reach");
  EXPECT_EQ(run.status, 2);
  run = Cli("profile --reach 1");
  EXPECT_EQ(run.status, 2);
}

TEST_F(ProfileCommandTest, ANetworkWithoutReachGivesTheMenusMessage) {
  // The example without its reach record.
  std::string text = ReadBytes(folder.Work("Exemples/Demo.mtf"));
  const std::size_t reach = text.find("\"iName\",\"100\"");
  ASSERT_NE(reach, std::string::npos);
  text.replace(reach, 13, "\"iName\",\"900\"");
  WriteBytes(folder.Work("Exemples/SansBief.mtf"), text);
  const ProgramRun run = Cli("profile Exemples/SansBief.mtf --reach 1");
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("Contrôle de cohérence: Au moins un bief de collecteurs être défini !"),
            std::string::npos)
      << run.output;
}

}  // namespace
}  // namespace pluvane
