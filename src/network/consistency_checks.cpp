#include "network/consistency_checks.h"

#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {

// Objects beyond this type (scenarios, hidden calibration points) are not scanned.
constexpr int kLastScanned = 110;

// What a check needs of one object, read once.
struct Scanned {
  int number = 0;
  std::string i_name_text;
  int i_name = 0;
  std::string id;
  Box box;
};

bool NoNetwork(Surface& surface, UserInterface& ui, const char* title) {
  if (surface.ObjectCount(kPage) > 0) return false;
  ui.ShowMessage(kCheckNoNetwork, title, MessageIcon::kExclamation);
  return true;
}

// Every object of the drawing up to the last scanned type, the progress bar
// following the walk.
std::vector<Scanned> ScanObjects(Surface& surface, UserInterface& ui) {
  std::vector<Scanned> objects;
  const int total = std::max(1, surface.ObjectCount(kPage));
  int seen = 0;
  int shown = -1;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    const int percent = ++seen * 100 / total;
    if (percent != shown) {
      ui.ShowProgress(percent);
      shown = percent;
    }
    Scanned object;
    object.number = n;
    object.i_name_text = surface.ObjTag(kTagIName);
    object.i_name = ValInt(object.i_name_text);
    if (object.i_name > kLastScanned) continue;
    object.id = surface.ObjTag(kTagId);
    object.box = surface.ObjectShape(n)->box;
    objects.push_back(std::move(object));
  }
  ui.ShowProgress(0);
  return objects;
}

void Close(CheckReport& report, int scanned, const std::string& found_text) {
  report.lines.push_back(std::to_string(scanned) + " éléments ont été scannés");
  report.lines.push_back(found_text + std::to_string(report.found));
}

void Fault(CheckReport& report, std::string line) {
  report.lines.push_back(std::move(line));
  ++report.found;
}

bool Overlap(const Box& a, const Box& b) {
  return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
}

}  // namespace

std::optional<CheckReport> CheckForbiddenValues(Surface& surface, UserInterface& ui) {
  if (NoNetwork(surface, ui, kForbiddenTitle)) return std::nullopt;
  CheckReport report{kForbiddenTitle, {}, 0};
  const std::vector<Scanned> objects = ScanObjects(surface, ui);
  // The points of each section of the library, by Id.
  std::unordered_map<std::string, int> sections;
  for (const Scanned& object : objects) {
    if (object.i_name != kINameSection || sections.contains(object.id)) continue;
    surface.SetCurrentObject(object.number);
    sections.emplace(object.id, ValInt(surface.ObjTag("NbPt")));
  }
  for (const Scanned& object : objects) {
    if (Trim(object.id).empty()) continue;
    surface.SetCurrentObject(object.number);
    const std::string head = "Id : " + object.id;
    switch (object.i_name) {
      case kINameBV:
      case kINameBVS:
        if (Val(surface.ObjTag("m")) == 0) Fault(report, head + " : pente nulle");
        break;
      case kINameRout:
      case kINameCAC:
        if (Val(surface.ObjTag("Dn")) == 0) Fault(report, head + " : diametre nul");
        break;
      case kINameCAF:
      case kINameCAO: {
        const std::string section = surface.ObjTag("IdSect");
        const auto found = Trim(section).empty() ? sections.end() : sections.find(section);
        if (found == sections.end()) {
          Fault(report, head + " : section inconnue");
        } else if (found->second < 1) {
          Fault(report, head + " : section non définie (" + section + ")");
        }
        break;
      }
      default:
        break;
    }
  }
  Close(report, static_cast<int>(objects.size()), " éléments trouvés : ");
  return report;
}

