#include "simulation/link_files.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "simulation/li2_description.h"
#include "simulation/link_ranks.h"
#include "simulation/model_fixture.h"
#include "simulation/node_file.h"

namespace pluvane {
namespace {

class LinkFiles : public ModelTest {
 protected:
  void Generate() {
    ModelContext context = Context();
    GenFicNod(context, ModelFile(".NOD"));
    li1_count = GenFicLi1(context, ModelFile(".LI1"));
    li2_count = GenFicLi2(context, ModelFile(".LI2"));
    li1 = ReadBytes(ModelFile(".LI1"));
    li2 = ReadBytes(ModelFile(".LI2"));
  }
  // Line r (from 1) of .LI1 after the head.
  std::string Li1Line(int r) const {
    std::size_t at = li1.find("\r\n") + 2;
    for (int i = 1; i < r; ++i) at = li1.find("\r\n", at) + 2;
    return li1.substr(at, li1.find("\r\n", at) - at);
  }
  std::string Li2Record(int r) const { return li2.substr((r - 1) * 812, 812); }
  std::string Bytes(int r, int index) const { return Li2Record(r).substr((index - 1) * 4, 4); }
  std::string Single(double value) const {
    std::string record(4, '\0');
    PutSingle(record, 1, value);
    return record;
  }
  // The numbers of columns 36 to 95.
  std::string Targets(int r) const { return Li1Line(r).substr(35); }

