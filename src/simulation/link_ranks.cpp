#include "simulation/link_ranks.h"

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"

namespace pluvane {

namespace {

constexpr int kGaugeKind = 12;
constexpr int kCalibrationKind = 15;
constexpr int kMarkKind = 16;
constexpr int kRadiusKind = 17;
constexpr int kNodeKind = 99;
// Object numbers below this one are never elements.
constexpr int kFirstElementHandle = 10;

}  // namespace

bool IsLinkElement(int i_name) {
  return i_name > 0 && i_name < kNodeKind && i_name != kGaugeKind && i_name != kCalibrationKind &&
         i_name != kRadiusKind;
}

int LinkKindCode(int i_name) { return i_name == kMarkKind ? kGaugeKind : i_name; }

LinkWalk::LinkWalk(Surface& surface) {
  CursorKeeper keeper(surface);
  drawing_empty_ = surface.ObjectCount(kAllObjects) == 0;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    const int kind = ValRoundInt(surface.ObjTag("iName"));
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
