#include "editors/label_check.h"

#include "drawing/object_tags.h"
#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"

namespace pluvane {

int LabelCount(Surface& surface, int i_name, std::string_view label) {
  return CountLabel(surface, i_name, label);
}

std::string DuplicateLabelMessage(std::string_view label) {
  return std::string(label) + " existe déjà.";
}

bool WriteUniqueLabel(Surface& surface, UserInterface& ui, const std::string& label,
                      const std::string& old_label) {
  surface.SetObjTag("libell", label);
  const int i_name = ValInt(surface.ObjTag(kTagIName));
  if (!IsDuplicateLabel(LabelCount(surface, i_name, label))) return true;
  surface.SetObjTag("libell", old_label);
  ui.ShowMessage(DuplicateLabelMessage(label), kInputErrorTitle, MessageIcon::kNone);
  return false;
}

}  // namespace pluvane
