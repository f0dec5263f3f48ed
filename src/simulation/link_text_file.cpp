// .LI1, one line for each element in rank order.
#include <array>

#include "foundation/errors.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"
#include "network/catalogue.h"
#include "network/network_tags.h"
#include "simulation/link_files.h"
#include "simulation/link_ranks.h"
#include "simulation/model_text_file.h"
#include "simulation/node_file.h"

namespace pluvane {

namespace {

// What an element's line says after its kind.
struct LinkTargets {
  std::int32_t upstream = 0;
  std::int32_t downstream = 0;
  // The downstream element, then the three branches (or the overflow).
  std::array<std::int32_t, 4> ranks{};
};

LinkTargets TargetsOf(const Surface& surface, const LinkElement& element, const LinkWalk& walk,
                      const NodeNumbering& nodes) {
  LinkTargets t;
  const int handle = element.number;
  auto tag = [&](std::string_view name) { return surface.TagOf(handle, name); };
  auto node = [&](const char* name) { return nodes.NodIndexOf(tag(name)); };
  auto rank = [&](const char* name) { return walk.LinkRankOf(handle, tag(name)); };
  switch (element.kind) {
    case kINameBV:
    case kINameBVS:
      t.upstream = ValRoundLong(tag(kTagSNodAm));
      break;
    case kINameRout: {
      t.upstream = node(kTagSNodAm);
      t.downstream = node(kTagSNodAv);
      // A routing from a catchment starts at the catchment's own number.
      const int start = surface.LinkEndOf(handle, 0);
      if (start > 0 && surface.TagOf(start, kTagIName) == std::to_string(kINameBV))
        t.upstream = ValRoundLong(surface.TagOf(start, kTagSNodAm));
      break;
    }
    case kINameHYBV:
    case kINameHY:
    case kINameCLAV:
    case kINameMark:
      t.upstream = node(kTagSNodAm);
      break;
    case kINameCAC:
    case kINameCAF:
    case kINameCAO:
    case kINameTR:
      t.upstream = node(kTagSNodAm);
      t.downstream = node(kTagSNodAv);
      break;
    case kINameDQQ:
    case kINameDQZ:
    case kINameRS:
    case kINameRSP: {
      t.upstream = node(kTagSNodAm);
      const auto targets = RankTagsOf(surface, element);
      for (std::size_t i = 0; i < targets.size(); ++i) t.ranks[i] = rank(targets[i]);
      break;
    }
    default:
      break;
  }
  return t;
}

}  // namespace

int GenFicLi1(ModelContext& context, const std::string& path) {
  const Surface& surface = context.surface;
  try {
    const LinkWalk walk(surface);
    const NodeNumbering nodes(surface);
    ModelTextFile file(path);
    file.Line(PadLong(walk.count(), 5));
    std::int32_t rank = 0;
    for (const LinkElement& element : walk.elements()) {
      const int n = element.number;
      const std::string name = Trim(surface.TagOf(n, element.kind == kINameCAO ? kTagId : "libell"));
      const std::int32_t group = ValRoundLong(surface.TagOf(n, kTagIGroup));
      const LinkTargets t = TargetsOf(surface, element, walk, nodes);
      std::string line = PadLong(++rank, 5) + PadText(name, 20, 2) + PadLong(group, 5) +
                         PadLong(LinkKindCode(element.kind), 5) + PadLong(t.upstream, 10) +
                         PadLong(t.downstream, 10);
      for (std::int32_t r : t.ranks) line += PadLong(r, 10);
      file.Line(line);
    }
    file.Flush();
    return walk.count();
  } catch (const AppError& error) {
    ShowError(context.ui, &error, "GenFicLi1");
    return 0;
  }
}

}  // namespace pluvane
