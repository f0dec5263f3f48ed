#include "simulation/node_file.h"

#include <gtest/gtest.h>

#include "foundation/errors.h"
#include "simulation/model_fixture.h"

namespace pluvane {
namespace {

class NodeFile : public ModelTest {
 protected:
  std::string Generate() {
    ModelContext context = Context();
    const std::string path = ModelFile(".NOD");
    count = GenFicNod(context, path);
    return ReadBytes(path);
  }
  int count = -1;
};

TEST_F(NodeFile, WithoutCatchmentsTheSecondCountIsZero) {
  Set(Node(1000, 1000), {{"libell", "A"}});
  Set(Node(2000, 500), {{"libell", "B"}, {"iLink", "2"}});
  EXPECT_EQ(Generate(),
            "         2         0\r\n"
            "         1         0     1000.     9000.                   A\r\n"
            "         2         2     2000.     9500.                   B\r\n");
  EXPECT_EQ(count, 2);
}

TEST_F(NodeFile, TheLinkNumberIsRoundedHalfToEven) {
  Set(Node(1000, 1000), {{"libell", "A"}, {"iLink", "3.5"}});
  Set(Node(2000, 500), {{"libell", "B"}, {"iLink", "2.5"}});
  Set(Node(3000, 500), {{"libell", "C"}, {"iLink", "2.6"}});
  EXPECT_EQ(Generate(),
            "         3         0\r\n"
            "         1         4     1000.     9000.                   A\r\n"
            "         2         2     2000.     9500.                   B\r\n"
            "         3         3     3000.     9500.                   C\r\n");
}

TEST_F(NodeFile, AnEmptyLabelEndsTheLineWithOneBlankAtColumn41) {
  Set(Node(1000, 1000), {{"libell", "   "}});
  const std::string nod = Generate();
  const std::string line = nod.substr(22, nod.size() - 24);
  EXPECT_EQ(line, "         1         0     1000.     9000. ");
  EXPECT_EQ(line.size(), 41u);
}

TEST_F(NodeFile, ALabelOfTwentyFiveCharactersIsCutToTwenty) {
  Set(Node(1000, 1000), {{"libell", " Noeud de sortie du reseau"}});
  const std::string nod = Generate();
  EXPECT_EQ(nod.substr(22 + 40, 22), "Noeud de sortie du r\r\n");
}

TEST_F(NodeFile, TheCentreIsRoundedThenMapped) {
  const int node = Node(1000, 1000);
  surface.SetCurrentObject(node);
  surface.SetObjectBounds(1000, 2000, 1003, 2005);  // centre (1001.5, 2002.5)
  // X = 2 Xlog, Y = 10000 - Ylog.
  state.calibration = Calibration{};
  state.calibration.YORI = -10000;
  state.calibration.XMUCOS = 2;
  state.calibration.XLAMU = 1;
  state.calibration.XLACOS = 1;
  const std::string nod = Generate();
  // 1001.5 and 2002.5 round half to even: 1002 and 2002.
  EXPECT_EQ(nod.substr(22 + 20, 20), "     2004.     7998.");
}

TEST_F(NodeFile, OtherKindsAreNotListed) {
  const int node = Node(1000, 1000);
  Symbol("X_BVS", 0, 0, node);
  Symbol("X_HYBV", 0, 0, node);
  EXPECT_EQ(Generate().substr(0, 22), "         1         0\r\n");
}

TEST_F(NodeFile, GeneratingTwiceRenumbersTheCatchments) {
  const int a = Node(1000, 1000);
  Node(2000, 1000);
  const int bv = Symbol("X_BV", 1000, 3000);
  Generate();
  EXPECT_EQ(TagOf(bv, "sNodAm"), "3");
  Set(bv, {{"sNodAm", "Nod_1"}});
  Generate();
  EXPECT_EQ(TagOf(bv, "sNodAm"), "3");
  surface.SetCurrentObject(a);
  surface.DeleteObject(4);
  const std::string nod = Generate();
  EXPECT_EQ(TagOf(bv, "sNodAm"), "2");
  EXPECT_EQ(nod.substr(0, 22), "         1         1\r\n");
  EXPECT_NE(nod.find("\r\n         2         0     1000.     7000.                Bv_1\r\n"),
            std::string::npos);
}

TEST_F(NodeFile, TheNodeListsFollowTheSearchOrder) {
  const int a = Node(1000, 1000);
  Symbol("X_BV", 1000, 3000);
  const int b = Node(2000, 1000);
  Set(b, {{"Id", "Nod_B"}});
  std::vector<int> handles;
  std::vector<std::string> ids;
  EXPECT_EQ(GetTabNodHdle(surface, handles), 2);
  EXPECT_EQ(handles, (std::vector<int>{a, b}));
  EXPECT_EQ(GetTabNodId(surface, ids), 2);
  EXPECT_EQ(ids, (std::vector<std::string>{"Nod_1", "Nod_B"}));
}

TEST_F(NodeFile, AFileThatCannotBeWrittenIsARunTimeError) {
  Node(1000, 1000);
  ModelContext context = Context();
  EXPECT_THROW(GenFicNod(context, folder.File("absent/x.NOD")), AppError);
}

}  // namespace
}  // namespace pluvane
