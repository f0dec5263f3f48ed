#include "network/reaches.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "foundation/expect_message.h"
#include "network/reach_fixture.h"
#include "drawing/surface_helpers.h"

namespace pluvane {
namespace {

class OrderTest : public ReachTest {
 protected:
  // Orders the collectors as the creation gives them; their Ids in order.
  int Order(const std::vector<int>& collectors, std::vector<std::string>& ids) {
    std::vector<std::string> up, down;
    for (int c : collectors) {
      up.push_back(TagOf(c, "sNodAm"));
      down.push_back(TagOf(c, "sNodAv"));
    }
    CollectorOrder out;
    const int result = OrdonnerCollecteurs(ui, collectors, up, down, out);
    ids.clear();
    for (int c : out.objects) ids.push_back(TagOf(c, "Id"));
    return result;
  }
};

TEST_F(OrderTest, ThreeCollectorsInAnyOrderComeUpstreamFirst) {
  const int ab = Collector(0, 1), bc = Collector(1, 2), cd = Collector(2, 3);
  const std::vector<std::string> expected = {TagOf(ab, "Id"), TagOf(bc, "Id"), TagOf(cd, "Id")};
  std::vector<int> order = {ab, bc, cd};
  std::sort(order.begin(), order.end());
  do {
    std::vector<std::string> ids;
    EXPECT_EQ(Order(order, ids), 3);
    EXPECT_EQ(ids, expected);
  } while (std::next_permutation(order.begin(), order.end()));
  EXPECT_TRUE(ui.Empty());
}

TEST_F(OrderTest, NodesAreComparedWithoutRegardToCase) {
  std::vector<std::string> up = {"nod_2", "NOD_1"}, down = {"Nod_3", "Nod_2"};
  CollectorOrder out;
  EXPECT_EQ(OrdonnerCollecteurs(ui, {21, 20}, up, down, out), 2);
  EXPECT_EQ(out.objects, (std::vector<int>{20, 21}));
  EXPECT_EQ(out.upstream, (std::vector<std::string>{"NOD_1", "nod_2"}));
  EXPECT_EQ(out.downstream, (std::vector<std::string>{"Nod_2", "Nod_3"}));
}

TEST_F(OrderTest, AForkIsRefusedWithItsMessage) {
  const int ab = Collector(0, 1), ac = Collector(0, 2);
  std::vector<std::string> ids;
  EXPECT_EQ(Order({ab, ac}, ids), 0);
  ExpectLastMessage(ui, "Les collecteurs sélectionnés ne sont pas ordonnable!",
                    "Création d'un nouveau Bief", MessageIcon::kExclamation);
}

TEST_F(OrderTest, ALoopIsRefusedWithItsMessage) {
  const int ab = Collector(0, 1), ba = Collector(1, 0);
  std::vector<std::string> ids;
  EXPECT_EQ(Order({ab, ba}, ids), 0);
  EXPECT_TRUE(ids.empty());
  ExpectLastMessage(ui, "Les collecteurs sélectionnés ne sont pas ordonnable!",
                    "Création d'un nouveau Bief", MessageIcon::kExclamation);
}

TEST_F(OrderTest, AGapGivesNoReachAndNoMessage) {
  const int ab = Collector(0, 1), cd = Collector(2, 3);
  std::vector<std::string> ids;
  EXPECT_EQ(Order({cd, ab}, ids), 0);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(OrderTest, ASingleCollectorIsAChainOfOne) {
  const int bc = Collector(1, 2);
  std::vector<std::string> ids;
  EXPECT_EQ(Order({bc}, ids), 1);
  EXPECT_EQ(ids, std::vector<std::string>{TagOf(bc, "Id")});
}

TEST_F(OrderTest, NothingToOrderGivesZero) {
  CollectorOrder out;
  EXPECT_EQ(OrdonnerCollecteurs(ui, {}, {}, {}, out), 0);
  EXPECT_TRUE(ui.Empty());
}

class ReachRecordTest : public ReachTest {};

TEST_F(ReachRecordTest, TheRecordListsItsCollectorsAndMarksThem) {
  const int ab = Collector(0, 1), bc = Collector(1, 2, "X_CAF");
  const int reach = MakeReach(7, {ab, bc});
  ASSERT_GT(reach, 10);
  const TagList expected = {{"Id", "7"},          {"iName", "100"},     {"libell", "Bief7"},
                            {"NbColl", "2"},      {"IdColl1", "Cac_1"}, {"InameColl1", "5"},
                            {"IdColl2", "Caf_1"}, {"InameColl2", "6"}};
  EXPECT_EQ(Tags(reach), expected);
  EXPECT_EQ(TagOf(ab, "iBief"), "7");
  EXPECT_EQ(TagOf(bc, "iBief"), "7");
  EXPECT_TRUE(surface.ObjectShape(reach)->hidden);
  EXPECT_EQ(FindReach(surface, "7"), reach);
  EXPECT_EQ(FindReach(surface, " 7 "), reach);
  EXPECT_EQ(FindReach(surface, "8"), 0);
}

TEST_F(ReachRecordTest, WithoutAPendingNumberNothingIsMade) {
  const int ab = Collector(0, 1);
  const int objects = surface.ObjectCount(kPage);
  EXPECT_EQ(AddReachRecord(surface, state, {ab}), 0);
  EXPECT_EQ(surface.ObjectCount(kPage), objects);
  EXPECT_EQ(TagOf(ab, "iBief"), "0");
}

TEST_F(ReachRecordTest, RemovingBlanksTheRankWithoutClosingUp) {
  const int ab = Collector(0, 1), bc = Collector(1, 2), cd = Collector(2, 3);
  const int reach = MakeReach(3, {ab, bc, cd});
  EXPECT_TRUE(RemoveFromReach(surface, "3", "Cac_1"));
  EXPECT_EQ(TagOf(reach, "NbColl"), "2");
  EXPECT_EQ(TagOf(reach, "IdColl1"), "");
  EXPECT_EQ(TagOf(reach, "InameColl1"), "");
  EXPECT_EQ(TagOf(reach, "IdColl3"), "Cac_3");
  // The last rank now falls outside the count: the reader skips the blank
  // and stops at NbColl.
  EXPECT_EQ(Listed(reach), std::vector<std::string>{"Cac_2"});
  EXPECT_FALSE(RemoveFromReach(surface, "3", "Cac_9"));
  EXPECT_FALSE(RemoveFromReach(surface, "4", "Cac_2"));
}

TEST_F(ReachRecordTest, ACollectorCanJoinASecondReachAndTheFirstKeepsIt) {
  const int ab = Collector(0, 1), bc = Collector(1, 2);
  const int first = MakeReach(1, {ab, bc});
  MakeReach(2, {bc});
  EXPECT_EQ(TagOf(bc, "iBief"), "2");
  EXPECT_EQ(TagOf(ab, "iBief"), "1");
  EXPECT_EQ(Listed(first), (std::vector<std::string>{"Cac_1", "Cac_2"}));
}

TEST_F(ReachRecordTest, DeletingAReachGivesItsCollectorsBack) {
  const int ab = Collector(0, 1), bc = Collector(1, 2);
  const int reach = MakeReach(5, {ab, bc});
  DeleteReach(surface, reach);
  EXPECT_EQ(FindReach(surface, "5"), 0);
  EXPECT_EQ(TagOf(ab, "iBief"), "0");
  EXPECT_EQ(TagOf(bc, "iBief"), "0");
}

TEST_F(ReachRecordTest, UpdateReachTagsRederivesIBiefFromTheLists) {
  const int ab = Collector(0, 1), bc = Collector(1, 2), cd = Collector(2, 3, "X_CAO");
  MakeReach(4, {ab, bc});
  MakeReach(6, {cd});
  for (int c : {ab, bc, cd}) {
    surface.SetCurrentObject(c);
    surface.SetObjTag("iBief", 0);
  }
  // An object of another type with a listed Id is not a collector of the list.
  surface.SetCurrentObject(nodes_[0]);
  surface.SetObjTag("Id", "Cao_1");
  EXPECT_EQ(UpdateReachTags(surface), 3);
  EXPECT_EQ(TagOf(ab, "iBief"), "4");
  EXPECT_EQ(TagOf(bc, "iBief"), "4");
  EXPECT_EQ(TagOf(cd, "iBief"), "6");
  EXPECT_EQ(TagOf(nodes_[0], "iBief"), "");
}

}  // namespace
}  // namespace pluvane
