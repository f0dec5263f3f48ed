// The text exports of the network: each file compared byte for byte with the
// one written by hand from the column tables, the report of the exports of
// several types, and the odd cases of the fields.
#include "exchange/export_text.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "drawing/surface_helpers.h"
#include "exchange/export_commands.h"
#include "exchange/export_network.h"
#include "exchange/recording_console.h"
#include "foundation/expect_message.h"
#include "foundation/numbers.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "foundation/text.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

std::string Expected(const std::string& name) {
  return ReadBytes(std::string(PLUVANE_TEST_DATA) + "/" + name);
}

// Ticks every line offered, as "Tout sélectionner" then "Export" would.
ChooseExportLines TickAll() {
  return [](const std::string& source, const std::string& list_file) {
    fs::copy_file(source, list_file, fs::copy_options::overwrite_existing);
  };
}

class TextExport : public ::testing::Test {
 protected:
  TextExport() {
    BuildExportNetwork(surface_);
    state_.NetworkFile = network_.File("Reseau.mtf");
    state_.WorkDir = work_.Path();
    state_.calibration = ExportCalibration();
  }

  std::string Out(const std::string& name) const { return ReadBytes(out_.File(name)); }

  TempFolder network_, work_, out_;
  Surface surface_;
  NetworkState state_;
  ScriptedUi ui_;
  RecordingConsole log_;
};

TEST_F(TextExport, NodeFileAsWrittenByHand) {
  ui_.Queue(out_.Path());
  EXPECT_EQ(MnuFi_Export_Txt_Nod(surface_, state_, ui_), 4);
  EXPECT_EQ(Out("Reseau_Nod.txt"), Expected("Reseau_Nod.txt"));
}

TEST_F(TextExport, SingularityFilesAsWrittenByHand) {
  ui_.Queue(out_.Path());
  EXPECT_EQ(MnuFi_Export_Txt_App(surface_, state_, ui_, log_, TickAll()), 3);
  EXPECT_EQ(Out("Reseau_BV.txt"), Expected("Reseau_BV.txt"));
  EXPECT_EQ(Out("Reseau_HYBV.txt"), Expected("Reseau_HYBV.txt"));
  EXPECT_EQ(Out("Reseau_HY.txt"), Expected("Reseau_HY.txt"));
}

TEST_F(TextExport, CollectorFilesAsWrittenByHand) {
  ui_.Queue(out_.Path());
  EXPECT_EQ(MnuFi_Export_Txt_Can(surface_, state_, ui_, log_, TickAll()), 3);
  EXPECT_EQ(Out("Reseau_CI.txt"), Expected("Reseau_CI.txt"));
  EXPECT_EQ(Out("Reseau_PF.txt"), Expected("Reseau_PF.txt"));
  EXPECT_EQ(Out("Reseau_PO.txt"), Expected("Reseau_PO.txt"));
}

TEST_F(TextExport, ANodeWithoutAnyNameIsADashPaddedTo18) {
  Surface surface;
  AddExportObject(surface, 99, "Nod_1",
                  {{"libell", ""}, {"Libell", ""}, {"Xus", "1"}, {"Yus", "2"}, {"Zus", "3"}});
  const std::string file = out_.File("n.txt");
  EXPECT_EQ(ExportObjData2TxtFile(ui_, file, surface, 99), 1);
  EXPECT_EQ(ReadBytes(file),
            "-                 "
            "       1.000       2.000        3.00\r\n");
}

TEST_F(TextExport, AHydrographWithAnEmptyTagDeclaresOnlyItsUsablePoints) {
  Surface surface;
  AddExportObject(surface, 4, "Hy_1",
                  {{"libell", "H"}, {"NbPt", "3"}, {"X1", "1"}, {"Y1", "2"}, {"X2", "3"},
                   {"Y2", ""}, {"X3", "5"}, {"Y3", "6"}});
  const std::string file = out_.File("hy.txt");
  EXPECT_EQ(ExportHYFile(surface, 4, file), 1);
  EXPECT_EQ(ReadBytes(file),
            "                   H                   -     0.000      0.00\r\n"
            "    2\r\n"
            "      1.00      2.00\r\n"
            "      5.00      6.00\r\n"
            "\r\n");
}

TEST_F(TextExport, AValueWiderThanItsFieldShiftsTheColumns) {
  Surface surface;
  AddExportObject(surface, 3, "HyBv_1", {{"libell", "E"}, {"Qsec", "1234567.5"}, {"SR", "1"}});
  const std::string file = out_.File("hybv.txt");
  EXPECT_EQ(ExportBVFile(surface, Calibration{}, 3, file), 1);
  EXPECT_EQ(ReadBytes(file),
            "                   E1234567.500      1.00\r\n"
            "\r\n");
}

