#include "network/link_fusion.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "link_edit_fixture.h"
#include "network/catalogue.h"
#include "drawing/surface_helpers.h"

namespace pluvane {
namespace {

constexpr const char* kQuestion =
    "La singularité portée par le noeud sera également supprimée.\rVoulez-vous poursuivre ?";

class FusionTest : public LinkEditTest {
 protected:
  FusionTest() {
    ab_ = Collector(0, 1);
    bc_ = Collector(1, 2, "X_CAF");
    SetTags(ab_, {{"libell", "Amont"},
                  {"Dn", "0.8"},
                  {"K", "70"},
                  {"HD", "1.2"},
                  {"SR", "15"},
                  {"L", "40"},
                  {"ZRam", "12"},
                  {"ZRav", "11.5"}});
    SetTags(bc_, {{"libell", "Aval"},
                  {"IdSect", "Dalot"},
                  {"K", "80"},
                  {"L", "60"},
                  {"ZRam", "11.4"},
                  {"ZRav", "11"}});
  }
  int ab_ = 0;
  int bc_ = 0;
};

TEST_F(FusionTest, TheUpstreamCollectorTakesPrecedence) {
  const int fused = FuseAtNode(context, nodes_[1]);
  ASSERT_GT(fused, 0);
  EXPECT_FALSE(Exists(nodes_[1]));
  EXPECT_FALSE(Exists(ab_));
  EXPECT_FALSE(Exists(bc_));
  EXPECT_EQ(EndOf(fused, 0), nodes_[0]);
  EXPECT_EQ(EndOf(fused, 1), nodes_[2]);
  EXPECT_EQ(TagOf(fused, "Id"), "Cac_1");
  EXPECT_EQ(TagOf(fused, "libell"), "Amont");
  EXPECT_EQ(TagOf(fused, "iName"), "5");
  EXPECT_EQ(TagOf(fused, "iGroup"), "2");
  EXPECT_EQ(TagOf(fused, "Dn"), "0.8");
  EXPECT_EQ(TagOf(fused, "K"), "70");
  EXPECT_EQ(TagOf(fused, "HD"), "1.2");
  EXPECT_EQ(TagOf(fused, "SR"), "15");
  EXPECT_EQ(TagOf(fused, "IdSect"), "");
  EXPECT_EQ(TagOf(fused, "L"), "100");
  EXPECT_EQ(TagOf(fused, "ZRam"), "12");
  EXPECT_EQ(TagOf(fused, "ZRav"), "11");
  EXPECT_EQ(TagOf(fused, "sNodAm"), NodeId(0));
  EXPECT_EQ(TagOf(fused, "sNodAv"), NodeId(2));
  EXPECT_EQ(CountByTag(surface, "Id", "Caf_1"), 0);
  surface.SetCurrentObject(fused);
  EXPECT_EQ(surface.LineColor(), 16711680);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(FusionTest, AClosedUpstreamCollectorGivesAClosedOne) {
  const int cd = Collector(2, 3, "X_CAO");
  SetTags(bc_, {{"HD", "0.5"}, {"SR", "7"}});
  SetTags(cd, {{"Kmin", "40"}});
  const int fused = FuseAtNode(context, nodes_[2]);
  ASSERT_GT(fused, 0);
  EXPECT_EQ(TagOf(fused, "iName"), "6");
  EXPECT_EQ(TagOf(fused, "IdSect"), "Dalot");
  EXPECT_EQ(TagOf(fused, "K"), "80");
  EXPECT_EQ(TagOf(fused, "HD"), "0.5");
  EXPECT_EQ(TagOf(fused, "SR"), "7");
  EXPECT_EQ(TagOf(fused, "Kmin"), "");
  surface.SetCurrentObject(fused);
  EXPECT_EQ(surface.LineColor(), 255);
}

TEST_F(FusionTest, TheNewLinkStaysInTheUpstreamReach) {
  const int up = MakeReach(3, {ab_});
  const int down = MakeReach(4, {bc_});
  const int fused = FuseAtNode(context, nodes_[1]);
  ASSERT_GT(fused, 0);
  EXPECT_EQ(TagOf(fused, "iBief"), "3");
  EXPECT_EQ(Listed(up), (std::vector<std::string>{"Cac_1"}));
  EXPECT_EQ(TagOf(down, "NbColl"), "0");
  EXPECT_EQ(TagOf(down, "IdColl1"), "");
  EXPECT_TRUE(Listed(down).empty());
}

TEST_F(FusionTest, AnOutletOnTheNodeIsDeletedAfterAsking) {
  const int outlet = Symbol("X_HYBV", 0, 0, nodes_[1]);
  ui.QueueYes();
  const int fused = FuseAtNode(context, nodes_[1]);
  ASSERT_GT(fused, 0);
  ASSERT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(ui.Messages()[0].kind, "yesno");
  EXPECT_EQ(ui.Messages()[0].text, kQuestion);
  EXPECT_EQ(ui.Messages()[0].title, "Fusion de collecteurs");
  EXPECT_EQ(ui.Messages()[0].icon, MessageIcon::kQuestion);
  EXPECT_FALSE(Exists(outlet));
  EXPECT_FALSE(Exists(nodes_[1]));
  EXPECT_EQ(CountByName(surface, kINameHYBV), 0);
}

TEST_F(FusionTest, NoToTheQuestionChangesNothing) {
  Symbol("X_DQQ", 0, 0, nodes_[1]);
  const std::string before = Snapshot();
  ui.QueueNo();
  EXPECT_EQ(FuseAtNode(context, nodes_[1]), 0);
  ExpectLastMessage(ui, kQuestion, "Fusion de collecteurs", MessageIcon::kQuestion, "yesno");
  EXPECT_EQ(Snapshot(), before);
}

TEST_F(FusionTest, MoreThanTwoLinksAreRefused) {
  const int bd = Collector(1, 3);
  const std::string before = Snapshot();
  ReleaseInFusionMode(context, nodes_[1]);
  ExpectLastMessage(ui, "Fusion impossible quand il y a plus de 2 liaisons !", "Fusion de liaisons",
                    MessageIcon::kExclamation);
  EXPECT_EQ(Snapshot(), before);
  EXPECT_TRUE(Exists(bd));
  // A node at the end of a single link is refused the same way.
  ui.Clear();
  ReleaseInFusionMode(context, nodes_[3]);
  ExpectLastMessage(ui, "Fusion impossible quand il y a plus de 2 liaisons !", "Fusion de liaisons",
                    MessageIcon::kExclamation);
}

TEST_F(FusionTest, TwoLinksInAndNoneOutAreRefused) {
  const int dc = Collector(3, 2);
  const std::string before = Snapshot();
  ReleaseInFusionMode(context, nodes_[2]);  // bc and dc both end on C
  ExpectLastMessage(ui, "LinkBreakMode: attention obj. non cohérents", "", MessageIcon::kNone);
  EXPECT_EQ(Snapshot(), before);
  EXPECT_TRUE(Exists(dc));
}

TEST_F(FusionTest, TheReleaseFusesAtANodeOnly) {
  const std::string before = Snapshot();
  ReleaseInFusionMode(context, ab_);
  ReleaseInFusionMode(context, 0);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(Snapshot(), before);
  ReleaseInFusionMode(context, nodes_[1]);
  EXPECT_FALSE(Exists(nodes_[1]));
  EXPECT_EQ(surface.ObjectCount(kSelection), 0);
}

TEST_F(FusionTest, AFusionIsOneUndoStep) {
  MakeReach(4, {bc_});
  Symbol("X_HYBV", 0, 0, nodes_[1]);
  const std::string before = Snapshot();
  ui.QueueYes();
  ASSERT_GT(FuseAtNode(context, nodes_[1]), 0);
  EXPECT_EQ(surface.UndoLabel(), "Fusion de collecteurs");
  ASSERT_TRUE(surface.Undo());
  EXPECT_EQ(Snapshot(), before);
  EXPECT_TRUE(Exists(nodes_[1]));
  EXPECT_TRUE(Exists(ab_));
}

}  // namespace
}  // namespace pluvane
