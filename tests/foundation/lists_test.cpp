#include "foundation/lists.h"

#include <gtest/gtest.h>

namespace pluvane {
namespace {

using Texts = std::vector<std::string>;

TEST(FindInList, FirstEntryCaseBlindOneBased) {
  Texts list = {"Nod_1", "CAC_2", "cac_2", "Réseau"};
  EXPECT_EQ(FindInList(list, "nod_1"), 1);
  EXPECT_EQ(FindInList(list, "cac_2"), 2);
  EXPECT_EQ(FindInList(list, "RÉSEAU"), 4);
  EXPECT_EQ(FindInList(list, "Bv_1"), 0);
  EXPECT_EQ(FindInList({}, "x"), 0);
}

TEST(FindLong, FirstEqualEntry) {
  EXPECT_EQ(FindLong({4, 7, 7}, 7), 2);
  EXPECT_EQ(FindLong({4, 7, 7}, 4), 1);
  EXPECT_EQ(FindLong({4, 7}, 5), 0);
  EXPECT_EQ(FindLong({}, 0), 0);
}

TEST(IsDoubled, TrueOnlyForTwoEqualEntries) {
  EXPECT_TRUE(IsDoubled("abc", {"ABC", "x", "abc"}));
  EXPECT_FALSE(IsDoubled("abc", {"ABC", "x"}));
  EXPECT_TRUE(IsDoubled("é", {"É", "é", "é"}));
  EXPECT_FALSE(IsDoubled("a", {}));
}

TEST(MarkInList, MarksAndCountsChangedEntries) {
  Texts list = {"a", "A", "$", "b"};
  EXPECT_EQ(MarkInList(list, "a"), 2);
  EXPECT_EQ(list, (Texts{"$", "$", "$", "b"}));
  EXPECT_EQ(MarkInList(list, "a"), 0);
}

TEST(MarkInList, EntryAlreadyMarkedIsNotCounted) {
  Texts list = {"$", "x", "$"};
  EXPECT_EQ(MarkInList(list, "$"), 0);
  EXPECT_EQ(list, (Texts{"$", "x", "$"}));
}

TEST(IsAscending, FewerThanTwoValuesIsFalseAndLeavesTheIndex) {
  int index = 99;
  EXPECT_FALSE(IsAscending({1.0}, index));
  EXPECT_EQ(index, 99);
  EXPECT_FALSE(IsAscending({}, index));
  EXPECT_EQ(index, 99);
}

TEST(IsAscending, StepBelowAMillionthFailsAtThatIndex) {
  int index = 0;
  EXPECT_FALSE(IsAscending({1, 1.0000001}, index));
  EXPECT_EQ(index, 2);
  index = 0;
  EXPECT_FALSE(IsAscending({1, 2, 2.0000005, 1}, index));
  EXPECT_EQ(index, 3);
  index = 0;
  EXPECT_FALSE(IsAscending({3, 2}, index));
  EXPECT_EQ(index, 2);
}

TEST(IsAscending, StrictlyRisingValuesPass) {
  int index = 42;
  EXPECT_TRUE(IsAscending({0, 0.5, 1, 10}, index));
  EXPECT_EQ(index, 42);
  EXPECT_TRUE(IsAscending({0, 0.000002}, index));
}

}  // namespace
}  // namespace pluvane
