// How the link files number things. Elements: the hydraulic objects of the
// drawing, walked in creation order and ranked 1 to N (the line of .LI1 and
// the record of .LI2). Nodes: their place in the .NOD list. Both name tables
// are built once per file, so each look-up is immediate.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <absl/container/flat_hash_map.h>

#include "drawing/surface.h"
#include "drawing/tag_names.h"

namespace pluvane {

// An element is kept in the link files when its kind (iName) is above 0,
// below 99 and not a gauge (12), a calibration point (15) or a radius (17).
bool IsLinkElement(int i_name);
// The kind written in .LI1: the iName, except a mark (16), written as 12.
int LinkKindCode(int i_name);

struct LinkElement {
  int number = 0;  // object number
  int kind = 0;    // iName as a 16-bit leading number
};

// The tags through which an element names other elements by their label, in
// the order of its ranks in .LI1: a divider's downstream element then as many
// of its three branches as its NbDer, a basin's downstream element then its
// overflow. Empty for the other kinds.
std::span<const char* const> RankTagsOf(const Surface& surface, const LinkElement& element);

// The kept elements in rank order, and the rank of each label.
class LinkWalk {
 public:
  // Walks the whole drawing once. The drawing must not change while the walk
  // is in use: the labels are read from it.
  explicit LinkWalk(const Surface& surface);

  const std::vector<LinkElement>& elements() const { return elements_; }
  int count() const { return static_cast<int>(elements_.size()); }

  // The rank of the first element whose libell equals `text` exactly (case
  // counts, nothing trimmed). 0 for a blank text, a handle below 10 or an
  // empty drawing; N, the last rank, when no element has that label.
  int LinkRankOf(int handle, std::string_view text) const;

 private:
  using LabelRanks = absl::flat_hash_map<std::string, int, TextHash, std::equal_to<>>;
  // The first rank of each label the elements ask for (RankTagsOf).
  void RankAskedLabels() const;
  // Gives each label of `ranks` at 0 the rank of the first element that has
  // it, in one read of the labels that stops when all are found; a label no
  // element has stays at 0.
  void RankLabels(LabelRanks& ranks) const;

  const Surface& surface_;
  std::vector<LinkElement> elements_;
  // Built at the first look-up: the binary file never asks. Labels asked
  // later are added as they come.
  mutable LabelRanks ranks_;
  mutable bool ranked_ = false;
  bool drawing_empty_ = true;
};

// Node numbers from the node Id list of GetTabNodId.
class NodeNumbering {
 public:
  explicit NodeNumbering(const std::vector<std::string>& ids);
  // The same from the nodes of the drawing, in the order of GetTabNodHdle.
  explicit NodeNumbering(const Surface& surface);
  // The place (from 1) of the first node whose Id equals `id`, both trimmed
  // and in capitals; 0 for a blank Id or an unknown one.
  int NodIndexOf(std::string_view id) const;

 private:
  void Add(std::string_view id, int place);
  absl::flat_hash_map<std::string, int, TextHash, std::equal_to<>> places_;
};

}  // namespace pluvane
