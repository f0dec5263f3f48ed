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

constexpr std::array<const char*, 3> kBranchTags = {"IdDer_a", "IdDer_b", "IdDer_c"};

LinkTargets TargetsOf(Surface& surface, const LinkElement& element, const LinkWalk& walk,
                      const NodeNumbering& nodes) {
  LinkTargets t;
  const int handle = element.number;
  auto node = [&](const char* tag) { return nodes.NodIndexOf(surface.ObjTag(tag)); };
  auto rank = [&](const char* tag) { return walk.LinkRankOf(handle, surface.ObjTag(tag)); };
  switch (element.kind) {
    case kINameBV:
    case kINameBVS:
      t.upstream = ValRoundLong(surface.ObjTag(kTagSNodAm));
      break;
    case kINameRout: {
      t.upstream = node(kTagSNodAm);
      t.downstream = node(kTagSNodAv);
      // A routing from a catchment starts at the catchment's own number.
      const int start = surface.LinkEndObject(0);
      surface.SetCurrentObject(start);
      if (surface.CurrentObject() == start && start > 0 &&
          surface.ObjTag(kTagIName) == std::to_string(kINameBV)) {
        t.upstream = ValRoundLong(surface.ObjTag(kTagSNodAm));
      }
      surface.SetCurrentObject(handle);
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
    case kINameDQZ: {
      t.upstream = node(kTagSNodAm);
      t.ranks[0] = rank("IdAval");
      const int branches = ValRoundInt(surface.ObjTag("NbDer"));
      for (int i = 0; i < 3 && i < branches; ++i) t.ranks[i + 1] = rank(kBranchTags[i]);
      break;
    }
    case kINameRS:
    case kINameRSP:
      t.upstream = node(kTagSNodAm);
      t.ranks[0] = rank("IdAval");
      t.ranks[1] = rank("IdSurv");
      break;
    default:
      break;
  }
  return t;
}

}  // namespace

int GenFicLi1(ModelContext& context, const std::string& path) {
  Surface& surface = context.surface;
  CursorKeeper keeper(surface);
  try {
    const LinkWalk walk(surface);
    std::vector<std::string> ids;
    GetTabNodId(surface, ids);
    const NodeNumbering nodes(ids);
    ModelTextFile file(path);
    file.Line(PadLong(walk.count(), 5));
    std::int32_t rank = 0;
    for (const LinkElement& element : walk.elements()) {
      surface.SetCurrentObject(element.number);
      const std::string name = Trim(surface.ObjTag(element.kind == kINameCAO ? kTagId : "libell"));
      const std::int32_t group = ValRoundLong(surface.ObjTag(kTagIGroup));
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
