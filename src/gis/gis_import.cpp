#include "gis/gis_import.h"

#include <gdal_priv.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <set>
#include <unordered_map>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "exchange/import_table.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "gis/gis_gdal.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "network/network_tags.h"
#include "network/placement.h"

namespace pluvane {

namespace {

struct DatasetCloser {
  void operator()(GDALDataset* dataset) const { GDALClose(dataset); }
};
struct TransformDeleter {
  void operator()(OGRCoordinateTransformation* t) const {
    OGRCoordinateTransformation::DestroyCT(t);
  }
};

void Refuse(UserInterface& ui, const std::string& text) {
  ui.ShowMessage(text, kGisImportTitle, MessageIcon::kExclamation);
}

std::string Where(const std::string& file, const std::string& layer) {
  return "de la couche " + layer + " du fichier " + file;
}

std::string FeatureWhere(const std::string& file, const std::string& layer, std::int64_t fid) {
  return "Objet " + std::to_string(fid) + " " + Where(file, layer) + " : ";
}

// The name of a coordinate system as the network keeps it.
std::string CrsName(const OGRSpatialReference& srs) {
  const char* authority = srs.GetAuthorityName(nullptr);
  const char* code = srs.GetAuthorityCode(nullptr);
  if (authority && code) return std::string(authority) + ":" + code;
  char* wkt = nullptr;
  srs.exportToWkt(&wkt);
  std::string text = wkt ? wkt : "";
  CPLFree(wkt);
  return text;
}

// Tags an import never takes from a field: the element's identity, kind and
// places are its own, made here.
bool Reserved(const std::string& tag) {
  static const std::set<std::string> kReserved = {"ID",   "INAME",  "IGROUP", "XLOG",
                                                  "YLOG", "XUS",    "YUS",    "SNODAM",
                                                  "SNODAV", "LIBAM", "LIBAV"};
  return kReserved.count(UCase(tag)) != 0;
}

bool NumericTag(const std::string& tag, GisImportKind kind) {
  static const std::set<std::string> kNode = {"ZUS"};
  static const std::set<std::string> kLink = {"ZRAM", "ZRAV", "L",  "DN",      "K",
                                              "HD",   "SR",   "KMIN", "LARGEUR", "KMAJ"};
  return (kind == GisImportKind::kNodes ? kNode : kLink).count(UCase(tag)) != 0;
}

int INameOf(GisImportKind kind) {
  switch (kind) {
    case GisImportKind::kCI: return kINameCAC;
    case GisImportKind::kPF: return kINameCAF;
    case GisImportKind::kPO: return kINameCAO;
    default: return kINameNode;
  }
}

bool Uncalibrated(const Calibration& c) {
  if (c.XLAMU == 0) return true;
  const double scale = std::hypot(c.XMUCOS, c.XMUSIN) / std::fabs(c.XLAMU);
  return std::fabs(scale - 1) < 0.000001;
}

// Maps the layer's extent to the middle third of the sheet, as the node import
// of tables does. False when the extent is a point or a line.
bool CalibrateOnLayer(NetworkState& state, const GisLayer& layer) {
  double x_min = std::numeric_limits<double>::max(), y_min = x_min;
  double x_max = std::numeric_limits<double>::lowest(), y_max = x_max;
  for (const GisFeature& feature : layer.features) {
    for (const auto& [x, y] : feature.points) {
      x_min = std::min(x_min, x);
      x_max = std::max(x_max, x);
      y_min = std::min(y_min, y);
      y_max = std::max(y_max, y);
    }
  }
  // The same scale on both axes: the larger extent fills its third.
  const double scale = std::max(x_max - x_min, y_max - y_min);
  if (!(scale > 0)) return false;
  return CalibrateOnExtent(state.calibration, state.LogicWidth, state.LogicHeight, x_min,
                           y_max - scale, x_min + scale, y_max);
}

// The nodes by their map place, in square cells of the tolerance.
class NodeGrid {
 public:
  explicit NodeGrid(double tolerance) : tolerance_(tolerance), cell_(std::max(tolerance, 0.001)) {}

