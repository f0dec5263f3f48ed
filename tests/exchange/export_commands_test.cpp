// The commands of Fichier > Exporter: their dialogs, messages, status texts,
// the chooser's offer, the report shown in the console and the files left
// behind.
#include "exchange/export_commands.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "exchange/export_network.h"
#include "exchange/recording_console.h"
#include "foundation/expect_message.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "foundation/text.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class ExportCommands : public ::testing::Test {
 protected:
  ExportCommands() {
    BuildExportNetwork(surface_);
    state_.NetworkFile = network_.File("Reseau.mtf");
    state_.WorkDir = work_.Path();
    state_.calibration = ExportCalibration();
  }

  // A chooser that keeps what it was offered and ticks the lines given.
  ChooseExportLines Choose(std::vector<std::string> ticked) {
    return [this, ticked](const std::string& source, const std::string& list_file) {
      ReadTextLines(source, offered_);
      offer_file_ = source;
      if (!ticked.empty()) WriteTextLines(list_file, ticked);
    };
  }

  std::vector<std::string> FilesIn(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  TempFolder network_, work_, out_;
  Surface surface_;
  NetworkState state_;
  ScriptedUi ui_;
  RecordingConsole log_;
  std::vector<std::string> offered_;
  std::string offer_file_;
};

TEST_F(ExportCommands, NodesAskTheFolderAndTellTheCount) {
  ui_.Queue(out_.Path());
  EXPECT_EQ(MnuFi_Export_Txt_Nod(surface_, state_, ui_), 4);
  ASSERT_EQ(ui_.Messages().size(), 2u);
  EXPECT_EQ(ui_.Messages()[0].kind, "folder");
  EXPECT_EQ(ui_.Messages()[0].title, "Sélection du répertoire de destination");
  EXPECT_EQ(ui_.Messages()[0].text, network_.Path());
  const std::string file = out_.File("Reseau_Nod.txt");
  ExpectLastMessage(ui_, "ok, 4 noeuds ont été regénérés dans le fichier \r" + file,
                    "Export de noeuds en fichier", MessageIcon::kNone);
  EXPECT_EQ(ui_.Statuses(), (std::vector<std::string>{"export des noeuds en cours...",
                                                      "Ok exportation d'elm : 4"}));
  EXPECT_FALSE(ui_.Progress().empty());
  EXPECT_EQ(ui_.Progress().back(), 0);
}

TEST_F(ExportCommands, NodesEndWhenTheFolderIsCancelled) {
  ui_.Queue("");
  EXPECT_EQ(MnuFi_Export_Txt_Nod(surface_, state_, ui_), -1);
  EXPECT_EQ(ui_.Messages().size(), 1u);
  EXPECT_TRUE(FilesIn(out_.Path()).empty());
  EXPECT_TRUE(FilesIn(network_.Path()).empty());
}

TEST_F(ExportCommands, TheOfferListsTheTypesThatHaveElements) {
  ui_.Queue("");
  MnuFi_Export_Txt_App(surface_, state_, ui_, log_, Choose({}));
  EXPECT_EQ(offer_file_, work_.File("ExportApp_In.tmp"));
  EXPECT_EQ(offered_, (std::vector<std::string>{"BV : Centroïde de BV",
                                                "HYBV : Hydrogramme des BV",
                                                "HY : Hydrogramme synthétique"}));
  Surface only_pf;
  AddExportObject(only_pf, 6, "Caf_1", {{"libell", "F"}});
  EXPECT_EQ(CollectorOffers(only_pf), std::vector<std::string>{"PF : collecteur fermé"});
  EXPECT_EQ(ApplicationOffers(only_pf), std::vector<std::string>{});
  EXPECT_EQ(CollectorOffers(surface_),
            (std::vector<std::string>{"CI : collecteur circulaire", "PF : collecteur fermé",
                                      "PO : collecteur ouvert"}));
}

TEST_F(ExportCommands, ADroppedChoiceEndsTheCommand) {
  EXPECT_EQ(MnuFi_Export_Txt_App(surface_, state_, ui_, log_, Choose({})), -1);
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(log_.runs(), 0);
  EXPECT_TRUE(FilesIn(work_.Path()).empty());
}

TEST_F(ExportCommands, ACancelledFolderWritesNothing) {
  ui_.Queue("");
  EXPECT_EQ(MnuFi_Export_Txt_Can(surface_, state_, ui_, log_, Choose({"CI : collecteur circulaire"})),
            -1);
  EXPECT_EQ(ui_.Last().kind, "folder");
  EXPECT_EQ(log_.runs(), 0);
  EXPECT_TRUE(FilesIn(work_.Path()).empty());
  EXPECT_TRUE(FilesIn(out_.Path()).empty());
}

