#include "network/merge_network.h"

#include <string>
#include <unordered_map>
#include <vector>

#include "foundation/dialogs.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/calibration_points.h"
#include "network/catalogue.h"
#include "network/map_coordinates.h"
#include "network/network_tags.h"
#include "network/node_links.h"
#include "network/persistence.h"
#include "network/reaches.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/view_zoom.h"

namespace pluvane {

namespace {

using IdMap = std::unordered_map<std::string, std::string>;

// The passes over the guest's objects, type by type, in this order; the node
// links are recounted after the first group of links. Simple catchments (21)
// come last, so that they stand on renamed nodes like the other point elements.
constexpr int kNodePass[] = {kINameNode};
constexpr int kFirstPass[] = {1, 2, 3, 4, 5, 6, 7};
constexpr int kSecondPass[] = {8, 9, 10, 11, 12, 13, 14, 16, kINameBVS};
// Where the outlets of dividers and basins are looked up, in this order.
constexpr int kOutletTypes[] = {5, 6, 7, 8, 9, 10, 11, 13};
constexpr const char* kOutletTags[] = {"IdAval", "IdDer_a", "IdDer_b", "IdDer_c", "IdSurv"};

bool IsRegulator(int i_name) { return i_name >= kINameDQQ && i_name <= kINameRSP; }

int GroupOfType(int i_name) {
  const ElementType* type = ElementTypeOfIName(i_name);
  return type ? type->i_group : 0;
}

void Refuse(UserInterface& ui, const std::string& reason) {
  ui.ShowMessage("\r" + reason + "\r(Cf. Fichier/Ouvrir...)", kMergeTitle,
                 MessageIcon::kExclamation);
}

// Renames the guest's elements and moves every reference to the new names.
// The look-ups go through maps from old to new Id, built as the passes go.
class GuestRenamer {
 public:
  GuestRenamer(Surface& surface, NetworkState& state, UserInterface& ui, std::string prefix,
               const std::vector<int>& guest)
      : surface_(surface), state_(state), ui_(ui), prefix_(std::move(prefix)) {
    for (int n : guest) {
      surface_.SetCurrentObject(n);
      by_type_[ValInt(surface_.ObjTag(kTagIName))].push_back(n);
    }
    // How many objects of the drawing, host and guest, hold each Id, by type.
    for (int n = surface_.FirstObject(); n > 0; n = surface_.NextObject()) {
      const int i_name = ValInt(surface_.ObjTag(kTagIName));
      if (by_type_.count(i_name)) ++id_counts_[i_name][surface_.ObjTag(kTagId)];
    }
  }

  const std::vector<int>& OfType(int i_name) { return by_type_[i_name]; }

  template <std::size_t N>
  void Pass(const int (&types)[N]) {
    for (int i_name : types) {
      if (OfType(i_name).empty()) continue;
      ui_.ShowStatus(LabelOfIName(i_name) + " Maj ");
      ui_.PumpEvents();
      for (int n : OfType(i_name)) Rename(i_name, n);
    }
  }

  // What waits for every element to have its new name: the outlets of the
  // regulators, and the ends of the links.
  void ResolveReferences() {
    for (int n : regulators_) {
      surface_.SetCurrentObject(n);
      for (const char* tag : kOutletTags) {
        const std::string value = surface_.ObjTag(tag);
        if (Trim(value).empty()) continue;
        for (int i_name : kOutletTypes) {
          if (const std::string* found = Renamed(i_name, value)) {
            surface_.SetObjTag(tag, *found);
            break;
          }
        }
      }
    }
    for (int n : links_) {
      surface_.SetCurrentObject(n);
      const int up = surface_.LinkEndObject(0), down = surface_.LinkEndObject(1);
      const std::string up_id = IdOf(up), down_id = IdOf(down);
      surface_.SetCurrentObject(n);
      surface_.SetObjTag(kTagSNodAm, up_id);
      surface_.SetObjTag(kTagSNodAv, down_id);
    }
  }

 private:
  void Rename(int i_name, int n) {
    surface_.SetCurrentObject(n);
    const std::string old_id = surface_.ObjTag(kTagId);
    std::string id = old_id;
    auto& counts = id_counts_[i_name];
    if (counts[id] > 1) {
      const ElementType* type = ElementTypeOfIName(i_name);
      const std::string type_prefix = type ? std::string(type->prefix) : "Obj_";
      std::string fresh;
      do {
        fresh = type_prefix + std::to_string(++state_.ElementCounters[i_name]);
      } while (counts.count(fresh) && counts[fresh] > 0);
      Recount(counts, id, fresh);
    }
    if (i_name != kINameBV && i_name != kINameCLAV) {
      Recount(counts, id, prefix_ + "_" + id);
      surface_.SetObjTag("libell", prefix_ + "_" + surface_.ObjTag("libell"));
    }
    if (id != old_id) surface_.SetObjTag(kTagId, id);
    renamed_[i_name].emplace(old_id, id);
    if (i_name == kINameNode) new_nodes_.emplace(id, n);

    const int group = GroupOfType(i_name);
    if (group == kGroupLink) links_.push_back(n);
    if (IsRegulator(i_name)) regulators_.push_back(n);
    if (group == kGroupPoint || IsRegulator(i_name)) {
      RenameNode(n);
      PutBackOnNode(i_name, n);
    }
  }

