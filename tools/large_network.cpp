// Large generated networks for the benchmarks: nodes on a square grid, each
// row drained westwards into the first column, the first column drained
// southwards to the outlet, and a quarter as many derivations, each a divider
// on its node sending part of the flow diagonally to the next row.
#include <algorithm>
#include <cmath>

#include "network/catalogue.h"
#include "tools/network_builder.h"

namespace pluvane {

namespace {

constexpr std::int32_t kSpacing = 4000;  // 100 m on the map
constexpr double kX0 = 649750;
constexpr double kY0 = 6863250;
constexpr double kScale = 0.025;
constexpr double kDrop = 0.6;  // invert drop from one grid step to the next

int Columns(int nodes) { return std::max(1, static_cast<int>(std::ceil(std::sqrt(nodes)))); }

}  // namespace

std::int32_t LargeNetworkLogicSize(int nodes) {
  return std::max(kBuilderLogicSize, (Columns(nodes) + 2) * kSpacing);
}

LargeNetworkCounts BuildLargeNetwork(NetworkBuilder& b, int nodes) {
  LargeNetworkCounts counts;
  if (nodes < 2) return counts;
  const int cols = Columns(nodes);
  const int rows = (nodes + cols - 1) / cols;
  const std::int32_t size = b.state().LogicWidth;
  if (!b.Calibrate(kX0, kY0, kScale,
                   {{size / 10, size / 10},
                    {size / 10, 9 * (size / 10)},
                    {9 * (size / 10), 9 * (size / 10)}})) {
    return counts;
  }
  std::vector<int> node(static_cast<std::size_t>(nodes));
  for (int k = 0; k < nodes; ++k) {
    const int r = k / cols, c = k % cols;
    node[static_cast<std::size_t>(k)] =
        b.Node((c + 1) * kSpacing, (r + 1) * kSpacing, 20 + kDrop * (c + rows - 1 - r));
  }
  counts.nodes = nodes;
  auto at = [&](int r, int c) { return node[static_cast<std::size_t>(r * cols + c)]; };

  // The tree: one collector leaving each node but the outlet.
  std::vector<int> leaving(static_cast<std::size_t>(nodes));
  for (int k = 0; k < nodes; ++k) {
    const int r = k / cols, c = k % cols;
    if (c == 0 && r == rows - 1) continue;
    const int down = c > 0 ? at(r, c - 1) : at(r + 1, 0);
    const int link = b.Collector("X_CAC", node[static_cast<std::size_t>(k)], down);
    b.Tags(link, {{"Dn", c > 0 ? 0.5 : 1.2}, {"K", 70}, {"HD", 2.0}});
    leaving[static_cast<std::size_t>(k)] = link;
    ++counts.collectors;
  }

  // Derivations, spread evenly over the nodes that have a next row below.
  std::vector<int> eligible;
  for (int k = 0; k < nodes; ++k) {
    const int r = k / cols, c = k % cols;
    if (c >= 1 && r < rows - 1 && (r + 1) * cols + c - 1 < nodes) eligible.push_back(k);
  }
  const std::size_t wanted = std::min(eligible.size(), static_cast<std::size_t>(nodes / 4));
  for (std::size_t i = 0; i < wanted; ++i) {
    const int k = eligible[i * eligible.size() / wanted];
    const int r = k / cols, c = k % cols;
    const int from = node[static_cast<std::size_t>(k)];
    const int link = b.Collector("X_CAC", from, at(r + 1, c - 1));
    b.Tags(link, {{"Dn", 0.4}, {"K", 70}, {"HD", 2.0}});
    ++counts.collectors;
    const bool by_law = i % 2 == 0;
    const int divider = b.OnNode(by_law ? "X_DQQ" : "X_DQZ", from);
    b.Tags(divider, {{"IdAval", b.IdOf(leaving[static_cast<std::size_t>(k)])},
                     {"NbDer", 1},
                     {"IdDer_a", b.IdOf(link)}});
    if (by_law) {
      b.Tags(divider, {{"NbPt", 2}, {"X1", 0}, {"Y1", 0}, {"X2", 2}, {"Y2", 0.5}});
    } else {
      b.Tags(divider, {{"TypeAval", "3. Strickler"},
                       {"TypeDer_a", "3. Strickler"},
                       {"Xav1", 70},
                       {"Xda1", 70}});
    }
    ++counts.others;
  }
  const int outlet = b.OnNode("X_CLAV", at(rows - 1, 0));
  b.Tags(outlet, {{"Export", 1}});
  ++counts.others;
  b.PicturesByName();
  b.ViewWholeNetwork();
  return b.ok() ? counts : LargeNetworkCounts{};
}

}  // namespace pluvane
