#include "shell/view_commands.h"

#include <cmath>
#include <vector>

#include "drawing/object_tags.h"
#include "foundation/settings_keys.h"
#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/view_zoom.h"
#include "shell/configuration.h"

namespace pluvane {

namespace {

// The grid step at the present zoom, in logical units.
constexpr double kGridPixels = 124;
// The value of ScrollBars that shows both bars.
constexpr int kBothScrollBars = 2;

bool IsElementSymbol(Surface& surface) {
  const int i_name = ValInt(surface.ObjTag(kTagIName));
  return surface.ObjectKind() == kKindPicture && i_name >= 1 && i_name < kINameReach;
}

}  // namespace

bool ZoomOut(Surface& surface, AppState& state) {
  const double w = surface.ViewWidth(), h = surface.ViewHeight();
  const double cx = surface.ViewLeft() + w / 2, cy = surface.ViewTop() + h / 2;
  return ZoomToRect(surface, state, cx - w, cy - h, cx + w, cy + h);
}

int RefreshSymbolSizes(Surface& surface, const AppState& state) {
  CursorKeeper keep(surface);
  const double half = NodeHalfSize(surface, state.SymbolSize);
  if (!(state.SymbolSize > 0) || !(half > 0)) return 0;
  const double ratio = state.SymbolSize / half;
  std::vector<int> symbols;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    if (IsElementSymbol(surface)) symbols.push_back(n);
  }
  int changed = 0;
  UndoStep step(surface, "Taille des symboles");
  for (int n : symbols) {
    surface.SetCurrentObject(n);
    const double cx = (static_cast<double>(surface.ObjLeft()) + surface.ObjRight()) / 2;
    const double cy = (static_cast<double>(surface.ObjTop()) + surface.ObjBottom()) / 2;
    const double hw = (static_cast<double>(surface.ObjRight()) - surface.ObjLeft()) / 2 * ratio;
    const double hh = (static_cast<double>(surface.ObjBottom()) - surface.ObjTop()) / 2 * ratio;
    const Box before = surface.ObjectShape(n)->box;
    surface.SetObjectBounds(RoundLong(cx - hw), RoundLong(cy - hh), RoundLong(cx + hw),
                            RoundLong(cy + hh));
    if (surface.ObjectShape(n)->box != before) ++changed;
  }
  surface.Refresh();
  return changed;
}

int ShowLinkArrows(Surface& surface, const AppState& state, UserInterface& ui, bool on) {
  CursorKeeper keep(surface);
  std::vector<int> links;
  for (int n = surface.FindByTag(kTagIGroup, kGroupLink, true); n > 0;
       n = surface.FindByTag(kTagIGroup, kGroupLink, false)) {
    links.push_back(n);
  }
  const double r = state.ScaleWithZoom ? 5 : 2.5 * NodeHalfSize(surface, state.SymbolSize);
  UndoStep step(surface, "Sens des liaisons");
  for (std::size_t i = 0; i < links.size(); ++i) {
    surface.SetCurrentObject(links[i]);
    if (on) {
      const std::int32_t color = surface.LineColor();
      surface.SetLinkEndMarker(kMarkerUpstream, 0);
      surface.SetLinkEndMarker(kMarkerMiddle, kMarkerArrow);
      surface.SetFillColor(color);
      surface.SetLinkMarkerColor(kMarkerMiddle, color);
      surface.SetLinkMarkerFill(kMarkerMiddle, color);
      surface.SetLinkMarkerWidth(kMarkerMiddle, -r);
      surface.SetLinkMarkerHeight(kMarkerMiddle, -r);
    } else {
      surface.SetLinkEndMarker(kMarkerMiddle, 0);
    }
    const int percent = static_cast<int>((i + 1) * 100 / links.size());
    ui.ShowProgress(percent);
  }
  ui.ShowProgress(0);
  surface.Refresh();
  return static_cast<int>(links.size());
}

void ToggleGrid(Surface& surface, const AppState& state, UserInterface& ui) {
  if (surface.GridOn() != 0) {
    surface.SetGridOn(0);
    ui.ShowStatus("Grillage déactivé");
    return;
  }
  const double step = state.ZoomFactor < 0.001 ? kGridPixels : kGridPixels / state.ZoomFactor;
  surface.SetGridStepX(RoundLong(step));
  surface.SetGridStepY(RoundLong(step));
  surface.SetGridOn(1);
  ui.ShowStatus("Grillage activé");
}

void ToggleScrollBars(Surface& surface) {
  surface.SetScrollBars(surface.ScrollBars() != 0 ? 0 : kBothScrollBars);
}

bool ChooseScreenColour(Surface& surface, AppState& state, UserInterface& ui) {
  const std::optional<std::int32_t> colour = ui.ChooseColour(surface.PageColor());
  if (!colour || *colour < 1) return false;
  surface.SetPageColor(*colour);
  surface.SetBackColor1(*colour);
  surface.SetBackColor2(*colour);
  state.ScreenBackColor = *colour;
  WriteProfileValue(kSectionOthers, kKeyScreenBackColor, std::to_string(*colour),
                    IniFilePath(state));
  surface.Refresh();
  return true;
}

}  // namespace pluvane