TEST_F(ExportCommands, SingularitiesShowTheirReportAndCleanUp) {
  ui_.Queue(out_.Path());
  EXPECT_EQ(MnuFi_Export_Txt_App(
                surface_, state_, ui_, log_,
                Choose({"HYBV : Hydrogramme des BV", "HY : Hydrogramme synthétique"})),
            2);
  EXPECT_EQ(log_.title(), "Export de données");
  EXPECT_EQ(log_.lines(),
            (std::vector<std::string>{
                "<<< Export des singularités hydrauliques du reseau = Reseau >>>", "",
                "2 HYBV           \tont été regénérés dans le fichier " +
                    out_.File("Reseau_HYBV.txt"),
                "3 HY             \tont été regénérés dans le fichier " +
                    out_.File("Reseau_HY.txt")}));
  EXPECT_TRUE(log_.ended());
  EXPECT_FALSE(log_.closed());
  EXPECT_EQ(ui_.Statuses(), (std::vector<std::string>{"export des apports en cours...",
                                                      "ok 2 fichiers générés."}));
  EXPECT_EQ(FilesIn(out_.Path()), (std::vector<std::string>{"Reseau_HY.txt", "Reseau_HYBV.txt"}));
  EXPECT_TRUE(FilesIn(work_.Path()).empty());
  EXPECT_TRUE(FilesIn(network_.Path()).empty());
}

TEST_F(ExportCommands, CollectorsShowTheirReportUnderTheirTitle) {
  ui_.Queue(out_.Path());
  EXPECT_EQ(MnuFi_Export_Txt_Can(surface_, state_, ui_, log_, Choose({"PO : collecteur ouvert"})),
            1);
  EXPECT_EQ(log_.title(), "Export de canalisation");
  ASSERT_EQ(log_.lines().size(), 3u);
  EXPECT_EQ(log_.lines()[0], "<<< Export des canalisations du reseau = Reseau >>>");
  EXPECT_EQ(log_.lines()[2], "1 PO             \tont été regénérés dans le fichier " +
                                 out_.File("Reseau_PO.txt"));
  EXPECT_EQ(ui_.Statuses(), (std::vector<std::string>{"export des canalisations en cours...",
                                                      "ok 1 fichiers générés."}));
  EXPECT_TRUE(FilesIn(work_.Path()).empty());
}

TEST_F(ExportCommands, ShowFileInLogCopiesEveryLine) {
  const std::string file = work_.File("r.msg");
  WriteBytes(file, "un\r\n\r\ntrois\xe9\r\n");
  ShowFileInLog(log_, "Titre", file);
  EXPECT_EQ(log_.title(), "Titre");
  EXPECT_EQ(log_.lines(), (std::vector<std::string>{"un", "", "troisé"}));
  EXPECT_TRUE(log_.ended());
}

TEST_F(ExportCommands, TheMifCommandsLeaveNoFile) {
  EXPECT_EQ(MnuFi_Export_Mif_Nod(state_, ui_), network_.File("Reseau_Nod.Mif"));
  ExpectLastMessage(ui_, "en cours...", "", MessageIcon::kNone);
  EXPECT_EQ(MnuFi_Export_Mif_Cana(state_, ui_), network_.File("Reseau_Can.Mif"));
  ExpectLastMessage(ui_, "en cours...", "", MessageIcon::kNone);
  EXPECT_EQ(ui_.Messages().size(), 2u);
  EXPECT_TRUE(FilesIn(network_.Path()).empty());
  EXPECT_TRUE(FilesIn(work_.Path()).empty());
}

TEST_F(ExportCommands, TheDxfCommandAsksAFileAndWritesNothing) {
  ui_.Queue(out_.File("plan"));
  EXPECT_EQ(MnuFi_Export_Dxf(ui_), out_.File("plan.dxf"));
  ASSERT_EQ(ui_.Messages().size(), 2u);
  EXPECT_EQ(ui_.Messages()[0].kind, "save");
  EXPECT_EQ(ui_.Messages()[0].title, "Exporter le dessin en fichier Autocad");
  EXPECT_EQ(ui_.Messages()[0].text, "*.dxf");
  ExpectLastMessage(ui_, "en cours...", "", MessageIcon::kNone);
  EXPECT_TRUE(FilesIn(out_.Path()).empty());
  ui_.Queue(out_.File("plan.DXF"));
  EXPECT_EQ(MnuFi_Export_Dxf(ui_), out_.File("plan.DXF"));
  ui_.Clear();
  ui_.Queue("");
  EXPECT_EQ(MnuFi_Export_Dxf(ui_), "");
  EXPECT_EQ(ui_.Messages().size(), 1u);
}

}  // namespace
}  // namespace pluvane
