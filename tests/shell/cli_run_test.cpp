#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <sstream>

#include "foundation/test_files.h"
#include "foundation/text.h"
#include "shell/cli.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

// An application folder of its own with stand-in engines, and a copy of the
// shipped example network beside it.
class CliRunTest : public ::testing::Test {
 protected:
  CliRunTest() {
    for (const char* item : {"pluvane.ini", "Symboles", "Curseurs"}) {
      fs::copy(fs::path(PLUVANE_DATA) / item, fs::path(app_.Path()) / item,
               fs::copy_options::recursive);
    }
    fs::copy_file(fs::path(PLUVANE_DATA) / "Exemples" / "Demo.mtf", network_);
  }
  void Engine(const std::string& name, const std::string& body) {
    const std::string path = app_.File(name);
    WriteBytes(path, "#!/bin/sh\n" + body);
    ::chmod(path.c_str(), 0755);
  }
  int Run(const std::vector<std::string>& args) {
    std::ostringstream out, err;
    const int status = RunCli(args, CoreCliCommands(), app_.Path(), out, err);
    out_ = out.str();
    err_ = err.str();
    return status;
  }
  TempFolder app_;
  TempFolder work_;
  std::string network_ = work_.File("Demo.mtf");
  std::string out_, err_;
};

TEST_F(CliRunTest, AFullRunPrintsTheLogWithBothEngines) {
  Engine("Velmar", "echo 0 > Velmar.err\necho 'Velmar : modèle construit' > Velmar.log\n");
  Engine("Sidrel", "echo 0 > Sidrel.err\necho r > Decennale_Demo.Hys\n");
  EXPECT_EQ(Run({"run", network_}), 0) << err_;
  EXPECT_NE(out_.find("Génération réussie (Velmar)\n\nVelmar : modèle construit\n"),
            std::string::npos);
  EXPECT_NE(out_.find("Exécution réussie (Sidrel).\n"), std::string::npos);
  EXPECT_NE(out_.find(work_.File("Decennale/Decennale_Demo.Hys")), std::string::npos);
  EXPECT_TRUE(fs::exists(work_.File("Decennale/Decennale_Demo.NOD")));
}

TEST_F(CliRunTest, AFailingVelmarStopsBeforeSidrelAndExitsOne) {
  Engine("Velmar", "echo 1 > Velmar.err\n");
  Engine("Sidrel", "echo 0 > Sidrel.err\n");
  EXPECT_EQ(Run({"run", network_}), 1);
  EXPECT_NE(out_.find("Erreur détectée dans Velmar, génération non réussie.\n"),
            std::string::npos);
  EXPECT_EQ(out_.find("(Sidrel)"), std::string::npos);
  EXPECT_EQ(out_.find("dans Sidrel"), std::string::npos);
}

TEST_F(CliRunTest, VelmarOnly) {
  Engine("Velmar", "echo 0 > Velmar.err\n");
  Engine("Sidrel", "echo 2 > Sidrel.err\n");
  EXPECT_EQ(Run({"run", network_, "--velmar-only"}), 0) << err_;
  EXPECT_EQ(out_.find("(Sidrel)"), std::string::npos);
  EXPECT_EQ(out_.find("dans Sidrel"), std::string::npos);
}

TEST_F(CliRunTest, PlaceNetteRemovesTheInputsButTheApp) {
  std::vector<std::string> ini;
  ReadTextLines(app_.File("pluvane.ini"), ini);
  for (auto& line : ini) {
    if (line.rfind("Place Nette=", 0) == 0) line = "Place Nette=oui";
  }
  WriteTextLines(app_.File("pluvane.ini"), ini);
  EXPECT_EQ(Run({"run", network_}), 0) << err_;
  EXPECT_FALSE(fs::exists(work_.File("Decennale/Decennale_Demo.NOD")));
  EXPECT_TRUE(fs::exists(work_.File("Decennale/Decennale_Demo.APP")));
  EXPECT_TRUE(fs::exists(work_.File("Decennale/Decennale_Demo.msg")));
}

TEST_F(CliRunTest, RecapWritesTheReportBesideTheModel) {
  EXPECT_EQ(Run({"recap", network_}), 0) << err_;
  EXPECT_EQ(out_, work_.File("Decennale/Decennale_Demo.Txt") + "\n");
  std::vector<std::string> lines;
  ASSERT_TRUE(ReadTextLines(work_.File("Decennale/Decennale_Demo.Txt"), lines));
  ASSERT_GT(lines.size(), 10u);
  EXPECT_EQ(lines[1], "Réseau : Demo");
  EXPECT_EQ(lines[2], "Scénario : Decennale");
  EXPECT_NE(std::find(lines.begin(), lines.end(), "COLLECTEURS CIRCULAIRES : 23"), lines.end());
  EXPECT_EQ(Run({"recap"}), 2);
}

}  // namespace
}  // namespace pluvane
