#include "editors/tag_grid_form.h"

#include <utility>

#include "drawing/surface_guards.h"
#include "editors/label_check.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

std::string CellNumber(double value, int decimals) {
  return Trim(FormatFixed(value, 20, decimals));
}

TagGridForm::TagGridForm(EditorContext& context, std::string caption, std::vector<TagRow> rows)
    : context_(context),
      caption_(std::move(caption)),
      rows_(std::move(rows)),
      grid_(kValueCol, static_cast<int>(rows_.size())) {
  grid_.SetCaption(caption_);
  grid_.SetColumnLocked(kLabelCol, true);
  grid_.SetColumnColours(kLabelCol, kLabelBackColour, kDefaultColour);
  Surface& surface = context_.surface;
  element_ = surface.CurrentObject();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const int row = static_cast<int>(i) + 1;
    const TagRow& r = rows_[i];
    grid_.SetText(kLabelCol, row, r.label);
    grid_.SetType(kValueCol, row, r.type);
    const std::string value = surface.ObjTag(r.tag);
    if (r.type.kind == CellType::kFloat) {
      grid_.SetText(kValueCol, row, CellNumber(Val(value), r.type.decimals));
    } else {
      grid_.SetText(kValueCol, row, value);
    }
  }
  old_label_ = surface.ObjTag("libell");
  grid_.SetActiveCell(kValueCol, 2);
}

std::vector<FormCommand> TagGridForm::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }}, {"cmdAnnul", "&Annuler", [this] { cmdAnnul(); }}};
}

void TagGridForm::ClickCell(Grid& grid, int col, int row) {
  context_.ui.ShowStatus(grid.Text(col, row));
}

void TagGridForm::cmdOk() {
  if (StoreRows()) Close();
}

bool TagGridForm::StoreRows() {
  Surface& surface = context_.surface;
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(element_);
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const int row = static_cast<int>(i) + 1;
    const TagRow& r = rows_[i];
    if (row == kLabelRow) {
      const std::string label = grid_.Text(kValueCol, row);
      if (!WriteUniqueLabel(surface, context_.ui, label, old_label_)) {
        grid_.SetText(kValueCol, row, old_label_);
        grid_.SetActiveCell(kValueCol, row);
        return false;
      }
    } else if (r.type.kind == CellType::kFloat && !grid_.IsBlank(kValueCol, row)) {
      surface.SetObjTag(r.tag, grid_.Value(kValueCol, row));
    } else {
      surface.SetObjTag(r.tag, grid_.Text(kValueCol, row));
    }
  }
  return true;
}

void TagGridForm::Refuse(int row, const std::string& message) {
  context_.ui.ShowMessage(message, kInputErrorTitle, MessageIcon::kInformation);
  grid_.SetActiveCell(kValueCol, row);
}

}  // namespace pluvane
