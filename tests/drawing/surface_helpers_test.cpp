#include "drawing/surface_helpers.h"

#include <gtest/gtest.h>

#include "drawing/add_element.h"

namespace pluvane {
namespace {

class SurfaceHelpers : public ::testing::Test {
 protected:
  int Add(int i_name, const std::string& id, const std::string& label, std::int32_t size = 100) {
    return AddElement(surface_, i_name, id, label, size);
  }
  Surface surface_;
};

TEST_F(SurfaceHelpers, FindObjectLeavesTheHitCurrentAndTheCursorOnAMiss) {
  Add(99, "Nod_1", "N1");
  const int b = Add(5, "Cac_1", "C1");
  const int c = Add(5, "Cac_2", "C2");
  surface_.SetCurrentObject(c);
  EXPECT_EQ(FindObject(surface_, "Id", "Cac_1"), b);
  EXPECT_EQ(surface_.CurrentObject(), b);
  EXPECT_EQ(FindObject(surface_, "iName", 5), b);
  surface_.SetCurrentObject(c);
  EXPECT_EQ(FindObject(surface_, "Id", "Cac_9"), 0);
  EXPECT_EQ(surface_.CurrentObject(), c);
  EXPECT_EQ(FindObject(surface_, "libell", "C9"), 0);
  EXPECT_EQ(surface_.CurrentObject(), c);
}

TEST_F(SurfaceHelpers, FindObjectByIdGivesTheFirstInCreationOrder) {
  const int a = Add(5, "Cac_1", "C1");
  Add(5, "Cac_1", "C1 bis");
  EXPECT_EQ(FindObject(surface_, "Id", "Cac_1"), a);
  surface_.SetCurrentObject(a);
  surface_.SetObjTag("Id", "Cac_2");
  EXPECT_EQ(FindObject(surface_, "Id", "Cac_1"), a + 1);
}

TEST_F(SurfaceHelpers, ListsAndCountsPutTheCursorBack) {
  const int a = Add(99, "Nod_1", "N1");
  const int b = Add(5, "Cac_1", "c1");
  const int c = Add(99, "Nod_2", "N2");
  surface_.SetCurrentObject(b);
  EXPECT_EQ(FindObjectList(surface_, "iName", 99), (std::vector<int>{a, c}));
  EXPECT_EQ(CountByTag(surface_, "iName", 99), 2);
  EXPECT_EQ(CountByName(surface_, 5), 1);
  EXPECT_EQ(CountByName(surface_, 7), 0);
  EXPECT_EQ(CountLabel(surface_, 5, "C1"), 1);
  EXPECT_EQ(CountLabel(surface_, 99, "c1"), 0);
  EXPECT_EQ(surface_.CurrentObject(), b);
  surface_.SetCurrentObject(kPage);
  CountByTag(surface_, "iName", 99);
  EXPECT_EQ(surface_.CurrentObject(), kPage);
}

TEST_F(SurfaceHelpers, CountLabelIgnoresCaseOfAccentedLetters) {
  Add(5, "Cac_1", "collecteur été");
  EXPECT_EQ(CountLabel(surface_, 5, "COLLECTEUR ÉTÉ"), 1);
}

TEST_F(SurfaceHelpers, SelectByTagReplacesTheSelection) {
  const int a = Add(5, "Cac_1", "C1");
  const int b = Add(5, "Cac_1", "C1");
  const int c = Add(99, "Nod_1", "N1");
  surface_.SetCurrentObject(c);
  surface_.SetSelected(true);
  EXPECT_EQ(SelectByTag(surface_, "Id", "Cac_1"), 2);
  EXPECT_EQ(surface_.ObjectCount(kSelection), 2);
  EXPECT_EQ(surface_.CurrentObject(), c);
  EXPECT_FALSE(surface_.Selected());
  surface_.SetCurrentObject(a);
  EXPECT_TRUE(surface_.Selected());
  surface_.SetCurrentObject(b);
  EXPECT_TRUE(surface_.Selected());
}

TEST_F(SurfaceHelpers, DeleteByTagIdTakesEveryDoubletAndTheirLinks) {
  const int a = Add(99, "Nod_1", "N1");
  const int b = Add(99, "Nod_1", "N1");
  const int c = Add(99, "Nod_2", "N2");
  surface_.AddLink(a, c);
  surface_.AddLink(c, b);
  surface_.SetCurrentObject(c);
  EXPECT_EQ(DeleteByTagId(surface_, "Nod_1"), 2);
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
  EXPECT_EQ(surface_.CurrentObject(), c);
  EXPECT_EQ(surface_.NodeLinkCount(), 0);
  EXPECT_EQ(DeleteByTagId(surface_, "Nod_1"), 0);
  surface_.Undo();
  EXPECT_EQ(surface_.ObjectCount(kPage), 5);
}

TEST_F(SurfaceHelpers, FindObject2NeedsBothValues) {
  Add(5, "Cac_1", "A");
  const int b = Add(6, "Caf_1", "A");
  EXPECT_EQ(FindObject2(surface_, "libell", "A", "iName", 6), b);
  EXPECT_EQ(surface_.CurrentObject(), b);
  surface_.SetCurrentObject(kPage);
  EXPECT_EQ(FindObject2(surface_, "libell", "A", "iName", 7), 0);
  EXPECT_EQ(surface_.CurrentObject(), kPage);
}

TEST_F(SurfaceHelpers, FindFirstWithBothLeavesTheCursor) {
  Add(5, "Cac_1", "A");
  const int b = Add(6, "Caf_1", "A");
  surface_.SetCurrentObject(kPage);
  const Surface& drawing = surface_;
  EXPECT_EQ(FindFirstWithBoth(drawing, "libell", "A", "iName", 6), b);
  EXPECT_EQ(FindFirstWithBoth(drawing, "libell", "A", "iName", 7), 0);
  EXPECT_EQ(FindFirstWithBoth(drawing, "libell", "B", "iName", 6), 0);
  EXPECT_EQ(surface_.CurrentObject(), kPage);
}

TEST_F(SurfaceHelpers, MaxIdNumberReadsAfterTheFirstUnderscore) {
  Add(11, "Rsp_4", "R4");
  Add(11, "Rsp_2", "R2");
  Add(11, "Rsp", "R");
  Add(10, "Rs_40", "R40");
  EXPECT_EQ(MaxIdNumber(surface_, 11), 4);
  EXPECT_EQ(MaxIdNumber(surface_, 10), 40);
  EXPECT_EQ(MaxIdNumber(surface_, 5), 0);
  Add(12, "Plu_x_7", "P");
  EXPECT_EQ(MaxIdNumber(surface_, 12), 0);
  Add(13, "Tr_-3", "T");
  EXPECT_EQ(MaxIdNumber(surface_, 13), 0);
  Add(5, "Cac_57", "C");
  Add(5, "Cac_9", "C");
  EXPECT_EQ(MaxIdNumber(surface_, 5), 57);
}

TEST_F(SurfaceHelpers, MaxIdNumbersGivesEveryKindInOneWalk) {
  Add(11, "Rsp_4", "R4");
  Add(11, "Rsp_2", "R2");
  Add(10, "Rs_40", "R40");
  Add(13, "Tr_-3", "T");
  Add(5, "Cac_57", "C");
  surface_.SetObjTag("iName", " 5.0 ");  // read as the number 5, as the searches do
  Add(99, "Nod_12", "N");
  Add(111, "Scn_3", "S");
  const int cursor = Add(7, "Cao_2.9", "O");
  const std::array<int, 100> counters = MaxIdNumbers(surface_);
  for (int i = 1; i <= 99; ++i) EXPECT_EQ(counters[i], MaxIdNumber(surface_, i)) << i;
  EXPECT_EQ(counters[5], 57);
  EXPECT_EQ(counters[7], 2);
  EXPECT_EQ(counters[99], 12);
  EXPECT_EQ(surface_.CurrentObject(), cursor);
}

TEST_F(SurfaceHelpers, ObjectCentreIsTheMiddleOfTheBox) {
  const int n = surface_.AddObject(kKindRectangle, 10, 20, 31, 40);
  EXPECT_EQ(ObjectCentre(surface_, n), std::make_pair(20.5, 30.0));
  EXPECT_EQ(ObjectCentre(surface_, 999), std::make_pair(0.0, 0.0));
}

TEST_F(SurfaceHelpers, NodeHalfSizeFromTheFirstNodeOrTheSymbolSizeOrTheView) {
  surface_.SetViewHeight(30000);
  EXPECT_EQ(NodeHalfSize(surface_, 75), 200);
  const int tiny = Add(99, "Nod_1", "N1", 1);
  EXPECT_EQ(NodeHalfSize(surface_, 75), 75);
  surface_.DeleteObject(tiny);
  Add(5, "Cac_1", "C1", 400);
  Add(99, "Nod_2", "N2", 60);
  surface_.SetCurrentObject(kDefaults);
  EXPECT_EQ(NodeHalfSize(surface_, 75), 30);
  EXPECT_EQ(surface_.CurrentObject(), kDefaults);
}

}  // namespace
}  // namespace pluvane

