// The layers of the program hold: every `#include "folder/..."` of src/ names
// a layer that the including one may use. The order, once:
//   foundation < drawing < network < {plot, rain, simulation, results,
//   exchange, editors} < gis < shell < ui
// and of the middle row, plot uses only drawing, rain and editors use plot,
// rain uses editors, simulation uses rain, results uses plot and simulation. gis
// (the GIS layers through GDAL) uses exchange and results. The build declares the same uses, one library per layer.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace pluvane {
namespace {

namespace fs = std::filesystem;

const std::map<std::string, std::set<std::string>>& Allowed() {
  static const std::set<std::string> kBase = {"foundation", "drawing", "network"};
  static const std::map<std::string, std::set<std::string>> kAllowed = {
      {"foundation", {}},
      {"drawing", {"foundation"}},
      {"network", {"foundation", "drawing"}},
      {"rain", {"foundation", "drawing", "network", "plot", "editors"}},
      {"simulation", {"foundation", "drawing", "network", "rain", "plot"}},
      {"plot", {"foundation", "drawing"}},
      {"results", {"foundation", "drawing", "network", "rain", "simulation", "plot"}},
      {"exchange", kBase},
      {"editors", {"foundation", "drawing", "network", "plot"}},
      {"gis",
       {"foundation", "drawing", "network", "rain", "simulation", "plot", "results", "exchange"}},
      {"shell",
       {"foundation", "drawing", "network", "rain", "simulation", "plot", "results", "exchange",
        "gis", "editors"}},
      {"ui",
       {"foundation", "drawing", "network", "rain", "simulation", "plot", "results", "exchange",
        "gis", "editors", "shell"}},
  };
  return kAllowed;
}

// One include that the order forbids: the file and the line.
struct Forbidden {
  std::string file;
  std::string line;
};

// The includes of `text`, a file of layer `layer`, that name a layer it may
// not use (its own folder is always allowed; an unknown folder never).
std::vector<Forbidden> Check(const std::string& layer, const std::string& file,
                             const std::string& text) {
  static const std::regex kInclude(R"(^\s*#\s*include\s*"([a-z_]+)/[^"]+")");
  std::vector<Forbidden> found;
  const auto allowed = Allowed().find(layer);
  std::istringstream lines(text);
  std::string line;
  while (std::getline(lines, line)) {
    std::smatch match;
    if (!std::regex_search(line, match, kInclude)) continue;
    const std::string used = match[1];
    if (used == layer) continue;
    if (allowed == Allowed().end() || allowed->second.count(used) == 0) {
      found.push_back({file, line});
    }
  }
  return found;
}

std::vector<Forbidden> CheckTree(const fs::path& src) {
  std::vector<Forbidden> found;
  for (const auto& entry : fs::recursive_directory_iterator(src)) {
    if (!entry.is_regular_file()) continue;
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    const std::string layer = fs::relative(entry.path(), src).begin()->string();
    std::ifstream in(entry.path());
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    for (Forbidden& f : Check(layer, fs::relative(entry.path(), src).string(), text)) {
      found.push_back(std::move(f));
    }
  }
  return found;
}

TEST(Layers, NoFileOfTheSourcesIncludesALayerAboveIts) {
  const fs::path src = fs::path(PLUVANE_TESTS).parent_path() / "src";
  ASSERT_TRUE(fs::is_directory(src / "drawing"));
  std::string report;
  for (const Forbidden& f : CheckTree(src)) report += f.file + ": " + f.line + "\n";
  EXPECT_EQ(report, "");
}

// GDAL stays behind the gis folder's sources: no header of the program, and
// no source of another folder, includes one of its headers.
TEST(Layers, OnlyTheGisSourcesIncludeGdal) {
  const fs::path src = fs::path(PLUVANE_TESTS).parent_path() / "src";
  static const std::regex kGdal(
      R"(^\s*#\s*include\s*<(gdal|ogr|cpl_|ogrsf_frmts)[^>]*>)");
  std::string report;
  int gis_sources = 0;
  for (const auto& entry : fs::recursive_directory_iterator(src)) {
    if (!entry.is_regular_file()) continue;
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    const std::string layer = fs::relative(entry.path(), src).begin()->string();
    std::ifstream in(entry.path());
    std::string line;
    bool includes = false;
    while (std::getline(in, line)) includes = includes || std::regex_search(line, kGdal);
    if (!includes) continue;
    if (layer == "gis" && extension == ".cpp") {
      ++gis_sources;
    } else {
      report += fs::relative(entry.path(), src).string() + "\n";
    }
  }
  EXPECT_EQ(report, "");
  EXPECT_GT(gis_sources, 0);
}

TEST(Layers, AnUpwardIncludeIsFound) {
  const auto found = Check("network", "network/persistence.cpp",
                           "#include \"network/persistence.h\"\n#include <string>\n"
                           "#include \"drawing/surface.h\"\n#include \"shell/app_state.h\"\n");
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].file, "network/persistence.cpp");
  EXPECT_EQ(found[0].line, "#include \"shell/app_state.h\"");
  EXPECT_EQ(Check("drawing", "drawing/surface.cpp", "#include \"network/catalogue.h\"\n").size(),
            1u);
  EXPECT_EQ(Check("plot", "plot/page.cpp", "#include \"simulation/model_names.h\"\n").size(), 1u);
  EXPECT_TRUE(Check("results", "results/x.cpp", "#include \"plot/curve_view.h\"\n").empty());
  // A folder the order does not know is no layer to include.
  EXPECT_EQ(Check("network", "network/x.cpp", "#include \"tools/network_builder.h\"\n").size(),
            1u);
}

}  // namespace
}  // namespace pluvane
