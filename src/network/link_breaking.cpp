#include "network/link_breaking.h"

#include <cmath>

#include "foundation/errors.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/default_tags.h"
#include "network/georeferencing.h"
#include "network/network_tags.h"
#include "network/reaches.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/topology.h"

namespace pluvane {

namespace {

constexpr const char* kBreakStep = "Diviser un tronçon";
constexpr const char* kNotBreakable = "Seuls les collecteurs sont divisables (Cac, Cao, Caf) !";
// Shorter than this, a segment has no direction to measure along.
constexpr double kNoLength = 0.00001;

std::string Fixed(double value) { return Trim(FormatFixed(value, 10, 2)); }

const std::string& ValueOf(const LinkTemplate& old, std::string_view name) {
  static const std::string kNone;
  for (const auto& [tag, value] : old.tags) {
    if (tag == name) return value;
  }
  return kNone;
}

// Where an object stands on the map, from its Xlog, Ylog.
std::pair<double, double> UserPosition(Surface& surface, const Calibration& calibration,
                                       int number) {
  CursorKeeper keeper(surface);
  const auto [x, y] = LogicalPosition(surface, number);
  return {LogicToUserX(calibration, x, y), LogicToUserY(calibration, x, y)};
}

// The error the slope of a link of no length raises: 0 / 0 overflows, any
// other drop divides by zero.
AppError SlopeError(double drop) {
  return drop == 0 ? AppError(6, "Dépassement de capacité") : AppError(11, "Division par zéro");
}

// One half of the broken link, from `from` to `to`, with the old link's tags;
// 0 when the surface refused it. It is left current.
int AddHalf(Surface& surface, NetworkState& state, const LinkTemplate& old, int from, int to,
            bool second_half) {
  const int half = surface.AddLink(from, to);
  if (half == 0) return 0;
  surface.SetCurrentObject(half);
  surface.SetLinkPoint(2, 0, 0);
  CopyLinkTags(surface, state, old, second_half);
  surface.SetCurrentObject(half);
  return half;
}

// What the break rewrites on a half after the copy.
struct HalfTags {
  double length = 0;
  std::string z_ram, z_rav;
  std::string upstream_id, downstream_id;
};

// The length, levels and ends of a half, its reach, and the diameter of a
// circular collector (the others have none to keep).
void WriteHalf(Surface& surface, const HalfTags& half, const std::string& i_bief, int i_name,
               const std::string& dn) {
  surface.SetObjTag("L", half.length);
  surface.SetObjTag("ZRam", half.z_ram);
  surface.SetObjTag("ZRav", half.z_rav);
  surface.SetObjTag(kTagSNodAm, half.upstream_id);
  surface.SetObjTag(kTagSNodAv, half.downstream_id);
  surface.SetObjTag(kTagIBief, i_bief);
  if (i_name == kINameCAC) surface.SetObjTag("Dn", dn);
}

void CountLinkAt(Surface& surface, int node) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(node);
  surface.SetObjTag(kTagILink, ValInt(surface.ObjTag(kTagILink)) + 1);
}

}  // namespace

bool IsCollectorIName(int i_name) {
  return i_name == kINameCAC || i_name == kINameCAF || i_name == kINameCAO;
}

double PercentAlong(double xA, double yA, double xB, double yB, double xC, double yC) {
  const double ab = std::hypot(xB - xA, yB - yA);
  if (ab < kNoLength) return 0;
  return std::hypot(xC - xA, yC - yA) / ab * 100;
}

std::string BreakBubbleText(Surface& surface, int link, double x, double y) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(link);
  if (link < kFirstObjectNumber || surface.CurrentObject() != link ||
      surface.ObjectKind() != kKindLink || !IsCollectorIName(ValInt(surface.ObjTag(kTagIName)))) {
    return "";
  }
  const auto [xa, ya] = ObjectCentre(surface, surface.LinkEndObject(0));
  const auto [xb, yb] = ObjectCentre(surface, surface.LinkEndObject(1));
  const double p = PercentAlong(xa, ya, xb, yb, x, y);
  std::string text = "Dam (%)= " + Fixed(p);
  const double length = Val(surface.ObjTag("L"));
  if (length >= 0.001) text += "\r\nDam (m)= " + Fixed(p * 0.01 * length);
  return text;
}

