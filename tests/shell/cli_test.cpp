#include "shell/cli.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

struct CliRun {
  int status;
  std::string out;
  std::string err;
};

CliRun RunCommand(const std::vector<std::string>& args, const std::string& app_path = PLUVANE_BIN) {
  std::ostringstream out, err;
  const int status = RunCli(args, app_path, out, err);
  return {status, out.str(), err.str()};
}

TEST(Cli, HelpListsTheCommands) {
  CliRun run = RunCommand({"--help"});
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find("usage: pluvane-cli COMMAND"), std::string::npos);
  EXPECT_NE(run.out.find("  plot SCRIPT.Mst [--ctl OUT.ctl]"), std::string::npos);
  EXPECT_EQ(RunCommand({"plot", "--help"}).status, 0);
}

TEST(Cli, BadUsageIsTwo) {
  EXPECT_EQ(RunCommand({}).status, 2);
  CliRun unknown = RunCommand({"dessine"});
  EXPECT_EQ(unknown.status, 2);
  EXPECT_EQ(unknown.err.rfind("pluvane-cli: commande inconnue : dessine\n", 0), 0u);
  EXPECT_EQ(RunCommand({"plot"}).status, 2);
  EXPECT_EQ(RunCommand({"plot", "a.Mst", "--ctl"}).status, 2);
}

TEST(Cli, ARegisteredCommandRunsWithItsUsageAndMessages) {
  std::vector<std::string> seen;
  RegisterCliCommand("essai", "  essai WORD    repeats a word\n",
                     [&](const std::vector<std::string>& args, const std::string& app_path,
                         std::ostream& out, ScriptedUi& ui) {
                       seen = args;
                       seen.push_back(app_path);
                       if (args.empty()) return 2;
                       ui.ShowMessage("mot " + args[0], "Essai", MessageIcon::kInformation);
                       out << args[0] << "\n";
                       return 0;
                     });
  CliRun run = RunCommand({"essai", "bonjour"}, "/opt/pluvane");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "bonjour\n");
  EXPECT_EQ(run.err, "Essai: mot bonjour\n");
  EXPECT_EQ(seen, (std::vector<std::string>{"bonjour", "/opt/pluvane"}));
  EXPECT_NE(RunCommand({"--help"}).out.find("  essai WORD    repeats a word\n"), std::string::npos);
  run = RunCommand({"essai"});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.err, "usage: pluvane-cli\n  essai WORD    repeats a word\n");
}

TEST(Cli, PlotCompilesPageOneAndCopiesTheControlFile) {
  TempFolder folder;
  const std::string script = folder.File("s.Mst");
  fs::copy_file(std::string(PLUVANE_TESTS) + "/plot/data/scripts/s01_writer_example.Mst", script);
  const std::string ctl = folder.File("copie.ctl");
  CliRun run = RunCommand({"plot", script, "--ctl", ctl});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(ReadBytes(ctl), ReadBytes(std::string(PLUVANE_TEST_DATA) +
                                      "/../../plot/data/expected/s01_writer_example.ctl"));
  EXPECT_TRUE(fs::exists(folder.File("P1.ctl")));
}

TEST(Cli, PlotOfAMissingScriptIsRefusedWithItsMessage) {
  TempFolder folder;
  CliRun run = RunCommand({"plot", folder.File("absent.Mst")});
  EXPECT_EQ(run.status, 1);
  EXPECT_FALSE(run.err.empty());
  EXPECT_NE(run.err.find(": "), std::string::npos);
}

}  // namespace
}  // namespace pluvane
