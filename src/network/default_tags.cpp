#include "network/default_tags.h"

#include <cmath>

#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"
#include "network/topology.h"

namespace pluvane {

namespace {

constexpr const char* kFpluieDefault = "1. CR constant (Coeff. de Ruissellement)";
constexpr const char* kFruisselDefault = "1. k (Desbordes)";

// Writes the tags of one new element; `import` selects the second path.
class TagWriter {
 public:
  TagWriter(Surface& surface, NetworkState& state, const CreationPlace& place, bool import)
      : s_(surface), state_(state), place_(place), import_(import) {}

  std::string Write(const ElementType& type, bool no_count) {
    const int i_name = type.i_name;
    if (i_name == kINameReach && state_.PendingReach == 0) return "";
    if (i_name < kINameReach) {
      if (!no_count) ++state_.ElementCounters[i_name];
      n_ = state_.ElementCounters[i_name];
    }
    s_.SetEditMode(kEditSelection);
    Head(type);
    Body(type);
    return MakeIdUnique(s_, state_, i_name, n_);
  }

 private:
  void Num(std::string_view name, double value) { s_.SetObjTag(name, value); }
  void Text(std::string_view name, std::string_view value) { s_.SetObjTag(name, value); }
  void Zeros(std::initializer_list<const char*> names) {
    for (const char* name : names) Num(name, 0);
  }
  void Blanks(std::initializer_list<const char*> names) {
    for (const char* name : names) Text(name, "");
  }

  void Head(const ElementType& type) {
    if (type.i_name == kINameRayon) {
      Text(kTagId, "Rayon");
      Text(kTagIName, std::to_string(kINameRayon));
      return;
    }
    if (type.i_name == kINameReach) {
      const std::string number = std::to_string(state_.PendingReach);
      Text(kTagId, number);
      Text(kTagIName, std::to_string(kINameReach));
      Text("libell", "Bief" + number);
      return;
    }
    // Imports name both kinds of catchment as catchments; the BVS form comes after.
    const std::string_view prefix = import_ && type.i_name == kINameBVS ? "Bv_" : type.prefix;
    const std::string id = std::string(prefix) + std::to_string(n_);
    Text(kTagId, id);
    Text("libell", id);
    Num(kTagIName, type.i_name);
    if (type.i_name != kINameCalage) Num(kTagIGroup, type.i_group);
  }

  Point Position() const {
    if (place_.position) return *place_.position;
    const int current = s_.CurrentObject();
    const auto [x, y] = ObjectCentre(s_, current);
    return {RoundLong(x), RoundLong(y)};
  }

  // Xlog, Ylog, then their map form under the names given (none on imports).
  void PositionTags(const char* x_user, const char* y_user) {
    const Point p = Position();
    Num(kTagXlog, p.x);
    Num(kTagYlog, p.y);
    if (import_) return;
    Num(x_user, LogicToUserX(state_.calibration, p.x, p.y));
    Num(y_user, LogicToUserY(state_.calibration, p.x, p.y));
  }

  std::string TargetNodeId() {
    if (place_.target_node < kFirstObjectNumber) return "";
    const int current = s_.CurrentObject();
    s_.SetCurrentObject(place_.target_node);
    const std::string id = s_.CurrentObject() == place_.target_node ? s_.ObjTag(kTagId) : "";
    s_.SetCurrentObject(current);
    return id;
  }

  void NodeTag() { Text(kTagSNodAm, TargetNodeId()); }

  // sNodAm and sNodAv from the link's ends; imports set them from their data.
  void EndTags() {
    if (import_) return;
    const int link = s_.CurrentObject();
    std::string ids[2];
    for (int end = 0; end < 2; ++end) {
      const int object = s_.LinkEndObject(end);
      if (object >= kFirstObjectNumber) {
        s_.SetCurrentObject(object);
        ids[end] = s_.ObjTag(kTagId);
        s_.SetCurrentObject(link);
      }
    }
    Text(kTagSNodAm, ids[0]);
    Text(kTagSNodAv, ids[1]);
  }

  void Length() {
    if (!import_) Num("L", LinkLength(s_, state_.calibration, s_.CurrentObject()));
  }

  void CollectorHead() {
    EndTags();
    Num(kTagIBief, 0);
    if (!import_) Zeros({"ZRam", "ZRav"});
  }

  void DerivationHead() {
    NodeTag();
    Text("IdAval", "");
    Num("NbDer", 0);
    Blanks({"IdDer_a", "IdDer_b", "IdDer_c"});
  }

  void Catchment() {
    Text(kTagSNodAm, "");
    PositionTags(kTagXus, kTagYus);
    Text("S", "5");
    Text("L", "50");
    Text("m", "0.005");
    Text("ci", "0.60");
    Text("Fpluie", kFpluieDefault);
    Text("Fpluie1", "0.50");
    Blanks({"Fpluie2", "Fpluie3"});
    Text("Fruissel", kFruisselDefault);
    Text("K", "");
  }

  double DryWeatherFlow() const { return import_ ? 0.1 : 0; }

