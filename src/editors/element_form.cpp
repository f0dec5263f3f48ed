#include "editors/element_form.h"

#include <utility>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "editors/label_check.h"
#include "foundation/numbers.h"

namespace pluvane {

ElementForm::ElementForm(EditorContext& context, std::string caption, std::vector<TagRow> rows)
    : context_(context),
      element_(context.surface.CurrentObject()),
      old_label_(TagOfObject(context.surface, element_, "libell")),
      spread1_(2, static_cast<int>(rows.size())),
      rows_(std::move(rows)),
      caption_(std::move(caption)) {
  spread1_.SetCaption(caption_);
  spread1_.SetColumnLocked(kLabelCol, true);
  spread1_.SetColumnColours(kLabelCol, kLabelBackColour, kDefaultColour);
  for (int row = 1; row <= static_cast<int>(rows_.size()); ++row) {
    const TagRow& tag_row = rows_[static_cast<std::size_t>(row - 1)];
    spread1_.SetText(kLabelCol, row, tag_row.label);
    spread1_.SetType(kValueCol, row, tag_row.type);
  }
}

std::vector<FormCommand> ElementForm::Commands() {
  std::vector<FormCommand> commands = {{"cmdOk", "&Ok", [this] { cmdOk(); }},
                                       {"cmdAnnul", "&Annuler", [this] { cmdAnnul(); }}};
  for (FormCommand& command : MoreCommands()) commands.push_back(std::move(command));
  return commands;
}

void ElementForm::ClickCell(Grid& grid, int col, int row) {
  context_.ui.ShowStatus(grid.Text(col, row));
}

void ElementForm::cmdOk() {
  if (!LabelAccepted()) return;
  StoreRows(1, static_cast<int>(rows_.size()));
  Close();
}

std::string ElementForm::Tag(std::string_view name) const {
  return TagOfObject(context_.surface, element_, name);
}

void ElementForm::SetTag(std::string_view name, std::string_view value) {
  CursorKeeper keeper(context_.surface);
  context_.surface.SetCurrentObject(element_);
  if (context_.surface.CurrentObject() == element_) context_.surface.SetObjTag(name, value);
}

void ElementForm::LoadRows() {
  for (int row = 1; row <= static_cast<int>(rows_.size()); ++row) {
    const TagRow& tag_row = rows_[static_cast<std::size_t>(row - 1)];
    std::string value = Tag(tag_row.tag);
    // A check box shows "1" for any tag that is not zero, "0" otherwise.
    if (tag_row.type.kind == CellType::kCheckBox) value = Val(value) != 0 ? "1" : "0";
    spread1_.SetText(kValueCol, row, value);
  }
}

bool ElementForm::LabelAccepted() {
  if (CheckLabel(context_.surface, context_.ui, element_, spread1_.Text(kValueCol, 1))) {
    return true;
  }
  spread1_.SetText(kValueCol, 1, old_label_);
  spread1_.SetActiveCell(kValueCol, 1);
  return false;
}

void ElementForm::StoreRows(int from, int to) {
  for (int row = from; row <= to && row <= static_cast<int>(rows_.size()); ++row) {
    SetTag(rows_[static_cast<std::size_t>(row - 1)].tag, spread1_.Text(kValueCol, row));
  }
}

}  // namespace pluvane
