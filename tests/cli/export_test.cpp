// pluvane-cli export, started as a user starts it from another folder with
// relative paths: the files of the text exports, compared with the ones
// written by hand, the report on standard output, and nothing else left
// behind.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "cli/program_folder.h"
#include "exchange/export_network.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

std::string Expected(const std::string& name) {
  return ReadBytes(std::string(PLUVANE_TESTS) + "/exchange/data/" + name);
}

class ExportCli : public ::testing::Test {
 protected:
  ExportCli() {
    fs::create_directories(programs_.Work("reseaux"));
    Surface surface;
    BuildExportNetwork(surface);
    EXPECT_TRUE(surface.SaveFile(programs_.Work("reseaux/Reseau.mtf"), kNativeFormat));
    before_ = Files(programs_.Work("reseaux"));
  }

  static std::vector<std::string> Files(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  // The network's folder holds the network and what is named, nothing else.
  void ExpectNetworkFolder(std::vector<std::string> added) {
    for (const std::string& name : before_) added.push_back(name);
    std::sort(added.begin(), added.end());
    EXPECT_EQ(Files(programs_.Work("reseaux")), added);
  }

  ProgramFolder programs_;
  std::vector<std::string> before_;
};

TEST_F(ExportCli, NodesGoBesideTheNetworkByDefault) {
  const SplitRun run = programs_.Cli("export nodes reseaux/Reseau.mtf");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "");
  const std::string file = programs_.Work("reseaux/Reseau_Nod.txt");
  EXPECT_NE(run.err.find("Export de noeuds en fichier: ok, 4 noeuds ont été regénérés dans le "
                         "fichier \r" +
                         file + "\n"),
            std::string::npos)
      << run.err;
  EXPECT_EQ(ReadBytes(file), Expected("Reseau_Nod.txt"));
  ExpectNetworkFolder({"Reseau_Nod.txt"});
}

TEST_F(ExportCli, SingularitiesIntoAFolderWithTheReportOnTheOutput) {
  const SplitRun run = programs_.Cli("export app reseaux/Reseau.mtf --dir sortie");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out,
            "<<< Export des singularités hydrauliques du reseau = Reseau >>>\n\n"
            "2 BV             \tont été regénérés dans le fichier " +
                programs_.Work("sortie/Reseau_BV.txt") +
                "\n"
                "2 HYBV           \tont été regénérés dans le fichier " +
                programs_.Work("sortie/Reseau_HYBV.txt") +
                "\n"
                "3 HY             \tont été regénérés dans le fichier " +
                programs_.Work("sortie/Reseau_HY.txt") + "\n");
  EXPECT_EQ(ReadBytes(programs_.Work("sortie/Reseau_BV.txt")), Expected("Reseau_BV.txt"));
  EXPECT_EQ(ReadBytes(programs_.Work("sortie/Reseau_HYBV.txt")), Expected("Reseau_HYBV.txt"));
  EXPECT_EQ(ReadBytes(programs_.Work("sortie/Reseau_HY.txt")), Expected("Reseau_HY.txt"));
  EXPECT_EQ(Files(programs_.Work("sortie")).size(), 3u);
  // Neither the report nor the chooser's files stay.
  ExpectNetworkFolder({});
}

TEST_F(ExportCli, CollectorsOfTheTypesListedInTheOrderOfTheOffer) {
  const SplitRun run = programs_.Cli("export links reseaux/Reseau.mtf --types po,CI --dir sortie");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out,
            "<<< Export des canalisations du reseau = Reseau >>>\n\n"
            "2 CI             \tont été regénérés dans le fichier " +
                programs_.Work("sortie/Reseau_CI.txt") +
                "\n"
                "1 PO             \tont été regénérés dans le fichier " +
                programs_.Work("sortie/Reseau_PO.txt") + "\n");
  EXPECT_EQ(ReadBytes(programs_.Work("sortie/Reseau_CI.txt")), Expected("Reseau_CI.txt"));
  EXPECT_EQ(ReadBytes(programs_.Work("sortie/Reseau_PO.txt")), Expected("Reseau_PO.txt"));
  EXPECT_FALSE(fs::exists(programs_.Work("sortie/Reseau_PF.txt")));
  ExpectNetworkFolder({});
}

TEST_F(ExportCli, EveryCollectorTypeByDefault) {
  const SplitRun run = programs_.Cli("export links reseaux/Reseau.mtf");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(ReadBytes(programs_.Work("reseaux/Reseau_PF.txt")), Expected("Reseau_PF.txt"));
  ExpectNetworkFolder({"Reseau_CI.txt", "Reseau_PF.txt", "Reseau_PO.txt"});
}

TEST_F(ExportCli, TheFolderGivenIsNoQuestion) {
  // The folder comes from the command line: no folder question is shown.
  for (const std::string& arguments :
       {std::string("export nodes reseaux/Reseau.mtf"),
        std::string("export app reseaux/Reseau.mtf --dir sortie"),
        std::string("export links reseaux/Reseau.mtf --dir sortie")}) {
    const SplitRun run = programs_.Cli(arguments);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err.find("Sélection du répertoire de destination"), std::string::npos)
        << arguments << "\n"
        << run.err;
  }
}

TEST_F(ExportCli, ANetworkWithNothingToOfferIsRefused) {
  WriteBytes(programs_.Work("vide.mtf"),
             "{\"format\":\"pluvane-network\",\"version\":1,"
             "\"page\":{\"logicWidth\":100000,\"logicHeight\":100000},\"objects\":[]}");
  const SplitRun run = programs_.Cli("export app vide.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_NE(run.err.find("choix d'élément à exporter: aucune ligne n'a été cochée !!!\n"),
            std::string::npos)
      << run.err;
  EXPECT_FALSE(fs::exists(programs_.Work("ExportApp_In.tmp")));
  EXPECT_FALSE(fs::exists(programs_.Work("ExportApp.msg")));
}

TEST_F(ExportCli, BadUsage) {
  EXPECT_EQ(programs_.Cli("export").status, 2);
  EXPECT_EQ(programs_.Cli("export tout reseaux/Reseau.mtf").status, 2);
  EXPECT_EQ(programs_.Cli("export nodes").status, 2);
  EXPECT_EQ(programs_.Cli("export nodes reseaux/Reseau.mtf --types CI").status, 2);
  EXPECT_EQ(programs_.Cli("export app reseaux/Reseau.mtf --types CI").status, 2);
  EXPECT_EQ(programs_.Cli("export links reseaux/Reseau.mtf --types").status, 2);
  EXPECT_EQ(programs_.Cli("export links reseaux/Reseau.mtf --types CI,,PF").status, 2);
  EXPECT_EQ(programs_.Cli("export links reseaux/Reseau.mtf autre.mtf").status, 2);
  ExpectNetworkFolder({});
}

TEST_F(ExportCli, AMissingNetworkIsRefused) {
  EXPECT_EQ(programs_.Cli("export nodes absent.mtf").status, 1);
}

}  // namespace
}  // namespace pluvane
