// A network built from text tables generates the same engine model, byte for
// byte, as the same network placed element by element.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "exchange/kalder_import.h"
#include "network/georeferencing.h"
#include "simulation/model_fixture.h"
#include "simulation/model_generation.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class ImportedModel : public ModelTest {
 protected:
  ImportedModel() { ScaleTwo(); }

  // X = 2 Xlog, Y = 20000 - 2 Ylog: a calibrated map, so that the node import
  // keeps it.
  void ScaleTwo() {
    Calibration& c = state.calibration;
    c.logic_x = {0, 0, 0, 10000};
    c.logic_y = {0, 0, 10000, 10000};
    c.user_x = {0, 0, 0, 20000};
    c.user_y = {0, 20000, 0, 0};
    ASSERT_TRUE(SolveCalibration(c));
  }

  // The records that are not imported: a section and the scenario.
  void Library() {
    Record({{"iName", "101"},
            {"Id", "OVO"},
            {"NbPt", "2"},
            {"X1", "0"},
            {"X2", "1"},
            {"Y1", "0"},
            {"Y2", "1.2"}});
    Scenario("Scn-1");
  }

  // Every file of the model, by extension.
  std::map<std::string, std::string> Model() {
    std::map<std::string, std::string> files;
    ModelContext context = Context();
    EXPECT_EQ(GenerateModel(context, "Scn-1_reseau"), kModelStepCount);
    for (const auto& entry : fs::directory_iterator(state.ModelFolder)) {
      if (entry.path().extension() == ".msg") continue;
      files[entry.path().filename().string()] = ReadBytes(entry.path().string());
    }
    fs::remove_all(state.ModelFolder);
    fs::create_directories(state.ModelFolder);
    return files;
  }

  void Clear() {
    surface.ClearDrawing();
    state.ElementCounters = {};
    state.NodeCount = 1;
  }

  std::string Write(const std::string& name, const std::string& text) {
    const std::string path = folder.File(name);
    WriteBytes(path, text);
    return path;
  }
};

TEST_F(ImportedModel, TablesGiveTheModelOfThePlacedNetwork) {
  // Placed through the placement routines.
  const int r1 = Node(1000, 1000), r2 = Node(3000, 1000), r3 = Node(3000, 3000);
  Set(r1, {{"libell", "R1"}, {"Zus", "12.5"}});
  Set(r2, {{"libell", "R2"}, {"Zus", "11"}});
  Set(r3, {{"libell", "R3"}, {"Zus", "10"}});
  Set(Symbol("X_BV", 1200, 1500),
      {{"Id", "BV_1"}, {"libell", "B1"}, {"S", "2.5"}, {"L", "120"}, {"m", "0.01"}, {"ci", "0.4"}});
  const auto link = [this](const char* key, int from, int to, const TagList& tags) {
    const int n = Link(key, from, to);
    Set(n, tags);
  };
  link("X_CAC", r1, r2,
       {{"Id", "CI_1"},
        {"libell", "C1"},
        {"ZRam", "10.5"},
        {"ZRav", "10"},
        {"Dn", "0.8"},
        {"L", "4000"},
        {"K", "70"},
        {"HD", "1.5"},
        {"SR", "20"}});
  link("X_CAF", r2, r3,
       {{"Id", "PF_1"},
        {"libell", "F1"},
        {"ZRam", "9.8"},
        {"ZRav", "9.1"},
        {"IdSect", "OVO"},
        {"L", "4000"},
        {"K", "65"},
        {"HD", "2"},
        {"SR", "0"}});
  link("X_CAO", r3, r1,
       {{"Id", "PO_1"},
        {"libell", "O1"},
        {"ZRam", "9"},
        {"ZRav", "8.5"},
        {"IdSect", "OVO"},
        {"L", "5656.85"},
        {"Kmin", "25"},
        {"Largeur", "12.5"},
        {"Kmaj", "15"}});
  Library();
  const std::map<std::string, std::string> placed = Model();
  ASSERT_GE(placed.size(), 8u);

  // The same from tables.
  Clear();
  ImportTarget target{surface, state, ui};
  const std::string nodes = Write("noeuds.txt",
                                  "R1 2000 18000 12.5\nR2 6000 18000 11\n"
                                  "r3 6000 14000 10\n");
  ASSERT_EQ(ImportNodes(target, nodes, Write("noeuds.Fld", " 1 \n 2 \n 3 \n 4 \n"), " "), 3);
  const std::string bv = Write("bv.txt", "B1 2400 17000 2.5 120 0.01 0.4\n");
  ASSERT_EQ(ImportBV(target, bv, Write("bv.Fld", " 1 \n 2 \n 3 \n 4 \n 5 \n 6 \n 7 \n"), " "), 1);
  const std::string links = Write("coll.txt",
                                  "C1 R1 R2 10.5 10 0.8 4000 CI 70 1.5 20\n"
                                  "F1 R2 R3 9.8 9.1 OVO 4000 PF 65 2 0\n"
                                  "O1 R3 R1 9 8.5 OVO 5656.85 PO 25 12.5 15\n");
  const std::string fld =
      Write("coll.Fld", " 1 \n 2 \n 3 \n 4 \n 5 \n 6 \n 7 \n 8 \n 9 \n 10 \n 11 \n");
  for (const char* type : {"CI", "PF", "PO"}) {
    ASSERT_EQ(ImportLinks(target, type, links, fld, " "), 1) << type;
  }
  Library();
  const std::map<std::string, std::string> imported = Model();

  ASSERT_EQ(imported.size(), placed.size());
  for (const auto& [name, bytes] : placed) {
    ASSERT_TRUE(imported.count(name)) << name;
    EXPECT_EQ(imported.at(name), bytes) << name;
  }
  // The model is not empty: the three collectors are in the topology.
  EXPECT_NE(placed.at("Scn-1_reseau.LI1").find("C1"), std::string::npos);
}

}  // namespace
}  // namespace pluvane
