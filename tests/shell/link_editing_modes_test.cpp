// The modes of link editing as the main window drives them: a tool click,
// then presses, moves, releases and keys on the drawing.
#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "network/link_edit_fixture.h"
#include "drawing/surface_helpers.h"
#include "shell/main_interaction.h"

namespace pluvane {
namespace {

constexpr int kLeft = 1;
constexpr int kCtrl = 2;

class LinkEditingModesTest : public LinkEditTest {
 protected:
  LinkEditingModesTest() { interaction.SetCaption("Pluvane - Réseau"); }

  InteractionResult Click(int hit, double x, double y) {
    interaction.Press(kLeft, 0, hit, x, y);
    return interaction.Release(kLeft, 0);
  }
  // A circular collector from A to B, 100 m long, from 10 down to 9.
  int Sloped() {
    const int link = Collector(0, 1);
    SetTags(link, {{"L", "100"}, {"ZRam", "10"}, {"ZRav", "9"}});
    return link;
  }
  // The links leaving the node `node`, by their upstream end.
  std::vector<int> LinksFrom(int node) {
    std::vector<int> found;
    for (int n = surface.NextObjectNumber(0); n > 0; n = surface.NextObjectNumber(n)) {
      surface.SetCurrentObject(n);
      if (surface.ObjectKind() == 21 && surface.LinkEndObject(0) == node) found.push_back(n);
    }
    return found;
  }

  MainInteraction interaction{surface, state, ui};
};

TEST_F(LinkEditingModesTest, AClickInBreakModeSplitsTheCollectorAtAQuarter) {
  const int link = Sloped();
  interaction.ToolClick("MDBREAK");
  const InteractionResult result = Click(link, 1250, 5000);
  EXPECT_FALSE(Exists(link));
  const std::vector<int> first = LinksFrom(nodes_[0]);
  ASSERT_EQ(first.size(), 1u);
  EXPECT_EQ(TagOf(first[0], "L"), "25");
  EXPECT_EQ(TagOf(first[0], "ZRav"), "9.75");
  const std::vector<int> second = LinksFrom(EndOf(first[0], 1));
  ASSERT_EQ(second.size(), 1u);
  EXPECT_EQ(TagOf(second[0], "L"), "75");
  EXPECT_EQ(TagOf(second[0], "ZRam"), "9.75");
  EXPECT_EQ(TagOf(second[0], "ZRav"), "9");
  EXPECT_FALSE(result.bubble_visible);
  EXPECT_EQ(surface.ObjectCount(kSelection), 0);
  EXPECT_EQ(state.CurrentMode, "MDBREAK");  // the mode stays armed
}

TEST_F(LinkEditingModesTest, TheBubbleTellsWhereTheNodeWouldGo) {
  const int link = Sloped();
  interaction.ToolClick("MDBREAK");
  const InteractionResult over = interaction.Move(1250, 5000, link);
  EXPECT_TRUE(over.bubble_visible);
  EXPECT_EQ(over.bubble_text, "Dam (%)= 25.00\r\nDam (m)= 25.00");
  const InteractionResult off = interaction.Move(1250, 9000, 0);
  EXPECT_FALSE(off.bubble_visible);
}

TEST_F(LinkEditingModesTest, ABreakOnANodeIsRefused) {
  Sloped();
  const std::string before = Snapshot();
  interaction.ToolClick("MDBREAK");
  Click(nodes_[2], 3000, 5000);
  ExpectLastMessage(ui, "Seuls les collecteurs sont divisables (Cac, Cao, Caf) !", "",
                    MessageIcon::kNone);
  EXPECT_EQ(Snapshot(), before);
}

TEST_F(LinkEditingModesTest, AClickInFusionModeJoinsTheTwoCollectors) {
  const int ab = Collector(0, 1);
  Collector(1, 2);
  interaction.ToolClick("MDFUSION");
  Click(nodes_[1], 2000, 5000);
  EXPECT_FALSE(Exists(nodes_[1]));
  const std::vector<int> joined = LinksFrom(nodes_[0]);
  ASSERT_EQ(joined.size(), 1u);
  EXPECT_EQ(EndOf(joined[0], 1), nodes_[2]);
  EXPECT_EQ(TagOf(joined[0], "Id"), "Cac_1");
  EXPECT_FALSE(Exists(ab));
}

TEST_F(LinkEditingModesTest, CtrlCThenCtrlVDuplicatesTheSelection) {
  const int ab = Collector(0, 1);
  for (const int n : {nodes_[0], nodes_[1], ab}) {
    surface.SetCurrentObject(n);
    surface.SetSelected(true);
  }
  const int before = surface.ObjectCount(kPage);
  interaction.Key('C', kCtrl);
  EXPECT_EQ(ui.Statuses().back(), " ok 3 elm ont été copiés et prêts à être collés...");
  ui.QueueYes();
  interaction.Key('v', kCtrl);  // the lower-case code answers too
  EXPECT_EQ(ui.Last().title, "Importation de données");
  EXPECT_EQ(surface.ObjectCount(kPage), before + 3);
  EXPECT_EQ(surface.ObjectCount(kSelection), 3);
  EXPECT_EQ(CountByTag(surface, "Id", "Cac_1"), 2);
}

}  // namespace
}  // namespace pluvane
