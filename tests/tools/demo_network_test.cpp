#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "foundation/text.h"
#include "network/calibration_points.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "network/persistence.h"
#include "network/recent_files.h"
#include "shell/app_state.h"
#include "tools/network_builder.h"
#include "tools/network_view.h"

namespace pluvane {
namespace {

const std::string kShipped = std::string(PLUVANE_DATA) + "/Exemples/Demo.mtf";
const std::string kSymbols = std::string(PLUVANE_DATA) + "/Symboles";

// The shipped example as the file holds it.
class DemoNetworkTest : public ::testing::Test {
 protected:
  DemoNetworkTest() : loaded_(surface_.LoadFile(kShipped, 0)), view_(surface_) {}

  const ObjectView& Only(int i_name) const {
    static const ObjectView none;
    const auto list = view_.OfKind(i_name);
    EXPECT_EQ(list.size(), 1u) << "iName " << i_name;
    return list.empty() ? none : *view_.ById(list.front().Tag("Id"));
  }
  // The link of that Id leaves the node of that Id.
  void ExpectLeaves(const std::string& link_id, const std::string& node_id) const {
    const ObjectView* link = view_.ById(link_id);
    ASSERT_NE(link, nullptr) << link_id;
    EXPECT_EQ(link->kind, kKindLink);
    EXPECT_EQ(link->Tag("sNodAm"), node_id) << link_id;
  }

