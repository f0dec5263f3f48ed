#include "network/default_tags.h"

#include <gtest/gtest.h>

#include "network/catalogue.h"
#include "drawing/surface_helpers.h"
#include "placement_fixture.h"

namespace pluvane {
namespace {

// The tags a catchment of either kind carries after its position.
const TagList kCatchmentData{{"S", "5"},
                             {"L", "50"},
                             {"m", "0.005"},
                             {"ci", "0.60"},
                             {"Fpluie", "1. CR constant (Coeff. de Ruissellement)"},
                             {"Fpluie1", "0.50"},
                             {"Fpluie2", ""},
                             {"Fpluie3", ""},
                             {"Fruissel", "1. k (Desbordes)"},
                             {"K", ""}};

TagList Joined(TagList head, const TagList& tail, const TagList& end = {}) {
  head.insert(head.end(), tail.begin(), tail.end());
  head.insert(head.end(), end.begin(), end.end());
  return head;
}

// The first tags of a collector drawn interactively.
TagList CollectorHead(const std::string& id, const std::string& i_name, const std::string& up,
                      const std::string& down) {
  return {{"Id", id},       {"libell", id}, {"iName", i_name}, {"iGroup", "2"}, {"sNodAm", up},
          {"sNodAv", down}, {"iBief", "0"}, {"ZRam", "0"},     {"ZRav", "0"}};
}

class DefaultTagsTest : public PlacementTest {
 protected:
  // A bare object made current, to receive tags.
  int Bare(int kind = kKindPicture) { return surface.AddObject(kind, 4000, 4000, 4200, 4200); }
};

TEST_F(DefaultTagsTest, Node) {
  const int node = Node(1000, 1000);
  EXPECT_EQ(Tags(node), (TagList{{"Id", "Nod_1"},
                                 {"libell", "Nod_1"},
                                 {"iName", "99"},
                                 {"iGroup", "99"},
                                 {"Xlog", "1000"},
                                 {"Ylog", "1000"},
                                 {"Xus", "1000"},
                                 {"Yus", "9000"}}));
  EXPECT_EQ(state.ElementCounters[99], 1);
}

TEST_F(DefaultTagsTest, Catchment) {
  const int bv = Symbol("X_BV", 500, 300);
  EXPECT_EQ(Tags(bv), (Joined(TagList{{"Id", "Bv_1"},
                                      {"libell", "Bv_1"},
                                      {"iName", "1"},
                                      {"iGroup", "1"},
                                      {"sNodAm", ""},
                                      {"Xlog", "500"},
                                      {"Ylog", "300"},
                                      {"Xus", "500"},
                                      {"Yus", "9700"}},
                              kCatchmentData)));
}

TEST_F(DefaultTagsTest, CatchmentOnNodeCountsWithItsOwnCounter) {
  for (int i = 0; i < 10; ++i) Symbol("X_BV", 3000 + 300 * i, 3000);
  const int node = Node(1000, 1000);
  const int bvs = Symbol("X_BVS", 1000, 1000, node);
  EXPECT_EQ(Tags(bvs), (Joined(TagList{{"Id", "Bvs_1"},
                                       {"libell", "Bvs_1"},
                                       {"iName", "21"},
                                       {"iGroup", "1"},
                                       {"sNodAm", "Nod_1"},
                                       {"Xlog", "1000"},
                                       {"Ylog", "1000"},
                                       {"Xus", "1000"},
                                       {"Yus", "9000"}},
                               kCatchmentData, TagList{{"Qsec", "0"}})));
  EXPECT_EQ(state.ElementCounters[21], 1);
  EXPECT_EQ(state.ElementCounters[1], 10);
  EXPECT_EQ(TagOf(FindObject(surface, "Id", "Bv_1"), "iName"), "1");
}

TEST_F(DefaultTagsTest, UninodalElements) {
  const int node = Node(1000, 1000);
  const TagList head_hybv{{"Id", "Hbv_1"},     {"libell", "Hbv_1"}, {"iName", "3"}, {"iGroup", "1"},
                          {"sNodAm", "Nod_1"}, {"Qsec", "0"},       {"SR", "0"}};
  EXPECT_EQ(Tags(Symbol("X_HYBV", 0, 0, node)), head_hybv);
  EXPECT_EQ(Tags(Symbol("X_HY", 0, 0, node)), (TagList{{"Id", "Hy_1"},
                                                       {"libell", "Hy_1"},
                                                       {"iName", "4"},
                                                       {"iGroup", "1"},
                                                       {"sNodAm", "Nod_1"},
                                                       {"Qsec", "0"},
                                                       {"SR", "0"},
                                                       {"NbPt", "0"},
                                                       {"X1", "0"},
                                                       {"Y1", "0"},
                                                       {"X2", "0"},
                                                       {"Y2", "0"},
                                                       {"X3", "0"},
                                                       {"Y3", "0"}}));
  EXPECT_EQ(Tags(Symbol("X_CLAV", 0, 0, node)), (TagList{{"Id", "Cla_1"},
                                                         {"libell", "Cla_1"},
                                                         {"iName", "14"},
                                                         {"iGroup", "1"},
                                                         {"sNodAm", "Nod_1"},
                                                         {"Export", "0"}}));
  EXPECT_EQ(Tags(Symbol("X_MARK", 0, 0, node)), (TagList{{"Id", "Mrk_1"},
                                                         {"libell", "Mrk_1"},
                                                         {"iName", "16"},
                                                         {"iGroup", "1"},
                                                         {"sNodAm", "Nod_1"},
                                                         {"Export", "0"}}));
}

TEST_F(DefaultTagsTest, RegulatingElements) {
  const int node = Node(1000, 1000);
  EXPECT_EQ(Tags(Symbol("X_DQQ", 0, 0, node)), (TagList{{"Id", "Dqq_1"},
                                                        {"libell", "Dqq_1"},
                                                        {"iName", "8"},
                                                        {"iGroup", "3"},
                                                        {"sNodAm", "Nod_1"},
                                                        {"IdAval", ""},
                                                        {"NbDer", "0"},
                                                        {"IdDer_a", ""},
                                                        {"IdDer_b", ""},
                                                        {"IdDer_c", ""},
                                                        {"NbPt", "0"},
                                                        {"X1", "0"},
                                                        {"Y1", "0"},
                                                        {"Z1", "0"},
                                                        {"T1", "0"}}));
  EXPECT_EQ(
      Tags(Symbol("X_DQZ", 0, 0, node)),
      (TagList{{"Id", "Dqz_1"},     {"libell", "Dqz_1"}, {"iName", "9"},    {"iGroup", "3"},
               {"sNodAm", "Nod_1"}, {"IdAval", ""},      {"NbDer", "0"},    {"IdDer_a", ""},
               {"IdDer_b", ""},     {"IdDer_c", ""},     {"TypeAval", "3"}, {"TypeDer_a", "3"},
               {"TypeDer_b", "3"},  {"TypeDer_c", "3"},  {"NbPtAv", "0"},   {"NbPtDa", "0"},
               {"NbPtDb", "0"},     {"NbPtDc", "0"},     {"Xav1", "0"},     {"Yav1", "0"},
               {"Xda1", "0"},       {"Yda1", "0"},       {"Xdb1", "0"},     {"Ydb1", "0"},
               {"Xdc1", "0"},       {"Ydc1", "0"}}));
  EXPECT_EQ(Tags(Symbol("X_RS", 0, 0, node)), (TagList{{"Id", "Rs_1"},
                                                       {"libell", "Rs_1"},
                                                       {"iName", "10"},
                                                       {"iGroup", "3"},
                                                       {"sNodAm", "Nod_1"},
                                                       {"IdAval", ""},
                                                       {"IdSurv", ""},
                                                       {"Qf", "0"},
                                                       {"Z0", "0"},
                                                       {"NbPt", "0"},
                                                       {"X1", "0"},
                                                       {"Y1", "0"},
                                                       {"X10", "0"},
                                                       {"Y10", "0"}}));
  EXPECT_EQ(Tags(Symbol("X_RSP", 0, 0, node)), (TagList{{"Id", "Rsp_1"},
                                                        {"libell", "Rsp_1"},
                                                        {"iName", "11"},
                                                        {"iGroup", "3"},
                                                        {"sNodAm", "Nod_1"},
                                                        {"IdAval", ""},
                                                        {"IdSurv", ""},
                                                        {"Z0", "0"},
                                                        {"NbPt", "0"},
                                                        {"X1", "0"},
                                                        {"Y1", "0"},
                                                        {"Z1", "0"},
                                                        {"T1", "0"},
                                                        {"X10", "0"},
                                                        {"Y10", "0"},
                                                        {"Z10", "0"},
                                                        {"T10", "0"}}));
}

TEST_F(DefaultTagsTest, GaugeAndCalibrationPoint) {
  EXPECT_EQ(Tags(Symbol("X_PLU", 2000, 2500)), (TagList{{"Id", "Plu_1"},
                                                        {"libell", "Plu_1"},
                                                        {"iName", "12"},
                                                        {"iGroup", "1"},
                                                        {"Xlog", "2000"},
                                                        {"Ylog", "2500"},
                                                        {"Xus", "2000"},
                                                        {"Yus", "7500"}}));
  // No iGroup on a calibration point; its map position goes to Xcal, Ycal.
  EXPECT_EQ(Tags(Symbol("X_CALAGE", 2000, 2500)), (TagList{{"Id", "Pt_1"},
                                                           {"libell", "Pt_1"},
                                                           {"iName", "15"},
                                                           {"Xlog", "2000"},
                                                           {"Ylog", "2500"},
                                                           {"Xcal", "2000"},
                                                           {"Ycal", "7500"}}));
}

TEST_F(DefaultTagsTest, Links) {
  const int a = Node(1000, 1000);
  const int b = Node(4000, 5000);
  EXPECT_EQ(Tags(Link("X_CAC", a, b)),
            (Joined(CollectorHead("Cac_1", "5", "Nod_1", "Nod_2"),
                    TagList{{"Dn", "1"}, {"L", "5000"}, {"K", "60"}, {"HD", "0"}, {"SR", "0"}})));
  EXPECT_EQ(
      Tags(Link("X_CAF", a, b)),
      (Joined(CollectorHead("Caf_1", "6", "Nod_1", "Nod_2"),
              TagList{{"IdSect", ""}, {"L", "5000"}, {"K", "60"}, {"HD", "0"}, {"SR", "0"}})));
  EXPECT_EQ(
      Tags(Link("X_CAO", b, a)),
      (Joined(
          CollectorHead("Cao_1", "7", "Nod_2", "Nod_1"),
          TagList{
              {"IdSect", ""}, {"L", "5000"}, {"Kmin", "50"}, {"Largeur", "100"}, {"Kmaj", "30"}})));
  EXPECT_EQ(Tags(Link("X_TR", a, b)), (TagList{{"Id", "Tr_1"},
                                               {"libell", "Tr_1"},
                                               {"iName", "13"},
                                               {"iGroup", "2"},
                                               {"sNodAm", "Nod_1"},
                                               {"sNodAv", "Nod_2"}}));
  const int bv = Symbol("X_BV", 1000, 5000);
  EXPECT_EQ(Tags(Link("X_ROUT", bv, b)), (TagList{{"Id", "Rou_1"},
                                                  {"libell", "Rou_1"},
                                                  {"iName", "2"},
                                                  {"iGroup", "2"},
                                                  {"sNodAm", "Bv_1"},
                                                  {"sNodAv", "Nod_2"},
                                                  {"S", "1"},
                                                  {"L", "3000"},
                                                  {"m", "0.005"}}));
}

TEST_F(DefaultTagsTest, RadiusOfAction) {
  const int ellipse = surface.AddObject(kKindEllipse, 1000, 2000, 1400, 2400);
  EXPECT_EQ(CreateDefaultTags(surface, state, "X_RAYON", false), "Rayon");
  EXPECT_EQ(Tags(ellipse), (TagList{{"Id", "Rayon"},
                                    {"iName", "17"},
                                    {"Xlog", "1200"},
                                    {"Ylog", "2200"},
                                    {"Xus", "1200"},
                                    {"Yus", "7800"},
                                    {"Rayon", "200"}}));
}

TEST_F(DefaultTagsTest, RadiusIsZeroWithoutCalibration) {
  state.calibration = Calibration{};
  surface.AddObject(kKindEllipse, 1000, 2000, 1400, 2400);
  CreateDefaultTags(surface, state, "X_RAYON", false);
  EXPECT_EQ(surface.ObjTag("Xus"), "0");
  EXPECT_EQ(surface.ObjTag("Rayon"), "0");
}

TEST_F(DefaultTagsTest, ReachOnlyWithAPendingNumber) {
  const int without = Bare(kKindRectangle);
  EXPECT_EQ(CreateDefaultTags(surface, state, "X_BIEF", false), "");
  EXPECT_TRUE(Tags(without).empty());
  state.PendingReach = 7;
  const int with = Bare(kKindRectangle);
  EXPECT_EQ(CreateDefaultTags(surface, state, "X_BIEF", false), "7");
  EXPECT_EQ(Tags(with), (TagList{{"Id", "7"}, {"iName", "100"}, {"libell", "Bief7"}}));
}

TEST_F(DefaultTagsTest, NewDerivationQZHasOutletKindsThree) {
  const int node = Node(1000, 1000);
  const int dqz = Symbol("X_DQZ", 0, 0, node);
  for (const char* name : {"TypeAval", "TypeDer_a", "TypeDer_b", "TypeDer_c"}) {
    EXPECT_EQ(TagOf(dqz, name), "3") << name;
  }
}

TEST_F(DefaultTagsTest, IdAlreadyUsedByALoadedFileTakesTheNextFreeNumber) {
  // A file loaded from elsewhere brought Cac_1 and Cac_2 while our counter is at 0.
  const int a = Node(1000, 1000);
  const int b = Node(2000, 1000);
  for (const char* id : {"Cac_1", "Cac_2"}) {
    surface.AddObject(kKindRectangle, 0, 0, 5, 5);
    surface.SetObjTag("Id", id);
  }
  const int link = Link("X_CAC", a, b);
  EXPECT_EQ(TagOf(link, "Id"), "Cac_3");
  // The label is the copy made before the Id was changed.
  EXPECT_EQ(TagOf(link, "libell"), "Cac_1");
  EXPECT_EQ(state.ElementCounters[5], 3);
  EXPECT_EQ(TagOf(Link("X_CAC", b, a), "Id"), "Cac_4");
}

TEST_F(DefaultTagsTest, IdWithoutUnderscoreBecomesObj) {
  state.PendingReach = 3;
  surface.AddObject(kKindRectangle, 0, 0, 5, 5);
  surface.SetObjTag("Id", "3");
  const int reach = Bare(kKindRectangle);
  EXPECT_EQ(CreateDefaultTags(surface, state, "X_BIEF", false), "Obj_1");
  EXPECT_EQ(TagOf(reach, "Id"), "Obj_1");
}

TEST_F(DefaultTagsTest, NoCountKeepsTheCounter) {
  state.ElementCounters[99] = 4;
  Bare();
  EXPECT_EQ(CreateDefaultTags(surface, state, "X_NOD", true), "Nod_4");
  EXPECT_EQ(state.ElementCounters[99], 4);
}

TEST_F(DefaultTagsTest, UnknownKeyWritesNothing) {
  const int object = Bare();
  EXPECT_EQ(CreateDefaultTags(surface, state, "X_UNKNOWN", false), "");
  EXPECT_TRUE(Tags(object).empty());
  surface.SetCurrentObject(kPage);
  EXPECT_EQ(CreateDefaultTags(surface, state, "X_NOD", false), "");
}

TEST_F(DefaultTagsTest, PositionDefaultsToTheObjectCentre) {
  const int object = Bare();
  CreateDefaultTags(surface, state, "X_NOD", false);
  EXPECT_EQ(TagOf(object, "Xlog"), "4100");
  EXPECT_EQ(TagOf(object, "Ylog"), "4100");
}

// The import path.

TEST_F(DefaultTagsTest, ImportedCatchmentsAndOutletsDifferInIdAndFlow) {
  const int node = Node(1000, 1000);
  const int bvs = Bare();
  CreationPlace place;
  place.position = Point{1000, 1000};
  place.target_node = node;
  EXPECT_EQ(CreateDefaultTagsByNumber(surface, state, 21, false, place), "Bvs_1");
  EXPECT_EQ(Tags(bvs), (Joined(TagList{{"Id", "Bvs_1"},
                                       {"libell", "Bv_1"},
                                       {"iName", "21"},
                                       {"iGroup", "1"},
                                       {"sNodAm", "Nod_1"},
                                       {"Xlog", "1000"},
                                       {"Ylog", "1000"}},
                               kCatchmentData, TagList{{"Qsec", "0.1"}})));
  const int hybv = Bare();
  CreateDefaultTagsByNumber(surface, state, 3, false, place);
  EXPECT_EQ(TagOf(hybv, "Qsec"), "0.1");
}

TEST_F(DefaultTagsTest, ImportedPointsGetOnlyTheirLogicalPosition) {
  CreationPlace place;
  place.position = Point{300, 400};
  const int node = Bare();
  CreateDefaultTagsByNumber(surface, state, 99, false, place);
  EXPECT_EQ(Tags(node), (TagList{{"Id", "Nod_1"},
                                 {"libell", "Nod_1"},
                                 {"iName", "99"},
                                 {"iGroup", "99"},
                                 {"Xlog", "300"},
                                 {"Ylog", "400"}}));
  const int point = Bare();
  CreateDefaultTagsByNumber(surface, state, 15, false, place);
  EXPECT_EQ(
      Tags(point),
      (TagList{
          {"Id", "Pt_1"}, {"libell", "Pt_1"}, {"iName", "15"}, {"Xlog", "300"}, {"Ylog", "400"}}));
}

TEST_F(DefaultTagsTest, ImportedLinksGetNoEndsLengthOrLevels) {
  const int a = Node(1000, 1000);
  const int b = Node(4000, 5000);
  const int link = DrawLinkByNumber(surface, state, 5, a, b);
  ASSERT_GT(link, 0);
  EXPECT_EQ(Tags(link), (TagList{{"Id", "Cac_1"},
                                 {"libell", "Cac_1"},
                                 {"iName", "5"},
                                 {"iGroup", "2"},
                                 {"iBief", "0"},
                                 {"Dn", "1"},
                                 {"K", "60"},
                                 {"HD", "0"},
                                 {"SR", "0"}}));
  EXPECT_EQ(Tags(DrawLinkByNumber(surface, state, 2, a, b)), (TagList{{"Id", "Rou_1"},
                                                                      {"libell", "Rou_1"},
                                                                      {"iName", "2"},
                                                                      {"iGroup", "2"},
                                                                      {"S", "1"},
                                                                      {"m", "0.005"}}));
}

}  // namespace
}  // namespace pluvane
