#include "editors/element_label.h"

#include "drawing/object_tags.h"
#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

bool LabelTakenByOther(Surface& surface, int element, std::string_view label) {
  const int i_name = ValInt(TagOfObject(surface, element, kTagIName));
  int count = LabelCount(surface, i_name, label);
  if (EqualsNoCase(TagOfObject(surface, element, "libell"), label)) --count;
  return count >= 1;
}

void ShowLabelTaken(UserInterface& ui, const std::string& label, MessageIcon icon) {
  ui.ShowMessage(DuplicateLabelMessage(label), kInputErrorTitle, icon);
}

LabelCounts::LabelCounts(Surface& surface, int i_name) {
  for (int n = surface.NextObjectNumber(0); n > 0; n = surface.NextObjectNumber(n)) {
    if (ValInt(TagOfObject(surface, n, kTagIName)) != i_name) continue;
    ++counts_[UCase(TagOfObject(surface, n, "libell"))];
  }
}

int LabelCounts::Count(std::string_view label) const {
  auto found = counts_.find(UCase(label));
  return found == counts_.end() ? 0 : found->second;
}

void LabelCounts::Rename(std::string_view from, std::string_view to) {
  auto found = counts_.find(UCase(from));
  if (found != counts_.end() && found->second > 0) --found->second;
  ++counts_[UCase(to)];
}

}  // namespace pluvane