  int li1_count = -1, li2_count = -1;
  std::string li1, li2;
};

TEST_F(LinkFiles, NoElementGivesTheCountAloneAndAnEmptyRecordFile) {
  Node(1000, 1000);
  Symbol("X_PLU", 3000, 3000);
  Scenario("Scn-1");
  Generate();
  EXPECT_EQ(li1, "    0\r\n");
  EXPECT_TRUE(FileExist(ModelFile(".LI2")));
  EXPECT_EQ(li2, "");
  EXPECT_EQ(li1_count, 0);
  EXPECT_EQ(li2_count, 0);
}

TEST_F(LinkFiles, AMarkIsKindTwelveWithItsExportFirst) {
  Set(Symbol("X_MARK", 0, 0, Node(1000, 1000)), {{"Export", "1"}});
  Generate();
  EXPECT_EQ(Li1Line(1).substr(25, 10), "    1   12");
  EXPECT_EQ(Bytes(1, 1), std::string("\x00\x00\x80\x3F", 4));  // 1.0
  EXPECT_EQ(Li2Record(1).substr(4), std::string(808, '\0'));
}

TEST_F(LinkFiles, AnOpenCollectorShowsItsId) {
  Set(Link("X_CAO", Node(1000, 1000), Node(2000, 1000)), {{"libell", "Riviere"}});
  Generate();
  EXPECT_EQ(Li1Line(1).substr(5, 20), "               Cao_1");
}

TEST_F(LinkFiles, AnEmptyNameShiftsTheColumnsLeft) {
  const int a = Node(1000, 1000), b = Node(2000, 1000);
  Set(Link("X_CAC", a, b), {{"libell", ""}});
  Generate();
  EXPECT_EQ(Li1Line(1),
            "    1     2    5         1         2         0         0         0         0");
}

TEST_F(LinkFiles, BranchesBeyondTheirCountAreEmpty) {
  const int node = Node(1000, 1000);
  Link("X_CAC", node, Node(2000, 1000));
  Set(Symbol("X_DQQ", 0, 0, node),
      {{"NbDer", "2"}, {"IdDer_a", "Cac_1"}, {"IdDer_b", "Cac_1"}, {"IdDer_c", "Cac_1"}});
  Generate();
  EXPECT_EQ(Targets(2), "         1         0         0         1         1         0");
}

TEST_F(LinkFiles, AnUnknownOrMiscasedTargetIsTheLastElement) {
  const int node = Node(1000, 1000);
  Link("X_CAC", node, Node(2000, 1000));
  Set(Symbol("X_RS", 0, 0, node), {{"IdAval", "Nulle part"}, {"IdSurv", "CAC_1"}});
  Set(Symbol("X_RSP", 0, 0, node), {{"IdAval", " Cac_1"}, {"IdSurv", "Cac_1"}});
  Symbol("X_CLAV", 0, 0, node);
  Generate();
  EXPECT_EQ(Targets(2), "         1         0         4         4         0         0");
  // The label is matched as it stands: a blank in front is a different text.
  EXPECT_EQ(Targets(3), "         1         0         4         1         0         0");
}

TEST_F(LinkFiles, TargetsAfterTheAskingElementAreRankedToo) {
  const int node = Node(1000, 1000);
  Set(Symbol("X_DQQ", 0, 0, node), {{"NbDer", "1"}, {"IdAval", "Aval"}, {"IdDer_a", "Branche"}});
  Set(Link("X_CAC", node, Node(2000, 1000)), {{"libell", "Branche"}});
  Set(Link("X_CAC", node, Node(3000, 1000)), {{"libell", "Aval"}});
  const int last = Link("X_CAC", node, Node(4000, 1000));
  Set(last, {{"libell", "Aval"}});
  Set(Link("X_CAC", node, Node(5000, 1000)), {{"libell", "Dernier"}});
  Generate();
  EXPECT_EQ(Targets(1), "         1         0         3         2         0         0");
  // A label no element asks for is found as well, and found again the same.
  const LinkWalk walk(surface);
  EXPECT_EQ(walk.LinkRankOf(last, "Aval"), 3);
  EXPECT_EQ(walk.LinkRankOf(last, "Dernier"), 5);
  EXPECT_EQ(walk.LinkRankOf(last, "Dernier"), 5);
  EXPECT_EQ(walk.LinkRankOf(last, "Branche"), 2);
  EXPECT_EQ(walk.LinkRankOf(last, "Personne"), 5);
  EXPECT_EQ(walk.LinkRankOf(last, "Personne"), 5);
}

TEST_F(LinkFiles, NodeIdsMatchInAnyCase) {
  const int a = Node(1000, 1000), b = Node(2000, 1000);
  Set(Link("X_CAC", a, b), {{"sNodAm", " NOD_2"}, {"sNodAv", "nod_1  "}});
  Set(Link("X_TR", a, b), {{"sNodAm", "Nod_9"}, {"sNodAv", ""}});
  Generate();
  EXPECT_EQ(Targets(1), "         2         1         0         0         0         0");
  EXPECT_EQ(Targets(2), "         0         0         0         0         0         0");
}

TEST_F(LinkFiles, ARoutingFromACatchmentStartsAtItsNumber) {
  const int node = Node(1000, 1000);
  const int bv = Symbol("X_BV", 1000, 3000);
  Link("X_ROUT", bv, node);
  Link("X_ROUT", node, Node(3000, 1000));
  Generate();
  EXPECT_EQ(Targets(2), "         3         1         0         0         0         0");
  EXPECT_EQ(Targets(3), "         1         2         0         0         0         0");
}

TEST_F(LinkFiles, ASimpleCatchmentReadsTheNodeIdAsANumber) {
  const int node = Node(1000, 1000);
  Symbol("X_BVS", 0, 0, node);
  Set(Symbol("X_BVS", 0, 0, node), {{"sNodAm", "12abc"}});
  Generate();
  EXPECT_EQ(Targets(1).substr(0, 10), "         0");
  EXPECT_EQ(Targets(2).substr(0, 10), "        12");
}

TEST_F(LinkFiles, AHydrographOfThreePointsFillsTheRestWithMinus999) {
  Set(Symbol("X_HY", 0, 0, Node(1000, 1000)),
      {{"NbPt", "3"}, {"X1", "1"}, {"X2", "2"}, {"X3", "3"}, {"X4", "4"}, {"Y3", "7"}});
  Generate();
  const std::string minus999("\x00\xC0\x79\xC4", 4);
  EXPECT_EQ(Bytes(1, 1), Single(3));
  EXPECT_EQ(Bytes(1, 4), Single(3));
  EXPECT_EQ(Bytes(1, 104), Single(7));
  for (int i = 1; i <= 203; ++i) {
    const bool unused = (i >= 5 && i <= 101) || (i >= 105 && i <= 201);
    EXPECT_EQ(Bytes(1, i) == minus999, unused) << "index " << i;
  }
}

TEST_F(LinkFiles, AHydrographKeepsAHundredPointsAtMost) {
  TagList tags = {{"NbPt", "101"}};
  for (int i = 1; i <= 101; ++i) tags.emplace_back("X" + std::to_string(i), std::to_string(i));
  Set(Symbol("X_HY", 0, 0, Node(1000, 1000)), tags);
  Generate();
  EXPECT_EQ(Bytes(1, 1), Single(101));
  EXPECT_EQ(Bytes(1, 101), Single(100));
  EXPECT_EQ(Bytes(1, 102), Single(0));
  EXPECT_TRUE(ui.Empty());
}

TEST_F(LinkFiles, ALevelLawWithCountZeroKeepsItsTenValues) {
  TagList tags = {{"NbPtAv", "0"}, {"NbPtDb", "1"}};
  for (int i = 1; i <= 10; ++i) {
    tags.emplace_back("Xav" + std::to_string(i), std::to_string(i + 0.5));
    tags.emplace_back("Xdb" + std::to_string(i), std::to_string(i));
  }
  Set(Symbol("X_DQZ", 0, 0, Node(1000, 1000)), tags);
  Generate();
  for (int i = 1; i <= 10; ++i) {
    EXPECT_EQ(Bytes(1, 5 + i), Single(i + 0.5));
    EXPECT_EQ(Bytes(1, 45 + i), i == 1 ? Single(1) : Single(-999));
    EXPECT_EQ(Bytes(1, 55 + i), i == 1 ? Single(0) : Single(-999));
  }
}

TEST_F(LinkFiles, ASectionNameOfTwentyCharactersKeepsSixteen) {
  Set(Link("X_CAF", Node(1000, 1000), Node(2000, 1000)),
      {{"IdSect", "Section évasée 2x3m2"}, {"ZRam", "4"}});
  Generate();
  EXPECT_EQ(Li2Record(1).substr(8, 16),
            "Section \xE9vas\xE9"
            "e 2");
  EXPECT_EQ(Bytes(1, 1), Single(4));
}

TEST_F(LinkFiles, RanksAndNodeNumbersFromTheTables) {
  const int node = Node(1000, 1000);
  const int cac = Link("X_CAC", node, Node(2000, 1000));
  Set(Symbol("X_CLAV", 0, 0, node), {{"libell", "Cac_1"}});
  const LinkWalk walk(surface);
  EXPECT_EQ(walk.count(), 2);
  EXPECT_EQ(walk.LinkRankOf(cac, "Cac_1"), 1);  // the first of two equal labels
  EXPECT_EQ(walk.LinkRankOf(cac, "   "), 0);
  EXPECT_EQ(walk.LinkRankOf(5, "Cac_1"), 0);
  EXPECT_EQ(walk.LinkRankOf(cac, "Inconnu"), 2);
  const NodeNumbering nodes({"Nod_1", " nod_2", "NOD_1"});
  EXPECT_EQ(nodes.NodIndexOf("nod_1"), 1);
  EXPECT_EQ(nodes.NodIndexOf("Nod_2 "), 2);
  EXPECT_EQ(nodes.NodIndexOf(""), 0);
  EXPECT_EQ(nodes.NodIndexOf("Nod_3"), 0);
  EXPECT_FALSE(IsLinkElement(12));
  EXPECT_FALSE(IsLinkElement(15));
  EXPECT_FALSE(IsLinkElement(17));
  EXPECT_FALSE(IsLinkElement(99));
  EXPECT_FALSE(IsLinkElement(0));
  EXPECT_TRUE(IsLinkElement(21));
  EXPECT_EQ(LinkKindCode(16), 12);
  EXPECT_EQ(LinkKindCode(21), 21);
}

TEST_F(LinkFiles, NodeNumbersFromTheDrawingFollowTheNodeList) {
  const int a = Node(1000, 1000);
  const int b = Node(2000, 1000);
  const int c = Node(3000, 1000);
  Set(a, {{"Id", "Nod_1"}});
  Set(b, {{"Id", " Nod_2"}});
  Set(c, {{"Id", "NOD_1"}});
  std::vector<std::string> ids;
  GetTabNodId(surface, ids);
  const NodeNumbering from_ids(ids);
  const NodeNumbering from_drawing(surface);
  for (const char* id : {"Nod_1", "NOD_1", "nod_1 ", "NOD_2", " nod_2", "Nod_3", "", "  "}) {
    EXPECT_EQ(from_drawing.NodIndexOf(id), from_ids.NodIndexOf(id)) << id;
  }
  EXPECT_EQ(from_drawing.NodIndexOf("NOD_1"), 1);
  EXPECT_EQ(from_drawing.NodIndexOf("NOD_2"), 2);
  EXPECT_EQ(from_drawing.NodIndexOf("Nod_3"), 0);
}

TEST_F(LinkFiles, AnEmptyDrawingResolvesNoRank) {
  const LinkWalk walk(surface);
  EXPECT_EQ(walk.LinkRankOf(11, "x"), 0);
}

TEST_F(LinkFiles, FailuresAreTrappedAndReported) {
  Link("X_CAC", Node(1000, 1000), Node(2000, 1000));
  ModelContext context = Context();
  EXPECT_EQ(GenFicLi1(context, folder.File("absent/m.LI1")), 0);
  ExpectLastMessage(ui, "Fichier introuvable\rGenFicLi1", "Pluvane (erreur n°53, L0)",
                    MessageIcon::kExclamation);
  EXPECT_EQ(GenFicLi2(context, folder.File("absent/m.LI2")), 0);
  ExpectLastMessage(ui, "Fichier introuvable\rGenFicLi2", "Pluvane (erreur n°53, L0)",
                    MessageIcon::kExclamation);
}

}  // namespace
}  // namespace pluvane
