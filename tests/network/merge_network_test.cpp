#include "network/catalogue.h"
#include "network/merge_network.h"

#include <gtest/gtest.h>

#include <memory>

#include "drawing/surface_helpers.h"
#include "foundation/expect_message.h"
#include "foundation/numbers.h"
#include "network/calibration_fixture.h"
#include "network/georeferencing.h"
#include "network/persistence.h"
#include "network/placement.h"
#include "network/reaches.h"
#include "network/session_fixture.h"
#include "shell/app_state.h"

namespace pluvane {
namespace {

// A drawing being built with the placement functions, on its own state.
struct Builder {
  explicit Builder(Surface& s, AppState& st) : surface(s), state(st) {}
  int Node(double x, double y) { return DrawSymbol(surface, state, ui, x, y, "X_NOD"); }
  int On(const char* key, int node) {
    auto [x, y] = ObjectCentre(surface, node);
    return DrawSymbol(surface, state, ui, x, y, key, node);
  }
  int Link(const char* key, int from, int to) {
    return DrawLink(surface, state, key, from, to, 0, 0);
  }
  void Set(int object, const char* tag, const std::string& value) {
    surface.SetCurrentObject(object);
    surface.SetObjTag(tag, value);
  }
  Surface& surface;
  AppState& state;
  ScriptedUi ui;
};

// Logical (0, 0), (0, 10000), (10000, 10000) are map (605000, 195000),
// (605000, 185000), (615000, 185000): X = 605000 + Xlog, Y = 195000 - Ylog.
void CalibrateGuest(Calibration& c) {
  const std::int32_t lx[] = {0, 0, 0, 10000}, ly[] = {0, 0, 10000, 10000};
  const double ux[] = {0, 605000, 605000, 615000}, uy[] = {0, 195000, 185000, 185000};
  for (int i = 1; i <= 3; ++i) {
    c.logic_x[i] = lx[i];
    c.logic_y[i] = ly[i];
    c.user_x[i] = ux[i];
    c.user_y[i] = uy[i];
  }
  ASSERT_TRUE(SolveCalibration(c));
}

class MergeTest : public SessionTest {
 protected:
  MergeTest() {
    state_.SymbolDir = std::string(PLUVANE_DATA) + "/Symboles";
    guest_state_ = state_;
    CalibrateGuest(guest_state_.calibration);
  }

  // The host: calibrated as X = 600000 + Xlog, Y = 200000 - Ylog, holding
  // Nod_1 to Nod_3, Cac_1 and a catchment complex, saved and opened.
  void OpenHost(bool calibrated = true) {
    if (calibrated) {
      AddHiddenPoints(surface_, state_);
      ASSERT_TRUE(ReadCalibrationPoints(surface_, kINameHiddenCalage, state_.calibration));
      ASSERT_TRUE(SolveCalibration(state_.calibration));
    }
    Builder host(surface_, state_);
    const int n1 = host.Node(20000, 20000), n2 = host.Node(22000, 20000);
    host.Node(24000, 20000);
    host.Link("X_CAC", n1, n2);
    PlaceHydrologicalComplex(surface_, state_, host.ui, n1);
    const std::string path = folder_.File("hote.mtf");
    ASSERT_TRUE(surface_.SaveFile(path, kNativeFormat));
    surface_.ClearDrawing();
    NetworkSession s = Session();
    ASSERT_TRUE(OpenNetwork(s, true, path));
    ui_.Clear();
  }

