// The whole model of the shipped example network, for each kind of rain,
// against the files written by hand under expected/demo/ (write_expected.py
// there types them from the record layouts and the values of Demo.mtf). The
// network files are the same whatever the rain; each kind has its .PLU.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "drawing/surface_helpers.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "foundation/text.h"
#include "network/hidden_record.h"
#include "network/persistence.h"
#include "network/recent_files.h"
#include "shell/app_state.h"
#include "simulation/data_recap.h"
#include "simulation/li2_description.h"
#include "simulation/model_command.h"
#include "simulation/model_generation.h"
#include "simulation/model_names.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

const std::string kModel = "Decennale_Demo";
// Elements kept in the link files: 9 complexes of three, the BVS, 32
// collectors, the connection and 7 elements on nodes.
constexpr std::size_t kElements = 67;

std::string Expected(const std::string& name) {
  return ReadBytes(std::string(PLUVANE_TESTS) + "/simulation/expected/demo/" + name);
}

class DemoModelTest : public ::testing::Test {
 protected:
  DemoModelTest() {
    fs::copy_file(fs::path(PLUVANE_DATA) / "Exemples" / "Demo.mtf", network_);
    state_.LogicWidth = 50000;
    state_.LogicHeight = 50000;
    state_.SymbolSize = 10;
    NetworkSession session{surface_, state_, ui_, recent_};
    opened_ = OpenNetwork(session, true, network_);
  }

  // Makes `id` of kind `i_name` the rain of the current scenario, as the
  // scenario's form writes it.
  void ChooseRain(const std::string& id, int i_name, const std::string& mode = "") {
    const int scenario = FindObject2(surface_, "iName", 111, "Id", "Decennale");
    ASSERT_GT(scenario, 10);
    surface_.SetCurrentObject(scenario);
    surface_.SetObjTag("IdPluie", id);
    surface_.SetObjTag("iPluie", std::to_string(i_name));
    surface_.SetObjTag("iModePluie", mode);
  }
  // A rain record that the example does not hold.
  void AddRain(const std::vector<std::pair<std::string, std::string>>& tags) {
    surface_.SetCurrentObject(AddHiddenRecord(surface_, state_));
    for (const auto& [name, value] : tags) surface_.SetObjTag(name, value);
  }
  // An external rain of kind 127 or 128 read from pluies_externes.txt, which
  // the test puts in its temporary folder, made the scenario's rain.
  void ChooseExternalRain(int i_name, const std::string& id, const std::string& comment) {
    const std::string path = folder_.File("pluies_externes.txt");
    WriteBytes(path, Expected("pluies_externes.txt"));
    AddRain({{"iName", std::to_string(i_name)},
             {"iGroup", "-1"},
             {"Id", id},
             {"UsId", comment},
             {"FileSpec", path}});
    ChooseRain(id, i_name);
  }

  void Generate() {
    ASSERT_TRUE(opened_);
    ModelContext context{surface_, state_, ui_};
    ASSERT_EQ(RunModelGeneration(context, "Decennale"), kModelStepCount);
    EXPECT_TRUE(ui_.Empty()) << ui_.Last().text;
    EXPECT_EQ(state_.ModelFolder, folder_.File("Decennale"));
  }
  std::string Written(const std::string& extension) const {
    return ReadBytes(folder_.File("Decennale/" + kModel + extension));
  }

  // Every file but the rain's, and the .PLU of the kind.
  void ExpectModel(const std::string& plu) {
    for (const char* extension : {".NOD", ".GEN", ".BRN", ".SEC", ".APP", ".LI1", ".Scn"}) {
      EXPECT_EQ(Written(extension), Expected(kModel + extension)) << extension;
    }
    EXPECT_EQ(ReadBytes(folder_.File("Decennale/scenario.nom")), Expected("scenario.nom"));
    ExpectLinkRecords();
    ExpectLog();
    EXPECT_EQ(Written(".PLU"), Expected(plu));
  }
  void ExpectLinkRecords() {
    const std::string expected = Li2FromDescription(Expected(kModel + ".LI2.txt"));
    ASSERT_EQ(expected.size(), kElements * 812);
    const std::string written = Written(".LI2");
    ASSERT_EQ(written.size(), expected.size());
    for (std::size_t r = 0; r < kElements; ++r) {
      EXPECT_EQ(written.substr(r * 812, 812), expected.substr(r * 812, 812)) << "record " << r + 1;
    }
  }
  // The log of the generation names the files in the model folder.
  void ExpectLog() {
    std::string expected = Expected(kModel + ".msg");
    const std::string marker = "@FOLDER@";
    for (std::size_t at; (at = expected.find(marker)) != std::string::npos;) {
      expected.replace(at, marker.size(), state_.ModelFolder);
    }
    EXPECT_EQ(Written(".msg"), expected);
  }

