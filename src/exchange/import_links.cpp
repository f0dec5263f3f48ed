// ImportLinks: collectors of one type drawn between the nodes they name.
#include <algorithm>
#include <unordered_map>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "exchange/fld_file.h"
#include "exchange/import_table.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/network_tags.h"
#include "network/placement.h"

namespace pluvane {

namespace {

enum LinkColumn {
  kLabel = 1,
  kUpstream = 2,
  kDownstream = 3,
  kZUp = 4,
  kZDown = 5,
  kSection = 6,
  kLength = 7,
  kType = 8,
  kCol9 = 9,
  kCol10 = 10,
  kCol11 = 11
};

struct NodeRef {
  int number = 0;
  std::string id;
};

// The nodes by label in capitals; the first in creation order wins, as a
// search would find it.
std::unordered_map<std::string, NodeRef> NodesByLabel(Surface& surface) {
  std::unordered_map<std::string, NodeRef> nodes;
  for (int n = surface.FirstObject(); n != 0; n = surface.NextObject()) {
    if (ValInt(surface.ObjTag(kTagIName)) != kINameNode) continue;
    nodes.try_emplace(UCase(surface.ObjTag("libell")), NodeRef{n, surface.ObjTag(kTagId)});
  }
  return nodes;
}

int INameOfType(const std::string& type) {
  if (type == "PF") return kINameCAF;
  if (type == "PO") return kINameCAO;
  return kINameCAC;
}

}  // namespace

int ImportLinks(ImportTarget target, const std::string& type, const std::string& data_file,
                const std::string& fld_file, const std::string& separator) {
  Surface& surface = target.surface;
  std::vector<int> columns;
  const int highest = ReadFldFile(target.ui, fld_file, columns);
  if (highest < 0) return -1;
  const ImportTable table(target.ui, data_file);
  if (!table.Open()) return -1;
  const int i_name = INameOfType(type);
  const auto column = [&columns](int row) { return FldColumn(columns, row); };

  UndoStep step(surface, "Annuler : Importer des " + type);
  CursorKeeper keeper(surface);
  const bool redraw = surface.Redraw();
  surface.SetRedraw(false);
  const std::unordered_map<std::string, NodeRef> nodes = NodesByLabel(surface);
  const int existing = surface.ObjectCount(kAllObjects);
  const int first_number = MaxIdNumber(surface, i_name);
  int count = 0;
  std::vector<std::string> fields;
  std::string line;
  for (std::size_t i = 0; i < table.Lines().size(); ++i) {
    line = table.Lines()[i];
    if (separator != " ") line = Trim(ReplaceText(line, "\"", " "));
    if (Trim(line).empty()) continue;
    table.Progress(i, existing, 30);
    if (SplitRecord(target.ui, line, separator, highest, fields) == 0) continue;
    const std::string kind = UCase(Trim(Field(fields, column(kType))));
    if (!kind.empty() && kind.find(type) == std::string::npos) continue;
    ++count;
    const std::string up_label = Trim(Field(fields, column(kUpstream)));
    if (up_label.empty()) continue;
    const auto up = nodes.find(UCase(up_label));
    const auto down = nodes.find(UCase(Trim(Field(fields, column(kDownstream)))));
    if (up == nodes.end() || down == nodes.end() || up->second.number == down->second.number) {
      continue;
    }
    const int link =
        DrawLinkByNumber(surface, target.state, i_name, up->second.number, down->second.number);
    if (link == 0) continue;
    surface.SetCurrentObject(link);
    const std::string number = std::to_string(first_number + count);
    std::string label = Trim(Field(fields, column(kLabel)));
    if (label.empty()) label = type + "_" + number;
    surface.SetObjTag(kTagId, type + "_" + number);
    surface.SetObjTag("libell", ReplaceText(label, " ", "_"));
    surface.SetObjTag(kTagSNodAm, up->second.id);
    surface.SetObjTag(kTagSNodAv, down->second.id);
    surface.SetObjTag("ZRam", Val(Field(fields, column(kZUp))));
    surface.SetObjTag("ZRav", Val(Field(fields, column(kZDown))));
    surface.SetObjTag("L", Val(Field(fields, column(kLength))));
    const std::string& section = Field(fields, column(kSection));
    if (type == "CI") {
      surface.SetObjTag("Dn", Val(section));
    } else {
      surface.SetObjTag("IdSect", Trim(section));
    }
    if (type == "PO") {
      surface.SetObjTag("Kmin", Val(Field(fields, column(kCol9))));
      surface.SetObjTag("Largeur", Val(Field(fields, column(kCol10))));
      surface.SetObjTag("Kmaj", Val(Field(fields, column(kCol11))));
    } else {
      surface.SetObjTag("K", Val(Field(fields, column(kCol9))));
      surface.SetObjTag("HD", Val(Field(fields, column(kCol10))));
      surface.SetObjTag("SR", Val(Field(fields, column(kCol11))));
    }
  }
  target.state.ElementCounters[i_name] =
      std::max(target.state.ElementCounters[i_name], first_number + count);
  target.ui.ShowProgress(-1);
  surface.SetRedraw(redraw);
  surface.Refresh();
  target.ui.ShowStatus("ok " + std::to_string(count) + " " + type + " ont été importés.");
  return count;
}

}  // namespace pluvane
