#include <gtest/gtest.h>

#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "network/catalogue.h"
#include "network/persistence.h"
#include "shell/app_state.h"
#include "tools/network_builder.h"
#include "tools/network_view.h"

namespace pluvane {
namespace {

const std::string kSymbols = std::string(PLUVANE_DATA) + "/Symboles";

TEST(LargeNetwork, HoldsAQuarterMoreCollectorsThanNodes) {
  ScriptedUi ui;
  Surface surface;
  AppState state;
  NetworkBuilder builder(surface, state, ui, kSymbols, LargeNetworkLogicSize(100));
  const LargeNetworkCounts counts = BuildLargeNetwork(builder, 100);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(counts.nodes, 100);
  EXPECT_EQ(counts.collectors, 99 + 25);  // the tree, and the derivations
  EXPECT_EQ(counts.others, 25 + 1);       // a divider on each derivation, the outlet
  NetworkView view(surface);
  std::map<int, int> kinds = view.Counts();
  EXPECT_EQ(kinds[kINameNode], 100);
  EXPECT_EQ(kinds[kINameCAC], 124);
  EXPECT_EQ(kinds[kINameDQQ] + kinds[kINameDQZ], 25);
  EXPECT_EQ(kinds[kINameCLAV], 1);
  EXPECT_EQ(kinds[kINameHiddenCalage], 3);
  for (const ObjectView& o : view.objects) {
    if (o.kind != kKindLink) continue;
    EXPECT_EQ(o.Tag("sNodAm"), view.ByNumber(o.ends[0])->Tag("Id"));
    EXPECT_EQ(o.Tag("sNodAv"), view.ByNumber(o.ends[1])->Tag("Id"));
    EXPECT_GT(Val(o.Tag("ZRam")), Val(o.Tag("ZRav")));
  }
  // Each divider's branches leave its node.
  for (int i_name : {kINameDQQ, kINameDQZ}) {
    for (const ObjectView& d : view.OfKind(i_name)) {
      EXPECT_EQ(view.ById(d.Tag("IdAval"))->Tag("sNodAm"), d.Tag("sNodAm"));
      EXPECT_EQ(view.ById(d.Tag("IdDer_a"))->Tag("sNodAm"), d.Tag("sNodAm"));
    }
  }
  // Exactly one node has no collector leaving it: the outlet's.
  std::map<std::string, int> leaving;
  for (const ObjectView& c : view.OfKind(kINameCAC)) ++leaving[c.Tag("sNodAm")];
  EXPECT_EQ(leaving.size(), 99u);
  EXPECT_EQ(leaving.count(view.OfKind(kINameCLAV).front().Tag("sNodAm")), 0u);
}

TEST(LargeNetwork, GrowsTheLogicalSpaceWithTheGridAndOpensAgain) {
  EXPECT_EQ(LargeNetworkLogicSize(100), kBuilderLogicSize);
  EXPECT_EQ(LargeNetworkLogicSize(10000), (100 + 2) * 4000);
  TempFolder folder;
  ScriptedUi ui;
  Surface surface;
  AppState state;
  NetworkBuilder builder(surface, state, ui, kSymbols, LargeNetworkLogicSize(30));
  ASSERT_EQ(BuildLargeNetwork(builder, 30).nodes, 30);
  ASSERT_TRUE(builder.Save(folder.File("grand.mtf")));

  Surface reopened;
  AppState opened;
  RecentFiles recent;
  NetworkSession session{reopened, opened, ui, recent};
  ASSERT_TRUE(OpenNetwork(session, true, folder.File("grand.mtf")));
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(opened.NodeCount, 30);
  EXPECT_EQ(opened.ElementCounters[kINameCAC], 29 + 7);
}

TEST(LargeNetwork, TooSmallANetworkIsNotBuilt) {
  ScriptedUi ui;
  Surface surface;
  AppState state;
  NetworkBuilder builder(surface, state, ui, kSymbols);
  EXPECT_EQ(BuildLargeNetwork(builder, 1).nodes, 0);
}

TEST(NetworkBuilder, AMissingSymbolFolderStopsTheBuildWithTheProgramsMessage) {
  TempFolder folder;
  ScriptedUi ui;
  Surface surface;
  AppState state;
  NetworkBuilder builder(surface, state, ui, folder.File("Symboles"));
  EXPECT_FALSE(BuildDemoNetwork(builder));
  EXPECT_FALSE(builder.ok());
  ASSERT_FALSE(ui.Empty());
  EXPECT_EQ(ui.Messages().front().text.rfind("Erreur Draw_A_Symbol\r\n", 0), 0u);
}

}  // namespace
}  // namespace pluvane
