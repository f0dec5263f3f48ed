#include "gis/gis_layers.h"

#include <charconv>
#include <cmath>
#include <unordered_map>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {

enum class Kind { kNone, kNode, kCatchment, kCI, kPF, kPO, kSingular };

Kind KindOf(int i_name) {
  switch (i_name) {
    case kINameNode: return Kind::kNode;
    case kINameBV:
    case kINameBVS: return Kind::kCatchment;
    case kINameCAC: return Kind::kCI;
    case kINameCAF: return Kind::kPF;
    case kINameCAO: return Kind::kPO;
    case kINameHYBV:
    case kINameHY:
    case kINameDQQ:
    case kINameDQZ:
    case kINameRS:
    case kINameRSP:
    case kINameCLAV:
    case kINameMark: return Kind::kSingular;
    default: return Kind::kNone;
  }
}

// A layer being filled: its fields by name as they first appear.
struct LayerBuilder {
  GisLayer layer;
  std::unordered_map<std::string, std::size_t> index;

  std::size_t Field(const std::string& name) {
    const auto found = index.find(name);
    if (found != index.end()) return found->second;
    const std::size_t position = layer.fields.size();
    layer.fields.push_back({name, true});
    index.emplace(name, position);
    return position;
  }
  void Set(GisFeature& feature, const std::string& name, const std::string& value) {
    const std::size_t position = Field(name);
    if (feature.values.size() <= position) feature.values.resize(position + 1);
    feature.values[position] = value;
  }
};

struct Place {
  double x = 0;
  double y = 0;
  std::string label;
};

// The map position of a logical point; a network that was never calibrated
// maps its sheet as the corners' default does.
std::pair<double, double> ToMap(const Calibration& c, double x, double y, std::int32_t height) {
  if (c.XLAMU == 0) return {x, static_cast<double>(height) - y};
  return {LogicToUserX(c, x, y), LogicToUserY(c, x, y)};
}

}  // namespace

int GisLayer::FieldIndex(const std::string& field) const {
  const std::string wanted = UCase(field);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (UCase(fields[i].name) == wanted) return static_cast<int>(i);
  }
  return -1;
}

std::string GisLayer::Value(const GisFeature& feature, const std::string& field) const {
  const int i = FieldIndex(field);
  if (i < 0 || static_cast<std::size_t>(i) >= feature.values.size()) return {};
  return feature.values[static_cast<std::size_t>(i)];
}

bool IsGisNumber(const std::string& text) {
  const std::string t = Trim(text);
  if (t.empty()) return false;
  const char first = t[0];
  if (!(std::isdigit(static_cast<unsigned char>(first)) || first == '-' || first == '.')) {
    return false;
  }
  double value = 0;
  const auto [end, error] = std::from_chars(t.data(), t.data() + t.size(), value);
  return error == std::errc() && end == t.data() + t.size() && std::isfinite(value);
}