  // Moves one holder of `from` to `to` in the counts of a type.
  static void Recount(std::unordered_map<std::string, int>& counts, std::string& from,
                      const std::string& to) {
    if (--counts[from] <= 0) counts.erase(from);
    ++counts[to];
    from = to;
  }

  const std::string* Renamed(int i_name, const std::string& old_id) const {
    auto table = renamed_.find(i_name);
    if (table == renamed_.end()) return nullptr;
    auto found = table->second.find(old_id);
    return found == table->second.end() ? nullptr : &found->second;
  }

  void RenameNode(int n) {
    surface_.SetCurrentObject(n);
    const std::string node = surface_.ObjTag(kTagSNodAm);
    if (Trim(node).empty()) return;
    if (const std::string* found = Renamed(kINameNode, node))
      surface_.SetObjTag(kTagSNodAm, *found);
  }

  // A catchment or a gauge goes where its map coordinates say; any other
  // element takes the bounds of its node.
  void PutBackOnNode(int i_name, int n) {
    if (i_name == kINameBV || i_name == kINamePLU) {
      MoveObjectToMap(surface_, state_.calibration, n);
      return;
    }
    surface_.SetCurrentObject(n);
    const int node = NodeNamed(surface_.ObjTag(kTagSNodAm));
    if (node < 1) return;
    surface_.SetCurrentObject(node);
    std::int32_t left, top, right, bottom;
    surface_.GetObjectBounds(left, top, right, bottom);
    surface_.SetCurrentObject(n);
    surface_.SetObjectBounds(left, top, right, bottom);
  }

  int NodeNamed(const std::string& id) {
    if (Trim(id).empty()) return 0;
    auto found = new_nodes_.find(id);
    if (found != new_nodes_.end()) return found->second;
    CursorKeeper keeper(surface_);
    return FindObject2(surface_, kTagId, id, kTagIName, kINameNode);
  }

  std::string IdOf(int object) {
    surface_.SetCurrentObject(object);
    return surface_.CurrentObject() == object ? surface_.ObjTag(kTagId) : std::string();
  }

  Surface& surface_;
  NetworkState& state_;
  UserInterface& ui_;
  std::string prefix_;
  std::unordered_map<int, std::vector<int>> by_type_;
  std::unordered_map<int, std::unordered_map<std::string, int>> id_counts_;
  std::unordered_map<int, IdMap> renamed_;
  std::unordered_map<std::string, int> new_nodes_;
  std::vector<int> regulators_;
  std::vector<int> links_;
};

void DeleteCalibrationRecords(Surface& surface) {
  for (int i_name : {kINameCalage, kINameHiddenCalage}) {
    for (int n : FindObjectList(surface, kTagIName, i_name)) surface.DeleteObject(n);
  }
}

}  // namespace

int MergeNetwork(NetworkSession& s, const std::function<void()>& rebuild_arrows) {
  Surface& surface = s.surface;
  NetworkState& state = s.state;
  if (!FileExist(state.NetworkFile)) {
    Refuse(s.ui, "Un réseau d'accueil type Pluvane doit être chargé !");
    return 0;
  }
  if (CountByName(surface, kINameHiddenCalage) < 1) {
    Refuse(s.ui, "Le réseau d'accueil doit être calé !");
    return 0;
  }
  const Calibration host_calibration = state.calibration;
  const std::string file =
      AskOpenFile(s.ui, "Importer un réseau Pluvane", "Fichier Mtf|*.mtf", "Mtf", "*.mtf");
  if (file.empty()) return 0;

  UndoStep step(surface, kMergeTitle);
  CursorKeeper keeper(surface);
  if (!LoadBesideNetwork(s, file)) return 0;
  DeleteCalibrationRecords(surface);
  state.calibration = host_calibration;
  const std::string prefix = CharLeft(BaseOf(file), kMergePrefixLength);

  const bool redraw = surface.Redraw();
  int count = 0;
  if (surface.ObjectCount(kSelection) > 0) {
    surface.SetRedraw(false);
    surface.SetCurrentObject(kSelection);
    surface.Arrange(1);
    const std::vector<int> guest = SelectedObjects(surface);
    count = static_cast<int>(guest.size());
    GuestRenamer renamer(surface, state, s.ui, prefix, guest);
    for (int node : renamer.OfType(kINameNode)) MoveObjectToMap(surface, state.calibration, node);
    renamer.Pass(kNodePass);
    renamer.Pass(kFirstPass);
    RecountNodeLinks(surface);
    renamer.Pass(kSecondPass);
    renamer.ResolveReferences();
    UpdateReachTags(surface);
  }
  surface.DeselectAll();
  if (rebuild_arrows) rebuild_arrows();
  AddCalibrationPoints(surface, state);
  HideCalibrationPoints(surface, state);
  ZoomToBounds(surface, state);
  s.ui.ShowStatus("ok fichier " + file + " (" + std::to_string(count) + " elm)");
  surface.SetRedraw(redraw);
  surface.Refresh();
  return count;
}

}  // namespace pluvane
