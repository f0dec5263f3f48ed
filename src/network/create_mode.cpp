#include "network/create_mode.h"

#include <cstdlib>
#include <tuple>

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "network/default_tags.h"
#include "network/placement.h"
#include "drawing/surface_helpers.h"
#include "network/topology.h"

namespace pluvane {

namespace {

enum class KeyGroup { kFree, kUninodal, kBinodal, kOther };

KeyGroup GroupOfKey(std::string_view key) {
  switch (INameOfKey(key)) {
    case kINameBV:
    case kINameNode:
    case kINamePLU:
      return KeyGroup::kFree;
    case kINameBVS:
    case kINameDQQ:
    case kINameDQZ:
    case kINameRS:
    case kINameRSP:
    case kINameCLAV:
    case kINameHYBV:
    case kINameHY:
    case kINameMark:
      return KeyGroup::kUninodal;
    case kINameCAC:
    case kINameCAF:
    case kINameCAO:
    case kINameRout:
    case kINameTR:
      return KeyGroup::kBinodal;
    default:
      return KeyGroup::kOther;
  }
}

int Tag(Surface& surface, int object, const char* name) {
  surface.SetCurrentObject(object);
  return surface.CurrentObject() == object ? ValInt(surface.ObjTag(name)) : 0;
}

void SelectObject(Surface& surface, int object) {
  surface.SetCurrentObject(object);
  surface.SetSelected(true);
}

void Abandon(Surface& surface, PlacementState& p) {
  CancelPendingLink(p);
  p.CancelRelease = true;
  surface.DeselectAll();
}

void Warn(PlacementContext& c, const std::string& text, const std::string& title) {
  c.ui.ShowMessage(text, title, MessageIcon::kExclamation);
}

void PressFree(PlacementContext& c, PlacementState& p) {
  if (p.HitObject == 0) return;
  const int i_name = Tag(c.surface, p.HitObject, kTagIName);
  if (i_name != kINameNode && i_name != kINameHYBV) p.CancelRelease = true;
}

void PressUninodal(PlacementContext& c, PlacementState& p) {
  if (p.HitObject == 0) {
    p.CancelRelease = true;
    return;
  }
  if (Tag(c.surface, p.HitObject, kTagIGroup) != kGroupNode) {
    Warn(c, "un obj ne peut pas être déposé sur un autre", c.caption);
    p.CancelRelease = true;
    p.TargetNode = 0;
    return;
  }
  // A node carries two elements at most: the third is refused.
  if (CountOnNode(c.surface, p.HitObject) < 2) {
    p.TargetNode = p.HitObject;
  } else {
    Warn(c, "un noeud ne peut supporter qu'un obj au plus", c.caption);
    p.CancelRelease = true;
    p.TargetNode = 0;
  }
}

// The end a press gives to a link: the node itself, or the node under the
// element hit; a route goes from a catchment to a catchment outlet. 0 when
// the press gives no end.
int LinkEnd(PlacementContext& c, const PlacementState& p, bool first) {
  const bool route = INameOfKey(p.CreationKey) == kINameRout;
  if (route) {
    const int i_name = Tag(c.surface, p.HitObject, kTagIName);
    if (first) return i_name == kINameBV ? p.HitObject : 0;
    if (i_name != kINameHYBV) return 0;
    return NodeUnder(c.surface, p.HitObject);
  }
  return NodeUnder(c.surface, p.HitObject);
}

PlacementResult PressBinodal(PlacementContext& c, PlacementState& p) {
  PlacementResult result;
  if (p.HitObject == 0) {
    p.CancelRelease = true;
    CancelPendingLink(p);
    return result;
  }
  ++p.ClickCount;
  if (p.ClickCount == 1) {
    p.FirstEnd = LinkEnd(c, p, true);
    if (p.FirstEnd == 0) {
      Abandon(c.surface, p);
    } else {
      SelectObject(c.surface, p.FirstEnd);
    }
    return result;
  }
  p.SecondEnd = LinkEnd(c, p, false);
  if (p.SecondEnd == 0) {
    Abandon(c.surface, p);
    return result;
  }
  SelectObject(c.surface, p.SecondEnd);
  if (p.FirstEnd == p.SecondEnd) {
    CancelPendingLink(p);
    return result;
  }
  result.created = DrawLink(c.surface, c.state, p.CreationKey, p.FirstEnd, p.SecondEnd, 0, 0);
  result.refresh = true;
  // Drawing goes on from the last end: the user draws chains until Esc.
  p.FirstEnd = p.SecondEnd;
  p.ClickCount = 1;
  return result;
}

// The checks of the regulating elements on the collectors leaving the node.
bool DownstreamAccepted(PlacementContext& c, const PlacementState& p) {
  const std::string key = p.CreationKey;
  const int i_name = INameOfKey(key);
  if (i_name != kINameDQQ && i_name != kINameDQZ && i_name != kINameRS && i_name != kINameRSP) {
    return true;
  }
  const int n = static_cast<int>(DownstreamCollectors(c.surface, p.TargetNode).size());
  if (key.find("X_RS") != std::string::npos && n != 2) {
    Warn(c, "If faut 2 collecteurs en aval de ce noeud!", "Bassin");
    return false;
  }
  if (key.find("X_DQ") != std::string::npos && (n < 2 || n > 4)) {
    Warn(c, "If faut au moins 2 et au plus 4 collecteurs en aval de ce noeud!", "Dérivation");
    return false;
  }
  return true;
}

PlacementResult ReleaseRayon(PlacementContext& c, PlacementState& p, int ellipse) {
  PlacementResult result;
  Surface& s = c.surface;
  s.SetCurrentObject(ellipse);
  if (ellipse < kFirstObjectNumber || s.CurrentObject() != ellipse) return result;
  const std::int64_t width = static_cast<std::int64_t>(s.ObjRight()) - s.ObjLeft();
  const std::int64_t height = static_cast<std::int64_t>(s.ObjBottom()) - s.ObjTop();
  if (std::llabs(width - height) <= 1) {
    CreateDefaultTags(s, c.state, p.CreationKey, false);
    result.created = ellipse;
    result.leave_mode = true;
    result.open_plu_rayon = true;
  } else {
    Warn(c, "Cf. barre de message ci-dessous pour tracer un cercle et non un ellipse.",
         "Définition d'un rayon d'action");
    s.DeleteObject(ellipse);
  }
  result.refresh = true;
  return result;
}

}  // namespace

void ArmCreation(PlacementState& placement, std::string_view key) {
  placement.CreationKey = std::string(key);
  if (const auto pair = NextCreationPair(key)) {
    placement.NextIGroup = pair->i_group;
    placement.NextIName = pair->i_name;
  }
  CancelPendingLink(placement);
  placement.HitObject = 0;
  placement.TargetNode = 0;
  placement.CancelRelease = false;
}

void CancelPendingLink(PlacementState& placement) {
  placement.ClickCount = 0;
  placement.FirstEnd = 0;
  placement.SecondEnd = 0;
}

PlacementResult PressInCreateMode(PlacementContext& context, PlacementState& placement, int hit,
                                  std::int32_t x, std::int32_t y) {
  placement.HitObject = hit > 0 ? hit : 0;
  placement.PointerX = x;
  placement.PointerY = y;
  placement.CancelRelease = false;
  placement.TargetNode = 0;
  if (placement.HitObject && IsNode(context.surface, placement.HitObject)) {
    placement.TargetNode = placement.HitObject;
  }
  switch (GroupOfKey(placement.CreationKey)) {
    case KeyGroup::kFree:
      PressFree(context, placement);
      break;
    case KeyGroup::kUninodal:
      PressUninodal(context, placement);
      break;
    case KeyGroup::kBinodal:
      return PressBinodal(context, placement);
    case KeyGroup::kOther:
      break;
  }
  return {};
}

PlacementResult ReleaseInCreateMode(PlacementContext& context, PlacementState& placement,
                                    int drawn_object) {
  PlacementResult result;
  if (placement.CancelRelease) return result;
  Surface& s = context.surface;
  double x = placement.PointerX, y = placement.PointerY;
  if (placement.TargetNode > 0) std::tie(x, y) = ObjectCentre(s, placement.TargetNode);
  const bool free_spot = placement.HitObject == 0;
  const std::string& key = placement.CreationKey;
  switch (INameOfKey(key)) {
    case kINameNode:
      if (!free_spot) return result;
      result.created = DrawSymbol(s, context.state, context.ui, x, y, key);
      result.refresh_menus = !context.stay_armed;
      break;
    case kINameCalage:
      if (!free_spot || CountByName(s, kINameCalage) >= 3) return result;
      result.created = DrawSymbol(s, context.state, context.ui, x, y, key);
      if (result.created == 0) return result;
      if (!placement.PendingCalagePoint.empty()) {
        s.SetCurrentObject(result.created);
        s.SetObjTag(kTagId, placement.PendingCalagePoint);
      }
      result.open_info_calage = true;
      break;
    case kINameBV:
      if (free_spot) {
        result.created = DrawSymbol(s, context.state, context.ui, x, y, key);
      } else {
        result.created =
            PlaceHydrologicalComplex(s, context.state, context.ui, placement.HitObject).catchment;
        ArmCreation(placement, "X_BV");
      }
      break;
    case kINamePLU:
      if (placement.TargetNode != 0) return result;
      result.created = DrawSymbol(s, context.state, context.ui, x, y, key);
      break;
    case kINameRayon:
      return ReleaseRayon(context, placement, drawn_object);
    default:
      if (GroupOfKey(key) != KeyGroup::kUninodal || placement.TargetNode == 0) return result;
      if (!DownstreamAccepted(context, placement)) return result;
      s.DeselectAll();
      result.created = DrawSymbol(s, context.state, context.ui, x, y, key, placement.TargetNode);
      break;
  }
  result.refresh = result.created != 0;
  return result;
}

}  // namespace pluvane