  // The guest, saved under `name`: four nodes in a row, collectors from the
  // second to the third and fourth with a divider on the second, a basin on
  // the third sending to a connection, a catchment complex on the first, an
  // outlet on the fourth, a reach, and its own calibration records.
  std::string SaveGuest(const std::string& name) {
    Surface guest;
    guest.SetScale(0, 0, 100000, 100000, 16384);
    guest.SetViewHeight(15000);  // nodes 200 wide, centred on whole units
    Builder b(guest, guest_state_);
    for (int i = 0; i < 4; ++i) g_.nodes[i] = b.Node(1000 + 2000 * i, 5000);
    g_.cac1 = b.Link("X_CAC", g_.nodes[0], g_.nodes[1]);
    g_.cac2 = b.Link("X_CAC", g_.nodes[1], g_.nodes[2]);
    g_.cac3 = b.Link("X_CAC", g_.nodes[1], g_.nodes[3]);
    g_.tr = b.Link("X_TR", g_.nodes[2], g_.nodes[3]);
    g_.dqq = b.On("X_DQQ", g_.nodes[1]);
    b.Set(g_.dqq, "IdAval", "Cac_2");
    b.Set(g_.dqq, "IdDer_a", "Cac_3");
    b.Set(g_.dqq, "NbDer", "1");
    g_.rs = b.On("X_RS", g_.nodes[2]);
    b.Set(g_.rs, "IdAval", "Tr_1");
    b.Set(g_.rs, "IdSurv", "Dqq_1");
    g_.clav = b.On("X_CLAV", g_.nodes[3]);
    g_.complex = PlaceHydrologicalComplex(guest, guest_state_, b.ui, g_.nodes[0]);
    guest_state_.PendingReach = 5;
    AddReachRecord(guest, guest_state_, {g_.cac1, g_.cac2});
    guest_state_.PendingReach = 0;
    const int section = AddHiddenRecord(guest, guest_state_);
    b.Set(section, "iName", "101");
    b.Set(section, "Id", "Ovoide");
    AddHiddenPoints(guest, guest_state_);
    const std::string path = folder_.File(name);
    EXPECT_TRUE(guest.SaveFile(path, kNativeFormat));
    return path;
  }

  int Merge(const std::string& answer) {
    ui_.Queue(answer);
    NetworkSession s = Session();
    return MergeNetwork(s);
  }
  int ById(const std::string& id) { return FindObject(surface_, "Id", id); }
  std::string Tag(int object, const char* name) {
    surface_.SetCurrentObject(object);
    return surface_.ObjTag(name);
  }
  std::string TagOfId(const std::string& id, const char* name) { return Tag(ById(id), name); }
  std::pair<double, double> Centre(int object) { return ObjectCentre(surface_, object); }

