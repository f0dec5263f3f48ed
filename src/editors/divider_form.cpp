#include "editors/divider_form.h"

#include <utility>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "editors/element_label.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

constexpr const char* kFillAll = "Renseignez tous les identificateurs nécessaires.";

// The tags of the branch rows, in the order of kBranchRows.
constexpr std::array<const char*, 4> kBranchTags{"IdAval", "IdDer_a", "IdDer_b", "IdDer_c"};

const char* BranchTag(int row) {
  for (std::size_t i = 0; i < DividerForm::kBranchRows.size(); ++i) {
    if (DividerForm::kBranchRows[i] == row) return kBranchTags[i];
  }
  return "";
}

}  // namespace

bool DividerForm::IsBranchRow(int row) { return BranchTag(row)[0] != '\0'; }

DividerForm::DividerForm(EditorContext& context, std::string caption, int cols)
    : context_(context),
      spread1_(cols, kRowDer3),
      caption_(std::move(caption)),
      element_(context.surface.CurrentObject()) {
  Surface& surface = context_.surface;
  links_ = LinksLeavingNode(surface, element_);
  quiet_ = true;
  spread1_.SetCaption(caption_);
  spread1_.SetColWidth(0, 0);
  spread1_.SetColumnLocked(kColLabel, true);
  const char* labels[] = {"Identificateur (16 car maxi)=",
                          "Id. de l'élément aval (16 car maxi)=",
                          "Nombre de dérivation=",
                          "Id. de la dérivation 1 (16 car maxi)=",
                          "Id. de la dérivation 2 (16 car maxi)=",
                          "Id. de la dérivation 3 (16 car maxi)="};
  for (int row = kRowLabel; row <= kRowDer3; ++row)
    spread1_.SetText(kColLabel, row, labels[row - 1]);
  old_label_ = TagOfObject(surface, element_, "libell");
  spread1_.SetText(kColValue, kRowLabel, old_label_);
  spread1_.SetType(kColValue, kRowCount, CellType::Integer(0, 0));
  spread1_.SetLocked(kColValue, kRowCount, true);
  spread1_.SetText(kColValue, kRowCount, std::to_string(DerivationCount()));
  const std::string list = links_.List();
  for (int row : kBranchRows) {
    spread1_.SetType(kColValue, row, CellType::List(list));
    spread1_.SetText(kColValue, row, TagOfObject(surface, element_, BranchTag(row)));
  }
  quiet_ = false;
  spread1_.AddListener([this](const GridChange& change) {
    if (quiet_ || Closed() || change.kind != GridChange::kCells) return;
    if (change.col1 > kColValue || change.col2 < kColValue || change.row1 != change.row2) return;
    if (IsBranchRow(change.row1)) BranchChosen(change.row1);
  });
  std::vector<int> shown = links_.handles;
  shown.insert(shown.begin(), element_);
  HighlightObjects(surface, shown);
}

DividerForm::~DividerForm() {
  if (!Closed()) ClearHighlight(context_.surface);
}

void DividerForm::ClickCell(Grid& grid, int col, int row) {
  if (&grid != &spread1_) {
    context_.ui.ShowStatus(grid.Text(col, row));
    return;
  }
  if (col == kColValue && IsBranchRow(row)) {
    const int link = links_.HandleOf(spread1_.Text(col, row));
    if (link > 0) {
      HighlightObjects(context_.surface, {link});
      context_.ui.ShowStatus(TagOfObject(context_.surface, link, kTagId));
      return;
    }
  }
  context_.ui.ShowStatus(spread1_.Text(col, row));
}

void DividerForm::BranchChosen(int row) {
  const std::string chosen = spread1_.Text(kColValue, row);
  if (Trim(chosen).empty()) return;
  for (int other : kBranchRows) {
    if (other != row && EqualsNoCase(spread1_.Text(kColValue, other), chosen)) {
      SetQuietly(kColValue, other, "");
    }
  }
  const int link = links_.HandleOf(chosen);
  if (link > 0) HighlightObjects(context_.surface, {link});
}

bool DividerForm::CheckBranchesFilled(int last_col) {
  for (int row : kBranchRows) {
    for (int col = kColValue; col <= last_col; ++col) {
      if (!spread1_.IsBlank(col, row)) continue;
      spread1_.SetActiveCell(col, row);
      context_.ui.ShowMessage(kFillAll, caption_, MessageIcon::kExclamation);
      return false;
    }
  }
  return true;
}

bool DividerForm::LabelRefused() {
  const std::string label = spread1_.Text(kColValue, kRowLabel);
  if (!LabelTakenByOther(context_.surface, element_, label)) return false;
  // The divider editors give all their messages the information icon.
  ShowLabelTaken(context_.ui, label, MessageIcon::kInformation);
  SetQuietly(kColValue, kRowLabel, old_label_);
  spread1_.SetActiveCell(kColValue, kRowLabel);
  return true;
}

void DividerForm::StoreBranches() {
  Surface& surface = context_.surface;
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(element_);
  if (surface.CurrentObject() != element_) return;
  surface.SetObjTag("libell", spread1_.Text(kColValue, kRowLabel));
  surface.SetObjTag("IdAval", spread1_.Text(kColValue, kRowAval));
  surface.SetObjTag("NbDer", DerivationCount());
  surface.SetObjTag("IdDer_a", spread1_.Text(kColValue, kRowDer1));
  surface.SetObjTag("IdDer_b", spread1_.Text(kColValue, kRowDer2));
  surface.SetObjTag("IdDer_c", spread1_.Text(kColValue, kRowDer3));
}

void DividerForm::SetQuietly(int col, int row, const std::string& text) {
  const bool was = quiet_;
  quiet_ = true;
  spread1_.SetText(col, row, text);
  quiet_ = was;
}

void DividerForm::Unload() {
  if (Closed()) return;
  Close();
  ClearHighlight(context_.surface);
}

}  // namespace pluvane
