#include <gtest/gtest.h>

#include <vector>

#include "drawing/add_element.h"
#include "foundation/numbers.h"
#include "drawing/surface.h"

namespace pluvane {
namespace {

// A drawing with elements of a few kinds and the two hidden parameter records.
class SurfaceTags : public ::testing::Test {
 protected:
  int AddElement(int i_name, const std::string& id) {
    return pluvane::AddElement(surface_, i_name, id);
  }
  Surface surface_;
};

TEST_F(SurfaceTags, ObjectNumbersStartAboveTenAndAreNeverReused) {
  const int a = surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  const int b = surface_.AddObject(kKindEllipse, 0, 0, 10, 10);
  EXPECT_EQ(a, 11);
  EXPECT_EQ(b, 12);
  surface_.DeleteObject(b);
  EXPECT_EQ(surface_.AddObject(kKindRectangle, 0, 0, 1, 1), 13);
  surface_.ClearDrawing();
  EXPECT_EQ(surface_.AddObject(kKindRectangle, 0, 0, 1, 1), 14);
}

TEST_F(SurfaceTags, NewObjectBecomesCurrentAndKeepsItsKind) {
  const int n = surface_.AddObject(kKindText, 0, 0, 10, 10);
  EXPECT_EQ(surface_.CurrentObject(), n);
  EXPECT_EQ(surface_.ObjectKind(), kKindText);
  EXPECT_EQ(surface_.AddObject(kKindLink, 0, 0, 1, 1), 0);
  EXPECT_EQ(surface_.AddObject(3, 0, 0, 1, 1), 0);
  EXPECT_EQ(surface_.CurrentObject(), n);
}

TEST_F(SurfaceTags, MissingTagReadsEmptyAndValGivesZero) {
  surface_.AddObject(kKindPicture, 0, 0, 10, 10);
  EXPECT_EQ(surface_.ObjTag("iBief"), "");
  EXPECT_EQ(Val(surface_.ObjTag("NbColl")), 0);
  EXPECT_EQ(surface_.ObjTagCount(), 0);
}

TEST_F(SurfaceTags, TagsKeepTheirOrderAndNewOnesGoAtTheEnd) {
  surface_.AddObject(kKindPicture, 0, 0, 10, 10);
  surface_.SetObjTag("Id", "Nod_1");
  surface_.SetObjTag("iName", 99);
  surface_.SetObjTag("libell", "N1");
  surface_.SetObjTag("Id", "Nod_2");  // rewriting keeps the place
  ASSERT_EQ(surface_.ObjTagCount(), 3);
  EXPECT_EQ(surface_.ObjTagName(0), "Id");
  EXPECT_EQ(surface_.ObjTagValue(0), "Nod_2");
  EXPECT_EQ(surface_.ObjTagName(1), "iName");
  EXPECT_EQ(surface_.ObjTagValue(1), "99");
  EXPECT_EQ(surface_.ObjTagName(2), "libell");
  EXPECT_EQ(surface_.ObjTagName(3), "");
  EXPECT_EQ(surface_.ObjTagValue(-1), "");
}

TEST_F(SurfaceTags, TagNamesAreCaseSensitive) {
  surface_.AddObject(kKindPicture, 0, 0, 10, 10);
  surface_.SetObjTag("Xlog", "1");
  EXPECT_EQ(surface_.ObjTag("XLOG"), "");
  EXPECT_EQ(surface_.ObjTag("Xlog"), "1");
}

TEST_F(SurfaceTags, NumbersAreWrittenAsPlainText) {
  surface_.AddObject(kKindPicture, 0, 0, 10, 10);
  surface_.SetObjTag("Coef", 0.8);
  EXPECT_EQ(surface_.ObjTag("Coef"), "0.8");
  EXPECT_DOUBLE_EQ(Val(surface_.ObjTag("Coef")), 0.8);
  surface_.SetObjTagValue(0, 12.5);
  EXPECT_EQ(surface_.ObjTag("Coef"), "12.5");
}

TEST_F(SurfaceTags, TagCountTruncatesAndExtends) {
  surface_.AddObject(kKindPicture, 0, 0, 10, 10);
  surface_.SetObjTag("a", "1");
  surface_.SetObjTag("b", "2");
  surface_.SetObjTag("c", "3");
  surface_.SetObjTagCount(1);
  EXPECT_EQ(surface_.ObjTagCount(), 1);
  EXPECT_EQ(surface_.ObjTag("b"), "");
  surface_.SetObjTagCount(3);
  EXPECT_EQ(surface_.ObjTagCount(), 3);
  surface_.SetObjTagName(1, "x");
  surface_.SetObjTagValue(1, "9");
  surface_.SetObjTagName(2, "y");
  EXPECT_EQ(surface_.ObjTag("x"), "9");
  EXPECT_EQ(surface_.ObjTagName(2), "y");
  EXPECT_EQ(surface_.ObjTag("a"), "1");
}

TEST_F(SurfaceTags, TagsOnPseudoObjectsReadEmptyAndWritesGoToTheSelection) {
  const int a = AddElement(5, "Cac_1");
  const int b = AddElement(5, "Cac_2");
  const int c = AddElement(5, "Cac_3");
  surface_.SetCurrentObject(kPage);
  EXPECT_EQ(surface_.ObjTag("Id"), "");
  surface_.SetCurrentObject(a);
  surface_.SetSelected(true);
  surface_.SetCurrentObject(c);
  surface_.SetSelected(true);
  surface_.SetCurrentObject(kSelection);
  surface_.SetObjTag("Dn", "300");
  surface_.SetCurrentObject(a);
  EXPECT_EQ(surface_.ObjTag("Dn"), "300");
  surface_.SetCurrentObject(b);
  EXPECT_EQ(surface_.ObjTag("Dn"), "");
  surface_.SetCurrentObject(c);
  EXPECT_EQ(surface_.ObjTag("Dn"), "300");
}

TEST_F(SurfaceTags, CursorIgnoresNumbersThatAreNoObject) {
  const int a = AddElement(99, "Nod_1");
  surface_.SetCurrentObject(a);
  surface_.SetCurrentObject(500);
  EXPECT_EQ(surface_.CurrentObject(), a);
  surface_.SetCurrentObject(3);
  EXPECT_EQ(surface_.CurrentObject(), a);
  surface_.SetCurrentObject(kDefaults);
  EXPECT_EQ(surface_.CurrentObject(), kDefaults);
}

TEST_F(SurfaceTags, OnlyParameterRecordsGiveTwoObjectsAndNoElement) {
  surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  surface_.SetObjTag("Id", "ParamReseau");
  surface_.SetObjectVisible(false);
  surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  surface_.SetObjTag("Id", "ZoomFactors");
  surface_.SetObjTag("iGroup", -1);
  EXPECT_EQ(surface_.ObjectCount(kPage), 2);
  int elements = 0;
  for (int n = surface_.FirstObject(); n > 10; n = surface_.NextObject())
    if (Val(surface_.ObjTag("iName")) > 0) ++elements;
  EXPECT_EQ(elements, 0);
  EXPECT_EQ(surface_.FindByTag("iName", 99, true), 0);
}

TEST_F(SurfaceTags, FindByTagWalksInCreationOrderAndComparesNumbersNumerically) {
  const int a = AddElement(99, "Nod_1");
  AddElement(5, "Cac_1");
  const int c = AddElement(99, "Nod_2");
  surface_.SetCurrentObject(c);
  surface_.SetObjTag("iName", "99.0");
  surface_.SetCurrentObject(kPage);
  EXPECT_EQ(surface_.FindByTag("iName", 99, true), a);
  EXPECT_EQ(surface_.CurrentObject(), a);
  EXPECT_EQ(surface_.FindByTag("iName", 99, false), c);
  EXPECT_LT(surface_.FindByTag("iName", 99, false), 1);
  EXPECT_EQ(surface_.CurrentObject(), kPage);
  // As text, the match is whole and exact.
  EXPECT_EQ(surface_.FindByTag("iName", "99", true), a);
  EXPECT_EQ(surface_.FindByTag("iName", "99", false), 0);
  EXPECT_EQ(surface_.FindByTag("Id", "nod_1", true), 0);
}

// Searches repeated with no change in between are answered from an index of
// the values; every change of tags or objects must show in the next answer.
TEST_F(SurfaceTags, RepeatedSearchesFollowEveryChange) {
  const int a = AddElement(99, "Nod_1");
  const int b = AddElement(5, "Cac_1");
  const int c = AddElement(99, "Nod_2");
  auto all = [&](const TagMatch& value) {
    std::vector<int> found;
    for (int n = surface_.FindByTag("iName", value, true); n > 0;
         n = surface_.FindByTag("iName", value, false))
      found.push_back(n);
    return found;
  };
  for (int run = 0; run < 3; ++run) {
    EXPECT_EQ(all(99), (std::vector<int>{a, c}));
    EXPECT_EQ(all("5"), (std::vector<int>{b}));
  }
  surface_.SetCurrentObject(b);
  surface_.SetObjTag("iName", " 99 ");
  for (int run = 0; run < 3; ++run) {
    EXPECT_EQ(all(99), (std::vector<int>{a, b, c}));
    EXPECT_EQ(all("99"), (std::vector<int>{a, c}));
    EXPECT_TRUE(all(5).empty());
  }
  surface_.DeleteObject(a);
  for (int run = 0; run < 3; ++run) EXPECT_EQ(all(99), (std::vector<int>{b, c}));
  surface_.Undo();
  for (int run = 0; run < 3; ++run) EXPECT_EQ(all(99), (std::vector<int>{a, b, c}));
  // Only the first tag of the name counts, as in a walk.
  surface_.SetCurrentObject(c);
  surface_.SetObjTagCount(surface_.ObjTagCount() + 1);
  surface_.SetObjTagName(surface_.ObjTagCount() - 1, "iName");
  surface_.SetObjTagValue(surface_.ObjTagCount() - 1, "7");
  for (int run = 0; run < 3; ++run) {
    EXPECT_EQ(all(99), (std::vector<int>{a, b, c}));
    EXPECT_TRUE(all(7).empty());
  }
  const int d = AddElement(7, "X");
  for (int run = 0; run < 3; ++run) EXPECT_EQ(all(7), (std::vector<int>{d}));
  surface_.ClearDrawing();
  EXPECT_TRUE(all(99).empty());
  const int e = AddElement(99, "Nod_3");
  for (int run = 0; run < 3; ++run) EXPECT_EQ(all(99), (std::vector<int>{e}));
}

TEST_F(SurfaceTags, FindByTagMissLeavesThePageCurrent) {
  const int a = AddElement(99, "Nod_1");
  surface_.SetCurrentObject(a);
  EXPECT_LT(surface_.FindByTag("Id", "Nod_9", true), 1);
  EXPECT_EQ(surface_.CurrentObject(), kPage);
  EXPECT_LT(surface_.FindByTag("NoSuchTag", "x", true), 1);
  EXPECT_EQ(surface_.CurrentObject(), kPage);
}

TEST_F(SurfaceTags, WalksSkipDeletedObjects) {
  const int a = AddElement(1, "Bv_1");
  const int b = AddElement(1, "Bv_2");
  const int c = AddElement(1, "Bv_3");
  surface_.DeleteObject(b);
  std::vector<int> seen;
  surface_.SetCurrentObject(kPage);
  for (int n = surface_.FirstObject(); n > 10; n = surface_.NextObject()) seen.push_back(n);
  EXPECT_EQ(seen, (std::vector<int>{a, c}));
  EXPECT_LT(surface_.CurrentObject(), 11);
  EXPECT_EQ(surface_.ObjectCount(kPage), 2);
}

TEST_F(SurfaceTags, DeletedCurrentObjectReadsAsMissing) {
  const int a = AddElement(1, "Bv_1");
  const int b = AddElement(1, "Bv_2");
  surface_.SetCurrentObject(a);
  EXPECT_EQ(surface_.DeleteObject(kDefaults), 1);
  EXPECT_EQ(surface_.CurrentObject(), a);
  EXPECT_EQ(surface_.ObjTag("Id"), "");
  EXPECT_EQ(surface_.ObjectKind(), 0);
  // A walk goes on after it.
  EXPECT_EQ(surface_.NextObject(), b);
}

TEST_F(SurfaceTags, DeletingWhileWalkingTheSelectionRestartsAtTheFirstSelected) {
  std::vector<int> texts;
  for (int i = 0; i < 4; ++i) {
    texts.push_back(surface_.AddObject(kKindText, 0, 0, 10, 10));
    surface_.SetSelected(true);
  }
  surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  surface_.SetCurrentObject(kSelection);
  int deleted = 0;
  int n = surface_.FirstSelected();
  while (n > 10) {
    if (surface_.ObjectKind() == kKindText) {
      surface_.DeleteObject(kDefaults);
      ++deleted;
      surface_.SetCurrentObject(kSelection);
      n = surface_.FirstSelected();
    } else {
      n = surface_.NextSelected();
    }
  }
  EXPECT_EQ(deleted, 4);
  EXPECT_EQ(surface_.ObjectCount(kSelection), 0);
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
  EXPECT_EQ(surface_.CurrentObject(), kSelection);
}

TEST_F(SurfaceTags, IdIndexFollowsEveryWrite) {
  const int a = AddElement(5, "Cac_1");
  const int b = AddElement(5, "Cac_1");
  EXPECT_EQ(surface_.FindById("Cac_1"), a);
  surface_.SetCurrentObject(a);
  surface_.SetObjTag("Id", "Cac_9");
  EXPECT_EQ(surface_.FindById("Cac_1"), b);
  EXPECT_EQ(surface_.FindById("Cac_9"), a);
  surface_.SetObjTagName(1, "OldId");  // no Id any more on a
  EXPECT_EQ(surface_.FindById("Cac_9"), 0);
  surface_.DeleteObject(b);
  EXPECT_EQ(surface_.FindById("Cac_1"), 0);
  surface_.Undo();
  EXPECT_EQ(surface_.FindById("Cac_1"), b);
  surface_.Undo();
  EXPECT_EQ(surface_.FindById("Cac_9"), a);
}

TEST_F(SurfaceTags, ObjectKindTurnsASymbolIntoAMarker) {
  AddElement(99, "Nod_1");
  surface_.SetObjectKind(kKindEllipse);
  EXPECT_EQ(surface_.ObjectKind(), kKindEllipse);
  surface_.SetObjectKind(kKindLink);
  EXPECT_EQ(surface_.ObjectKind(), kKindEllipse);
}

}  // namespace
}  // namespace pluvane
