#include "simulation/link_ranks.h"

#include <algorithm>
#include <array>

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"

namespace pluvane {

namespace {

// Object numbers below this one are never elements.
constexpr int kFirstElementHandle = 10;

}  // namespace

bool IsLinkElement(int i_name) {
  return i_name > 0 && i_name < kINameNode && i_name != kINamePLU && i_name != kINameCalage &&
         i_name != kINameRayon;
}

int LinkKindCode(int i_name) { return i_name == kINameMark ? kINamePLU : i_name; }

std::span<const char* const> RankTagsOf(const Surface& surface, const LinkElement& element) {
  static constexpr std::array<const char*, 4> kDivider = {"IdAval", "IdDer_a", "IdDer_b",
                                                          "IdDer_c"};
  static constexpr std::array<const char*, 2> kBasin = {"IdAval", "IdSurv"};
  switch (element.kind) {
    case kINameDQQ:
    case kINameDQZ: {
      const int branches = std::clamp<int>(ValRoundInt(surface.TagOf(element.number, "NbDer")), 0, 3);
      return std::span(kDivider).first(1 + static_cast<std::size_t>(branches));
    }
    case kINameRS:
    case kINameRSP:
      return kBasin;
    default:
      return {};
  }
}

LinkWalk::LinkWalk(const Surface& surface) : surface_(surface) {
  drawing_empty_ = surface.ObjectCount(kAllObjects) == 0;
  const auto element = [](std::string_view i_name) { return IsLinkElement(ValRoundInt(i_name)); };
  for (const auto& [n, i_name] : surface.FindAllWhereWithValues(kTagIName, element))
    elements_.push_back({n, ValRoundInt(i_name)});
}

int LinkWalk::LinkRankOf(int handle, std::string_view text) const {
  if (Trim(text).empty() || handle < kFirstElementHandle || drawing_empty_) return 0;
  if (!ranked_) RankAskedLabels();
  auto found = ranks_.find(text);
  if (found == ranks_.end()) {
    LabelRanks one{{std::string(text), 0}};
    RankLabels(one);
    found = ranks_.insert(*one.begin()).first;
  }
  return found->second > 0 ? found->second : count();
}

void LinkWalk::RankAskedLabels() const {
  ranked_ = true;
  for (const LinkElement& element : elements_)
    for (const char* tag : RankTagsOf(surface_, element)) {
      const std::string_view label = surface_.TagOf(element.number, tag);
      if (!Trim(label).empty()) ranks_.try_emplace(std::string(label), 0);
    }
  RankLabels(ranks_);
}

void LinkWalk::RankLabels(LabelRanks& ranks) const {
  std::size_t left = 0;
  for (const auto& [label, rank] : ranks) left += rank == 0 ? 1 : 0;
  int rank = 0;
  for (const LinkElement& element : elements_) {
    if (left == 0) break;
    ++rank;
    const auto found = ranks.find(surface_.TagOf(element.number, "libell"));
    if (found != ranks.end() && found->second == 0) {
      found->second = rank;
      --left;
    }
  }
}

namespace {

// An Id as the node numbering compares it: trimmed and in capitals. Most
// Ids already are, and are then taken as they stand.
bool IsPlainKey(std::string_view id) {
  if (id.empty() || id.front() == ' ' || id.back() == ' ') return false;
  for (char c : id)
    if ((c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80) return false;
  return true;
}

}  // namespace

void NodeNumbering::Add(std::string_view id, int place) {
  places_.try_emplace(IsPlainKey(id) ? std::string(id) : UCase(Trim(id)), place);
}

NodeNumbering::NodeNumbering(const std::vector<std::string>& ids) {
  int place = 0;
  for (const std::string& id : ids) Add(id, ++place);
}

NodeNumbering::NodeNumbering(const Surface& surface) {
  const std::vector<int> nodes = surface.FindAllByTag(kTagIName, kINameNode);
  places_.reserve(nodes.size());
  int place = 0;
  for (int n : nodes) Add(surface.TagOf(n, kTagId), ++place);
}

int NodeNumbering::NodIndexOf(std::string_view id) const {
  if (IsPlainKey(id)) {
    const auto found = places_.find(id);
    return found != places_.end() ? found->second : 0;
  }
  const std::string key = UCase(Trim(id));
  if (key.empty()) return 0;
  const auto found = places_.find(key);
  return found != places_.end() ? found->second : 0;
}

}  // namespace pluvane