std::vector<GisLayer> CollectGisLayers(Surface& surface, const NetworkState& state) {
  CursorKeeper keeper(surface);
  const Calibration& c = state.calibration;
  const std::int32_t height = state.LogicHeight;
  const auto place_of = [&](int object) {
    surface.SetCurrentObject(object);
    Place place;
    const std::string xus = Trim(surface.ObjTag(kTagXus)), yus = Trim(surface.ObjTag(kTagYus));
    if (!xus.empty() && !yus.empty()) {
      place.x = Val(xus);
      place.y = Val(yus);
    } else {
      const Shape* shape = surface.ObjectShape(object);
      const double cx = (shape->box.left + shape->box.right) / 2.0;
      const double cy = (shape->box.top + shape->box.bottom) / 2.0;
      std::tie(place.x, place.y) = ToMap(c, cx, cy, height);
    }
    place.label = surface.ObjTag("libell");
    return place;
  };

  // The objects of each kind, and the nodes' places by number and by Id.
  std::vector<std::pair<int, Kind>> objects;
  std::unordered_map<int, Place> node_places;
  std::unordered_map<std::string, int> node_ids;
  surface.SetCurrentObject(kPage);
  for (int n = surface.FirstObject(); n > 10; n = surface.NextObject()) {
    const Kind kind = KindOf(ValInt(surface.ObjTag(kTagIName)));
    if (kind == Kind::kNone) continue;
    objects.emplace_back(n, kind);
    if (kind == Kind::kNode) node_ids.emplace(surface.ObjTag(kTagId), n);
  }
  for (const auto& [n, kind] : objects) {
    if (kind == Kind::kNode) node_places.emplace(n, place_of(n));
  }

  LayerBuilder nodes, catchments, ci, pf, po, singular;
  nodes.layer = {kGisNodes, GisGeometry::kPoint, {}, {}};
  catchments.layer = {kGisCatchments, GisGeometry::kPoint, {}, {}};
  ci.layer = {kGisCollectorsCI, GisGeometry::kLine, {}, {}};
  pf.layer = {kGisCollectorsPF, GisGeometry::kLine, {}, {}};
  po.layer = {kGisCollectorsPO, GisGeometry::kLine, {}, {}};
  singular.layer = {kGisSingular, GisGeometry::kPoint, {}, {}};

  for (const auto& [n, kind] : objects) {
    LayerBuilder& builder = kind == Kind::kNode        ? nodes
                            : kind == Kind::kCatchment ? catchments
                            : kind == Kind::kCI        ? ci
                            : kind == Kind::kPF        ? pf
                            : kind == Kind::kPO        ? po
                                                       : singular;
    GisFeature feature;
    surface.SetCurrentObject(n);
    for (int i = 0; i < surface.ObjTagCount(); ++i) {
      const std::string name = surface.ObjTagName(i);
      if (!name.empty()) builder.Set(feature, name, surface.ObjTagValue(i));
    }
    feature.text = surface.ObjTag("libell");
    if (builder.layer.geometry == GisGeometry::kLine) {
      const std::vector<Point> points = surface.ObjectPoints();
      const auto end = [&](int which) -> const Place* {
        const auto found = node_places.find(surface.LinkEndObject(which));
        return found == node_places.end() ? nullptr : &found->second;
      };
      const Place* up = end(0);
      const Place* down = end(1);
      for (std::size_t i = 0; i < points.size(); ++i) {
        const Place* at_end = i == 0 ? up : i + 1 == points.size() ? down : nullptr;
        if (at_end) {
          feature.points.emplace_back(at_end->x, at_end->y);
        } else {
          feature.points.push_back(ToMap(c, points[i].x, points[i].y, height));
        }
      }
      builder.Set(feature, "libAm", up ? up->label : "");
      builder.Set(feature, "libAv", down ? down->label : "");
    } else if (kind == Kind::kSingular) {
      const auto node = node_ids.find(surface.ObjTag(kTagSNodAm));
      const Place place = node != node_ids.end() ? node_places[node->second] : place_of(n);
      feature.points.emplace_back(place.x, place.y);
    } else if (kind == Kind::kNode) {
      const Place& place = node_places[n];
      feature.points.emplace_back(place.x, place.y);
    } else {
      const Place place = place_of(n);
      feature.points.emplace_back(place.x, place.y);
    }
    builder.layer.features.push_back(std::move(feature));
  }

  std::vector<GisLayer> layers;
  for (LayerBuilder* builder : {&nodes, &catchments, &ci, &pf, &po, &singular}) {
    GisLayer& layer = builder->layer;
    if (layer.features.empty()) continue;
    for (GisFeature& feature : layer.features) feature.values.resize(layer.fields.size());
    for (std::size_t f = 0; f < layer.fields.size(); ++f) {
      bool any = false, numeric = true;
      for (const GisFeature& feature : layer.features) {
        const std::string& value = feature.values[f];
        if (Trim(value).empty()) continue;
        any = true;
        if (!IsGisNumber(value)) {
          numeric = false;
          break;
        }
      }
      layer.fields[f].numeric = any && numeric;
    }
    layers.push_back(std::move(layer));
  }
  return layers;
}

}  // namespace pluvane