TEST_F(TextExport, ACatchmentIsPutBackWhereItStands) {
  const int bv = FindObject(surface_, "Id", "Bv_1");
  ASSERT_GT(bv, 0);
  EXPECT_EQ(ExportBVFile(surface_, state_.calibration, 1, out_.File("bv.txt")), 2);
  EXPECT_EQ(Val(TagOfObject(surface_, bv, "Xus")), 1105);
  EXPECT_EQ(Val(TagOfObject(surface_, bv, "Yus")), 4795);
}

TEST_F(TextExport, ATypeWithoutElementsMakesNoFile) {
  Surface surface;
  const std::string file = out_.File("none.txt");
  EXPECT_EQ(ExportCanFile(surface, 6, file), 0);
  EXPECT_EQ(ExportHYFile(surface, 4, file), 0);
  EXPECT_EQ(ExportBVFile(surface, Calibration{}, 1, file), 0);
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(TextExport, TheReportNamesEachTypeAndItsFile) {
  const std::string selection = work_.File("sel.tmp");
  const std::string report = network_.File("ExportApp.msg");
  WriteBytes(selection, "HY : Hydrogramme synthétique\r\nsans deux-points\r\n  BV  : x\r\n");
  EXPECT_EQ(ExportApp(surface_, state_, ui_, selection, report, out_.Path()), 2);
  std::vector<std::string> lines;
  ASSERT_TRUE(ReadTextLines(report, lines));
  EXPECT_EQ(lines, (std::vector<std::string>{
                       "<<< Export des singularités hydrauliques du reseau = Reseau >>>",
                       "",
                       "3 HY             \tont été regénérés dans le fichier " +
                           out_.File("Reseau_HY.txt"),
                       "2 BV             \tont été regénérés dans le fichier " +
                           out_.File("Reseau_BV.txt"),
                   }));
  EXPECT_TRUE(fs::exists(out_.File("Reseau_HY.txt")));
  EXPECT_FALSE(fs::exists(out_.File("Reseau_HYBV.txt")));
}

TEST_F(TextExport, ACollectorTypeWithoutElementsSaysZero) {
  Surface surface;
  AddExportObject(surface, 5, "Cac_1", {{"libell", "C"}});
  const std::string selection = work_.File("sel.tmp");
  const std::string report = network_.File("ExportApp.msg");
  WriteBytes(selection, "CI : collecteur circulaire\r\nPO : collecteur ouvert\r\n");
  EXPECT_EQ(ExportCan(surface, state_, ui_, selection, report, out_.Path()), 2);
  std::vector<std::string> lines;
  ASSERT_TRUE(ReadTextLines(report, lines));
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines[0], "<<< Export des canalisations du reseau = Reseau >>>");
  EXPECT_EQ(lines[2], "1 CI             \tont été regénérés dans le fichier " +
                          out_.File("Reseau_CI.txt"));
  EXPECT_EQ(lines[3], "0 PO             \tont été regénérés dans le fichier " +
                          out_.File("Reseau_PO.txt"));
  EXPECT_FALSE(fs::exists(out_.File("Reseau_PO.txt")));
}

TEST_F(TextExport, AnUnwritableNodeFileIsReported) {
  const std::string file = out_.File("absent/n.txt");
  EXPECT_EQ(ExportObjData2TxtFile(ui_, file, surface_, 99), 0);
  ExpectLastMessage(ui_, "Chemin d'accès introuvable\rExportObjData2TxtFile",
                    "Pluvane (erreur n°76, L0)", MessageIcon::kExclamation);
}

TEST_F(TextExport, AnUnwritableTypeIsReportedAndCountsZero) {
  const std::string selection = work_.File("sel.tmp");
  WriteBytes(selection, "PF : collecteur fermé\r\n");
  const std::string report = network_.File("ExportApp.msg");
  EXPECT_EQ(ExportCan(surface_, state_, ui_, selection, report, out_.File("absent")), 1);
  ExpectLastMessage(ui_, "Chemin d'accès introuvable\rExportCanFile",
                    "Pluvane (erreur n°76, L0)", MessageIcon::kExclamation);
  std::vector<std::string> lines;
  ASSERT_TRUE(ReadTextLines(report, lines));
  EXPECT_EQ(lines.back().substr(0, 18), "0 PF             \t");
}

TEST_F(TextExport, SelectedTypesAreTheTrimmedTextsBeforeTheColon) {
  EXPECT_EQ(SelectedTypes({" CI : a", "rien", "PO:b:c", ""}),
            (std::vector<std::string>{"CI", "PO"}));
}

}  // namespace
}  // namespace pluvane
