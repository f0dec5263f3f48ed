// A uniform grid over the boxes of the visible objects of a drawing, so that
// painting a view visits only the objects that meet it. Rebuilt from the
// surface whenever its shape revision moved; answers in stacking order.
#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "drawing/surface.h"

namespace pluvane {

class SpatialIndex {
 public:
  // Rebuilds when the surface is another one or its shapes changed.
  void Update(const Surface& surface);
  // The visible objects whose box meets the rectangle (edges included), the
  // lowest in the stack first.
  std::vector<int> Query(double left, double top, double right, double bottom) const;
  // All visible objects, lowest first.
  std::vector<int> All() const;
  std::size_t size() const { return items_.size(); }
  // The box around every visible object; false when there is none.
  bool Bounds(Box& box) const;

 private:
  struct Item {
    int number;
    Box box;
  };
  void Build(const Surface& surface);
  void CellRange(double left, double top, double right, double bottom, int& c0, int& r0, int& c1,
                 int& r1) const;

  const Surface* surface_ = nullptr;
  std::uint64_t revision_ = std::numeric_limits<std::uint64_t>::max();
  std::vector<Item> items_;  // in stacking order: an item's rank is its position
  Box bounds_;
  double cell_w_ = 1;
  double cell_h_ = 1;
  int cols_ = 0;
  int rows_ = 0;
  std::vector<std::vector<std::uint32_t>> cells_;  // ranks by cell, row by row
  std::vector<std::uint32_t> big_;                 // ranks of items over many cells
  mutable std::vector<std::uint32_t> seen_;        // query stamp by rank
  mutable std::uint32_t stamp_ = 0;
};

}  // namespace pluvane
