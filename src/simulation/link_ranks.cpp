#include "simulation/link_ranks.h"

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"
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

LinkWalk::LinkWalk(Surface& surface) {
  CursorKeeper keeper(surface);
  drawing_empty_ = surface.ObjectCount(kAllObjects) == 0;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    const int kind = ValRoundInt(surface.ObjTag(kTagIName));
    if (!IsLinkElement(kind)) continue;
    elements_.push_back({n, kind});
    ranks_.try_emplace(surface.ObjTag("libell"), count());
  }
}

int LinkWalk::LinkRankOf(int handle, std::string_view text) const {
  if (Trim(text).empty() || handle < kFirstElementHandle || drawing_empty_) return 0;
  const auto found = ranks_.find(std::string(text));
  return found != ranks_.end() ? found->second : count();
}

NodeNumbering::NodeNumbering(const std::vector<std::string>& ids) {
  int place = 0;
  for (const std::string& id : ids) places_.try_emplace(UCase(Trim(id)), ++place);
}

int NodeNumbering::NodIndexOf(std::string_view id) const {
  const std::string key = UCase(Trim(id));
  if (key.empty()) return 0;
  const auto found = places_.find(key);
  return found != places_.end() ? found->second : 0;
}

}  // namespace pluvane