namespace pluvane {
namespace {

TEST(SelectedObjectsTest, InCreationOrderAndCursorKept) {
  Surface surface;
  const int a = surface.AddObject(kKindRectangle, 0, 0, 10, 10);
  const int b = surface.AddObject(kKindRectangle, 20, 0, 30, 10);
  const int c = surface.AddObject(kKindRectangle, 40, 0, 50, 10);
  for (int n : {c, a}) {
    surface.SetCurrentObject(n);
    surface.SetSelected(true);
  }
  surface.SetCurrentObject(b);
  EXPECT_EQ(SelectedObjects(surface), (std::vector<int>{a, c}));
  EXPECT_EQ(surface.CurrentObject(), b);
  surface.DeselectAll();
  EXPECT_TRUE(SelectedObjects(surface).empty());
}

TEST_F(SurfaceHelpers, MaxIdNumbersGivesWhatMaxIdNumberGivesForEveryKind) {
  const std::pair<const char*, const char*> objects[] = {
      {"5", "Cac_12"}, {" 5 ", "Cac_57"}, {"5", "Cac_x"},  {"5.0", "Cac_60"}, {"99", "Nod_4"},
      {"99", "Nod"},   {"7", "Cao_-3"},   {"8", "Dqq_2b"}, {"5b", "Cac_99"},  {"", "Bv_8"},
      {"100", "1"},    {"21", "Bvs_1_2"}};
  for (const auto& [i_name, id] : objects) {
    surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
    surface_.SetObjTag("iName", i_name);
    surface_.SetObjTag("Id", id);
  }
  surface_.SetCurrentObject(kPage);
  const std::array<int, 100> all = MaxIdNumbers(surface_);
  for (int i = 1; i <= 99; ++i) EXPECT_EQ(all[i], MaxIdNumber(surface_, i)) << i;
  EXPECT_EQ(all[5], 60);
  EXPECT_EQ(all[99], 4);
  EXPECT_EQ(all[7], 0);
  EXPECT_EQ(all[8], 2);
  EXPECT_EQ(all[21], 1);
  EXPECT_EQ(surface_.CurrentObject(), kPage);
}

}  // namespace
}  // namespace pluvane

namespace pluvane {
namespace {

TEST(SurfaceHelpersIdCount, IdsAreCountedFromTheIndexAsTheWalkWouldCountThem) {
  Surface surface;
  for (int i = 0; i < 3; ++i) {
    surface.AddObject(kKindRectangle, 0, 0, 10, 10);
    surface.SetObjTag("Id", i < 2 ? "Nod_1" : "Nod_2");
  }
  const int hidden = surface.AddObject(kKindRectangle, 0, 0, 10, 10);
  surface.SetObjTag("Id", "Nod_1");
  surface.SetObjectVisible(false);
  surface.SetCurrentObject(hidden);
  EXPECT_EQ(CountByTag(surface, "Id", "Nod_1"), 3);
  EXPECT_EQ(CountByTag(surface, "Id", "Nod_2"), 1);
  EXPECT_EQ(CountByTag(surface, "Id", "nod_2"), 0);
  EXPECT_EQ(CountByTag(surface, "Id", "Absent"), 0);
  EXPECT_EQ(surface.CurrentObject(), hidden);
  surface.DeleteObject(hidden);
  EXPECT_EQ(CountByTag(surface, "Id", "Nod_1"), 2);
}

}  // namespace
}  // namespace pluvane