std::optional<CheckReport> CheckDoublets(Surface& surface, UserInterface& ui) {
  if (NoNetwork(surface, ui, kDoubletsTitle)) return std::nullopt;
  CheckReport report{kDoubletsTitle, {}, 0};
  const std::vector<Scanned> objects = ScanObjects(surface, ui);
  struct Entry {
    int number;
    int i_name;
    std::string id;
    std::string label;
  };
  std::vector<Entry> entries;
  std::map<std::pair<int, std::string>, int> ids;
  std::map<std::pair<int, std::string>, int> labels;
  for (const Scanned& object : objects) {
    if (Trim(object.id).empty()) continue;
    surface.SetCurrentObject(object.number);
    if (ValInt(surface.ObjTag(kTagIGroup)) == 0) continue;
    Entry entry{object.number, object.i_name, object.id, surface.ObjTag("libell")};
    ++ids[{entry.i_name, entry.id}];
    if (!Trim(entry.label).empty()) ++labels[{entry.i_name, entry.label}];
    entries.push_back(std::move(entry));
  }
  // Each doubled value is told once, at its first holder.
  std::set<std::pair<int, std::string>> told_ids;
  std::set<std::pair<int, std::string>> told_labels;
  for (const Entry& entry : entries) {
    const std::pair<int, std::string> id_key{entry.i_name, entry.id};
    if (ids[id_key] > 1 && told_ids.insert(id_key).second) {
      Fault(report, "Id : " + entry.id + " : " + std::to_string(ids[id_key]) + " doublons");
    }
    if (Trim(entry.label).empty()) continue;
    const std::pair<int, std::string> label_key{entry.i_name, entry.label};
    if (labels[label_key] > 1 && told_labels.insert(label_key).second) {
      Fault(report,
            "Id : " + entry.label + " : " + std::to_string(labels[label_key]) + " doublons");
    }
  }
  Close(report, static_cast<int>(objects.size()), " doublons trouvés : ");
  return report;
}

std::optional<CheckReport> CheckOrphans(Surface& surface, UserInterface& ui) {
  if (NoNetwork(surface, ui, kOrphansTitle)) return std::nullopt;
  CheckReport report{kOrphansTitle, {}, 0};
  surface.DeselectAll();
  const std::vector<Scanned> objects = ScanObjects(surface, ui);
  std::unordered_set<std::string> route_starts;
  std::unordered_map<std::string, int> by_id;  // the first object of each Id
  for (const Scanned& object : objects) {
    by_id.emplace(object.id, object.number);
    if (object.i_name != kINameRout) continue;
    surface.SetCurrentObject(object.number);
    route_starts.insert(surface.ObjTag(kTagSNodAm));
  }
  for (const Scanned& object : objects) {
    surface.SetCurrentObject(object.number);
    const std::string head = "Id : " + object.id;
    if (Trim(object.i_name_text).empty() || object.i_name < 1) {
      Fault(report, "iName : " + object.i_name_text + " " + head);
      continue;
    }
    switch (object.i_name) {
      case kINameBV:
        if (!route_starts.contains(object.id)) Fault(report, head);
        break;
      case kINameHYBV:
      case kINameHY:
      case kINameDQQ:
      case kINameDQZ:
      case kINameRS:
      case kINameRSP:
      case kINameMark:
      case kINameBVS: {
        const std::string node = surface.ObjTag(kTagSNodAm);
        const auto found = Trim(node).empty() ? by_id.end() : by_id.find(node);
        if (found == by_id.end() ||
            !Overlap(object.box, surface.ObjectShape(found->second)->box)) {
          Fault(report, head);
        }
        break;
      }
      case kINameNode:
        if (ValInt(surface.ObjTag(kTagILink)) == 0 && surface.NodeLinkCount() == 0) {
          Fault(report, head);
        }
        break;
      default:
        break;
    }
  }
  Close(report, static_cast<int>(objects.size()), " éléments trouvés : ");
  return report;
}

std::optional<CheckReport> CheckAll(Surface& surface, UserInterface& ui) {
  CheckReport all{kAllChecksTitle, {}, 0};
  for (auto check : {CheckForbiddenValues, CheckDoublets, CheckOrphans}) {
    std::optional<CheckReport> report = check(surface, ui);
    if (!report) return std::nullopt;
    all.lines.insert(all.lines.end(), report->lines.begin(), report->lines.end());
    all.found += report->found;
  }
  return all;
}

}  // namespace pluvane
