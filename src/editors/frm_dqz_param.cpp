#include "editors/frm_dqz_param.h"

#include <utility>

#include "drawing/surface_guards.h"
#include "foundation/numbers.h"

namespace pluvane {

namespace {

constexpr int kRows = 3;
constexpr double kLimit = 99999999.999;

const char* const kWeirLabels[kRows] = {
    "Cote seuil (ngf)=", "Largeur (m)=", "Coefficient de seuil (.)="};
const char* const kOrificeLabels[kRows] = {
    "Cote radier d'orifice (ngf)=", "Diamètre (m)=", "Coefficient d'orifice (.)="};

}  // namespace

FrmDqzParam::FrmDqzParam(EditorContext& context, int element, const DqzBranch& branch, int type,
                         std::string caption)
    : context_(context),
      element_(element),
      branch_(branch),
      caption_(std::move(caption)),
      grid_(kColValue, kRows) {
  grid_.SetCaption(caption_);
  grid_.SetColWidth(0, 0);
  grid_.SetColumnLocked(kColLabel, true);
  grid_.SetColumnType(kColValue, CellType::Float(-kLimit, kLimit, 3));
  const char* const* labels = type == kDqzOrifice ? kOrificeLabels : kWeirLabels;
  Surface& surface = context_.surface;
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(element_);
  for (int row = 1; row <= kRows; ++row) {
    grid_.SetText(kColLabel, row, labels[row - 1]);
    grid_.SetText(kColValue, row, surface.ObjTag(branch_.x_prefix + std::to_string(row)));
  }
  grid_.SetActiveCell(kColValue, 1);
}

std::vector<FormCommand> FrmDqzParam::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }}, {"cmdAnnul", "&Annuler", [this] { cmdAnnul(); }}};
}

void FrmDqzParam::cmdOk() {
  Surface& surface = context_.surface;
  {
    CursorKeeper keeper(surface);
    surface.SetCurrentObject(element_);
    if (surface.CurrentObject() == element_) {
      const int former = ValLong(surface.ObjTag(branch_.count_tag));
      for (int i = 1; i <= former; ++i) surface.SetObjTag(branch_.x_prefix + std::to_string(i), "");
      for (int row = 1; row <= kRows; ++row) {
        surface.SetObjTag(branch_.x_prefix + std::to_string(row), grid_.Text(kColValue, row));
      }
    }
  }
  Close();
}

}  // namespace pluvane