  TempFolder folder_;
  std::string network_ = folder_.File("Demo.mtf");
  Surface surface_;
  AppState state_;
  ScriptedUi ui_;
  RecentFiles recent_;
  bool opened_ = false;
};

TEST_F(DemoModelTest, CaquotTheScenarioOfTheExample) {
  Generate();
  ExpectModel("104_caquot.PLU");
}

TEST_F(DemoModelTest, GaugeRecords) {
  ChooseRain("Orage1", 103, "1. Thiessen");
  Generate();
  ExpectModel("103_gauges.PLU");
}

TEST_F(DemoModelTest, SimpleTriangle) {
  ChooseRain("PST_1", 105);
  Generate();
  ExpectModel("105_simple_triangle.PLU");
}

TEST_F(DemoModelTest, DoubleTriangle) {
  ChooseRain("PDT_1", 106);
  Generate();
  ExpectModel("106_double_triangle.PLU");
}

TEST_F(DemoModelTest, SyntheticHyetogram) {
  ChooseRain("PIT_1", 107);
  Generate();
  ExpectModel("107_synthetic.PLU");
}

TEST_F(DemoModelTest, Radar) {
  AddRain({{"iGroup", "-1"},
           {"iName", "108"},
           {"Id", "Radar_1"},
           {"UsId", "Orage du 12 mai"},
           {"CrbFile", " /data/radar/Orage du 12 mai.Crb "},
           {"PrfFile", "/data/radar/Orage du 12 mai.Prf"}});
  ChooseRain("Radar_1", 108);
  Generate();
  ExpectModel("108_radar.PLU");
}

TEST_F(DemoModelTest, ExternalGaugeFile) {
  ChooseExternalRain(127, "Orage2", "Orage du 3 août");
  Generate();
  ExpectModel("127_external_gauges.PLU");
}

TEST_F(DemoModelTest, ExternalHyetogramFile) {
  ChooseExternalRain(128, "Hyeto2", "Hyétogramme externe");
  Generate();
  ExpectModel("128_external_hyetograph.PLU");
}

TEST_F(DemoModelTest, CatchmentsTakeTheirNumbersInTheNodeFile) {
  Generate();
  for (int i = 1; i <= 9; ++i) {
    const int bv = FindObject(surface_, "Id", "Bv_" + std::to_string(i));
    ASSERT_GT(bv, 10);
    surface_.SetCurrentObject(bv);
    EXPECT_EQ(surface_.ObjTag("sNodAm"), std::to_string(30 + i));
  }
}

TEST_F(DemoModelTest, DataRecapLineByLine) {
  ASSERT_TRUE(opened_);
  SetModelNames(state_);
  ASSERT_TRUE(MakeModelFolder(state_));
  const std::string path = WriteDataRecap(surface_, state_, ui_);
  ASSERT_EQ(path, folder_.File("Decennale/" + kModel + ".Txt"));
  EXPECT_TRUE(ui_.Empty());
  const std::string expected_path =
      std::string(PLUVANE_TESTS) + "/simulation/expected/demo/" + kModel + ".Txt";
  std::vector<std::string> written, expected;
  ASSERT_TRUE(ReadTextLines(path, written));
  ASSERT_TRUE(ReadTextLines(expected_path, expected));
  for (std::size_t i = 0; i < std::min(written.size(), expected.size()); ++i) {
    EXPECT_EQ(written[i], expected[i]) << "line " << i + 1;
  }
  EXPECT_EQ(written.size(), expected.size());
  EXPECT_EQ(ReadBytes(path), ReadBytes(expected_path));
}

}  // namespace
}  // namespace pluvane
