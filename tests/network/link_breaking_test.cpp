#include "network/link_breaking.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "link_edit_fixture.h"
#include "network/catalogue.h"
#include "drawing/surface_helpers.h"

namespace pluvane {
namespace {

TEST(PercentAlong, IsTheDistanceToCOverTheDistanceToB) {
  EXPECT_DOUBLE_EQ(PercentAlong(0, 0, 10, 0, 2.5, 0), 25);
  EXPECT_DOUBLE_EQ(PercentAlong(0, 0, 10, 0, 3, 4), 50);  // C need not lie on AB
  EXPECT_DOUBLE_EQ(PercentAlong(0, 0, 10, 0, 0, 20), 200);
  EXPECT_DOUBLE_EQ(PercentAlong(5, 5, 5, 5, 8, 9), 0);  // AB of no length
  EXPECT_DOUBLE_EQ(PercentAlong(0, 0, 0.000001, 0, 8, 9), 0);
}

class BreakTest : public LinkEditTest {
 protected:
  // A circular collector from A to B, 100 m long, from 10 down to 9.
  int Sloped() {
    const int link = Collector(0, 1);
    SetTags(link, {{"L", "100"}, {"ZRam", "10"}, {"ZRav", "9"}});
    return link;
  }
};

TEST_F(BreakTest, AQuarterAlongSplitsLengthAndLevels) {
  const int link = Sloped();
  const BrokenLink made = BreakLink(context, link, 1250, 5000);
  ASSERT_GT(made.first, 0);
  ASSERT_GT(made.second, 0);
  EXPECT_FALSE(Exists(link));
  const int node = EndOf(made.first, 1);
  EXPECT_EQ(TagOf(node, "iName"), "99");
  EXPECT_EQ(EndOf(made.first, 0), nodes_[0]);
  EXPECT_EQ(EndOf(made.second, 0), node);
  EXPECT_EQ(EndOf(made.second, 1), nodes_[1]);

  EXPECT_EQ(TagOf(made.first, "L"), "25");
  EXPECT_EQ(TagOf(made.first, "ZRam"), "10");
  EXPECT_EQ(TagOf(made.first, "ZRav"), "9.75");
  EXPECT_EQ(TagOf(made.first, "sNodAm"), NodeId(0));
  EXPECT_EQ(TagOf(made.first, "sNodAv"), TagOf(node, "Id"));
  EXPECT_EQ(TagOf(made.second, "L"), "75");
  EXPECT_EQ(TagOf(made.second, "ZRam"), "9.75");
  EXPECT_EQ(TagOf(made.second, "ZRav"), "9");
  EXPECT_EQ(TagOf(made.second, "sNodAm"), TagOf(node, "Id"));
  EXPECT_EQ(TagOf(made.second, "sNodAv"), NodeId(1));
  EXPECT_EQ(TagOf(node, "iLink"), "2");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(BreakTest, ANodeOffTheLineGoesBeyondTheEnd) {
  const int link = Sloped();
  // 1500 map units from A where B is 1000 away: p is 150.
  const BrokenLink made = BreakLink(context, link, 1000, 6500);
  ASSERT_GT(made.second, 0);
  EXPECT_EQ(TagOf(made.first, "L"), "150");
  EXPECT_EQ(TagOf(made.first, "ZRav"), "8.5");
  EXPECT_EQ(TagOf(made.second, "L"), "-50");
  EXPECT_EQ(TagOf(made.second, "ZRam"), "8.5");
  EXPECT_EQ(TagOf(made.second, "ZRav"), "9");
}

TEST_F(BreakTest, ALinkOfNoLengthCannotBeBroken) {
  const int link = Collector(0, 1);
  SetTags(link, {{"L", "0"}});  // ZRam and ZRav both 0: 0 / 0
  const std::string before = Snapshot();
  const BrokenLink made = BreakLink(context, link, 1250, 5000);
  EXPECT_EQ(made.first, 0);
  EXPECT_EQ(made.second, 0);
  ExpectLastMessage(ui, "Dépassement de capacité\rBreakLink", "Pluvane (erreur n°6, L0)",
                    MessageIcon::kExclamation);
  EXPECT_EQ(Snapshot(), before);

  SetTags(link, {{"ZRam", "1"}});
  EXPECT_EQ(BreakLink(context, link, 1250, 5000).first, 0);
  ExpectLastMessage(ui, "Division par zéro\rBreakLink", "Pluvane (erreur n°11, L0)",
                    MessageIcon::kExclamation);
  EXPECT_TRUE(Exists(link));
}

TEST_F(BreakTest, TagsAreCopiedByIndex) {
  const int link = Collector(0, 1, "X_CAF");
  SetTags(link, {{"libell", "Rue Haute"},
                 {"IdSect", "Ovoide"},
                 {"K", "70"},
                 {"HD", "1.5"},
                 {"SR", "200"},
                 {"Remarque", "posé en 1987"}});
  const TagList old_tags = Tags(link);
  const std::string old_id = TagOf(link, "Id");
  const BrokenLink made = BreakLink(context, link, 1500, 5000);
  ASSERT_GT(made.second, 0);
  for (const int half : {made.first, made.second}) {
    const TagList tags = Tags(half);
    ASSERT_EQ(tags.size(), old_tags.size());
    for (std::size_t i = 0; i < tags.size(); ++i) EXPECT_EQ(tags[i].first, old_tags[i].first);
    EXPECT_EQ(TagOf(half, "iName"), "6");
    EXPECT_EQ(TagOf(half, "iGroup"), "2");
    EXPECT_EQ(TagOf(half, "IdSect"), "Ovoide");
    EXPECT_EQ(TagOf(half, "K"), "70");
    EXPECT_EQ(TagOf(half, "HD"), "1.5");
    EXPECT_EQ(TagOf(half, "SR"), "200");
    EXPECT_EQ(TagOf(half, "Remarque"), "posé en 1987");
    EXPECT_EQ(TagOf(half, "iBief"), "0");
    EXPECT_EQ(TagOf(half, "Dn"), "");  // closed collectors get no diameter
    surface.SetCurrentObject(half);
    EXPECT_EQ(surface.LineColor(), 255);
    EXPECT_EQ(surface.LineWidth(), -state.LinkThick);
    EXPECT_EQ(surface.LinkEndMarker(0), 0);
    EXPECT_EQ(surface.LinkEndMarker(1), 0);
  }
  // The first half keeps the Id and the label; the second takes the next number.
  EXPECT_EQ(old_id, "Caf_1");
  EXPECT_EQ(TagOf(made.first, "Id"), "Caf_1");
  EXPECT_EQ(TagOf(made.first, "libell"), "Rue Haute");
  EXPECT_EQ(TagOf(made.second, "Id"), "Caf_3");
  EXPECT_EQ(TagOf(made.second, "libell"), "Caf_3");
  EXPECT_EQ(state.ElementCounters[6], 3);
  EXPECT_EQ(CountByTag(surface, "Id", "Caf_1"), 1);
}

TEST_F(BreakTest, ACircularCollectorKeepsItsDiameterAndStyle) {
  const int link = Collector(0, 1);
  SetTags(link, {{"Dn", "0.8"}});
  surface.SetCurrentObject(link);
  surface.SetLineStyle(2);
  const BrokenLink made = BreakLink(context, link, 1500, 5000);
  for (const int half : {made.first, made.second}) {
    EXPECT_EQ(TagOf(half, "Dn"), "0.8");
    surface.SetCurrentObject(half);
    EXPECT_EQ(surface.LineColor(), 16711680);
    EXPECT_EQ(surface.LineStyle(), 2);
  }
}

TEST_F(BreakTest, TheSecondHalfGoesLastInTheReach) {
  const int ab = Collector(0, 1);
  const int bc = Collector(1, 2);
  const int reach = MakeReach(3, {ab, bc});
  const std::string ab_id = TagOf(ab, "Id");
  const BrokenLink made = BreakLink(context, ab, 1500, 5000);
  ASSERT_GT(made.second, 0);
  EXPECT_EQ(TagOf(made.first, "iBief"), "3");
  EXPECT_EQ(TagOf(made.second, "iBief"), "3");
  EXPECT_EQ(TagOf(reach, "NbColl"), "3");
  EXPECT_EQ(Listed(reach),
            (std::vector<std::string>{ab_id, TagOf(bc, "Id"), TagOf(made.second, "Id")}));
  EXPECT_EQ(TagOf(reach, "InameColl3"), "5");
}

TEST_F(BreakTest, ABreakIsOneUndoStep) {
  const int link = Sloped();
  const std::string before = Snapshot();
  ASSERT_GT(BreakLink(context, link, 1250, 5000).second, 0);
  EXPECT_NE(Snapshot(), before);
  EXPECT_EQ(surface.UndoLabel(), "Diviser un tronçon");
  ASSERT_TRUE(surface.Undo());
  EXPECT_EQ(Snapshot(), before);
  EXPECT_TRUE(Exists(link));
}

TEST_F(BreakTest, TheReleaseBreaksACollectorAndDeselects) {
  const int link = Sloped();
  surface.SetCurrentObject(nodes_[2]);
  surface.SetSelected(true);
  ReleaseInBreakMode(context, link, 1250, 5000);
  EXPECT_FALSE(Exists(link));
  EXPECT_EQ(surface.ObjectCount(kSelection), 0);
  EXPECT_EQ(CountByName(surface, kINameNode), 5);
  EXPECT_GT(ui.PumpCount(), 0);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(BreakTest, RoutesAndConnectionsAreRefused) {
  const int connection = Collector(0, 1, "X_TR");
  const int outlet = Symbol("X_HYBV", 0, 0, nodes_[2]);
  const int catchment = Symbol("X_BV", 3000, 7000);
  const int route = Link("X_ROUT", catchment, outlet);
  const std::string before = Snapshot();
  for (const int hit : {connection, route, nodes_[3]}) {
    ui.Clear();
    ReleaseInBreakMode(context, hit, 1500, 5000);
    ExpectLastMessage(ui, "Seuls les collecteurs sont divisables (Cac, Cao, Caf) !", "",
                      MessageIcon::kNone);
  }
  EXPECT_EQ(Snapshot(), before);
}

TEST_F(BreakTest, AReleaseOnNothingDoesNothing) {
  Sloped();
  const std::string before = Snapshot();
  ReleaseInBreakMode(context, 0, 1500, 5000);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(Snapshot(), before);
}

TEST_F(BreakTest, BreakLinkLeavesOtherObjectsAlone) {
  EXPECT_EQ(BreakLink(context, nodes_[0], 1500, 5000).first, 0);
  EXPECT_EQ(CountByName(surface, kINameNode), 4);
}

TEST_F(BreakTest, TheBubbleTellsWhereTheBreakWouldFall) {
  const int link = Sloped();
  EXPECT_EQ(BreakBubbleText(surface, link, 1250, 5000), "Dam (%)= 25.00\r\nDam (m)= 25.00");
  EXPECT_EQ(BreakBubbleText(surface, link, 1000, 5500), "Dam (%)= 50.00\r\nDam (m)= 50.00");
  SetTags(link, {{"L", "0.0009"}});
  EXPECT_EQ(BreakBubbleText(surface, link, 1250, 5000), "Dam (%)= 25.00");
  EXPECT_EQ(BreakBubbleText(surface, nodes_[0], 1250, 5000), "");
  const int connection = Collector(1, 2, "X_TR");
  EXPECT_EQ(BreakBubbleText(surface, connection, 2500, 5000), "");
  EXPECT_EQ(BreakBubbleText(surface, 0, 2500, 5000), "");
}

}  // namespace
}  // namespace pluvane
