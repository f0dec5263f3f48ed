#include "drawing/id_holders.h"

#include <gtest/gtest.h>

#include <vector>

namespace pluvane {
namespace {

TEST(IdHolders, OneHolderIsKeptInPlace) {
  IdHolders holders;
  EXPECT_TRUE(holders.Empty());
  EXPECT_EQ(holders.Size(), 0);
  EXPECT_EQ(holders.Numbers(), std::vector<int>());
  holders.Insert(42);
  EXPECT_FALSE(holders.Empty());
  EXPECT_EQ(holders.Front(), 42);
  EXPECT_EQ(holders.Size(), 1);
  EXPECT_EQ(holders.Numbers(), std::vector<int>({42}));
  holders.Erase(41);
  EXPECT_EQ(holders.Size(), 1);
  holders.Erase(42);
  EXPECT_TRUE(holders.Empty());
}

TEST(IdHolders, SeveralHoldersStayInAscendingOrder) {
  IdHolders holders;
  holders.Insert(30);
  holders.Insert(12);
  holders.Insert(25);
  EXPECT_EQ(holders.Front(), 12);
  EXPECT_EQ(holders.Size(), 3);
  EXPECT_EQ(holders.Numbers(), std::vector<int>({12, 25, 30}));
  holders.Erase(12);
  EXPECT_EQ(holders.Front(), 25);
  EXPECT_EQ(holders.Numbers(), std::vector<int>({25, 30}));
  holders.Erase(99);
  EXPECT_EQ(holders.Size(), 2);
  holders.Erase(30);
  EXPECT_EQ(holders.Front(), 25);
  EXPECT_EQ(holders.Size(), 1);
  EXPECT_EQ(holders.Numbers(), std::vector<int>({25}));
  // Back to one holder, a second one comes again in order.
  holders.Insert(11);
  EXPECT_EQ(holders.Numbers(), std::vector<int>({11, 25}));
  holders.Erase(25);
  holders.Erase(11);
  EXPECT_TRUE(holders.Empty());
}

TEST(IdHolders, TheHolderAfterANumberIsTheNextAboveIt) {
  IdHolders holders;
  EXPECT_EQ(holders.After(0), 0);
  holders.Insert(12);
  EXPECT_EQ(holders.After(0), 12);
  EXPECT_EQ(holders.After(12), 0);
  holders.Insert(30);
  holders.Insert(25);
  EXPECT_EQ(holders.After(0), 12);
  EXPECT_EQ(holders.After(12), 25);
  EXPECT_EQ(holders.After(26), 30);
  EXPECT_EQ(holders.After(30), 0);
}

}  // namespace
}  // namespace pluvane
