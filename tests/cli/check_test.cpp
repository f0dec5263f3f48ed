// pluvane-cli check, started as a user starts it from a folder of his: the
// lines of the three reports of a small network with one fault of each kind,
// and of the example.
#include <gtest/gtest.h>

#include <string>

#include "cli/program_folder.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

// Two nodes of the same Id and label, neither linked; a catchment of zero
// slope that no route leaves; an injection on a node that does not exist.
const char* const kFaulty =
    "{\"format\":\"pluvane-network\",\"version\":1,"
    "\"page\":{\"logicWidth\":50000,\"logicHeight\":50000},\"objects\":["
    "{\"kind\":2,\"box\":[10,10,20,20],\"tags\":[[\"iName\",\"99\"],[\"Id\",\"Nod_1\"],"
    "[\"iGroup\",\"1\"],[\"libell\",\"Noeud A\"]]},"
    "{\"kind\":2,\"box\":[30,30,40,40],\"tags\":[[\"iName\",\"99\"],[\"Id\",\"Nod_1\"],"
    "[\"iGroup\",\"1\"],[\"libell\",\"Noeud A\"]]},"
    "{\"kind\":2,\"box\":[100,100,110,110],\"tags\":[[\"iName\",\"1\"],[\"Id\",\"Bv_1\"],"
    "[\"iGroup\",\"1\"],[\"m\",\"0\"]]},"
    "{\"kind\":2,\"box\":[200,200,210,210],\"tags\":[[\"iName\",\"4\"],[\"Id\",\"Hy_1\"],"
    "[\"iGroup\",\"3\"],[\"sNodAm\",\"Nod_9\"]]}]}";

const char* const kForbidden =
    "Id : Bv_1 : pente nulle\n"
    "4 éléments ont été scannés\n"
    " éléments trouvés : 1\n";
const char* const kDoublets =
    "Id : Nod_1 : 2 doublons\n"
    "Id : Noeud A : 2 doublons\n"
    "4 éléments ont été scannés\n"
    " doublons trouvés : 2\n";
const char* const kOrphans =
    "Id : Nod_1\n"
    "Id : Nod_1\n"
    "Id : Bv_1\n"
    "Id : Hy_1\n"
    "4 éléments ont été scannés\n"
    " éléments trouvés : 4\n";

class CheckCli : public ::testing::Test {
 protected:
  CheckCli() { WriteBytes(programs_.Work("faulty.mtf"), kFaulty); }
  ProgramRun Cli(const std::string& arguments) {
    return programs_.Start("pluvane-cli", arguments + " 2>'" + programs_.Work("err.txt") + "' #");
  }
  std::string Err() { return ReadBytes(programs_.Work("err.txt")); }

  ProgramFolder programs_;
};

TEST_F(CheckCli, WithNoChoiceTheThreeChecksRunInTheirOrder) {
  const ProgramRun run = Cli("check faulty.mtf");
  EXPECT_EQ(run.status, 0) << Err();
  EXPECT_EQ(run.output, std::string(kForbidden) + kDoublets + kOrphans);
  EXPECT_EQ(Err(), "");
}

TEST_F(CheckCli, EachCheckRunsAloneOrWithOthersInTheSameOrder) {
  EXPECT_EQ(Cli("check faulty.mtf --doublets").output, kDoublets);
  EXPECT_EQ(Cli("check faulty.mtf --orphans").output, kOrphans);
  EXPECT_EQ(Cli("check faulty.mtf --orphans --forbidden").output,
            std::string(kForbidden) + kOrphans);
}

TEST_F(CheckCli, TheExamplesRoutesHaveNoDiameter) {
  const ProgramRun run = Cli("check Exemples/Demo.mtf --forbidden");
  EXPECT_EQ(run.status, 0) << Err();
  std::string expected;
  for (int route = 1; route <= 9; ++route) {
    expected += "Id : Rou_" + std::to_string(route) + " : diametre nul\n";
  }
  expected += "111 éléments ont été scannés\n éléments trouvés : 9\n";
  EXPECT_EQ(run.output, expected);
}

TEST_F(CheckCli, AnEmptyDrawingIsRefusedWithTheChecksMessage) {
  WriteBytes(programs_.Work("vide.mtf"),
             "{\"format\":\"pluvane-network\",\"version\":1,"
             "\"page\":{\"logicWidth\":50000,\"logicHeight\":50000},\"objects\":[]}");
  const ProgramRun run = Cli("check vide.mtf --doublets");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(Err(), "Recherche de doublon: un reseau doit être chargé !\n");
}

TEST_F(CheckCli, BadUsageIsTwo) {
  EXPECT_EQ(Cli("check").status, 2);
  EXPECT_EQ(Cli("check faulty.mtf --all").status, 2);
  EXPECT_EQ(Cli("check faulty.mtf autre.mtf").status, 2);
}

}  // namespace
}  // namespace pluvane
