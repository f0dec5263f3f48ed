#include "ui/spatial_index.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>

#include "drawing/shape_geometry.h"

namespace pluvane {

namespace {

constexpr int kMostCellsASide = 512;
// An item over more cells than this is kept apart and tested at every query.
constexpr long kMostCellsAnItem = 64;

}  // namespace

void SpatialIndex::Update(const Surface& surface) {
  if (&surface == surface_ && surface.ShapeRevision() == revision_) return;
  Build(surface);
  surface_ = &surface;
  revision_ = surface.ShapeRevision();
}

void SpatialIndex::Build(const Surface& surface) {
  items_.clear();
  cells_.clear();
  big_.clear();
  std::vector<std::tuple<std::int64_t, int>> order;
  for (int n = surface.NextObjectNumber(0); n > 0; n = surface.NextObjectNumber(n)) {
    const Shape* shape = surface.ObjectShape(n);
    if (shape && !shape->hidden) order.emplace_back(shape->layer, n);
  }
  std::sort(order.begin(), order.end());
  items_.reserve(order.size());
  for (const auto& [layer, n] : order) items_.push_back(Item{n, surface.ObjectShape(n)->box});
  seen_.assign(items_.size(), 0);
  stamp_ = 0;
  cols_ = rows_ = 0;
  if (items_.empty()) return;
  bounds_ = items_[0].box;
  for (const Item& item : items_) bounds_ = Union(bounds_, item.box);
  const double width = std::max(1.0, static_cast<double>(bounds_.right) - bounds_.left);
  const double height = std::max(1.0, static_cast<double>(bounds_.bottom) - bounds_.top);
  // About two items a cell, in cells as square as the bounds allow.
  const double cells = std::max(1.0, static_cast<double>(items_.size()) / 2.0);
  const double side = std::sqrt(width * height / cells);
  cols_ = std::clamp(static_cast<int>(std::ceil(width / side)), 1, kMostCellsASide);
  rows_ = std::clamp(static_cast<int>(std::ceil(height / side)), 1, kMostCellsASide);
  cell_w_ = width / cols_;
  cell_h_ = height / rows_;
  cells_.resize(static_cast<std::size_t>(cols_) * rows_);
  for (std::uint32_t rank = 0; rank < items_.size(); ++rank) {
    const Box& b = items_[rank].box;
    int c0, r0, c1, r1;
    CellRange(b.left, b.top, b.right, b.bottom, c0, r0, c1, r1);
    if (static_cast<long>(c1 - c0 + 1) * (r1 - r0 + 1) > kMostCellsAnItem) {
      big_.push_back(rank);
      continue;
    }
    for (int r = r0; r <= r1; ++r)
      for (int c = c0; c <= c1; ++c)
        cells_[static_cast<std::size_t>(r) * cols_ + c].push_back(rank);
  }
}

void SpatialIndex::CellRange(double left, double top, double right, double bottom, int& c0, int& r0,
                             int& c1, int& r1) const {
  auto cell = [](double v, double origin, double size, int count) {
    return static_cast<int>(std::clamp(std::floor((v - origin) / size), 0.0, count - 1.0));
  };
  c0 = cell(left, bounds_.left, cell_w_, cols_);
  c1 = cell(right, bounds_.left, cell_w_, cols_);
  r0 = cell(top, bounds_.top, cell_h_, rows_);
  r1 = cell(bottom, bounds_.top, cell_h_, rows_);
}

bool SpatialIndex::Bounds(Box& box) const {
  if (items_.empty()) return false;
  box = bounds_;
  return true;
}

std::vector<int> SpatialIndex::All() const {
  std::vector<int> numbers;
  numbers.reserve(items_.size());
  for (const Item& item : items_) numbers.push_back(item.number);
  return numbers;
}

std::vector<int> SpatialIndex::Query(double left, double top, double right, double bottom) const {
  if (items_.empty() || right < bounds_.left || left > bounds_.right || bottom < bounds_.top ||
      top > bounds_.bottom)
    return {};
  if (left <= bounds_.left && top <= bounds_.top && right >= bounds_.right &&
      bottom >= bounds_.bottom)
    return All();
  if (++stamp_ == 0) {
    std::fill(seen_.begin(), seen_.end(), 0);
    stamp_ = 1;
  }
  std::vector<std::uint32_t> ranks;
  auto take = [&](std::uint32_t rank) {
    if (seen_[rank] == stamp_) return;
    seen_[rank] = stamp_;
    const Box& b = items_[rank].box;
    if (b.right >= left && b.left <= right && b.bottom >= top && b.top <= bottom)
      ranks.push_back(rank);
  };
  int c0, r0, c1, r1;
  CellRange(left, top, right, bottom, c0, r0, c1, r1);
  for (int r = r0; r <= r1; ++r)
    for (int c = c0; c <= c1; ++c)
      for (std::uint32_t rank : cells_[static_cast<std::size_t>(r) * cols_ + c]) take(rank);
  for (std::uint32_t rank : big_) take(rank);
  std::sort(ranks.begin(), ranks.end());
  std::vector<int> numbers;
  numbers.reserve(ranks.size());
  for (std::uint32_t rank : ranks) numbers.push_back(items_[rank].number);
  return numbers;
}

}  // namespace pluvane
