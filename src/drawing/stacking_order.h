// The order of a list of objects from the bottom of the stack to the top.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace pluvane {

// Positions 0 to count - 1 ordered by layer(position), bottom first; objects
// of the same layer keep their order. A list already in stacking order (as a
// network file is, most of the time) is answered without sorting.
template <class Layer>
std::vector<std::size_t> StackingOrder(std::size_t count, Layer layer) {
  std::vector<std::size_t> order(count);
  for (std::size_t i = 0; i < count; ++i) order[i] = i;
  const auto below = [&](std::size_t a, std::size_t b) { return layer(a) < layer(b); };
  if (!std::is_sorted(order.begin(), order.end(), below))
    std::stable_sort(order.begin(), order.end(), below);
  return order;
}

}  // namespace pluvane
