#include "network/hidden_record.h"

#include "foundation/numbers.h"
#include "drawing/surface_helpers.h"

namespace pluvane {

namespace {

void PaintAsBackground(Surface& surface, const NetworkState& state) {
  surface.SetLineColor(state.ScreenBackColor);
  surface.SetFillColor(state.ScreenBackColor);
  surface.SetObjectVisible(false);
}

}  // namespace

int AddHiddenRecord(Surface& surface, const NetworkState& state) {
  const std::int32_t s = ToLong(state.SymbolSize);
  const int number = surface.AddObject(kKindRectangle, state.LogicWidth - s, state.LogicHeight - s,
                                       state.LogicWidth + s, state.LogicHeight + s);
  PaintAsBackground(surface, state);
  return number;
}

void HideRecord(Surface& surface, const NetworkState& state, int number) {
  const int saved = surface.CurrentObject();
  surface.SetCurrentObject(number);
  if (surface.CurrentObject() == number) {
    auto [cx, cy] = ObjectCentre(surface, number);
    surface.MoveObject(ToLong(state.LogicWidth - cx), ToLong(state.LogicHeight - cy));
    PaintAsBackground(surface, state);
  }
  surface.SetCurrentObject(saved);
}

}  // namespace pluvane
