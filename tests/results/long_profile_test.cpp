// The long profile: the curves and the script of ticked reaches, compared
// byte for byte with files written by hand from the record layout, the scale's
// rounding, the form frmProf and the menu command that starts the viewer.
#include "results/long_profile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "drawing/surface.h"
#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "results/frm_prof.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

const std::string kExpected = std::string(PLUVANE_TEST_DATA) + "/profile/";

class LongProfileTest : public ::testing::Test {
 protected:
  int Record(int i_name, const std::string& id) {
    const int n = surface.AddObject(2, 0, 0, 10, 10);
    surface.SetObjTag("iName", i_name);
    surface.SetObjTag("Id", id);
    return n;
  }
  void Node(const std::string& id, const std::string& ground) {
    Record(99, id);
    if (!ground.empty()) surface.SetObjTag("Zus", ground);
  }
  // A collector of the kind; `dn` and `section` are written when not empty.
  void Collector(int i_name, const std::string& id, const std::string& up, const std::string& down,
                 const std::string& length, const std::string& z_up, const std::string& z_down,
                 const std::string& dn, const std::string& section = "") {
    Record(i_name, id);
    surface.SetObjTag("sNodAm", up);
    surface.SetObjTag("sNodAv", down);
    surface.SetObjTag("L", length);
    surface.SetObjTag("ZRam", z_up);
    surface.SetObjTag("ZRav", z_down);
    if (!dn.empty()) surface.SetObjTag("Dn", dn);
    if (!section.empty()) surface.SetObjTag("IdSect", section);
  }
  void Reach(const std::string& id, const std::vector<std::pair<std::string, int>>& collectors) {
    Record(100, id);
    surface.SetObjTag("libell", "Bief" + id);
    surface.SetObjTag("NbColl", static_cast<int>(collectors.size()));
    for (std::size_t i = 0; i < collectors.size(); ++i) {
      surface.SetObjTag("IdColl" + std::to_string(i + 1), collectors[i].first);
      surface.SetObjTag("InameColl" + std::to_string(i + 1), collectors[i].second);
    }
  }
  // Two collectors of kind 6 between N1, N2 and N3, with the ground levels given.
  void TwoCollectors(const std::string& g1, const std::string& g2, const std::string& g3) {
    Node("N1", g1);
    Node("N2", g2);
    Node("N3", g3);
    Collector(6, "Caf_1", "N1", "N2", "100", "10", "9.5", "1");
    Collector(6, "Caf_2", "N2", "N3", "50", "9.5", "9", "0.8");
  }
  void ExpectFiles(const std::string& expected) {
    EXPECT_EQ(ReadBytes(work.File("Prof.crb")), ReadBytes(kExpected + expected + "/Prof.crb"));
    EXPECT_EQ(ReadBytes(work.File("Prof.Mst")), ReadBytes(kExpected + expected + "/Prof.Mst"));
  }
  std::string Write(const std::vector<std::string>& reaches) {
    return WriteLongProfile(surface, ui, work.Path(), reaches);
  }

  Surface surface;
  ScriptedUi ui;
  TempFolder work;
};

