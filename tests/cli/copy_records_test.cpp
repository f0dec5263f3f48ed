// pluvane-cli copy-records, started as a user starts it from a folder of his,
// with relative paths: the library records of one kind of a network copied
// into another network file, which is rewritten in place.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/program_folder.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

// A network of two nodes and a section OV150 of its own, with a tag the
// example's section lacks.
const char* const kDestination =
    "{\"format\":\"pluvane-network\",\"version\":1,"
    "\"page\":{\"logicWidth\":50000,\"logicHeight\":50000},\"objects\":["
    "{\"kind\":2,\"box\":[10,10,20,20],\"tags\":[[\"iName\",\"99\"],[\"Id\",\"Nod_1\"]]},"
    "{\"kind\":2,\"box\":[30,30,40,40],\"tags\":[[\"iName\",\"99\"],[\"Id\",\"Nod_2\"]]},"
    "{\"kind\":2,\"box\":[0,0,1,1],\"hidden\":true,\"tags\":[[\"Id\",\"OV150\"],"
    "[\"iName\",\"101\"],[\"NbPt\",\"2\"],[\"Remarque\",\"ancienne\"]]}]}";

class CopyRecordsCli : public ::testing::Test {
 protected:
  CopyRecordsCli() {
    ini_before_ = ReadBytes(programs_.App("pluvane.ini"));
    demo_before_ = ReadBytes(programs_.Work("Exemples/Demo.mtf"));
    fs::create_directories(programs_.Work("aval"));
    WriteBytes(programs_.Work("aval/Aval.mtf"), kDestination);
  }
  ~CopyRecordsCli() override {
    EXPECT_EQ(ReadBytes(programs_.App("pluvane.ini")), ini_before_);
    // The source network is only read.
    EXPECT_EQ(ReadBytes(programs_.Work("Exemples/Demo.mtf")), demo_before_);
  }

  ProgramFolder programs_;
  std::string ini_before_;
  std::string demo_before_;
};

TEST_F(CopyRecordsCli, SectionsOverwriteTheSectionOfTheSameId) {
  const SplitRun run = programs_.Cli("copy-records Exemples/Demo.mtf aval/Aval.mtf --kind 101");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out,
            "ok 2 obj de type 101 ont été exportés dans " + programs_.Work("aval/Aval.mtf") + "\n");
  EXPECT_EQ(run.err, "");
  const SplitRun info = programs_.Cli("info aval/Aval.mtf");
  EXPECT_NE(info.out.find("101\t2\t"), std::string::npos) << info.out;
  const std::string written = ReadBytes(programs_.Work("aval/Aval.mtf"));
  // OV150 took the example's tags and kept the one of its own.
  EXPECT_NE(written.find("\"ancienne\""), std::string::npos);
  EXPECT_NE(written.find("\"FOSSE\""), std::string::npos);
  EXPECT_EQ(written.find("\"NbPt\",\"2\""), std::string::npos) << written;
  EXPECT_NE(written.find("\"NbPt\",\"7\""), std::string::npos);
  EXPECT_EQ(written.find("\"Mont1\""), std::string::npos);
}

TEST_F(CopyRecordsCli, AMissingDestinationIsRefusedWithTheFormsMessage) {
  const SplitRun run = programs_.Cli("copy-records Exemples/Demo.mtf aval/Absent.mtf --kind 102");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "Fichier Mtf introuvable: Un fichier Mtf doit être spécifié !\n");
  EXPECT_FALSE(fs::exists(programs_.Work("aval/Absent.mtf")));
}

TEST_F(CopyRecordsCli, AKindWithNoRecordIsRefusedAndNothingIsWritten) {
  const SplitRun run = programs_.Cli("copy-records Exemples/Demo.mtf aval/Aval.mtf --kind 109");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "pluvane-cli: aucun objet de type 109 à copier\n");
  EXPECT_EQ(ReadBytes(programs_.Work("aval/Aval.mtf")), kDestination);
}

TEST_F(CopyRecordsCli, AnUnreadableDestinationIsReportedAndKept) {
  WriteBytes(programs_.Work("aval/Abime.mtf"), "abîmé");
  const SplitRun run = programs_.Cli("copy-records Exemples/Demo.mtf aval/Abime.mtf --kind 102");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err,
            "Pluvane (erreur n°321, L0): Format de fichier non valide\rfrmExportObjAlpha\n");
  EXPECT_EQ(ReadBytes(programs_.Work("aval/Abime.mtf")), "abîmé");
}

TEST_F(CopyRecordsCli, BadUsageIsStatusTwo) {
  EXPECT_EQ(programs_.Cli("copy-records Exemples/Demo.mtf aval/Aval.mtf").status, 2);
  EXPECT_EQ(programs_.Cli("copy-records Exemples/Demo.mtf aval/Aval.mtf --kind sections").status,
            2);
  EXPECT_EQ(programs_.Cli("copy-records Exemples/Demo.mtf --kind 101").status, 2);
  EXPECT_EQ(programs_.Cli("copy-records a.mtf b.mtf c.mtf --kind 101").status, 2);
  EXPECT_EQ(ReadBytes(programs_.Work("aval/Aval.mtf")), kDestination);
}

}  // namespace
}  // namespace pluvane