  void Body(const ElementType& type) {
    switch (type.i_name) {
      case kINameBV:
        Catchment();
        break;
      case kINameBVS:
        Catchment();
        Text(kTagId, "Bvs_" + std::to_string(n_));
        NodeTag();
        Num("Qsec", DryWeatherFlow());
        break;
      case kINameRout:
        EndTags();
        Num("S", 1);
        Length();
        Num("m", 0.005);
        break;
      case kINameHYBV:
        NodeTag();
        Num("Qsec", DryWeatherFlow());
        Num("SR", 0);
        break;
      case kINameHY:
        NodeTag();
        Zeros({"Qsec", "SR", "NbPt", "X1", "Y1", "X2", "Y2", "X3", "Y3"});
        break;
      case kINameCAC:
      case kINameCAF:
      case kINameCAO:
        CollectorHead();
        if (type.i_name == kINameCAC) {
          Num("Dn", 1);
        } else {
          Text("IdSect", "");
        }
        Length();
        if (type.i_name == kINameCAO) {
          Num("Kmin", 50);
          Num("Largeur", 100);
          Num("Kmaj", 30);
        } else {
          Num("K", 60);
          Zeros({"HD", "SR"});
        }
        break;
      case kINameDQQ:
        DerivationHead();
        Zeros({"NbPt", "X1", "Y1", "Z1", "T1"});
        break;
      case kINameDQZ:
        DerivationHead();
        for (const char* name : {"TypeAval", "TypeDer_a", "TypeDer_b", "TypeDer_c"}) Num(name, 3);
        Zeros({"NbPtAv", "NbPtDa", "NbPtDb", "NbPtDc", "Xav1", "Yav1", "Xda1", "Yda1", "Xdb1",
               "Ydb1", "Xdc1", "Ydc1"});
        break;
      case kINameRS:
        NodeTag();
        Blanks({"IdAval", "IdSurv"});
        Zeros({"Qf", "Z0", "NbPt", "X1", "Y1", "X10", "Y10"});
        break;
      case kINameRSP:
        NodeTag();
        Blanks({"IdAval", "IdSurv"});
        Zeros({"Z0", "NbPt", "X1", "Y1", "Z1", "T1", "X10", "Y10", "Z10", "T10"});
        break;
      case kINamePLU:
      case kINameNode:
        PositionTags(kTagXus, kTagYus);
        break;
      case kINameTR:
        EndTags();
        break;
      case kINameCLAV:
      case kINameMark:
        NodeTag();
        Num("Export", 0);
        break;
      case kINameCalage:
        PositionTags("Xcal", "Ycal");
        break;
      case kINameRayon:
        WriteRadiusTags(s_, state_.calibration);
        break;
      default:
        break;
    }
  }

  Surface& s_;
  NetworkState& state_;
  const CreationPlace& place_;
  bool import_;
  std::int32_t n_ = 0;
};

}  // namespace

std::string MakeIdUnique(Surface& surface, NetworkState& state, int i_name, std::int32_t& counter) {
  std::string id = surface.ObjTag(kTagId);
  while (CountByTag(surface, kTagId, id) >= 2) {
    ++counter;
    if (i_name >= 1 && i_name < kINameReach) state.ElementCounters[i_name] = counter;
    const std::size_t underscore = id.find('_');
    id = underscore == std::string::npos ? "Obj_" + std::to_string(counter)
                                         : id.substr(0, underscore + 1) + std::to_string(counter);
    surface.SetObjTag(kTagId, id);
  }
  return id;
}

std::string CreateDefaultTags(Surface& surface, NetworkState& state, std::string_view key,
                              bool no_count, const CreationPlace& place) {
  const ElementType* type = ElementTypeOfKey(key);
  if (!type || type->key.empty() || surface.CurrentObject() < kFirstObjectNumber) return "";
  return TagWriter(surface, state, place, false).Write(*type, no_count);
}

std::string CreateDefaultTagsByNumber(Surface& surface, NetworkState& state, int i_name, bool no_count,
                                      const CreationPlace& place) {
  const ElementType* type = ElementTypeOfIName(i_name);
  if (!type || type->key.empty() || surface.CurrentObject() < kFirstObjectNumber) return "";
  return TagWriter(surface, state, place, true).Write(*type, no_count);
}

void WriteRadiusTags(Surface& surface, const Calibration& calibration) {
  const int current = surface.CurrentObject();
  if (current < kFirstObjectNumber) return;
  const auto [cx, cy] = ObjectCentre(surface, current);
  const std::int32_t x = RoundLong(cx), y = RoundLong(cy);
  const double half_width = (static_cast<double>(surface.ObjRight()) - surface.ObjLeft()) / 2;
  const double xus = LogicToUserX(calibration, x, y);
  const double yus = LogicToUserY(calibration, x, y);
  const double edge_x = LogicToUserX(calibration, x + half_width, y);
  const double edge_y = LogicToUserY(calibration, x + half_width, y);
  surface.SetObjTag(kTagXlog, x);
  surface.SetObjTag(kTagYlog, y);
  surface.SetObjTag(kTagXus, xus);
  surface.SetObjTag(kTagYus, yus);
  surface.SetObjTag("Rayon", std::hypot(edge_x - xus, edge_y - yus));
}

}  // namespace pluvane