TEST_F(LongProfileTest, AReachWithAllGroundAtZeroHasNoGroundCurveNoGroundLineAndNoBars) {
  TwoCollectors("0", "", "0");
  Reach("1", {{"Caf_1", 6}, {"Caf_2", 6}});
  EXPECT_EQ(Write({"1"}), work.File("Prof.Mst"));
  ExpectFiles("ground_zero");
  const std::string script = ReadBytes(work.File("Prof.Mst"));
  EXPECT_EQ(script.find("ZTN_"), std::string::npos);
  EXPECT_EQ(script.find("*"), std::string::npos);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(LongProfileTest, SeveralReachesShareOneFrameEachFromDistanceZero) {
  TwoCollectors("12", "11.5", "11");
  Node("N4", "0");
  Collector(7, "Cao_1", "N3", "N4", "80", "9", "8.6", "");
  Reach("1", {{"Caf_1", 6}, {"Caf_2", 6}});
  Reach("2", {{"Cao_1", 7}});
  Write({"1", "2"});
  ExpectFiles("several");
}

TEST_F(LongProfileTest, ACollectorMissingFromTheDrawingIsLeftOutAndTheDistancesCloseUp) {
  TwoCollectors("12", "11.5", "11");
  Reach("3", {{"Caf_1", 6}, {"Cac_99", 5}, {"Caf_2", 6}});
  Write({"3"});
  ExpectFiles("missing_collector");
}

TEST_F(LongProfileTest, AReachWhoseNameHoldsBlanksIsQuoted) {
  Node("N1", "102");
  Node("N2", "101.75");
  Collector(6, "Caf_1", "N1", "N2", "12.5", "100.25", "100", "1.5");
  Reach("Bief Nord", {{"Caf_1", 6}});
  Write({"Bief Nord"});
  ExpectFiles("blank_name");
}

TEST_F(LongProfileTest, KindFiveTakesTheTopOfItsSectionAndTheOtherKindsDn) {
  Node("N1", "0");
  Node("N2", "0");
  Node("N3", "0");
  Node("N4", "0");
  Record(101, "OV");
  surface.SetObjTag("NbPt", "3");
  for (const auto& [tag, value] : std::vector<std::pair<std::string, std::string>>{
           {"X1", "0"}, {"Y1", "0"}, {"X2", "0.6"}, {"Y2", "0.4"}, {"X3", "1.2"}, {"Y3", "0.9"}}) {
    surface.SetObjTag(tag, value);
  }
  Collector(5, "Cac_1", "N1", "N2", "40", "20", "19.6", "3", "OV");
  Collector(6, "Caf_1", "N2", "N3", "60", "19.6", "19", "0.5", "OV");
  Collector(5, "Cac_2", "N3", "N4", "20", "19", "18.9", "2", "NOPE");
  Reach("5", {{"Cac_1", 5}, {"Caf_1", 6}, {"Cac_2", 5}});
  Write({"5"});
  ExpectFiles("section_kind5");
}

TEST_F(LongProfileTest, LimitsRoundedOnTheRunOfEvenValuesAndLeftBeyondIt) {
  Node("N1", "");
  Node("N2", "");
  Collector(6, "Caf_1", "N1", "N2", "1000.02", "47.5", "42.5", "0");
  Reach("6", {{"Caf_1", 6}});
  Write({"6"});
  ExpectFiles("limits");
}

TEST_F(LongProfileTest, TheGroundAtDistanceZeroIsTakenFromRankOneOnly) {
  TwoCollectors("12", "11.5", "11");
  Reach("7", {{"Gone", 6}, {"Caf_1", 6}, {"Caf_2", 6}});
  const ReachProfile reach = ReadReachProfile(surface, "7");
  ASSERT_TRUE(reach.found);
  EXPECT_EQ(reach.ground, (std::vector<double>{0, 11.5, 11}));
  EXPECT_EQ(reach.start, (std::vector<double>{0, 100}));
  EXPECT_TRUE(reach.has_ground);
}

TEST_F(LongProfileTest, ABlankedRankIsPassedOverAndTheRankBehindTheCountIsNotRead) {
  TwoCollectors("0", "0", "0");
  Reach("8", {{"Caf_1", 6}, {"", 0}, {"Caf_2", 6}});
  surface.SetObjTag("NbColl", "2");
  const ReachProfile reach = ReadReachProfile(surface, "8");
  EXPECT_EQ(reach.end, (std::vector<double>{100}));
}

TEST_F(LongProfileTest, AReachNoLongerInTheNetworkWritesNoCurveButStaysInTheScript) {
  TwoCollectors("0", "0", "0");
  Reach("1", {{"Caf_1", 6}, {"Caf_2", 6}});
  WriteBytes(work.File("prof.CRB"), "'ZR_old'\r\n     0.000     1.000\r\n");
  Write({"1", "9"});
  EXPECT_FALSE(FileExist(work.File("prof.CRB")));
  EXPECT_EQ(ReadBytes(work.File("Prof.crb")), ReadBytes(kExpected + "ground_zero/Prof.crb"));
  const std::string script = ReadBytes(work.File("Prof.Mst"));
  EXPECT_NE(script.find("\"Bief 1, 9\""), std::string::npos);
  EXPECT_NE(script.find("    Plotxy 1 \"Prof.crb\" \"ZR_9\" \"\" 0 1 16711680 0  0 \r\n"),
            std::string::npos);
}

TEST(ProfileScale, RoundsYByFivesWithTiesToEvenThenOnTheRunOfTwos) {
  // 42.5 / 5 = 8.5 goes to 8, 47.5 / 5 = 9.5 to 10.
  ProfileScale s = ProfileScaleOf(0, 150, 42.5, 47.5);
  EXPECT_EQ(s.y_min, 34);  // 35, then 36 on the run, then 2 lower
  EXPECT_EQ(s.y_max, 56);  // 55, then 56
  // A Y minimum at 0 rises to 2 and is not lowered: 2.01 is not below 2.
  s = ProfileScaleOf(0, 150, 3, 4);
  EXPECT_EQ(s.y_min, 2);
  // Beyond 1000 a limit stays where it is, then goes 2 lower.
  s = ProfileScaleOf(0, 150, 1200, 1210);
  EXPECT_EQ(s.y_min, 1193);
  EXPECT_EQ(s.y_max, 1215);
}

TEST(ProfileScale, XLimitsAtTheEdgesOfTheRun) {
  EXPECT_EQ(ProfileScaleOf(0, 10.005, 0, 1).x_max, 10);  // 10.01 is above it
  EXPECT_EQ(ProfileScaleOf(0, 10.01, 0, 1).x_max, 12);
  EXPECT_EQ(ProfileScaleOf(0, 1000, 0, 1).x_max, 1000);
  EXPECT_EQ(ProfileScaleOf(0, 1000.01, 0, 1).x_max, 1000.01);
  EXPECT_EQ(ProfileScaleOf(0, 150, 0, 1).x_min, 0);
  EXPECT_EQ(ProfileScaleOf(3, 150, 0, 1).x_min, 2);
  EXPECT_EQ(ProfileScaleOf(4, 150, 0, 1).x_min, 4);  // 6 is the first above, less 2
  EXPECT_EQ(ProfileScaleOf(-150, 150, 0, 1).x_min, -102);
  const ProfileScale s = ProfileScaleOf(0, 1000.02, 0, 56);
  EXPECT_EQ(s.x_step, 50);
  EXPECT_EQ(s.x_spacing, 2);
  EXPECT_EQ(s.x_format, "#########0");
}

// The form and the menu command.
class FrmProfTest : public LongProfileTest {
 protected:
  void SetUp() override {
    TwoCollectors("12", "11.5", "11");
    Reach("1", {{"Caf_1", 6}, {"Caf_2", 6}});
    Reach("2", {{"Caf_2", 6}});
    state.WorkDir = work.Path();
    state.AppPath = app.Path();
  }
  // The form ticks `rows` and runs cmdVisu, as the user does.
  ShowModal TickAndShow(std::vector<int> rows) {
    return [this, rows](FormController& form) {
      ++opened;
      auto& prof = dynamic_cast<FrmProf&>(form);
      for (int row : rows) prof.Spread1.SetText(1, row, "1");
      prof.Run("cmdVisu");
    };
  }
  SimulationState state;
  TempFolder app;
  int opened = 0;
};

TEST_F(FrmProfTest, NoReachInTheNetworkSaysSoAndOpensNothing) {
  Surface empty;
  mnuOpt_Bief_Profil(empty, state, ui, TickAndShow({1}));
  ExpectLastMessage(ui,
                    "Au moins un bief de collecteurs être défini !\r\n"
                    "Les Biefs sont créés dans 'Option/Bief de collecteurs/Nouveau'",
                    "Contrôle de cohérence", MessageIcon::kExclamation);
  EXPECT_EQ(opened, 0);
}

TEST_F(FrmProfTest, VisuWithNoReachTickedSaysSoAndTheFormStays) {
  FrmProf form(surface, ui, work.Path());
  ASSERT_EQ(form.Spread1.MaxRows(), 2);
  form.Run("cmdVisu");
  ExpectLastMessage(ui, "aucun bief n'a été défini !!!", "Visu de profil en long",
                    MessageIcon::kExclamation);
  EXPECT_FALSE(form.Closed());
  EXPECT_TRUE(form.ScriptPath().empty());
  EXPECT_FALSE(FileExist(work.File("Prof.Mst")));
}

TEST_F(FrmProfTest, RowsListTheReachesAndRememberTheLastProfile) {
  // The last profile showed reach 2 and a reach 7 that the network lost.
  WriteBytes(work.File("Prof.crb"), "'ZR_2'\r\n     0.000     1.000\r\n'ZV_2'\r\n'ZR_7'\r\n");
  FrmProf form(surface, ui, work.Path());
  EXPECT_EQ(form.Caption(), "Profil en long");
  ASSERT_EQ(form.Spread1.MaxRows(), 3);
  EXPECT_EQ(form.Spread1.Text(2, 1), "1");
  EXPECT_EQ(form.Spread1.Text(1, 1), "0");
  EXPECT_EQ(form.Spread1.Text(2, 2), "2");
  EXPECT_EQ(form.Spread1.Text(1, 2), "1");
  EXPECT_EQ(form.Spread1.Text(2, 3), "7");
  EXPECT_EQ(form.Spread1.Text(1, 3), "0");
  EXPECT_EQ(form.Spread1.BackColour(1, 1), 8454143);
  EXPECT_EQ(form.Spread1.BackColour(2, 2), 8454143);
  EXPECT_EQ(form.Spread1.BackColour(2, 3), kButtonFaceColour);
  EXPECT_EQ(form.Spread1.Type(1, 1).kind, CellType::kCheckBox);
  EXPECT_TRUE(form.Spread1.Locked(2, 1));
  EXPECT_EQ(form.TickedReaches(), std::vector<std::string>{"2"});
  EXPECT_TRUE(ui.Empty());
}

TEST_F(FrmProfTest, QuitWritesNothingAndStartsNoViewer) {
  int started = 0;
  mnuOpt_Bief_Profil(
      surface, state, ui, [](FormController& form) { form.Run("cmdQuit"); },
      [&started](const std::string&, const std::string&) { ++started; });
  EXPECT_EQ(started, 0);
  EXPECT_FALSE(FileExist(work.File("Prof.Mst")));
  EXPECT_FALSE(FileExist(work.File("Vistrel.Mst")));
}

TEST_F(FrmProfTest, VisuCopiesTheScriptToVistrelMstAndStartsTheViewerThere) {
  WriteBytes(work.File("Vistrel.Mst"), "old");
  std::string command, folder;
  mnuOpt_Bief_Profil(surface, state, ui, TickAndShow({2, 1}),
                     [&](const std::string& line, const std::string& where) {
                       command = line;
                       folder = where;
                     });
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(ReadBytes(work.File("Vistrel.Mst")), ReadBytes(work.File("Prof.Mst")));
  EXPECT_NE(ReadBytes(work.File("Prof.Mst")).find("\"Bief 1, 2\""), std::string::npos);
  EXPECT_EQ(command, "vistrel \"Vistrel.Mst\"");
  EXPECT_EQ(folder, work.Path());
}

TEST_F(FrmProfTest, TheViewerProgramOfTheProgramsFolderRunsWithoutBeingWaitedFor) {
  // A stand-in viewer that notes its folder and argument, then lingers.
  const std::string viewer = app.File("vistrel");
  const std::string note = work.File("seen.txt");
  WriteBytes(viewer, "#!/bin/sh\npwd > '" + note + ".tmp'; echo \"$1\" >> '" + note +
                         ".tmp'; mv '" + note + ".tmp' '" + note + "'; sleep 3\n");
  ::chmod(viewer.c_str(), 0755);
  EXPECT_EQ(ViewerCommandLine(state, "Vistrel.Mst"), viewer + " \"Vistrel.Mst\"");
  const auto began = std::chrono::steady_clock::now();
  mnuOpt_Bief_Profil(surface, state, ui, TickAndShow({1}));
  EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(2));
  for (int i = 0; i < 200 && !FileExist(note); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  const std::string seen = ReadBytes(note);
  EXPECT_EQ(seen, fs::canonical(work.Path()).string() + "\nVistrel.Mst\n");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(FrmProfTest, AViewerThatCannotStartIsReported) {
  state.AppPath = work.File("nowhere");
  ::setenv("PATH_SAVED_FOR_TEST", ::getenv("PATH") ? ::getenv("PATH") : "", 1);
  ::setenv("PATH", work.File("nowhere").c_str(), 1);
  mnuOpt_Bief_Profil(surface, state, ui, TickAndShow({1}));
  ::setenv("PATH", ::getenv("PATH_SAVED_FOR_TEST"), 1);
  ASSERT_FALSE(ui.Empty());
  EXPECT_NE(ui.Last().text.find("(vistrel \"Vistrel.Mst\")"), std::string::npos);
}

}  // namespace
}  // namespace pluvane
