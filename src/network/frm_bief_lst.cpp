#include "network/frm_bief_lst.h"

#include <map>
#include <utility>

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/placement.h"
#include "network/reaches.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"

namespace pluvane {

namespace {

constexpr const char* kMarked = "0";

bool IsMarked(const Grid& grid, int row) { return Trim(grid.Text(1, row)) == kMarked; }

}  // namespace

FrmBiefLst::FrmBiefLst(Surface& surface, NetworkState& state, UserInterface& ui,
                       std::function<void(const ReachHighlight&)> highlight)
    : surface_(surface),
      state_(state),
      ui_(ui),
      on_highlight_(std::move(highlight)),
      reaches_(1, 0),
      collectors_(1, 0) {
  reaches_.SetCaption(Caption());
  collectors_.SetCaption(Caption());
  reaches_.SetColHead(1, "N° Bief");
  collectors_.SetColHead(1, "Collecteurs");
  collectors_.SetColumnLocked(1, true);
  numbers_ = ReachNumbers(surface_);
  reaches_.SetMaxRows(static_cast<int>(numbers_.size()));
  for (int row = 1; row <= reaches_.MaxRows(); ++row) {
    reaches_.SetText(0, row, "bief " + numbers_[row - 1]);
    reaches_.SetText(1, row, numbers_[row - 1]);
  }
  if (!numbers_.empty()) SelectRow(1);
  reaches_.AddListener([this](const GridChange& change) {
    if (change.kind == GridChange::kActiveCell && !Closed() && change.row1 != shown_row_)
      SelectRow(change.row1);
  });
}

FrmBiefLst::~FrmBiefLst() { Unload(); }

std::vector<FormCommand> FrmBiefLst::Commands() {
  return {{"mnDel", "&Supprimer", [this] { mnDel(); }},
          {"mnSave", "&Enregistrer", [this] { mnSave(); }},
          {"cmdOk", "&Ok", [this] { cmdOk(); }}};
}

void FrmBiefLst::SelectRow(int row) {
  shown_row_ = row;
  collectors_.SetMaxRows(0);
  ReachHighlight highlight;
  if (row < 1 || row > static_cast<int>(numbers_.size())) {
    ShowHighlight(highlight);
    return;
  }
  CursorKeeper keeper(surface_);
  const int reach = FindReach(surface_, numbers_[row - 1]);
  const LinkStyle style = LinkStyleOfKey(state_, kReachKey);
  highlight.color = style.color;
  highlight.width = style.width;
  highlight.style = style.style;
  for (const ReachCollector& collector : ReachCollectors(surface_, reach)) {
    const int number = FindCollector(surface_, collector);
    std::string label = collector.id;
    if (number > 0) {
      surface_.SetCurrentObject(number);
      label = surface_.ObjTag("libell");
      const std::vector<Point> points = surface_.ObjectPoints();
      // Chained collectors share their ends: each adds what the last did not.
      for (const Point& p : points) {
        if (highlight.points.empty() || !(highlight.points.back() == p))
          highlight.points.push_back(p);
      }
    }
    const int line = collectors_.MaxRows() + 1;
    collectors_.SetMaxRows(line);
    collectors_.SetText(1, line, label);
  }
  ShowHighlight(std::move(highlight));
}

void FrmBiefLst::mnDel() {
  const int row = reaches_.ActiveRow();
  if (row < 1 || row > reaches_.MaxRows()) return;
  reaches_.SetBackColour(1, row, kMarkedColour);
  reaches_.SetText(1, row, kMarked);
}

void FrmBiefLst::mnSave() {
  std::map<double, int> seen;
  for (int row = 1; row <= reaches_.MaxRows(); ++row) {
    const std::string number = Trim(reaches_.Text(1, row));
    if (++seen[Val(number)] > 1) {
      ui_.ShowMessage(number + " existe déjà.", Caption(), MessageIcon::kExclamation);
      reaches_.SetActiveCell(1, row);
      return;
    }
  }
  {
    UndoStep step(surface_, "Liste des biefs");
    CursorKeeper keeper(surface_);
    // Every record is found before any is renumbered: numbers may be swapped.
    std::vector<int> records;
    for (const std::string& number : numbers_) records.push_back(FindReach(surface_, number));
    bool renumbered = false;
    for (int row = 1; row <= reaches_.MaxRows(); ++row) {
      const int reach = records[row - 1];
      if (reach < 1) continue;
      if (IsMarked(reaches_, row)) {
        DeleteReach(surface_, reach);
        continue;
      }
      const std::string number = Trim(reaches_.Text(1, row));
      if (number == numbers_[row - 1]) continue;
      surface_.SetCurrentObject(reach);
      surface_.SetObjTag(kTagId, number);
      surface_.SetObjTag("libell", "Bief" + number);
      renumbered = true;
    }
    if (renumbered) UpdateReachTags(surface_);
  }
  Unload();
}

void FrmBiefLst::cmdOk() {
  {
    UndoStep step(surface_, "Liste des biefs");
    CursorKeeper keeper(surface_);
    for (int row = 1; row <= reaches_.MaxRows(); ++row) {
      if (!IsMarked(reaches_, row)) continue;
      const int reach =
          FindObject2(surface_, "libell", "Bief" + numbers_[row - 1], kTagIName, kINameReach);
      if (reach > 0) DeleteReach(surface_, reach);
    }
  }
  Unload();
}

void FrmBiefLst::ShowHighlight(ReachHighlight highlight) {
  highlight_ = std::move(highlight);
  if (on_highlight_) on_highlight_(highlight_);
}

void FrmBiefLst::Unload() {
  if (Closed()) return;
  Close();
  ShowHighlight({});
}

}  // namespace pluvane
