#include "network/link_fusion.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/default_tags.h"
#include "network/network_tags.h"
#include "network/placement.h"
#include "network/reaches.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/topology.h"

namespace pluvane {

namespace {

constexpr const char* kFusionTitle = "Fusion de collecteurs";
constexpr const char* kFusionQuestion =
    "La singularité portée par le noeud sera également supprimée.\rVoulez-vous poursuivre ?";
constexpr const char* kNotCoherent = "LinkBreakMode: attention obj. non cohérents";
constexpr const char* kLinkCountTitle = "Fusion de liaisons";
constexpr const char* kLinkCountRefused = "Fusion impossible quand il y a plus de 2 liaisons !";
// A fusion needs exactly one link in and one out.
constexpr int kFusionLinks = 2;

using TagValues = std::vector<std::pair<std::string, std::string>>;

// What the new link takes from the upstream one.
struct Upstream {
  int line_style = 0;
  double line_width = 0;
  std::int32_t line_color = 0;
  std::array<Marker, 3> markers;
  std::string key;       // empty for a route or a connection: no default tags
  TagValues identity;    // Id, libell, iName, iGroup, iBief
  TagValues hydraulics;  // the values of its type
  double length = 0;
  std::string z_ram;
  int start = 0;
};

// The hydraulic tags that make each type of collector.
std::vector<const char*> HydraulicTags(int i_name) {
  switch (i_name) {
    case kINameCAC:
      return {"Dn", "K", "HD", "SR"};
    case kINameCAF:
      return {"IdSect", "K", "HD", "SR"};
    case kINameCAO:
      return {"IdSect", "Kmin", "Largeur", "Kmaj"};
    default:
      return {};
  }
}

TagValues ReadTags(const Surface& surface, const std::vector<const char*>& names) {
  TagValues values;
  for (const char* name : names) values.emplace_back(name, surface.ObjTag(name));
  return values;
}

void WriteTags(Surface& surface, const TagValues& values) {
  for (const auto& [name, value] : values) surface.SetObjTag(name, value);
}

Upstream ReadUpstream(Surface& surface, const NetworkState& state, int link) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(link);
  Upstream a;
  a.line_style = surface.LineStyle();
  a.line_width = surface.LineWidth();
  a.line_color = surface.LineColor();
  a.markers = ReadLinkMarkers(surface);
  a.identity = ReadTags(surface, {kTagId, "libell", kTagIName, kTagIGroup, kTagIBief});
  const int i_name = ValInt(surface.ObjTag(kTagIName));
  a.hydraulics = ReadTags(surface, HydraulicTags(i_name));
  if (!a.hydraulics.empty()) {
    a.key = KeyOfIName(i_name);
    a.line_color = LinkStyleOfKey(state, a.key).color;
  }
  a.z_ram = surface.ObjTag("ZRam");
  a.length = Val(surface.ObjTag("L"));
  a.start = surface.LinkEndObject(0);
  return a;
}

}  // namespace

int FuseAtNode(PlacementContext& context, int node) {
  Surface& surface = context.surface;
  surface.SetCurrentObject(node);
  if (node < kFirstObjectNumber || surface.CurrentObject() != node) return 0;
  if (CountGroupOnNode(surface, node, kGroupPoint) > 0 ||
      CountGroupOnNode(surface, node, kGroupRegulator) > 0) {
    if (!context.ui.AskYesNo(kFusionQuestion, kFusionTitle, MessageIcon::kQuestion, true)) {
      return 0;
    }
  }
  const std::vector<int> in = UpstreamLinks(surface, node);
  const std::vector<int> out = DownstreamCollectors(surface, node);
  if (in.empty() || out.empty()) {
    context.ui.ShowMessage(kNotCoherent, "", MessageIcon::kNone);
    return 0;
  }
  const Upstream a = ReadUpstream(surface, context.state, in.front());
  surface.SetCurrentObject(out.front());
  const int end = surface.LinkEndObject(1);
  const std::string z_rav = surface.ObjTag("ZRav");
  const double b_length = Val(surface.ObjTag("L"));
  const std::string b_reach = Trim(surface.ObjTag(kTagIBief));
  const std::string b_id = surface.ObjTag(kTagId);

  UndoStep step(surface, kFusionTitle);
  const int fused = surface.AddLink(a.start, end);
  if (fused < kFirstObjectNumber) return 0;
  surface.SetCurrentObject(fused);
  CreateDefaultTags(surface, context.state, a.key, false);
  surface.SetCurrentObject(fused);
  surface.SetLinkPoint(2, 0, 0);
  WriteLinkMarkers(surface, a.markers);
  surface.SetLineStyle(a.line_style);
  surface.SetLineColor(a.line_color);
  surface.SetLineWidth(a.line_width);
  surface.Arrange(2);
  // Taken out only now that the new link stands, so that a refused link
  // leaves the reaches as they were.
  if (!b_reach.empty()) RemoveFromReach(surface, b_reach, b_id);

  WriteTags(surface, a.identity);
  WriteTags(surface, a.hydraulics);
  surface.SetObjTag("L", a.length + b_length);
  surface.SetObjTag("ZRam", a.z_ram);
  surface.SetObjTag("ZRav", z_rav);
  surface.SetObjTag(kTagSNodAm, TagOfObject(surface, a.start, kTagId));
  surface.SetObjTag(kTagSNodAv, TagOfObject(surface, end, kTagId));

  // What stood on the node goes; the node takes the two old links with it.
  for (int element : ElementsOnNode(surface, node)) surface.DeleteObject(element);
  surface.DeleteObject(node);
  surface.SetCurrentObject(fused);
  return fused;
}

void ReleaseInFusionMode(PlacementContext& context, int hit) {
  Surface& surface = context.surface;
  if (!IsNode(surface, hit)) return;
  surface.SetCurrentObject(hit);
  if (surface.NodeLinkCount() != kFusionLinks) {
    context.ui.ShowMessage(kLinkCountRefused, kLinkCountTitle, MessageIcon::kExclamation);
    return;
  }
  FuseAtNode(context, hit);
}

}  // namespace pluvane
