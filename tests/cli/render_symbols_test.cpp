// pluvane-cli render draws the symbols of the folder that the configuration
// names, as the desktop program does.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/program_folder.h"
#include "drawing/surface.h"
#include "foundation/ini_profile.h"
#include "foundation/settings_keys.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

// A colour that no shipped symbol uses.
constexpr const char* kMarkColour = "#123456";

class RenderSymbols : public ::testing::Test {
 protected:
  RenderSymbols() {
    Surface surface;
    surface.AddObject(12, 1000, 1000, 1400, 1400);
    surface.SetObjectPicture("NOD.wmf");
    surface.AddObject(12, 5000, 3000, 5400, 3400);
    surface.SetObjectPicture("NOD.wmf");
    EXPECT_TRUE(surface.SaveFile(programs_.Work("reseau.mtf"), kNativeFormat));
    // A folder of symbols of its own, whose node is drawn in the mark colour.
    fs::create_directories(programs_.App("MesSymboles"));
    WriteBytes(programs_.App("MesSymboles/NOD.svg"),
               std::string("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" height=\"100\" "
                           "viewBox=\"0 0 100 100\"><rect x=\"0\" y=\"0\" width=\"100\" "
                           "height=\"100\" fill=\"") +
                   kMarkColour + "\"/></svg>");
  }

  // The SVG that `render` writes of the network.
  std::string Render() {
    const std::string svg = programs_.Work("reseau.svg");
    fs::remove(svg);
    const ProgramRun run = programs_.Start("pluvane-cli", "render reseau.mtf -o reseau.svg");
    EXPECT_EQ(run.status, 0) << run.output;
    return ReadBytes(svg);
  }

  ProgramFolder programs_;
};

TEST_F(RenderSymbols, TheConfiguredFolderIsTheOneDrawn) {
  const std::string shipped = Render();
  EXPECT_NE(shipped.find("<svg"), std::string::npos);
  EXPECT_EQ(shipped.find(kMarkColour), std::string::npos);

  ASSERT_TRUE(IniWrite(kSectionParameters, kKeySymbolFolder, "MesSymboles",
                       programs_.App(kIniFileName)));
  const std::string own = Render();
  EXPECT_NE(own.find(kMarkColour), std::string::npos);
}

}  // namespace
}  // namespace pluvane
