#include "drawing/stacking_order.h"

#include <gtest/gtest.h>

#include <vector>

namespace pluvane {
namespace {

std::vector<std::size_t> OrderOf(const std::vector<int>& layers) {
  return StackingOrder(layers.size(), [&](std::size_t at) { return layers[at]; });
}

TEST(StackingOrder, ListInOrderStaysAsItIs) {
  EXPECT_EQ(OrderOf({1, 2, 2, 5}), (std::vector<std::size_t>{0, 1, 2, 3}));
}

TEST(StackingOrder, LowerLayersComeFirstAndEqualLayersKeepTheirOrder) {
  EXPECT_EQ(OrderOf({3, 1, 3, 0, 1}), (std::vector<std::size_t>{3, 1, 4, 0, 2}));
}

TEST(StackingOrder, EmptyListGivesNothing) { EXPECT_TRUE(OrderOf({}).empty()); }

}  // namespace
}  // namespace pluvane
