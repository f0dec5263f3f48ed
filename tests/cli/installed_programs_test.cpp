// The programs installed as `make install` installs them, into a folder the
// programs cannot write, and started from there.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "cli/program_folder.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class InstalledProgramsTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    root_ = new TempFolder;
    const std::string command = "DESTDIR='" + root_->Path() + "' '" + PLUVANE_CMAKE +
                                "' --install '" + PLUVANE_BUILD_DIR +
                                "' --prefix /usr/local > /dev/null 2>&1";
    install_status_ = std::system(command.c_str());
    std::system(("chmod -R a-w '" + root_->Path() + "/usr'").c_str());
  }
  static void TearDownTestSuite() {
    std::system(("chmod -R u+w '" + root_->Path() + "'").c_str());
    delete root_;
  }
  static std::string Installed(const std::string& path) { return root_->Path() + "/usr/local/" + path; }

  ProgramRun Start(const std::string& arguments) const {
    return RunCommandLine("cd '" + home_.Path() + "' && env -u XDG_CONFIG_HOME HOME='" +
                          home_.Path() + "' '" + Installed("bin/pluvane-cli") + "' " + arguments +
                          " 2>&1");
  }

  static TempFolder* root_;
  static int install_status_;
  TempFolder home_;
};

TempFolder* InstalledProgramsTest::root_ = nullptr;
int InstalledProgramsTest::install_status_ = -1;

TEST_F(InstalledProgramsTest, EverythingStandsInItsStandardPlace) {
  ASSERT_EQ(install_status_, 0);
  for (const char* path :
       {"bin/pluvane", "bin/pluvane-cli", "bin/vistrel", "share/pluvane/pluvane.ini",
        "share/pluvane/Symboles/NOD.svg", "share/pluvane/Curseurs/111.svg",
        "share/pluvane/Icones/MDDELETE.svg",
        "share/pluvane/Exemples/Demo.mtf", "share/applications/pluvane.desktop",
        "share/icons/hicolor/scalable/apps/pluvane.svg", "share/mime/packages/pluvane.xml"}) {
    EXPECT_TRUE(fs::exists(Installed(path))) << path;
  }
  const std::string desktop = ReadBytes(Installed("share/applications/pluvane.desktop"));
  EXPECT_NE(desktop.find("\nExec=pluvane %f\n"), std::string::npos);
  EXPECT_NE(desktop.find("\nMimeType=application/x-pluvane-network;\n"), std::string::npos);
  const std::string mime = ReadBytes(Installed("share/mime/packages/pluvane.xml"));
  EXPECT_NE(mime.find("<glob pattern=\"*.mtf\"/>"), std::string::npos);
}

TEST_F(InstalledProgramsTest, TheInstalledCommandLineReadsTheInstalledExample) {
  ASSERT_EQ(install_status_, 0);
  const ProgramRun run = Start("info '" + Installed("share/pluvane/Exemples/Demo.mtf") + "'");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_NE(run.output.find("99\t30\tNoeud\n"), std::string::npos) << run.output;
  EXPECT_NE(run.output.find("Scénario courant : Decennale\nCalé : oui\n"), std::string::npos)
      << run.output;
  // The command line makes no configuration of its own.
  EXPECT_FALSE(fs::exists(home_.File(".config")));
}

TEST_F(InstalledProgramsTest, TheInstalledCommandLineDrawsWithTheInstalledSymbols) {
  ASSERT_EQ(install_status_, 0);
  const ProgramRun run =
      Start("render '" + Installed("share/pluvane/Exemples/Demo.mtf") + "' -o demo.png --width 300");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_EQ(run.output, home_.File("demo.png") + "\n");
  EXPECT_EQ(ReadBytes(home_.File("demo.png")).substr(1, 3), "PNG");
}

}  // namespace
}  // namespace pluvane