  void Add(int number, const std::string& id, double x, double y) {
    cells_[Key(Cell(x), Cell(y))].push_back(nodes_.size());
    nodes_.push_back({number, id, x, y});
  }

  struct Found {
    int number = 0;
    std::string id;
    double distance = 0;
  };
  // The nodes within the tolerance of (x, y), the nearest first.
  std::vector<Found> Near(double x, double y) const {
    std::vector<Found> found;
    const std::int64_t cx = Cell(x), cy = Cell(y);
    for (std::int64_t i = cx - 1; i <= cx + 1; ++i) {
      for (std::int64_t j = cy - 1; j <= cy + 1; ++j) {
        const auto cell = cells_.find(Key(i, j));
        if (cell == cells_.end()) continue;
        for (std::size_t k : cell->second) {
          const Node& node = nodes_[k];
          const double d = std::hypot(node.x - x, node.y - y);
          if (d <= tolerance_) found.push_back({node.number, node.id, d});
        }
      }
    }
    std::sort(found.begin(), found.end(), [](const Found& a, const Found& b) {
      return a.distance != b.distance ? a.distance < b.distance : a.number < b.number;
    });
    return found;
  }

 private:
  struct Node {
    int number;
    std::string id;
    double x;
    double y;
  };
  std::int64_t Cell(double v) const { return static_cast<std::int64_t>(std::floor(v / cell_)); }
  static std::uint64_t Key(std::int64_t i, std::int64_t j) {
    return (static_cast<std::uint64_t>(i) * 0x9E3779B97F4A7C15ULL) ^ static_cast<std::uint64_t>(j);
  }
  double tolerance_;
  double cell_;
  std::vector<Node> nodes_;
  std::unordered_map<std::uint64_t, std::vector<std::size_t>> cells_;
};

std::string FormatMetres(double value) { return NumToText(value); }

std::string IdList(const std::vector<NodeGrid::Found>& found) {
  std::string list;
  for (const NodeGrid::Found& f : found) list += (list.empty() ? "" : ", ") + f.id;
  return list;
}

}  // namespace

bool ParseGisImportKind(const std::string& word, GisImportKind& kind) {
  const std::string w = LCase(Trim(word));
  if (w == "nodes") {
    kind = GisImportKind::kNodes;
  } else if (w == "ci") {
    kind = GisImportKind::kCI;
  } else if (w == "pf") {
    kind = GisImportKind::kPF;
  } else if (w == "po") {
    kind = GisImportKind::kPO;
  } else {
    return false;
  }
  return true;
}

bool ReadGisLayer(const std::string& file, const std::string& layer_name, GisGeometry geometry,
                  const std::string& crs, GisLayer& layer, std::string& layer_crs,
                  UserInterface& ui) {
  StartGdal();
  CPLErrorReset();
  std::unique_ptr<GDALDataset, DatasetCloser> dataset(static_cast<GDALDataset*>(
      GDALOpenEx(file.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY, nullptr, nullptr, nullptr)));
  if (!dataset) {
    std::string text = "Le fichier " + file + " ne peut pas être lu comme une couche SIG.";
    const std::string reason = GdalLastError();
    if (!reason.empty()) text += "\r\n" + reason;
    Refuse(ui, text);
    return false;
  }
  OGRLayer* source = nullptr;
  if (Trim(layer_name).empty()) {
    if (dataset->GetLayerCount() != 1) {
      Refuse(ui, "Le fichier " + file + " contient " + std::to_string(dataset->GetLayerCount()) +
                     " couches : nommez celle à importer.");
      return false;
    }
    source = dataset->GetLayer(0);
  } else {
    source = dataset->GetLayerByName(layer_name.c_str());
  }
  if (!source) {
    Refuse(ui, "La couche " + layer_name + " est absente du fichier " + file + ".");
    return false;
  }
  const std::string name = source->GetName();
  const std::string where = Where(file, name);
  const bool points = geometry == GisGeometry::kPoint;
  const OGRwkbGeometryType declared = wkbFlatten(source->GetGeomType());
  const bool declared_ok = declared == wkbUnknown ||
                           (points ? declared == wkbPoint || declared == wkbMultiPoint
                                   : declared == wkbLineString || declared == wkbMultiLineString);
  if (!declared_ok) {
    Refuse(ui, std::string("La couche ") + name + " du fichier " + file + " n'est pas une couche " +
                   (points ? "de points." : "de lignes."));
    return false;
  }

  // The coordinate systems: the layer's into the network's.
  std::unique_ptr<OGRCoordinateTransformation, TransformDeleter> transform;
  layer_crs.clear();
  const OGRSpatialReference* from = source->GetSpatialRef();
  if (from) layer_crs = CrsName(*from);
  if (!Trim(crs).empty()) {
    OGRSpatialReference to;
    if (to.SetFromUserInput(crs.c_str()) != OGRERR_NONE) {
      Refuse(ui, "Le système de coordonnées du réseau (" + crs + ") est inconnu.");
      return false;
    }
    to.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    if (from && !from->IsSame(&to)) {
      OGRSpatialReference source_srs(*from);
      source_srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
      transform.reset(OGRCreateCoordinateTransformation(&source_srs, &to));
      if (!transform) {
        Refuse(ui, "Le système de coordonnées " + where +
                       " ne peut pas être converti dans celui du réseau (" + crs + ").");
        return false;
      }
    }
  }

  layer = GisLayer{name, geometry, {}, {}};
  OGRFeatureDefn* definition = source->GetLayerDefn();
  const int field_count = definition->GetFieldCount();
  std::vector<bool> number_field;
  for (int i = 0; i < field_count; ++i) {
    const OGRFieldDefn* field = definition->GetFieldDefn(i);
    const OGRFieldType type = field->GetType();
    const bool numeric = type == OFTReal || type == OFTInteger || type == OFTInteger64;
    number_field.push_back(numeric);
    layer.fields.push_back({field->GetNameRef(), numeric});
  }
  source->ResetReading();
  for (OGRFeature* raw = source->GetNextFeature(); raw; raw = source->GetNextFeature()) {
    std::unique_ptr<OGRFeature> feature(raw);
    GisFeature out;
    out.fid = feature->GetFID();
    const std::string at = FeatureWhere(file, name, out.fid);
    for (int i = 0; i < field_count; ++i) {
      if (!feature->IsFieldSetAndNotNull(i)) {
        out.values.emplace_back();
      } else if (number_field[static_cast<std::size_t>(i)]) {
        out.values.push_back(NumToText(feature->GetFieldAsDouble(i)));
      } else {
        out.values.emplace_back(feature->GetFieldAsString(i));
      }
    }
    OGRGeometry* shape = feature->GetGeometryRef();
    if (!shape || shape->IsEmpty()) {
      Refuse(ui, at + "géométrie absente.");
      return false;
    }
    if (transform && shape->transform(transform.get()) != OGRERR_NONE) {
      Refuse(ui, at + "ses coordonnées ne peuvent pas être converties dans le système du réseau.");
      return false;
    }
    const OGRwkbGeometryType type = wkbFlatten(shape->getGeometryType());
    const OGRLineString* line = nullptr;
    const OGRPoint* point = nullptr;
    if (points && type == wkbPoint) {
      point = shape->toPoint();
    } else if (points && type == wkbMultiPoint) {
      const OGRMultiPoint* multi = shape->toMultiPoint();
      if (multi->getNumGeometries() != 1) {
        Refuse(ui, at + "point en plusieurs parties.");
        return false;
      }
      point = multi->getGeometryRef(0);
    } else if (!points && type == wkbLineString) {
      line = shape->toLineString();
    } else if (!points && type == wkbMultiLineString) {
      const OGRMultiLineString* multi = shape->toMultiLineString();
      if (multi->getNumGeometries() != 1) {
        Refuse(ui, at + "ligne en plusieurs parties.");
        return false;
      }
      line = multi->getGeometryRef(0);
    } else {
      Refuse(ui, at + "sa géométrie (" + OGRGeometryTypeToName(shape->getGeometryType()) +
                     ") n'est pas " + (points ? "un point." : "une ligne."));
      return false;
    }
    if (point) {
      out.points.emplace_back(point->getX(), point->getY());
    } else {
      for (int i = 0; i < line->getNumPoints(); ++i) {
        out.points.emplace_back(line->getX(i), line->getY(i));
      }
    }
    for (const auto& [x, y] : out.points) {
      if (!std::isfinite(x) || !std::isfinite(y)) {
        Refuse(ui, at + "coordonnées invalides.");
        return false;
      }
    }
    layer.features.push_back(std::move(out));
  }
  if (layer.features.empty()) {
    Refuse(ui, "La couche " + name + " du fichier " + file + " est vide.");
    return false;
  }
  return true;
}

int ImportGisLayer(ImportTarget target, Console& console, const GisImportRequest& request) {
  Surface& surface = target.surface;
  NetworkState& state = target.state;
  UserInterface& ui = target.ui;
  const bool nodes = request.kind == GisImportKind::kNodes;
  if (!(request.tolerance >= 0) || !std::isfinite(request.tolerance)) {
    Refuse(ui, "La tolérance doit être un nombre positif de mètres.");
    return -1;
  }
  GisLayer layer;
  std::string layer_crs;
  if (!ReadGisLayer(request.file, request.layer, nodes ? GisGeometry::kPoint : GisGeometry::kLine,
                    state.CoordinateSystem, layer, layer_crs, ui)) {
    return -1;
  }
  const std::string where = Where(request.file, layer.name);

  // Which tag each field gives.
  std::map<std::string, std::string> field_of;  // field (capitals) -> tag
  for (const auto& [tag, field] : request.fields) {
    if (layer.FieldIndex(field) < 0) {
      Refuse(ui, "Le champ " + field + " est absent " + where + ".");
      return -1;
    }
    field_of[UCase(field)] = tag;
  }
  struct Column {
    std::size_t field;
    std::string tag;
  };
  std::vector<Column> columns;
  std::set<std::string> mapped_tags;
  for (const auto& [tag, field] : request.fields) mapped_tags.insert(UCase(tag));
  for (std::size_t f = 0; f < layer.fields.size(); ++f) {
    const auto mapped = field_of.find(UCase(layer.fields[f].name));
    std::string tag = mapped != field_of.end() ? mapped->second : layer.fields[f].name;
    // A field of the same name as a tag read from another field gives way.
    if (mapped == field_of.end() && mapped_tags.count(UCase(tag))) continue;
    if (tag.empty() || Reserved(tag)) continue;
    columns.push_back({f, tag});
  }
  const int id_field = layer.FieldIndex("Id");

  // Every value that must be a number is one, before anything changes.
  for (const GisFeature& feature : layer.features) {
    for (const Column& column : columns) {
      const std::string& value = feature.values[column.field];
      if (NumericTag(column.tag, request.kind) && !Trim(value).empty() && !IsGisNumber(value)) {
        Refuse(ui, FeatureWhere(request.file, layer.name, feature.fid) + "la valeur « " + value +
                       " » du champ " + layer.fields[column.field].name +
                       " n'est pas un nombre.");
        return -1;
      }
    }
  }
  const std::string picture = ImportSymbol(state.SymbolDir, {"Nod.wmf", "Noeud.wmf"});
  if (picture.empty()) {
    ShowImportSymbolError(target);
    return -1;
  }
  const Calibration calibration_before = state.calibration;
  const std::string crs_before = state.CoordinateSystem;
  if (Uncalibrated(state.calibration)) {
    if (!ui.AskYesNo("Le réseau n'est pas calé.\r\nLe caler sur l'emprise de la couche " +
                         layer.name + " ?",
                     kGisImportTitle, MessageIcon::kQuestion, true)) {
      return -1;
    }
    CalibrateOnLayer(state, layer);
  }
  if (Trim(state.CoordinateSystem).empty()) state.CoordinateSystem = layer_crs;

  UndoStep step(surface, "Annuler : Importer une couche SIG");
  CursorKeeper keeper(surface);
  const bool redraw = surface.Redraw();
  surface.SetRedraw(false);
  surface.SetCurrentObject(kDefaults);
  surface.SetEditMode(12);
  if (!surface.LoadFile(picture, 1)) {
    surface.SetRedraw(redraw);
    state.calibration = calibration_before;
    state.CoordinateSystem = crs_before;
    ShowImportSymbolError(target);
    return -1;
  }
  const double half = NodeHalfSize(surface, state.SymbolSize);
  const Calibration& map = state.calibration;

  // The nodes already there, by their map place.
  NodeGrid grid(request.tolerance);
  std::set<std::string> ids;
  surface.SetCurrentObject(kPage);
  for (int n = surface.FirstObject(); n > 10; n = surface.NextObject()) {
    const std::string id = surface.ObjTag(kTagId);
    if (!id.empty()) ids.insert(id);
    if (ValInt(surface.ObjTag(kTagIName)) != kINameNode) continue;
    double x = Val(surface.ObjTag(kTagXus)), y = Val(surface.ObjTag(kTagYus));
    if (Trim(surface.ObjTag(kTagXus)).empty()) {
      const Shape* shape = surface.ObjectShape(n);
      const double cx = (shape->box.left + shape->box.right) / 2.0;
      const double cy = (shape->box.top + shape->box.bottom) / 2.0;
      x = LogicToUserX(map, cx, cy);
      y = LogicToUserY(map, cx, cy);
    }
    grid.Add(n, id, x, y);
  }
  int node_number = MaxIdNumber(surface, kINameNode);
  const int i_name = INameOf(request.kind);
  const ElementType* type = ElementTypeOfIName(i_name);
  int link_number = nodes ? 0 : MaxIdNumber(surface, i_name);
  const std::string metres = FormatMetres(request.tolerance);

  // The feature's own Id when it is free, else the next of the kind.
  const auto take_id = [&](const GisFeature& feature, const std::string& prefix, int& number) {
    const std::string own = id_field >= 0 ? Trim(feature.values[static_cast<std::size_t>(id_field)])
                                          : std::string();
    std::string id = own;
    if (id.empty() || ids.count(id)) id = prefix + std::to_string(++number);
    ids.insert(id);
    return id;
  };
  const auto name_of = [&](const GisFeature& feature) {
    const std::string own = id_field >= 0 ? Trim(feature.values[static_cast<std::size_t>(id_field)])
                                          : std::string();
    return own.empty() ? "objet " + std::to_string(feature.fid) : own;
  };
  const auto set_tags = [&](const GisFeature& feature) {
    for (const Column& column : columns) {
      const std::string& value = feature.values[column.field];
      if (NumericTag(column.tag, request.kind) && !Trim(value).empty()) {
        surface.SetObjTag(column.tag, Val(value));
      } else {
        surface.SetObjTag(column.tag, value);
      }
    }
  };
  // A node at a map place; 0 when it could not be placed.
  const auto new_node = [&](double x, double y, const GisFeature* feature) {
    const std::int32_t x_log = UserToLogicX(map, x, y), y_log = UserToLogicY(map, x, y);
    const int node = PlaceImportedPoint(target, kINameNode, x_log, y_log, half);
    if (node == 0) return 0;
    surface.SetCurrentObject(node);
    const std::string id =
        feature ? take_id(*feature, "Nod_", node_number) : "Nod_" + std::to_string(++node_number);
    if (!feature) ids.insert(id);
    surface.SetObjTag(kTagId, id);
    surface.SetObjTag("libell", id);
    surface.SetObjTag(kTagXus, x);
    surface.SetObjTag(kTagYus, y);
    surface.SetObjTag(kTagXlog, x_log);
    surface.SetObjTag(kTagYlog, y_log);
    if (feature) {
      set_tags(*feature);
      if (Trim(surface.ObjTag("libell")).empty()) surface.SetObjTag("libell", id);
    }
    ++state.NodeCount;
    grid.Add(node, id, x, y);
    return node;
  };

  int made = 0;
  const std::size_t total = layer.features.size();
  for (std::size_t i = 0; i < total; ++i) {
    if (i % 500 == 0) ui.ShowProgress(static_cast<int>(i * 100 / total));
    const GisFeature& feature = layer.features[i];
    if (nodes) {
      const auto [x, y] = feature.points[0];
      const std::vector<NodeGrid::Found> near = grid.Near(x, y);
      const int node = new_node(x, y, &feature);
      if (node == 0) continue;
      ++made;
      if (!near.empty()) {
        surface.SetCurrentObject(node);
        console.AfficheMessage(surface.ObjTag(kTagId) + " : à moins de " + metres + " m de " +
                               IdList(near));
      }
      continue;
    }
    // A line needs two distinct ends.
    const auto& p = feature.points;
    if (p.size() < 2 || (p.size() == 2 && p.front() == p.back())) {
      console.AfficheMessage(name_of(feature) + " : ligne d'un seul sommet, non importée");
      continue;
    }
    const auto end_node = [&](double x, double y, const char* which) {
      const std::vector<NodeGrid::Found> near = grid.Near(x, y);
      if (near.empty()) return std::make_pair(new_node(x, y, nullptr), std::string());
      std::string note;
      if (near.size() > 1) {
        note = std::to_string(near.size()) + " noeuds à moins de " + metres + " m de l'extrémité " +
               which + " (" + IdList(near) + "), " + near.front().id + " est retenu";
      }
      return std::make_pair(near.front().number, note);
    };
    const auto [up, up_note] = end_node(p.front().first, p.front().second, "amont");
    const auto [down, down_note] = end_node(p.back().first, p.back().second, "aval");
    if (up == 0 || down == 0) continue;
    if (up == down) {
      surface.SetCurrentObject(up);
      console.AfficheMessage(name_of(feature) + " : ses deux extrémités tombent sur le noeud " +
                             surface.ObjTag(kTagId) + ", non importée");
      continue;
    }
    const int link = DrawLinkByNumber(surface, state, i_name, up, down);
    if (link == 0) continue;
    ++made;
    surface.SetCurrentObject(up);
    const std::string up_id = surface.ObjTag(kTagId);
    surface.SetCurrentObject(down);
    const std::string down_id = surface.ObjTag(kTagId);
    surface.SetCurrentObject(link);
    for (std::size_t v = 1; v + 1 < p.size(); ++v) {
      const std::int32_t x = UserToLogicX(map, p[v].first, p[v].second);
      const std::int32_t y = UserToLogicY(map, p[v].first, p[v].second);
      surface.SetLinkPoint(static_cast<int>(v) + 1, x, y);
    }
    const std::string id = take_id(feature, std::string(type->prefix), link_number);
    surface.SetObjTag(kTagId, id);
    surface.SetObjTag("libell", id);
    surface.SetObjTag(kTagSNodAm, up_id);
    surface.SetObjTag(kTagSNodAv, down_id);
    set_tags(feature);
    if (Trim(surface.ObjTag("libell")).empty()) surface.SetObjTag("libell", id);
    if (!up_note.empty()) console.AfficheMessage(id + " : " + up_note);
    if (!down_note.empty()) console.AfficheMessage(id + " : " + down_note);
  }
  state.ElementCounters[kINameNode] =
      std::max(state.ElementCounters[kINameNode], MaxIdNumber(surface, kINameNode));
  if (!nodes) {
    state.ElementCounters[i_name] =
        std::max(state.ElementCounters[i_name], MaxIdNumber(surface, i_name));
  }
  ui.ShowProgress(-1);
  surface.SetRedraw(redraw);
  surface.Refresh();
  const std::string short_code = nodes ? "NOD" : std::string(type->short_code);
  ui.ShowStatus("ok " + std::to_string(made) + " " + short_code + " ont été importés.");
  return made;
}

}  // namespace pluvane
