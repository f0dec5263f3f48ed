#include "editors/label_check.h"

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

int LabelCount(Surface& surface, int i_name, int element, std::string_view label) {
  int count = CountLabel(surface, i_name, label);
  // The element is counted as holding the label, whatever it holds now.
  if (!EqualsNoCase(TagOfObject(surface, element, "libell"), label) ||
      ValInt(TagOfObject(surface, element, "iName")) != i_name) {
    ++count;
  }
  return count;
}

std::string LabelTakenMessage(std::string_view label) {
  return std::string(label) + " existe déjà.";
}

bool CheckLabel(Surface& surface, UserInterface& ui, int element, std::string_view label) {
  const int i_name = ValInt(TagOfObject(surface, element, "iName"));
  if (LabelCount(surface, i_name, element, label) < 2) return true;
  ui.ShowMessage(LabelTakenMessage(label), kLabelCheckTitle, MessageIcon::kInformation);
  return false;
}

}  // namespace pluvane
