#include "drawing/surface_object.h"

#include <algorithm>

namespace pluvane {

// ---------------------------------------------------------------------------
// Tags

TagBlock::TagBlock(const TagBlock& other) {
  if (!other.block_) return;
  const std::size_t words = other.Words();
  block_ = std::make_unique_for_overwrite<std::uint32_t[]>(words);
  std::copy_n(other.block_.get(), words, block_.get());
}

TagBlock& TagBlock::operator=(const TagBlock& other) {
  if (this != &other) *this = TagBlock(other);
  return *this;
}

std::unique_ptr<std::uint32_t[]> TagBlock::Allocate(std::size_t count, std::size_t text) {
  auto block = std::make_unique_for_overwrite<std::uint32_t[]>(1 + 2 * count + (text + 3) / 4);
  block[0] = static_cast<std::uint32_t>(count);
  return block;
}

std::size_t TagBlock::Find(std::uint32_t name) const {
  const std::size_t count = size();
  for (std::size_t i = 0; i < count; ++i)
    if (block_[1 + i] == name) return i;
  return count;
}

void TagBlock::Append(std::uint32_t name, std::string_view value) {
  const std::size_t count = size();
  Assign(count + 1, [&](std::size_t i) { return i < count ? (*this)[i] : Tag{name, value}; });
}

void TagBlock::SetValue(std::size_t i, std::string_view value) {
  Assign(size(), [&](std::size_t k) { return k == i ? Tag{Name(k), value} : (*this)[k]; });
}

void TagBlock::Truncate(std::size_t count) {
  if (count >= size()) return;
  Assign(count, [this](std::size_t i) { return (*this)[i]; });
}

TagBlock TagBlock::Tail(std::size_t position) const {
  TagBlock tail;
  const std::size_t count = size();
  if (position < count)
    tail.Assign(count - position, [&](std::size_t i) { return (*this)[position + i]; });
  return tail;
}

void TagBlock::Extend(const TagBlock& other) {
  const std::size_t count = size();
  if (other.empty()) return;
  Assign(count + other.size(),
         [&](std::size_t i) { return i < count ? (*this)[i] : other[i - count]; });
}

// ---------------------------------------------------------------------------
// Kinds

bool IsKnownKind(int kind) {
  switch (kind) {
    case kKindLine:
    case kKindRectangle:
    case kKindEllipse:
    case kKindArc:
    case kKindPie:
    case kKindChord:
    case kKindPolyline:
    case kKindPolygon:
    case kKindText:
    case kKindPicture:
    case kKindBezier:
    case kKindLink:
    case kKindDimension:
    case kKindGroup:
      return true;
    default:
      return false;
  }
}

bool IsLineKind(int kind) {
  return kind == kKindLine || kind == kKindPolyline || kind == kKindBezier || kind == kKindLink ||
         kind == kKindDimension || kind == kKindArc;
}

}  // namespace pluvane
