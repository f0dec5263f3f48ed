#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "drawing/add_element.h"
#include "drawing/surface.h"

namespace pluvane {
namespace {

// The const reads by object number, beside the cursor API.
class SurfaceReads : public ::testing::Test {
 protected:
  int AddElement(int i_name, const std::string& id) {
    return pluvane::AddElement(surface_, i_name, id);
  }
  std::vector<int> Walk() const {
    std::vector<int> seen;
    for (int n : std::as_const(surface_).Objects()) seen.push_back(n);
    return seen;
  }
  Surface surface_;
};

TEST_F(SurfaceReads, TagOfReadsAnObjectByNumber) {
  const int a = AddElement(99, "Nod_1");
  const int b = AddElement(5, "Cac_1");
  const Surface& read = surface_;
  EXPECT_EQ(read.TagOf(a, "Id"), "Nod_1");
  EXPECT_EQ(read.TagOf(a, "iName"), "99");
  EXPECT_EQ(read.TagOf(b, "libell"), "Cac_1");
  EXPECT_EQ(read.KindOf(a), kKindPicture);
}

TEST_F(SurfaceReads, AnAbsentTagReadsEmpty) {
  const int a = AddElement(99, "Nod_1");
  EXPECT_EQ(surface_.TagOf(a, "NbColl"), "");
  // A name no object has ever carried.
  EXPECT_EQ(surface_.TagOf(a, "NeverSeen"), "");
  // Names are compared with their case.
  EXPECT_EQ(surface_.TagOf(a, "ID"), "");
}

TEST_F(SurfaceReads, AMissingOrDeletedObjectReadsWithoutTagsAndOfKindZero) {
  const int a = AddElement(99, "Nod_1");
  const int b = AddElement(99, "Nod_2");
  surface_.DeleteObject(a);
  for (int number : {0, -3, kAllObjects, kSelection, kDefaults, kPage, a, b + 100}) {
    EXPECT_FALSE(surface_.Exists(number)) << number;
    EXPECT_EQ(surface_.TagOf(number, "Id"), "") << number;
    EXPECT_EQ(surface_.KindOf(number), 0) << number;
  }
  EXPECT_TRUE(surface_.Exists(b));
}

TEST_F(SurfaceReads, LinkEndsAreReadByNumber) {
  const int a = AddElement(99, "Nod_1");
  const int b = AddElement(99, "Nod_2");
  const int link = surface_.AddLink(a, b);
  surface_.SetCurrentObject(kPage);
  EXPECT_EQ(surface_.LinkEndOf(link, 0), a);
  EXPECT_EQ(surface_.LinkEndOf(link, 1), b);
  EXPECT_EQ(surface_.LinkEndOf(link, 2), 0);
  EXPECT_EQ(surface_.LinkEndOf(a, 0), 0);  // not a link
  EXPECT_EQ(surface_.CurrentObject(), kPage);
  surface_.DeleteObject(link);
  EXPECT_EQ(surface_.LinkEndOf(link, 0), 0);
}

TEST_F(SurfaceReads, ARepeatedTagNameAnswersTheFirst) {
  const int a = AddElement(99, "Nod_1");
  surface_.SetCurrentObject(a);
  const int count = surface_.ObjTagCount();
  surface_.SetObjTagCount(count + 1);
  surface_.SetObjTagName(count, "libell");
  surface_.SetObjTagValue(count, "second");
  ASSERT_EQ(surface_.ObjTagCount(), count + 1);
  EXPECT_EQ(surface_.TagOf(a, "libell"), "Nod_1");
  // The searches look at the first one only.
  EXPECT_EQ(surface_.FindByTagFrom("libell", "second"), 0);
  EXPECT_EQ(surface_.FindByTagFrom("libell", "Nod_1"), a);
}

TEST_F(SurfaceReads, EachTagOfAnObjectIsVisitedInOrder) {
  const int a = surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  surface_.SetCurrentObject(a);
  surface_.SetObjTag("Pt2", "b");
  surface_.SetObjTag("NbPt", "2");
  surface_.SetObjTag("Pt1", "a");
  const int b = AddElement(99, "Nod_1");
  surface_.SetCurrentObject(b);
  std::vector<std::pair<std::string, std::string>> seen;
  std::as_const(surface_).ForEachTagOf(a, [&](std::string_view name, std::string_view value) {
    seen.emplace_back(name, value);
  });
  using Tags = std::vector<std::pair<std::string, std::string>>;
  EXPECT_EQ(seen, (Tags{{"Pt2", "b"}, {"NbPt", "2"}, {"Pt1", "a"}}));
  EXPECT_EQ(surface_.CurrentObject(), b);
  seen.clear();
  surface_.ForEachTagOf(0, [&](std::string_view name, std::string_view value) {
    seen.emplace_back(name, value);
  });
  EXPECT_TRUE(seen.empty());
}

TEST_F(SurfaceReads, ObjectsRunInCreationOrderAndSkipTheDeleted) {
  EXPECT_TRUE(Walk().empty());
  const int a = AddElement(1, "Bv_1");
  const int b = AddElement(5, "Cac_1");
  const int c = AddElement(99, "Nod_1");
  const int d = surface_.AddLink(a, c);
  EXPECT_EQ(Walk(), (std::vector<int>{a, b, c, d}));
  surface_.DeleteObject(b);
  EXPECT_EQ(Walk(), (std::vector<int>{a, c, d}));
  // Restacking changes the drawing order, not the order of creation.
  surface_.SetCurrentObject(a);
  surface_.SetSelected(true);
  surface_.Arrange(3);
  EXPECT_EQ(Walk(), (std::vector<int>{a, c, d}));
  surface_.DeleteObject(kAllObjects);
  EXPECT_TRUE(Walk().empty());
}

TEST_F(SurfaceReads, FindsWalkInCreationOrderAndCompareNumbersNumerically) {
  const int a = AddElement(99, "Nod_1");
  const int b = AddElement(5, "Cac_1");
  const int c = AddElement(99, "Nod_2");
  surface_.SetCurrentObject(c);
  surface_.SetObjTag("iName", "99.0");
  const Surface& read = surface_;
  for (int run = 0; run < 3; ++run) {  // the later runs go through the index
    EXPECT_EQ(read.FindByTagFrom("iName", 99), a);
    EXPECT_EQ(read.FindByTagFrom("iName", 99, a), c);
    EXPECT_EQ(read.FindByTagFrom("iName", 99, b), c);
    EXPECT_EQ(read.FindByTagFrom("iName", 99, c), 0);
    EXPECT_EQ(read.FindByTagFrom("iName", "99"), a);
    EXPECT_EQ(read.FindByTagFrom("iName", "99", a), 0);
    EXPECT_EQ(read.FindAllByTag("iName", 99), (std::vector<int>{a, c}));
    EXPECT_EQ(read.FindAllByTag("iName", "5"), (std::vector<int>{b}));
    EXPECT_EQ(read.CountByTag("iName", 99), 2);
    EXPECT_EQ(read.CountByTag("iName", 7), 0);
    EXPECT_EQ(read.CountByTag("NoSuchTag", "x"), 0);
    EXPECT_TRUE(read.FindAllByTag("NoSuchTag", "x").empty());
  }
}

TEST_F(SurfaceReads, FindAllWhereAsksOncePerValueAndKeepsCreationOrder) {
  const int a = AddElement(5, "Cac_1");
  const int b = AddElement(99, "Nod_1");
  const int c = AddElement(6, "Caf_1");
  const int d = AddElement(5, "Cac_2");
  surface_.AddObject(kKindRectangle, 0, 0, 1, 1);  // no kind at all
  surface_.SetCurrentObject(d);
  surface_.SetObjTag("iName", " 5");
  for (int run = 0; run < 3; ++run) {
    std::vector<std::string> asked;
    const auto collectors = surface_.FindAllWhere("iName", [&](std::string_view value) {
      asked.emplace_back(value);
      return value.find('5') != std::string_view::npos || value == "6";
    });
    EXPECT_EQ(collectors, (std::vector<int>{a, c, d}));
    EXPECT_EQ(asked.size(), 4U);  // "5", "99", "6", " 5"
  }
  EXPECT_EQ(surface_.FindAllWhere("iName", [](std::string_view v) { return v == "99"; }),
            std::vector<int>{b});
  EXPECT_TRUE(surface_.FindAllWhere("NoSuchTag", [](std::string_view) { return true; }).empty());
}

TEST_F(SurfaceReads, FindAllWhereReadsEveryObjectWhenValuesAreMany) {
  std::vector<int> even;
  for (int i = 0; i < 100; ++i) {
    const int n = AddElement(99, "Nod_" + std::to_string(i));
    if (i % 2 == 0) even.push_back(n);
  }
  const auto keep = [](std::string_view id) { return (id.back() - '0') % 2 == 0; };
  for (int run = 0; run < 3; ++run) EXPECT_EQ(surface_.FindAllWhere("Id", keep), even);
}

TEST_F(SurfaceReads, FindAllWhereWithValuesGivesEachObjectItsValue) {
  const int a = AddElement(5, "Cac_1");
  AddElement(99, "Nod_1");
  const int c = AddElement(6, "Caf_1");
  const int d = AddElement(5, "Cac_2");
  using Found = std::vector<std::pair<int, std::string_view>>;
  const auto collectors = [](std::string_view value) { return value != "99"; };
  for (int run = 0; run < 3; ++run)  // read from the objects, then from the index of values
    EXPECT_EQ(surface_.FindAllWhereWithValues("iName", collectors),
              (Found{{a, "5"}, {c, "6"}, {d, "5"}}));
  const auto even = [](std::string_view id) { return id.back() == '2'; };
  EXPECT_EQ(surface_.FindAllWhereWithValues("Id", even), (Found{{d, "Cac_2"}}));
  EXPECT_TRUE(surface_.FindAllWhereWithValues("NoSuchTag", collectors).empty());
}

TEST_F(SurfaceReads, KindSearchesSeeEveryChangeOfKindsAndNoneOfOtherTags) {
  const int a = AddElement(5, "Cac_1");
  const int b = AddElement(99, "Nod_1");
  const int c = surface_.AddObject(kKindRectangle, 0, 0, 1, 1);  // no kind yet
  const auto collectors = [&] { return surface_.FindAllByTag("iName", 5); };
  for (int run = 0; run < 3; ++run) EXPECT_EQ(collectors(), std::vector<int>{a});
  // Another tag changes: the kinds stay as they were.
  surface_.SetCurrentObject(b);
  surface_.SetObjTag("libell", "Noeud 1");
  EXPECT_EQ(collectors(), std::vector<int>{a});
  EXPECT_EQ(collectors(), std::vector<int>{a});
  // A kind changes value.
  surface_.SetObjTag("iName", "5");
  for (int run = 0; run < 3; ++run) EXPECT_EQ(collectors(), (std::vector<int>{a, b}));
  // A kind is added at the end of an object's tags.
  surface_.SetCurrentObject(c);
  surface_.SetObjTag("iName", "5");
  for (int run = 0; run < 3; ++run) EXPECT_EQ(collectors(), (std::vector<int>{a, b, c}));
  // A tag is renamed away from the kind, then back by undo.
  surface_.SetCurrentObject(a);
  surface_.SetObjTagName(0, "Ancien");
  ASSERT_EQ(surface_.TagOf(a, "iName"), "");
  for (int run = 0; run < 3; ++run) EXPECT_EQ(collectors(), (std::vector<int>{b, c}));
  ASSERT_TRUE(surface_.Undo());
  for (int run = 0; run < 3; ++run) EXPECT_EQ(collectors(), (std::vector<int>{a, b, c}));
  // Undoing the added kind takes it away again.
  ASSERT_TRUE(surface_.Undo());
  for (int run = 0; run < 3; ++run) EXPECT_EQ(collectors(), (std::vector<int>{a, b}));
}

TEST_F(SurfaceReads, IdsAreFoundExactly) {
  const int a = AddElement(99, "Nod_1");
  AddElement(99, "Nod_2");
  const int c = AddElement(5, "Nod_1");
  EXPECT_EQ(surface_.FindAllByTag("Id", "Nod_1"), (std::vector<int>{a, c}));
  EXPECT_EQ(surface_.CountByTag("Id", "Nod_1"), 2);
  EXPECT_EQ(surface_.CountByTag("Id", "nod_1"), 0);
  EXPECT_EQ(surface_.FindByTagFrom("Id", "Nod_1"), a);
  EXPECT_EQ(surface_.FindByTagFrom("Id", "Nod_1", a), c);
  EXPECT_EQ(surface_.FindByTagFrom("Id", "Nod_1", c), 0);
  EXPECT_EQ(surface_.FindByTagFrom("Id", "nod_1"), 0);
  // Only the first Id of an object counts, as for every tag.
  surface_.SetCurrentObject(a);
  const int count = surface_.ObjTagCount();
  surface_.SetObjTagCount(count + 1);
  surface_.SetObjTagName(count, "Id");
  surface_.SetObjTagValue(count, "Nod_2");
  EXPECT_EQ(surface_.FindByTagFrom("Id", "Nod_2"), a + 1);
}

TEST_F(SurfaceReads, FindsSeeEveryChangeBetweenThem) {
  const int a = AddElement(99, "Nod_1");
  const int b = AddElement(5, "Cac_1");
  for (int run = 0; run < 3; ++run) EXPECT_EQ(surface_.FindAllByTag("iName", 99), std::vector<int>{a});
  surface_.SetCurrentObject(b);
  surface_.SetObjTag("iName", 99);
  EXPECT_EQ(surface_.FindAllByTag("iName", 99), (std::vector<int>{a, b}));
  EXPECT_EQ(surface_.CountByTag("iName", 5), 0);
  surface_.DeleteObject(a);
  EXPECT_EQ(surface_.FindAllByTag("iName", 99), (std::vector<int>{b}));
  surface_.Undo();
  EXPECT_EQ(surface_.FindAllByTag("iName", 99), (std::vector<int>{a, b}));
}

TEST_F(SurfaceReads, ReadsDoNotMoveTheCursor) {
  const int a = AddElement(99, "Nod_1");
  const int b = AddElement(5, "Cac_1");
  for (int cursor : {a, b, kPage, kSelection, kDefaults}) {
    surface_.SetCurrentObject(cursor);
    EXPECT_EQ(surface_.TagOf(b, "Id"), "Cac_1");
    EXPECT_EQ(surface_.KindOf(a), kKindPicture);
    EXPECT_EQ(Walk().size(), 2U);
    EXPECT_EQ(surface_.FindByTagFrom("iName", 99), a);
    EXPECT_EQ(surface_.FindByTagFrom("iName", 7), 0);
    EXPECT_EQ(surface_.CountByTag("iName", 5), 1);
    EXPECT_EQ(surface_.FindAllByTag("Id", "Nod_1").size(), 1U);
    EXPECT_EQ(surface_.CurrentObject(), cursor);
  }
}

TEST_F(SurfaceReads, ReadsDuringAnOpenUndoStepSeeItsChanges) {
  const int a = AddElement(99, "Nod_1");
  surface_.BeginStep("Essai");
  const int b = AddElement(99, "Nod_2");
  surface_.SetCurrentObject(a);
  surface_.SetObjTag("libell", "Amont");
  EXPECT_EQ(surface_.TagOf(a, "libell"), "Amont");
  EXPECT_EQ(surface_.TagOf(b, "Id"), "Nod_2");
  EXPECT_EQ(Walk(), (std::vector<int>{a, b}));
  EXPECT_EQ(surface_.FindAllByTag("iName", 99), (std::vector<int>{a, b}));
  EXPECT_EQ(surface_.CountByTag("Id", "Nod_2"), 1);
  surface_.EndStep();
  ASSERT_TRUE(surface_.Undo());
  EXPECT_EQ(surface_.TagOf(a, "libell"), "Nod_1");
  EXPECT_FALSE(surface_.Exists(b));
  EXPECT_EQ(Walk(), (std::vector<int>{a}));
  EXPECT_EQ(surface_.FindAllByTag("iName", 99), (std::vector<int>{a}));
}

}  // namespace
}  // namespace pluvane