void CopyLinkTags(Surface& surface, NetworkState& state, const LinkTemplate& old, bool second_half) {
  const int half = surface.CurrentObject();
  surface.SetLinkEndMarker(0, 0);
  surface.SetLinkEndMarker(1, 0);
  surface.SetLineStyle(old.style.style);
  surface.SetLineColor(old.style.color);
  surface.SetLineWidth(old.style.width);
  surface.Arrange(2);
  CreateDefaultTags(surface, state, old.key, true);
  surface.SetCurrentObject(half);
  for (std::size_t i = 1; i < old.tags.size(); ++i) {
    const int index = static_cast<int>(i);
    if (index < surface.ObjTagCount()) {
      surface.SetObjTagValue(index, old.tags[i].second);
    } else {
      surface.SetObjTag(old.tags[i].first, old.tags[i].second);
    }
  }
  surface.SetObjTag(kTagId, ValueOf(old, kTagId));
  if (!second_half) return;
  const int i_name = INameOfKey(old.key);
  std::int32_t counter = i_name >= 1 && i_name < kINameReach ? state.ElementCounters[i_name] : 0;
  const std::string id = MakeIdUnique(surface, state, i_name, counter);
  surface.SetObjTag("libell", id);
  surface.SetObjTag(kTagIBief, ValueOf(old, kTagIBief));
}

BrokenLink BreakLink(PlacementContext& context, int link, double x, double y) {
  Surface& surface = context.surface;
  NetworkState& state = context.state;
  BrokenLink made;
  surface.SetCurrentObject(link);
  if (link < kFirstObjectNumber || surface.CurrentObject() != link ||
      surface.ObjectKind() != kKindLink) {
    return made;
  }
  const int i_name = ValInt(surface.ObjTag(kTagIName));
  LinkTemplate old;
  old.key = KeyOfIName(i_name);
  old.style = {LinkStyleOfKey(state, old.key).color, -state.LinkThick, surface.LineStyle()};
  const int upstream = surface.LinkEndObject(0);
  const int downstream = surface.LinkEndObject(1);
  const std::string z_ram = surface.ObjTag("ZRam");
  const std::string z_rav = surface.ObjTag("ZRav");
  const double length = Val(surface.ObjTag("L"));
  const std::string dn = surface.ObjTag("Dn");
  const std::string i_bief = surface.ObjTag(kTagIBief);
  for (int i = 0; i < surface.ObjTagCount(); ++i) {
    old.tags.emplace_back(surface.ObjTagName(i), surface.ObjTagValue(i));
  }
  const double drop = Val(z_ram) - Val(z_rav);
  if (length == 0) {
    const AppError error = SlopeError(drop);
    ShowError(context.ui, &error, "BreakLink");
    return made;
  }
  const double slope = drop / length;

  UndoStep step(surface, kBreakStep);
  const int node = DrawSymbol(surface, state, context.ui, x, y, "X_NOD");
  if (node == 0) return made;
  const auto [xu, yu] = UserPosition(surface, state.calibration, upstream);
  const auto [xd, yd] = UserPosition(surface, state.calibration, downstream);
  const auto [xn, yn] = UserPosition(surface, state.calibration, node);
  const double p = PercentAlong(xu, yu, xd, yd, xn, yn);
  const double first_length = p / 100 * length;
  const std::string level = NumToText(Val(z_ram) - slope * first_length);
  const std::string node_id = TagOfObject(surface, node, kTagId);

  made.first = AddHalf(surface, state, old, upstream, node, false);
  if (made.first == 0) return made;
  WriteHalf(surface, {first_length, z_ram, level, TagOfObject(surface, upstream, kTagId), node_id},
            i_bief, i_name, dn);
  CountLinkAt(surface, node);

  made.second = AddHalf(surface, state, old, node, downstream, true);
  if (made.second == 0) return made;
  WriteHalf(
      surface,
      {length - first_length, level, z_rav, node_id, TagOfObject(surface, downstream, kTagId)},
      i_bief, i_name, dn);
  const std::string second_id = surface.ObjTag(kTagId);
  CountLinkAt(surface, node);

  AppendToReach(surface, Trim(i_bief), ReachCollector{second_id, i_name});
  surface.DeleteObject(link);
  surface.SetCurrentObject(made.first);
  return made;
}

void ReleaseInBreakMode(PlacementContext& context, int hit, double x, double y) {
  Surface& surface = context.surface;
  surface.SetCurrentObject(hit);
  if (hit < kFirstObjectNumber || surface.CurrentObject() != hit) return;
  if (!IsCollectorIName(ValInt(surface.ObjTag(kTagIName)))) {
    context.ui.ShowMessage(kNotBreakable, "", MessageIcon::kNone);
    return;
  }
  // DrawSymbol arms the defaults with the node's picture itself.
  BreakLink(context, hit, x, y);
  context.ui.PumpEvents();
  surface.DeselectAll();
}

}  // namespace pluvane
