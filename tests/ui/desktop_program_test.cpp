// The desktop program started as `make run` starts it: from its folder, with
// the example named by a relative path. Offscreen always; in a real X display
// too when Xvfb is installed.
#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "cli/program_folder.h"
#include "foundation/ini_profile.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

// A program started in the background, ended with the test.
class Background {
 public:
  Background(const std::string& folder, const std::string& command) {
    pid_file_ = folder + "/.pid";
    const std::string line = "cd '" + folder + "' && (" + command + " > .log 2>&1 & echo $! > .pid)";
    started_ = std::system(line.c_str()) == 0;
  }
  ~Background() {
    std::ifstream in(pid_file_);
    long pid = 0;
    if (in >> pid && pid > 0) ::kill(static_cast<pid_t>(pid), SIGKILL);
  }
  bool started() const { return started_; }

 private:
  std::string pid_file_;
  bool started_ = false;
};

// Waits up to 30 s for `done`, looking every 100 ms.
template <typename Condition>
bool WaitFor(Condition done) {
  for (int i = 0; i < 300; ++i) {
    if (done()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
  }
  return false;
}

std::string CommandOutput(const std::string& command) { return RunCommandLine(command).output; }

// The program's folder is the build's as `make run` uses it, copied.
class DesktopProgramTest : public ::testing::Test {
 protected:
  // `unset` and `set` are the options and the assignments of env.
  std::string Start(const std::string& unset, const std::string& set) {
    return "env -u XDG_CONFIG_HOME " + unset + " HOME='" + home_.Path() + "' " + set +
           " ./pluvane Exemples/Demo.mtf";
  }
  // The network opened enters the recent files of the configuration.
  bool Opened() const {
    return IniRead("Fichiers recents", "1", 255, programs_.App("pluvane.ini")) ==
           programs_.App("Exemples/Demo.mtf");
  }
  ProgramFolder programs_;
  TempFolder home_;
};

TEST_F(DesktopProgramTest, OffscreenTheExampleOpensFromARelativePath) {
  Background program(programs_.App(""), Start("", "QT_QPA_PLATFORM=offscreen"));
  ASSERT_TRUE(program.started());
  EXPECT_TRUE(WaitFor([&] { return Opened(); })) << ReadBytes(programs_.App(".log"));
}

TEST_F(DesktopProgramTest, InARealDisplayTheExampleOpensWithNoErrorBox) {
  if (std::system("command -v Xvfb > /dev/null 2>&1 && command -v xwininfo > /dev/null 2>&1") != 0) {
    GTEST_SKIP() << "Xvfb et xwininfo ne sont pas installés (paquets xvfb et x11-utils) : "
                    "le programme n'est essayé qu'hors écran.";
  }
  const std::string display = ":" + std::to_string(90 + ::getpid() % 100);
  Background server(home_.Path(), "Xvfb " + display + " -screen 0 1280x1024x24 -nolisten tcp");
  ASSERT_TRUE(server.started());
  const std::string tree = "xwininfo -root -tree -display " + display + " 2>/dev/null";
  ASSERT_TRUE(WaitFor([&] { return CommandOutput(tree).find("Root window") != std::string::npos; }));

  Background program(programs_.App(""),
                     Start("-u QT_QPA_PLATFORM -u WAYLAND_DISPLAY", "DISPLAY=" + display));
  ASSERT_TRUE(program.started());
  // The main window takes the network's path as its title once it is open.
  const std::string title = "\"" + programs_.App("Exemples/Demo.mtf") + "\"";
  std::string windows;
  EXPECT_TRUE(WaitFor([&] {
    windows = CommandOutput(tree);
    return windows.find(title) != std::string::npos;
  })) << windows << ReadBytes(programs_.App(".log"));
  EXPECT_TRUE(Opened());
  // A message box would stand as a window titled "Pluvane".
  EXPECT_EQ(windows.find("\"Pluvane\""), std::string::npos) << windows;
}

}  // namespace
}  // namespace pluvane
