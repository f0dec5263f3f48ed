#include "shell/installation.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

// A home of its own for the user's configuration, given back afterwards.
class InstallationTest : public ::testing::Test {
 protected:
  InstallationTest() {
    if (const char* xdg = std::getenv("XDG_CONFIG_HOME")) saved_xdg_ = xdg;
    if (const char* home = std::getenv("HOME")) saved_home_ = home;
    ::unsetenv("XDG_CONFIG_HOME");
    ::setenv("HOME", home_.Path().c_str(), 1);
  }
  ~InstallationTest() override {
    if (saved_xdg_.empty()) ::unsetenv("XDG_CONFIG_HOME");
    else ::setenv("XDG_CONFIG_HOME", saved_xdg_.c_str(), 1);
    ::setenv("HOME", saved_home_.c_str(), 1);
  }
  // An installed tree: prefix/bin and prefix/share/pluvane with the shipped data.
  std::string Install() {
    fs::create_directories(prefix_.File("bin"));
    fs::create_directories(prefix_.File("share"));
    fs::copy(PLUVANE_DATA, prefix_.File("share/pluvane"), fs::copy_options::recursive);
    return prefix_.File("bin");
  }

  TempFolder home_;
  TempFolder prefix_;
  std::string saved_xdg_, saved_home_;
};

TEST_F(InstallationTest, APortableFolderHoldsItsDataAndItsConfiguration) {
  fs::copy(PLUVANE_DATA, prefix_.Path(), fs::copy_options::recursive);
  const Installation found = LocateInstallation(prefix_.Path(), true);
  EXPECT_EQ(found.data_dir, prefix_.Path());
  EXPECT_EQ(found.ini_file, prefix_.File("pluvane.ini"));
  EXPECT_FALSE(fs::exists(home_.File(".config")));
}

TEST_F(InstallationTest, AFolderWithoutConfigurationNamesTheOneThatIsMissing) {
  const Installation found = LocateInstallation(prefix_.Path(), true);
  EXPECT_EQ(found.data_dir, prefix_.Path());
  EXPECT_EQ(found.ini_file, prefix_.File("pluvane.ini"));
}

TEST_F(InstallationTest, AnInstalledProgramSeedsTheUsersCopyAtFirstStart) {
  const std::string bin = Install();
  const Installation found = LocateInstallation(bin, true);
  EXPECT_EQ(found.data_dir, prefix_.File("share/pluvane"));
  EXPECT_EQ(found.ini_file, home_.File(".config/pluvane/pluvane.ini"));
  EXPECT_EQ(ReadBytes(found.ini_file), ReadBytes(prefix_.File("share/pluvane/pluvane.ini")));
  // Later starts keep the user's copy as the user left it.
  WriteBytes(found.ini_file, "[Paramètres]\r\n");
  EXPECT_EQ(LocateInstallation(bin, true).ini_file, found.ini_file);
  EXPECT_EQ(ReadBytes(found.ini_file), "[Paramètres]\r\n");
}

TEST_F(InstallationTest, XdgConfigHomeIsWhereTheUsersCopyGoes) {
  const std::string bin = Install();
  ::setenv("XDG_CONFIG_HOME", home_.File("conf").c_str(), 1);
  EXPECT_EQ(LocateInstallation(bin, true).ini_file, home_.File("conf/pluvane/pluvane.ini"));
  // A relative value does not count, as the XDG base directory rules say.
  ::setenv("XDG_CONFIG_HOME", "conf", 1);
  EXPECT_EQ(UserConfigHome(), home_.File(".config"));
}

TEST_F(InstallationTest, TheCommandLineReadsTheShippedFileAndMakesNoCopy) {
  const std::string bin = Install();
  const Installation found = LocateInstallation(bin, false);
  EXPECT_EQ(found.ini_file, prefix_.File("share/pluvane/pluvane.ini"));
  EXPECT_FALSE(fs::exists(home_.File(".config")));
  // Once the desktop program has made the user's copy, the command line reads it.
  LocateInstallation(bin, true);
  EXPECT_EQ(LocateInstallation(bin, false).ini_file, home_.File(".config/pluvane/pluvane.ini"));
}

TEST_F(InstallationTest, WithoutAHomeTheShippedFileIsRead) {
  const std::string bin = Install();
  ::unsetenv("HOME");
  EXPECT_EQ(UserConfigHome(), "");
  EXPECT_EQ(LocateInstallation(bin, true).ini_file, prefix_.File("share/pluvane/pluvane.ini"));
}

}  // namespace
}  // namespace pluvane
