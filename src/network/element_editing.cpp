#include "network/element_editing.h"

#include <array>
#include <string_view>
#include <vector>

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "drawing/surface_helpers.h"

namespace pluvane {

namespace {

constexpr std::array<std::string_view, 17> kEditors = {
    "",       "frmBV", "frmRout", "frmHyBv",  "frmHy",    "frmCac",  "frmCaf", "frmCao", "frmDqq",
    "frmDqz", "frmRs", "frmRsp",  "frmPluXy", "frmTrans", "frmClav", "",       "frmMark"};

}  // namespace

std::string EditorOfIName(int i_name) {
  if (i_name < 1 || i_name >= static_cast<int>(kEditors.size())) return "";
  return std::string(kEditors[static_cast<std::size_t>(i_name)]);
}

std::string EditSelectedElement(Surface& surface, UserInterface& ui) {
  const std::vector<int> selected = SelectedObjects(surface);
  if (selected.size() != 1) return "";
  const int object = selected.front();
  surface.SetCurrentObject(object);
  const int i_name = ValInt(surface.ObjTag(kTagIName));
  if (i_name == kINameNode) return "";
  const std::string id = surface.ObjTag(kTagId);
  const std::string label = surface.ObjTag("libell");
  const bool link = surface.ObjectKind() == kKindLink;
  const int count = SelectByTag(surface, kTagId, id);
  if (count > 1) {
    if (link) {
      const int first = SelectedObjects(surface).front();
      surface.DeselectAll();
      surface.SetCurrentObject(first);
      surface.SetSelected(true);
    }
    ui.ShowMessage("Il y a " + std::to_string(count) + " doublon(s) pour " + id, kEditElementTitle,
                   MessageIcon::kExclamation);
  }
  surface.SetCurrentObject(object);
  const std::string form = EditorOfIName(i_name);
  if (!form.empty()) ui.ShowStatus(label);
  return form;
}

}  // namespace pluvane
