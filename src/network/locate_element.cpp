#include "network/locate_element.h"

#include <algorithm>
#include <string>
#include <vector>

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/view_zoom.h"

namespace pluvane {

namespace {

// The view around an element found: this many times its size on each side,
// and never less than this many symbol sizes.
constexpr double kAroundSizes = 5;
constexpr double kAroundSymbols = 20;

void ZoomAround(Surface& surface, NetworkState& state, int object) {
  const Box box = surface.ObjectShape(object)->box;
  const double cx = (static_cast<double>(box.left) + box.right) / 2;
  const double cy = (static_cast<double>(box.top) + box.bottom) / 2;
  const double size = std::max<double>(box.right - box.left, box.bottom - box.top);
  const double half = std::max(size * kAroundSizes, kAroundSymbols * state.SymbolSize);
  ZoomToRect(surface, state, cx - half, cy - half, cx + half, cy + half);
}

}  // namespace

int LocateElement(Surface& surface, NetworkState& state, UserInterface& ui, std::string_view tag_name) {
  if (surface.ObjectCount(kPage) == 0) {
    ui.ShowMessage("Un réseau doit être chargé.", kLocateTitle, MessageIcon::kExclamation);
    return 0;
  }
  const std::optional<std::string> answer =
      ui.AskText("Rentrer la désignation de l'élément à localiser.", kLocateTitle, "");
  if (!answer || Trim(*answer).empty()) return 0;
  const std::string wanted = UCase(*answer);
  std::vector<int> found;
  std::string lines;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    const std::string value = surface.ObjTag(tag_name);
    if (UCase(value) != wanted) continue;
    found.push_back(n);
    lines += "\n" + value + " type " + ShortCodeOfIName(ValInt(surface.ObjTag(kTagIName)));
  }
  if (found.empty()) {
    ui.ShowMessage("Aucun élément " + *answer, kLocateTitle, MessageIcon::kInformation);
    return 0;
  }
  const std::string count = std::to_string(found.size());
  ui.ShowMessage(count + (found.size() == 1 ? " élément trouvé:" : " éléments trouvés:") + lines,
                 kLocateTitle, MessageIcon::kInformation);
  surface.DeselectAll();
  for (int n : found) {
    surface.SetCurrentObject(n);
    surface.SetSelected(true);
  }
  ZoomAround(surface, state, found.front());
  surface.SetCurrentObject(found.front());
  return static_cast<int>(found.size());
}

void ShowElement(Surface& surface, NetworkState& state, int object) {
  surface.DeselectAll();
  surface.SetCurrentObject(object);
  surface.SetSelected(true);
  ZoomAround(surface, state, object);
  surface.SetCurrentObject(object);
}

}  // namespace pluvane
