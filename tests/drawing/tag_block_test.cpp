#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "drawing/surface_object.h"

namespace pluvane {
namespace {

using Pairs = std::vector<std::pair<std::uint32_t, std::string>>;

Pairs Read(const TagBlock& tags) {
  Pairs pairs;
  for (const Tag& tag : tags) pairs.emplace_back(tag.name, std::string(tag.value));
  return pairs;
}

TEST(TagBlock, StartsEmptyAndKeepsTheOrderOfAppends) {
  TagBlock tags;
  EXPECT_TRUE(tags.empty());
  EXPECT_EQ(tags.Find(3), 0u);
  tags.Append(3, "Nod_1");
  tags.Append(1, "");
  tags.Append(3, "un texte bien plus long que quinze caractères");
  EXPECT_EQ(Read(tags),
            (Pairs{{3, "Nod_1"}, {1, ""}, {3, "un texte bien plus long que quinze caractères"}}));
  EXPECT_EQ(tags.Find(3), 0u);
  EXPECT_EQ(tags.Find(1), 1u);
  EXPECT_EQ(tags.Find(7), 3u);
}

TEST(TagBlock, ChangesOneValueOrOneNameInPlace) {
  TagBlock tags;
  tags.Append(1, "a");
  tags.Append(2, "bb");
  tags.Append(3, "ccc");
  tags.SetValue(1, "une valeur plus longue");
  tags.SetValue(2, "");
  tags.SetName(0, 9);
  EXPECT_EQ(Read(tags), (Pairs{{9, "a"}, {2, "une valeur plus longue"}, {3, ""}}));
  // A value taken from the block itself.
  tags.SetValue(2, tags.Value(1));
  EXPECT_EQ(tags.Value(2), "une valeur plus longue");
}

TEST(TagBlock, CutsAndJoinsTails) {
  TagBlock tags;
  for (std::uint32_t i = 0; i < 5; ++i) tags.Append(i, std::string(i, 'x'));
  const TagBlock tail = tags.Tail(3);
  EXPECT_EQ(Read(tail), (Pairs{{3, "xxx"}, {4, "xxxx"}}));
  EXPECT_TRUE(tags.Tail(5).empty());
  tags.Truncate(3);
  EXPECT_EQ(tags.size(), 3u);
  tags.Truncate(7);
  EXPECT_EQ(tags.size(), 3u);
  tags.Extend(tail);
  EXPECT_EQ(Read(tags),
            (Pairs{{0, ""}, {1, "x"}, {2, "xx"}, {3, "xxx"}, {4, "xxxx"}}));
  tags.Truncate(0);
  EXPECT_TRUE(tags.empty());
}

TEST(TagBlock, CopiesAreIndependent) {
  TagBlock tags;
  tags.Append(1, "Id");
  TagBlock copy = tags;
  copy.SetValue(0, "autre");
  EXPECT_EQ(tags.Value(0), "Id");
  EXPECT_EQ(copy.Value(0), "autre");
  copy = tags;
  EXPECT_EQ(Read(copy), Read(tags));
  TagBlock moved = std::move(copy);
  EXPECT_EQ(Read(moved), (Pairs{{1, "Id"}}));
}

}  // namespace
}  // namespace pluvane