  Surface surface_;
  bool loaded_;
  NetworkView view_;
};

TEST(DemoNetworkFile, TheShippedFileIsWhatTheGeneratorMakesNow) {
  TempFolder folder;
  ScriptedUi ui;
  Surface surface;
  AppState state;
  NetworkBuilder builder(surface, state, ui, kSymbols);
  ASSERT_TRUE(BuildDemoNetwork(builder));
  const std::string made = folder.File("Demo.mtf");
  ASSERT_TRUE(builder.Save(made));
  EXPECT_TRUE(ui.Empty());
  const std::string shipped = ReadBytes(kShipped);
  ASSERT_FALSE(shipped.empty());
  // On a difference, run make_examples data/Exemples/Demo.mtf and review the change.
  EXPECT_TRUE(ReadBytes(made) == shipped);
}

TEST_F(DemoNetworkTest, HoldsEveryKindOfTheCatalogueInItsCounts) {
  ASSERT_TRUE(loaded_);
  const std::map<int, int> expected = {{1, 9},   {2, 9},   {3, 9},   {4, 1},   {5, 23},  {6, 4},
                                       {7, 4},   {8, 1},   {9, 1},   {10, 1},  {11, 1},  {12, 1},
                                       {13, 1},  {14, 1},  {16, 1},  {21, 1},  {99, 30}, {100, 1},
                                       {101, 2}, {102, 3}, {103, 1}, {104, 1}, {105, 1}, {106, 1},
                                       {107, 1}, {111, 1}, {112, 1}, {150, 3}};
  EXPECT_EQ(view_.Counts(), expected);
  // Every kind the user places, but the calibration symbol and the radius of action.
  for (const int i_name : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 16, 21, 99}) {
    EXPECT_TRUE(expected.count(i_name)) << i_name;
  }
  // The parameter records travel with it.
  ASSERT_NE(view_.ById("ParamReseau"), nullptr);
  ASSERT_NE(view_.ById("ZoomFactors"), nullptr);
  EXPECT_EQ(view_.ById("ZoomFactors")->Tag("iGroup"), "-1");
}

TEST_F(DemoNetworkTest, EveryLinkNamesItsEnds) {
  ASSERT_TRUE(loaded_);
  int links = 0;
  for (const ObjectView& o : view_.objects) {
    if (o.kind != kKindLink) continue;
    ++links;
    const ObjectView* up = view_.ByNumber(o.ends[0]);
    const ObjectView* down = view_.ByNumber(o.ends[1]);
    ASSERT_NE(up, nullptr) << o.Tag("Id");
    ASSERT_NE(down, nullptr) << o.Tag("Id");
    EXPECT_EQ(o.Tag("iGroup"), "2") << o.Tag("Id");
    EXPECT_EQ(o.Tag("sNodAm"), up->Tag("Id")) << o.Tag("Id");
    EXPECT_EQ(o.Tag("sNodAv"), down->Tag("Id")) << o.Tag("Id");
    // Routes run from a catchment to its outlet; the others from node to node.
    if (o.IName() == kINameRout) {
      EXPECT_EQ(up->IName(), kINameBV);
      EXPECT_EQ(down->IName(), kINameHYBV);
    } else {
      EXPECT_EQ(up->IName(), kINameNode) << o.Tag("Id");
      EXPECT_EQ(down->IName(), kINameNode) << o.Tag("Id");
    }
  }
  EXPECT_EQ(links, 9 + 23 + 4 + 4 + 1);
}

TEST_F(DemoNetworkTest, EveryElementOnANodeStandsOnIt) {
  ASSERT_TRUE(loaded_);
  int on_nodes = 0;
  for (const ObjectView& o : view_.objects) {
    const std::string group = o.Tag("iGroup");
    if (group != "1" && group != "3") continue;
    if (o.IName() == kINameBV || o.IName() == kINamePLU) {
      EXPECT_EQ(o.Tag("sNodAm"), "") << o.Tag("Id");
      continue;
    }
    ++on_nodes;
    const ObjectView* node = view_.ById(o.Tag("sNodAm"));
    ASSERT_NE(node, nullptr) << o.Tag("Id");
    EXPECT_EQ(node->IName(), kINameNode);
    EXPECT_EQ(o.box.left, node->box.left) << o.Tag("Id");
    EXPECT_EQ(o.box.top, node->box.top) << o.Tag("Id");
    EXPECT_EQ(o.box.right, node->box.right) << o.Tag("Id");
    EXPECT_EQ(o.box.bottom, node->box.bottom) << o.Tag("Id");
  }
  // Outlets of catchments, the BVS, HY, DQQ, DQZ, RS, RSP, CLAV, MARK.
  EXPECT_EQ(on_nodes, 9 + 8);
}

TEST_F(DemoNetworkTest, TheReachRunsFromUpstreamToDownstream) {
  ASSERT_TRUE(loaded_);
  const ObjectView& reach = Only(kINameReach);
  EXPECT_EQ(reach.Tag("Id"), "1");
  EXPECT_EQ(reach.Tag("libell"), "Bief1");
  const int count = ValInt(reach.Tag("NbColl"));
  ASSERT_GE(count, 3);
  std::vector<const ObjectView*> chain;
  for (int rank = 1; rank <= count; ++rank) {
    const ObjectView* c = view_.ById(reach.Tag("IdColl" + std::to_string(rank)));
    ASSERT_NE(c, nullptr) << rank;
    EXPECT_EQ(reach.Tag("InameColl" + std::to_string(rank)), c->Tag("iName"));
    EXPECT_GE(c->IName(), kINameCAC);
    EXPECT_LE(c->IName(), kINameCAO);
    EXPECT_EQ(c->Tag("iBief"), "1");
    chain.push_back(c);
  }
  // Each collector's downstream node is the next one's upstream node, and the
  // head's upstream node is no collector's downstream node in the reach.
  for (std::size_t i = 0; i + 1 < chain.size(); ++i) {
    EXPECT_EQ(chain[i]->Tag("sNodAv"), chain[i + 1]->Tag("sNodAm")) << i;
  }
  for (const ObjectView* c : chain) EXPECT_NE(c->Tag("sNodAv"), chain.front()->Tag("sNodAm"));
  // The reach mixes circular and closed collectors.
  std::set<int> kinds;
  for (const ObjectView* c : chain) kinds.insert(c->IName());
  EXPECT_EQ(kinds, (std::set<int>{kINameCAC, kINameCAF}));
  // No other collector claims the reach.
  int in_reach = 0;
  for (const ObjectView& o : view_.objects) {
    if (o.Tag("iBief") == "1") ++in_reach;
  }
  EXPECT_EQ(in_reach, count);
}

TEST_F(DemoNetworkTest, CollectorsFallDownstreamWithPlausibleSizes) {
  ASSERT_TRUE(loaded_);
  std::set<std::string> sections;
  for (const ObjectView& s : view_.OfKind(kINameSection)) {
    sections.insert(s.Tag("Id"));
    EXPECT_EQ(s.Tag("iGroup"), "-1");
    EXPECT_GE(ValInt(s.Tag("NbPt")), 2);
  }
  for (int i_name : {kINameCAC, kINameCAF, kINameCAO}) {
    for (const ObjectView& c : view_.OfKind(i_name)) {
      const double up = Val(c.Tag("ZRam")), down = Val(c.Tag("ZRav")), length = Val(c.Tag("L"));
      EXPECT_GT(up, down) << c.Tag("Id");
      EXPECT_GT(length, 50) << c.Tag("Id");
      EXPECT_LT(length, 400) << c.Tag("Id");
      EXPECT_GT((up - down) / length, 0.0005) << c.Tag("Id");
      EXPECT_LT((up - down) / length, 0.02) << c.Tag("Id");
      if (i_name == kINameCAC) {
        EXPECT_GE(Val(c.Tag("Dn")), 0.3) << c.Tag("Id");
        EXPECT_LE(Val(c.Tag("Dn")), 1.0) << c.Tag("Id");
      } else {
        EXPECT_TRUE(sections.count(c.Tag("IdSect"))) << c.Tag("Id");
      }
    }
  }
  for (const ObjectView& bv : view_.OfKind(kINameBV)) {
    EXPECT_GT(Val(bv.Tag("S")), 1) << bv.Tag("Id");
    EXPECT_LT(Val(bv.Tag("S")), 20) << bv.Tag("Id");
    EXPECT_GT(Val(bv.Tag("ci")), 0.2) << bv.Tag("Id");
    EXPECT_LT(Val(bv.Tag("ci")), 0.8) << bv.Tag("Id");
  }
}

TEST_F(DemoNetworkTest, RegulatorsPointAtTheLinksLeavingTheirNode) {
  ASSERT_TRUE(loaded_);
  const ObjectView& dqq = Only(kINameDQQ);
  const ObjectView& dqz = Only(kINameDQZ);
  for (const ObjectView* divider : {&dqq, &dqz}) {
    EXPECT_EQ(divider->Tag("NbDer"), "1");
    ExpectLeaves(divider->Tag("IdAval"), divider->Tag("sNodAm"));
    ExpectLeaves(divider->Tag("IdDer_a"), divider->Tag("sNodAm"));
    EXPECT_NE(divider->Tag("IdAval"), divider->Tag("IdDer_a"));
  }
  // The law of the DQQ: rising upstream flows, derived flows within them.
  const int points = ValInt(dqq.Tag("NbPt"));
  ASSERT_GE(points, 2);
  for (int i = 1; i <= points; ++i) {
    const std::string n = std::to_string(i);
    EXPECT_LE(Val(dqq.Tag("Y" + n)) + Val(dqq.Tag("Z" + n)) + Val(dqq.Tag("T" + n)),
              Val(dqq.Tag("X" + n)));
    if (i > 1) {
      EXPECT_GT(Val(dqq.Tag("X" + n)), Val(dqq.Tag("X" + std::to_string(i - 1))));
    }
  }
  EXPECT_EQ(dqz.Tag("TypeDer_a"), "1. Seuil");
  for (int i_name : {kINameRS, kINameRSP}) {
    const ObjectView& basin = Only(i_name);
    ExpectLeaves(basin.Tag("IdAval"), basin.Tag("sNodAm"));
    ExpectLeaves(basin.Tag("IdSurv"), basin.Tag("sNodAm"));
    const int n = ValInt(basin.Tag("NbPt"));
    ASSERT_GE(n, 2);
    EXPECT_GE(Val(basin.Tag("Z0")), Val(basin.Tag("X1")));
    EXPECT_LE(Val(basin.Tag("Z0")), Val(basin.Tag("X" + std::to_string(n))));
  }
  const ObjectView& hy = Only(kINameHY);
  EXPECT_GE(ValInt(hy.Tag("NbPt")), 2);
  EXPECT_EQ(Only(kINameCLAV).Tag("Export"), "1");
  EXPECT_EQ(Only(kINameMark).Tag("Export"), "1");
}

TEST_F(DemoNetworkTest, RainsAndTheCurrentScenarioHoldTogether) {
  ASSERT_TRUE(loaded_);
  std::set<std::string> montana;
  for (const ObjectView& m : view_.OfKind(kINameMontana)) montana.insert(m.Tag("Id"));
  EXPECT_TRUE(montana.count(Only(kINameCaquot).Tag("IdMonta")));
  EXPECT_TRUE(montana.count(Only(kINameSimpleTriangle).Tag("IdMonta")));
  EXPECT_TRUE(montana.count(Only(kINameDoubleTriangle).Tag("IdTot")));
  EXPECT_TRUE(montana.count(Only(kINameDoubleTriangle).Tag("IdInt")));
  for (int kind : {kINameCaquot, kINameSimpleTriangle, kINameDoubleTriangle, kINameSynthetic}) {
    EXPECT_EQ(Only(kind).Tag("iGroup"), "-1") << kind;
  }
  const ObjectView& recorded = Only(kINameRealRain);
  EXPECT_EQ(recorded.Tag("Pt1"), "Etat pluvio ->\t1");  // one gauge, working
  EXPECT_EQ(ValInt(recorded.Tag("NbPt")), 6);

  const ObjectView& current = Only(kINameCurrentScenario);
  const ObjectView& scenario = Only(kINameScenario);
  EXPECT_EQ(current.Tag("Id"), scenario.Tag("Id"));
  EXPECT_LE(scenario.Tag("Id").size(), 16u);
  EXPECT_EQ(ValInt(scenario.Tag("iPluie")), kINameCaquot);
  EXPECT_EQ(scenario.Tag("IdPluie"), Only(kINameCaquot).Tag("Id"));
}

TEST_F(DemoNetworkTest, IsCalibratedInLambert93) {
  ASSERT_TRUE(loaded_);
  AppState state;
  ScriptedUi ui;
  ASSERT_TRUE(ReadCalibrationPoints(surface_, kINameHiddenCalage, state.calibration));
  ASSERT_TRUE(SolveCalibration(state.calibration));
  const ObjectView* parameters = view_.ById("ParamReseau");
  ASSERT_NE(parameters, nullptr);
  for (const char* tag : {"XORI", "YORI", "XMUCOS", "XMUSIN", "XLAMU", "XLACOS", "XLASIN"}) {
    EXPECT_TRUE(parameters->Has(tag)) << tag;
  }
  EXPECT_DOUBLE_EQ(Val(parameters->Tag("XLAMU")), state.calibration.XLAMU);
  EXPECT_DOUBLE_EQ(Val(parameters->Tag("XORI")), state.calibration.XORI);
  for (int i_name : {kINameNode, kINameBV, kINamePLU, kINameBVS}) {
    for (const ObjectView& o : view_.OfKind(i_name)) {
      const double x = Val(o.Tag("Xlog")), y = Val(o.Tag("Ylog"));
      const double xus = Val(o.Tag("Xus")), yus = Val(o.Tag("Yus"));
      EXPECT_NEAR(xus, LogicToUserX(state.calibration, x, y), 1e-6) << o.Tag("Id");
      EXPECT_NEAR(yus, LogicToUserY(state.calibration, x, y), 1e-6) << o.Tag("Id");
      EXPECT_GT(xus, 650000) << o.Tag("Id");
      EXPECT_LT(xus, 652000) << o.Tag("Id");
      EXPECT_GT(yus, 6861000) << o.Tag("Id");
      EXPECT_LT(yus, 6863000) << o.Tag("Id");
    }
  }
  // Ground above the inverts of the collectors leaving each node.
  for (const ObjectView& c : view_.OfKind(kINameCAC)) {
    EXPECT_GT(Val(view_.ById(c.Tag("sNodAm"))->Tag("Zus")), Val(c.Tag("ZRam")));
  }
}

TEST_F(DemoNetworkTest, LabelsAreFrenchAndUniqueWithinTheirKind) {
  ASSERT_TRUE(loaded_);
  std::map<int, std::set<std::string>> labels;
  bool accented = false;
  for (const ObjectView& o : view_.objects) {
    if (!o.Has("libell") || o.IName() >= kINameReach) continue;
    const std::string label = o.Tag("libell");
    EXPECT_LE(CharCount(label), 16) << label;
    EXPECT_TRUE(labels[o.IName()].insert(UCase(label)).second) << label;
    if (label.find("\xC3") != std::string::npos) accented = true;
  }
  EXPECT_TRUE(accented);
  EXPECT_EQ(view_.ById("Nod_5")->Tag("libell"), "Noeud é");
}

TEST_F(DemoNetworkTest, OpensAsTheProgramOpensIt) {
  TempFolder folder;
  Surface surface;
  AppState state;
  state.LogicWidth = 50000;
  state.LogicHeight = 50000;
  state.SymbolSize = 10;
  ScriptedUi ui;
  RecentFiles recent;
  NetworkSession session{surface, state, ui, recent};
  ASSERT_TRUE(OpenNetwork(session, true, kShipped));
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(state.ScenarioName, "Decennale");
  EXPECT_EQ(ui.Panel("sbrSCN"), "Decennale (diag)");
  EXPECT_EQ(state.NodeCount, 30);
  EXPECT_EQ(state.LogicWidth, 100000);
  EXPECT_EQ(state.SymbolSize, 120);
  EXPECT_EQ(state.ElementCounters[kINameCAC], 23);
  EXPECT_EQ(state.CalcDuree, 240);
  // Map positions come back from the calibration points.
  EXPECT_NEAR(LogicToUserX(state.calibration, 50000, 50000), 651000, 1e-6);
  EXPECT_NEAR(LogicToUserY(state.calibration, 50000, 50000), 6862000, 1e-6);
}

}  // namespace
}  // namespace pluvane
