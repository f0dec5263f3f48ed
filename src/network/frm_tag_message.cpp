#include "network/frm_tag_message.h"

#include <utility>

#include "drawing/object_tags.h"
#include "foundation/text.h"
#include "drawing/surface_helpers.h"
#include "network/locate_element.h"

namespace pluvane {

namespace {

constexpr double kPrintPoints = 10;

// The first object whose tag equals `value` without regard to case, 0 if none.
int FindIgnoringCase(Surface& surface, std::string_view tag, const std::string& value) {
  const std::string wanted = UCase(value);
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    if (UCase(surface.ObjTag(tag)) == wanted) return n;
  }
  return 0;
}

}  // namespace

std::string DesignationOfLine(const std::string& line) {
  static const std::string kHead = "Id : ";
  const std::size_t at = line.find(kHead);
  if (at == std::string::npos) return "";
  std::string rest = line.substr(at + kHead.size());
  const std::size_t end = rest.find(" : ");
  if (end != std::string::npos) rest.resize(end);
  return Trim(rest);
}

FrmTagMessage::FrmTagMessage(Surface& surface, NetworkState& state, UserInterface& ui,
                             std::string caption, const std::vector<std::string>& lines)
    : surface_(surface), state_(state), ui_(ui), caption_(std::move(caption)), lines_(1, 0) {
  lines_.SetCaption(caption_);
  lines_.SetColHead(1, "Messages");
  lines_.SetColWidth(1, 80);
  lines_.SetMaxRows(static_cast<int>(lines.size()));
  for (int row = 1; row <= lines_.MaxRows(); ++row) lines_.SetText(1, row, lines[row - 1]);
  lines_.SetColumnLocked(1, true);
  lines_.SetRowSelect(true);
}

std::vector<FormCommand> FrmTagMessage::Commands() {
  return {{"cmdPrint", "&Imprimer",
           [this] {
             std::vector<std::string> text;
             for (int row = 1; row <= lines_.MaxRows(); ++row) text.push_back(lines_.Text(1, row));
             const std::string error = ui_.PrintLines(text, kPrintPoints);
             if (!error.empty()) ui_.ShowMessage(error, caption_, MessageIcon::kExclamation);
           }},
          {"cmdClear", "&Effacer", [this] { lines_.SetMaxRows(0); }},
          {"cmdOk", "&Fermer", [this] { Close(); }}};
}

void FrmTagMessage::ClickCell(Grid& grid, int /*col*/, int row) {
  if (&grid == &lines_) LocateRow(row);
}

int FrmTagMessage::LocateRow(int row) {
  if (row < 1 || row > lines_.MaxRows()) return 0;
  const std::string designation = DesignationOfLine(lines_.Text(1, row));
  if (designation.empty()) return 0;
  int found = FindIgnoringCase(surface_, kTagId, designation);
  if (found == 0) found = FindIgnoringCase(surface_, "libell", designation);
  if (found == 0) {
    ui_.ShowStatus("Aucun élément " + designation);
    return 0;
  }
  ShowElement(surface_, state_, found);
  return found;
}

}  // namespace pluvane
