#include "editors/frm_dqz.h"

#include <utility>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "editors/frm_crbx.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "network/catalogue.h"

namespace pluvane {

namespace {

constexpr const char* kButton = "ouvrir...";

// The type of a branch as its list text has it; the text "3" of a new
// divider shows as its list entry.
void ShowType(Grid& grid, int row, const std::string& tag) {
  const int type = ValInt(tag);
  if (type >= kDqzWeir && type <= kDqzCurve) {
    grid.SetListIndex(FrmDqz::kColType, row, type - 1);
  } else {
    grid.SetText(FrmDqz::kColType, row, tag);
  }
}

}  // namespace

FrmDqz::FrmDqz(EditorContext& context) : DividerForm(context, kCaption, kColButton) {
  Surface& surface = context_.surface;
  for (int row : kBranchRows) {
    const DqzBranch& branch = *DqzBranchOfRow(row);
    spread1_.SetType(kColType, row, CellType::List(kDqzTypeList));
    ShowType(spread1_, row, TagOfObject(surface, element(), branch.type_tag));
    spread1_.SetType(kColButton, row, CellType::Button());
    spread1_.SetText(kColButton, row, kButton);
  }
  spread1_.SetLocked(kColType, kRowLabel, true);
  spread1_.SetLocked(kColType, kRowCount, true);
  spread1_.SetLocked(kColButton, kRowLabel, true);
  spread1_.SetLocked(kColButton, kRowCount, true);
}

std::vector<FormCommand> FrmDqz::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }}, {"cmdAnnul", "&Annuler", [this] { cmdAnnul(); }}};
}

void FrmDqz::ButtonCell(Grid& grid, int col, int row) {
  if (&grid == &spread1_ && col == kColButton && IsBranchRow(row)) OpenBranch(row);
}

void FrmDqz::OpenBranch(int row) {
  const DqzBranch* branch = DqzBranchOfRow(row);
  if (!branch) return;
  for (int col : {kColValue, kColType}) {
    if (!spread1_.IsBlank(col, row)) continue;
    spread1_.SetActiveCell(col, row);
    context_.ui.ShowMessage("L'identif et le type de liaison doivent être connus !", kTitle,
                            MessageIcon::kInformation);
    return;
  }
  switch (const int type = ValInt(spread1_.Text(kColType, row))) {
    case kDqzWeir:
    case kDqzOrifice:
      OpenParameters(*branch, type);
      break;
    case kDqzStrickler:
      ReadStrickler(*branch, row);
      break;
    case kDqzCurve:
      EditCurve(*branch);
      break;
    default:
      break;
  }
}

void FrmDqz::OpenParameters(const DqzBranch& branch, int type) {
  FrmDqzParam parameters(context_, element(), branch, type,
                         type == kDqzWeir ? "Seuil déversant" : "Orifice");
  if (context_.show_form) context_.show_form(parameters);
}

void FrmDqz::ReadStrickler(const DqzBranch& branch, int row) {
  Surface& surface = context_.surface;
  const int link = surface.FindById(spread1_.Text(kColValue, row));
  const int i_name = link > 0 ? ValInt(TagOfObject(surface, link, kTagIName)) : 0;
  if (i_name != kINameCAC && i_name != kINameCAF && i_name != kINameCAO && i_name != kINameTR) {
    context_.ui.ShowMessage("Le type Strickler n'est possible que pour les collecteurs", kTitle,
                            MessageIcon::kInformation);
    return;
  }
  const std::string coefficient = TagOfObject(surface, link, i_name == kINameCAO ? "Kmin" : "K");
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(element());
  if (surface.CurrentObject() == element()) {
    surface.SetObjTag(std::string(branch.x_prefix) + "1", coefficient);
  }
}

void FrmDqz::EditCurve(const DqzBranch& branch) {
  Surface& surface = context_.surface;
  const std::string file = JoinPath(context_.state.WorkDir, "tmp.crb");
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(element());
  if (surface.CurrentObject() != element() || !BranchCurveToFile(surface, branch, file)) return;
  CrbxParams params;
  params.file = file;
  params.curve_name = kDqzCurveName;
  params.point_limit = kMaxCurvePoints;
  params.labels = {"Cote (ngf)", "Debit (m3/s)", "", ""};
  params.caption = "Q=f(Z)";
  params.plot_title = "Loi paramétrique Q=f(Z)";
  FrmCrbx editor(context_, std::move(params));
  if (context_.show_form) context_.show_form(editor);
  surface.SetCurrentObject(element());
  FileToBranchCurve(surface, context_.ui, branch, file);
}

void FrmDqz::cmdOk() {
  if (!CheckBranchesFilled(kColType) || LabelRefused()) return;
  StoreBranches();
  Surface& surface = context_.surface;
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(element());
  if (surface.CurrentObject() == element()) {
    for (int row : kBranchRows) {
      surface.SetObjTag(DqzBranchOfRow(row)->type_tag, spread1_.Text(kColType, row));
    }
    // Every Strickler row sets the level Xav1, whichever branch it is; the
    // count row repeats the type of the row before it, and its number is
    // searched as an Id like the others.
    int type = 0;
    for (int row = kRowAval; row <= kRowDer3; ++row) {
      if (row != kRowCount) type = ValInt(spread1_.Text(kColType, row));
      if (type != kDqzStrickler) continue;
      const int link = surface.FindById(spread1_.Text(kColValue, row));
      const double level = link > 0 ? Val(TagOfObject(surface, link, "ZRam")) : 0;
      surface.SetObjTag("Xav1", level);
    }
  }
  Unload();
}

}  // namespace pluvane
