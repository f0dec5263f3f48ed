#include "shell/main_keys.h"

#include <gtest/gtest.h>

namespace pluvane {
namespace {

constexpr int kCtrl = 2;

TEST(MainKeys, LettersAnswerOnBothCodesWithCtrl) {
  const struct {
    int upper, lower;
    MainKey key;
  } pairs[] = {{67, 99, MainKey::kCopy},        {86, 118, MainKey::kPaste},
               {90, 122, MainKey::kUndo},       {89, 121, MainKey::kRedo},
               {65, 97, MainKey::kSelectAll},   {71, 103, MainKey::kGroup},
               {85, 117, MainKey::kUngroup},    {68, 100, MainKey::kLocateId},
               {70, 102, MainKey::kLocateLabel}};
  for (const auto& pair : pairs) {
    EXPECT_EQ(MainKeyOf(pair.upper, kCtrl), pair.key) << pair.upper;
    EXPECT_EQ(MainKeyOf(pair.lower, kCtrl), pair.key) << pair.lower;
    EXPECT_EQ(MainKeyOf(pair.upper, 0), MainKey::kNone) << pair.upper;
  }
}

TEST(MainKeys, PadThreeAndF7WithCtrlCopyAndPaste) {
  // The numeric pad's 3 is 99 and F7 is 118: with Ctrl they are C and V.
  EXPECT_EQ(MainKeyOf(99, kCtrl), MainKey::kCopy);
  EXPECT_EQ(MainKeyOf(118, kCtrl), MainKey::kPaste);
  EXPECT_EQ(MainKeyOf(99, kCtrl | 1), MainKey::kCopy);
  EXPECT_EQ(MainKeyOf(118, 0), MainKey::kNone);
  EXPECT_EQ(MainKeyOf(99, 0), MainKey::kNone);
}

TEST(MainKeys, PlainKeys) {
  EXPECT_EQ(MainKeyOf(37, 0), MainKey::kLeft);
  EXPECT_EQ(MainKeyOf(38, 1), MainKey::kUp);
  EXPECT_EQ(MainKeyOf(39, 0), MainKey::kRight);
  EXPECT_EQ(MainKeyOf(40, 0), MainKey::kDown);
  EXPECT_EQ(MainKeyOf(27, 0), MainKey::kEscape);
  EXPECT_EQ(MainKeyOf(46, 0), MainKey::kDelete);
  EXPECT_EQ(MainKeyOf(13, 0), MainKey::kEnter);
  EXPECT_EQ(MainKeyOf(112, 0), MainKey::kNone);
  EXPECT_EQ(MainKeyOf(113, 0), MainKey::kZoomAll);
  EXPECT_EQ(MainKeyOf(114, 0), MainKey::kZoomWindow);
  EXPECT_EQ(MainKeyOf(115, 0), MainKey::kZoomBounds);
  EXPECT_EQ(MainKeyOf(116, 0), MainKey::kRefresh);
}

TEST(MainKeys, DataAccessNeedsCtrlShiftAltF12) {
  EXPECT_EQ(MainKeyOf(123, 7), MainKey::kDataAccess);
  EXPECT_EQ(MainKeyOf(123, 3), MainKey::kNone);
  EXPECT_EQ(MainKeyOf(123, 0), MainKey::kNone);
}

}  // namespace
}  // namespace pluvane
