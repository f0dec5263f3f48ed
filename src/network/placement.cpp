#include "network/placement.h"

#include <cmath>
#include <string>

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "network/default_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/topology.h"

namespace pluvane {

namespace {

constexpr const char* kSymbolStep = "Placer un élément";
constexpr const char* kLinkStep = "Placer une liaison";
// A quarter of the half turn, as the catchments of a complex always turned.
constexpr double kHalfTurn = 3.1416;

bool IsWideSymbol(std::string_view key) {
  const int i_name = INameOfKey(key);
  return i_name == kINamePLU || i_name == kINameBV;
}

double ZoomOrOne(const NetworkState& state) { return state.ZoomFactor != 0 ? state.ZoomFactor : 1; }

void ShowSymbolError(UserInterface& ui, const NetworkState& state) {
  ui.ShowMessage(std::string("Erreur Draw_A_Symbol\r\n") + "le répertoire des symboles peut être" +
                     " mal défini dans le fichier " + IniFilePath(state),
                 "", MessageIcon::kNone);
}

// The link between two objects with the style PrepareLink set, its ends bare
// and sent behind the symbols. The link is left current.
int AddStyledLink(Surface& surface, const NetworkState& state, std::string_view key, int object1,
                  int object2) {
  surface.SetSelectionEnabled(false);
  PrepareLink(surface, state, key);
  return surface.AddLink(object1, object2);
}

}  // namespace

LinkStyle LinkStyleOfKey(const NetworkState& state, std::string_view key) {
  struct Entry {
    std::int32_t color;
    double thick;  // in units of LinkThick
    int style;
  };
  Entry entry{0, 0, 0};  // routes and anything else: thin black
  switch (INameOfKey(key)) {
    case kINameCAC:
      entry = {16711680, 1, 0};
      break;
    case kINameCAF:
      entry = {255, 1, 0};
      break;
    case kINameCAO:
      entry = {16776960, 1, 0};
      break;
    case kINameTR:
      entry = {0, 0, 2};
      break;
    case kINameReach:
      entry = {0, 2, 0};
      break;
    default:
      break;
  }
  const double z = state.ScaleWithZoom ? ZoomOrOne(state) : 1;
  return {entry.color, -(entry.thick * state.LinkThick / z), entry.style};
}

void PrepareLink(Surface& surface, const NetworkState& state, std::string_view key) {
  const LinkStyle style = LinkStyleOfKey(state, key);
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(kDefaults);
  surface.SetLineColor(style.color);
  surface.SetLineWidth(style.width);
  surface.SetLineStyle(style.style);
}

int DrawSymbol(Surface& surface, NetworkState& state, UserInterface& ui, double x, double y,
               std::string_view key, int target_node) {
  UndoStep step(surface, kSymbolStep);
  surface.SetSelectionEnabled(false);
  double left, top, right, bottom;
  surface.SetCurrentObject(target_node);
  if (target_node >= kFirstObjectNumber && surface.CurrentObject() == target_node) {
    left = surface.ObjLeft();
    top = surface.ObjTop();
    right = surface.ObjRight();
    bottom = surface.ObjBottom();
    if (IsWideSymbol(key)) {
      const double width = right - left;
      left -= width;
      top -= width;
      right += width;
      bottom += width;
    }
  } else {
    target_node = 0;
    double h = NodeHalfSize(surface, state.SymbolSize);
    if (IsWideSymbol(key)) h *= 2;
    left = x - h;
    top = y - h;
    right = x + h;
    bottom = y + h;
  }
  const std::string picture = SymbolPathOfKey(state.SymbolDir, key);
  surface.SetEditMode(kEditPicture);
  if (picture.empty() || !surface.LoadFile(picture, 1)) {
    ShowSymbolError(ui, state);
    return 0;
  }
  const int number = surface.AddObjectAtDefaults(kKindPicture);
  if (number == 0) {
    ShowSymbolError(ui, state);
    return 0;
  }
  CreationPlace place;
  place.position = Point{RoundLong(x), RoundLong(y)};
  place.target_node = target_node;
  CreateDefaultTags(surface, state, key, false, place);
  surface.SetCurrentObject(number);
  surface.SetObjectBounds(RoundLong(left), RoundLong(top), RoundLong(right), RoundLong(bottom));
  if (INameOfKey(key) == kINameNode) ++state.NodeCount;
  return number;
}

int DrawLink(Surface& surface, NetworkState& state, std::string_view key, int object1, int object2,
             int marker0, int marker1) {
  if (object1 < 1 || object2 < 1) return 0;
  UndoStep step(surface, kLinkStep);
  const int link = AddStyledLink(surface, state, key, object1, object2);
  if (link == 0) return 0;
  surface.SetLinkEndMarker(0, marker0);
  surface.SetLinkEndMarker(1, marker1);
  surface.SetLinkPoint(2, 0, 0);
  const LinkStyle style = LinkStyleOfKey(state, key);
  surface.SetLineStyle(style.style);
  surface.SetLineWidth(-NodeHalfSize(surface, state.SymbolSize));
  surface.SetLineColor(style.color);
  surface.Arrange(2);
  const double marker = -2 * state.SymbolSize / ZoomOrOne(state);
  surface.SetLinkMarkerWidth(1, marker);
  surface.SetLinkMarkerHeight(1, marker);
  surface.SetLinkEndMarker(0, 0);
  surface.SetLinkEndMarker(1, 0);
  CreateDefaultTags(surface, state, key, false);
  surface.SetCurrentObject(link);
  return link;
}

int DrawLinkByNumber(Surface& surface, NetworkState& state, int i_name, int object1, int object2) {
  if (object1 < 1 || object2 < 1 || object1 == object2) return 0;
  const std::string key = KeyOfIName(i_name);
  UndoStep step(surface, kLinkStep);
  const int link = AddStyledLink(surface, state, key, object1, object2);
  if (link == 0) return 0;
  surface.SetLinkPoint(2, 0, 0);
  surface.Arrange(2);
  surface.SetLinkEndMarker(0, 0);
  surface.SetLinkEndMarker(1, 0);
  CreateDefaultTagsByNumber(surface, state, i_name, false);
  surface.SetCurrentObject(link);
  return link;
}

HydrologicalComplex PlaceHydrologicalComplex(Surface& surface, NetworkState& state, UserInterface& ui,
                                             int hit_object) {
  HydrologicalComplex made;
  surface.SetCurrentObject(hit_object);
  if (hit_object < kFirstObjectNumber || surface.CurrentObject() != hit_object) return made;
  const int i_name = ValInt(surface.ObjTag(kTagIName));
  if (i_name != kINameNode && i_name != kINameHYBV) return made;
  UndoStep step(surface, kSymbolStep);
  const int node = NodeUnder(surface, hit_object);
  const auto [cx, cy] = ObjectCentre(surface, node > 0 ? node : hit_object);
  if (i_name == kINameNode) {
    made.outlet = DrawSymbol(surface, state, ui, cx, cy, "X_HYBV", hit_object);
    if (made.outlet == 0) return made;
  } else {
    made.outlet = hit_object;
  }
  int routes = 0;
  for (int n : ObjectsTouching(surface, made.outlet)) {
    surface.SetCurrentObject(n);
    if (surface.ObjectKind() == kKindLink && ValInt(surface.ObjTag(kTagIName)) == kINameRout) {
      ++routes;
    }
  }
  const double angle = kHalfTurn / 4 * (routes + 1);
  const double radius = 10 * state.SymbolSize;
  made.catchment = DrawSymbol(surface, state, ui, cx + radius * std::cos(angle),
                              cy + radius * std::sin(angle), "X_BV");
  if (made.catchment == 0) return made;
  made.route = DrawLink(surface, state, "X_ROUT", made.catchment, made.outlet, 0, 0);
  return made;
}

}  // namespace pluvane