  AppState guest_state_;
  struct {
    int nodes[4] = {};
    int cac1 = 0, cac2 = 0, cac3 = 0, tr = 0, dqq = 0, rs = 0, clav = 0;
    HydrologicalComplex complex;
  } g_;
};

TEST_F(MergeTest, WithoutAHostFileTheMergeIsRefused) {
  Builder(surface_, state_).Node(1000, 1000);
  const int objects = surface_.ObjectCount(kPage);
  EXPECT_EQ(Merge(SaveGuest("g.mtf")), 0);
  ExpectLastMessage(ui_,
                    "\rUn réseau d'accueil type Pluvane doit être chargé !\r(Cf. "
                    "Fichier/Ouvrir...)",
                    "Import de fichier mtf", MessageIcon::kExclamation);
  EXPECT_EQ(surface_.ObjectCount(kPage), objects);
  EXPECT_EQ(ui_.Messages().size(), 1u);  // no dialog was opened
}

TEST_F(MergeTest, AnUncalibratedHostIsRefused) {
  OpenHost(false);
  const int objects = surface_.ObjectCount(kPage);
  EXPECT_EQ(Merge(SaveGuest("g.mtf")), 0);
  ExpectLastMessage(ui_, "\rLe réseau d'accueil doit être calé !\r(Cf. Fichier/Ouvrir...)",
                    "Import de fichier mtf", MessageIcon::kExclamation);
  EXPECT_EQ(surface_.ObjectCount(kPage), objects);
}

TEST_F(MergeTest, NothingChangesWhenTheDialogIsCancelled) {
  OpenHost();
  const std::string before = surface_.CopySelection(1);
  const bool could_undo = surface_.CanUndo();
  EXPECT_EQ(Merge("cancel"), 0);
  EXPECT_EQ(ui_.Last().kind, "open");
  EXPECT_EQ(ui_.Last().title, "Importer un réseau Pluvane");
  EXPECT_EQ(surface_.CopySelection(1), before);
  EXPECT_EQ(surface_.CanUndo(), could_undo);
  EXPECT_EQ(CountByName(surface_, kINameHiddenCalage), 3);
}

TEST_F(MergeTest, LabelsTakeTheFirstSevenCharactersOfTheFileName) {
  OpenHost();
  const std::string path = SaveGuest("abcdefghij.mtf");
  const int count = Merge(path);
  EXPECT_GT(count, 0);
  EXPECT_EQ(ui_.Statuses().back(), "ok fichier " + path + " (" + std::to_string(count) + " elm)");
  // Cac_2 and Cac_3 clash with no host Id: only the prefix is added.
  EXPECT_GT(ById("abcdefg_Cac_2"), 10);
  EXPECT_EQ(TagOfId("abcdefg_Cac_2", "libell"), "abcdefg_Cac_2");
  EXPECT_EQ(TagOfId("abcdefg_Dqq_1", "libell"), "abcdefg_Dqq_1");
  EXPECT_EQ(TagOfId("abcdefg_Tr_1", "libell"), "abcdefg_Tr_1");
  // The outlet clashed with the host's: a new number, and the old label.
  EXPECT_EQ(TagOfId("abcdefg_Hbv_2", "libell"), "abcdefg_Hbv_1");
  // Catchments and outlets keep their Ids and labels.
  EXPECT_GT(ById("Cla_1"), 10);
  EXPECT_EQ(TagOfId("Cla_1", "libell"), "Cla_1");
  // The host is untouched.
  EXPECT_GT(ById("Cac_1"), 10);
  EXPECT_EQ(TagOfId("Cac_1", "libell"), "Cac_1");
  EXPECT_EQ(surface_.ObjectCount(kSelection), 0);
}

TEST_F(MergeTest, ClashingIdsTakeNewNumbersFromTheCounters) {
  OpenHost();
  ASSERT_EQ(state_.ElementCounters[99], 3);
  ASSERT_EQ(state_.ElementCounters[5], 1);
  ASSERT_EQ(state_.ElementCounters[1], 1);
  Merge(SaveGuest("invite.mtf"));
  // Nod_1 to Nod_3 clash with the host; Nod_4, still used by the guest, is
  // passed over.
  EXPECT_GT(ById("invite_Nod_5"), 10);
  EXPECT_GT(ById("invite_Nod_6"), 10);
  EXPECT_GT(ById("invite_Nod_7"), 10);
  EXPECT_GT(ById("invite_Nod_4"), 10);
  EXPECT_EQ(ById("invite_Nod_3"), 0);
  EXPECT_EQ(TagOfId("invite_Nod_5", "libell"), "invite_Nod_1");
  EXPECT_EQ(TagOfId("invite_Nod_4", "libell"), "invite_Nod_4");
  EXPECT_EQ(state_.ElementCounters[99], 7);
  EXPECT_GT(ById("invite_Cac_2"), 10);  // Cac_1 clashed, Cac_2 was free
  EXPECT_EQ(CountByTag(surface_, "Id", "invite_Cac_2"), 1);
  EXPECT_GT(ById("invite_Cac_4"), 10);
  EXPECT_EQ(TagOfId("invite_Cac_4", "libell"), "invite_Cac_1");
  // A catchment takes no prefix: its new number is all that tells it apart.
  EXPECT_EQ(CountByTag(surface_, "Id", "Bv_1"), 1);
  EXPECT_GT(ById("Bv_2"), 10);
  EXPECT_EQ(state_.ElementCounters[1], 2);
  // Every Id of an element is unique.
  for (int n = surface_.FirstObject(); n > 0; n = surface_.NextObject()) {
    const int i_name = ValInt(surface_.ObjTag("iName"));
    if (i_name < 1 || i_name > 99) continue;
    const std::string id = surface_.ObjTag("Id");
    EXPECT_EQ(CountByTag(surface_, "Id", id), 1) << id;
    surface_.SetCurrentObject(n);
  }
}

TEST_F(MergeTest, ReferencesFollowTheRenamedElements) {
  OpenHost();
  Merge(SaveGuest("invite.mtf"));
  const int dqq = ById("invite_Dqq_1");
  ASSERT_GT(dqq, 10);
  EXPECT_EQ(Tag(dqq, "sNodAm"), "invite_Nod_6");
  EXPECT_EQ(Tag(dqq, "IdAval"), "invite_Cac_2");
  EXPECT_EQ(Tag(dqq, "IdDer_a"), "invite_Cac_3");
  EXPECT_EQ(Tag(dqq, "IdDer_b"), "");
  const int rs = ById("invite_Rs_1");
  EXPECT_EQ(Tag(rs, "IdAval"), "invite_Tr_1");
  EXPECT_EQ(Tag(rs, "IdSurv"), "invite_Dqq_1");
  EXPECT_EQ(Tag(rs, "sNodAm"), "invite_Nod_7");
  const int cac = ById("invite_Cac_4");
  EXPECT_EQ(Tag(cac, "sNodAm"), "invite_Nod_5");
  EXPECT_EQ(Tag(cac, "sNodAv"), "invite_Nod_6");
  // The route runs from the renamed catchment to the renamed outlet.
  EXPECT_EQ(TagOfId("invite_Rou_2", "sNodAm"), "Bv_2");
  EXPECT_EQ(TagOfId("invite_Rou_2", "sNodAv"), "invite_Hbv_2");
  EXPECT_EQ(TagOfId("Cla_1", "sNodAm"), "invite_Nod_4");
  // Node links are counted again.
  EXPECT_EQ(TagOfId("invite_Nod_6", "iLink"), "3");
  EXPECT_EQ(TagOfId("Nod_1", "iLink"), "1");
}

TEST_F(MergeTest, ReachesAndLibraryRecordsComeAsTheyAre) {
  OpenHost();
  Merge(SaveGuest("invite.mtf"));
  const int reach = FindReach(surface_, "5");
  ASSERT_GT(reach, 10);
  EXPECT_EQ(Tag(reach, "libell"), "Bief5");
  EXPECT_EQ(Tag(reach, "IdColl1"), "Cac_1");
  EXPECT_GT(FindObject2(surface_, "Id", "Ovoide", "iName", 101), 10);
  // iBief comes from the lists: the host's Cac_1 is named by the reach.
  EXPECT_EQ(TagOfId("Cac_1", "iBief"), "5");
  EXPECT_EQ(TagOfId("invite_Cac_2", "iBief"), "5");  // as the guest file had it
}

TEST_F(MergeTest, NodesLandWhereTheHostCalibrationPutsThem) {
  OpenHost();
  Merge(SaveGuest("invite.mtf"));
  // Guest node 2 stood at logical (3000, 5000): map (608000, 190000), which
  // the host puts at (8000, 10000).
  const int node = ById("invite_Nod_6");
  auto [x, y] = Centre(node);
  EXPECT_NEAR(x, 8000, 0.5);
  EXPECT_NEAR(y, 10000, 0.5);
  EXPECT_EQ(Tag(node, "Xlog"), "8000");
  EXPECT_EQ(Tag(node, "Ylog"), "10000");
  EXPECT_NEAR(Val(Tag(node, "Xus")), 608000, 1e-6);
  // What stands on it came along; the collectors follow their ends.
  auto [dx, dy] = Centre(ById("invite_Dqq_1"));
  EXPECT_NEAR(dx, 8000, 0.5);
  EXPECT_NEAR(dy, 10000, 0.5);
  surface_.SetCurrentObject(ById("invite_Cac_2"));
  const std::vector<Point> points = surface_.ObjectPoints();
  ASSERT_GE(points.size(), 2u);
  EXPECT_EQ(points.front(), (Point{8000, 10000}));
  // A catchment goes to its own map position.
  const int bv = ById("Bv_2");
  auto [bx, by] = Centre(bv);
  EXPECT_NEAR(bx, Val(Tag(bv, "Xus")) - 600000, 0.5);
  EXPECT_NEAR(by, 200000 - Val(Tag(bv, "Yus")), 0.5);
}

TEST_F(MergeTest, CalibrationPointsOfTheHostAreMadeAgainHidden) {
  OpenHost();
  const Calibration before = state_.calibration;
  Merge(SaveGuest("invite.mtf"));
  EXPECT_EQ(CountByName(surface_, kINameHiddenCalage), 3);
  EXPECT_EQ(CountByName(surface_, kINameCalage), 0);
  const int pt3 = FindObject2(surface_, "Id", "Pt3", "iName", kINameHiddenCalage);
  EXPECT_EQ(Tag(pt3, "Xcal"), "660000");
  EXPECT_EQ(Tag(pt3, "Xlog"), "60000");
  EXPECT_EQ(state_.calibration.XORI, before.XORI);
  EXPECT_EQ(state_.calibration.user_x[3], before.user_x[3]);
}

TEST_F(MergeTest, OneUndoTakesTheWholeMergeBack) {
  OpenHost();
  const std::string before = surface_.CopySelection(1);
  Merge(SaveGuest("invite.mtf"));
  ASSERT_TRUE(surface_.Undo());
  EXPECT_EQ(surface_.CopySelection(1), before);
}

TEST_F(MergeTest, AnUnreadableGuestIsToldAndAddsNothing) {
  OpenHost();
  const std::string path = folder_.File("faux.mtf");
  WriteBytes(path, "pas du json");
  const int objects = surface_.ObjectCount(kPage);
  EXPECT_EQ(Merge(path), 0);
  EXPECT_EQ(ui_.Last().text, "Le fichier " + path + " ne peut pas être lu comme un réseau Pluvane.");
  EXPECT_EQ(surface_.ObjectCount(kPage), objects);
}

}  // namespace
}  // namespace pluvane
