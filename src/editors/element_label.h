// The label check of label_check.h made before anything is written, so that
// a refused name leaves every tag as it was, and its count kept for a whole
// sheet of elements of one kind.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "drawing/surface.h"
#include "editors/label_check.h"
#include "foundation/user_interface.h"

namespace pluvane {

// True when another element of the kind than `element` already has the label.
bool LabelTakenByOther(Surface& surface, int element, std::string_view label);

// The refusal of a taken label, with the icon the form gives its messages.
void ShowLabelTaken(UserInterface& ui, const std::string& label, MessageIcon icon);

// The labels of the elements of one kind, counted once for a whole sheet of
// them, and kept up to date as labels change: the same answers as a count on
// the drawing for each row, without a walk of the drawing for each.
class LabelCounts {
 public:
  LabelCounts(Surface& surface, int i_name);
  // How many elements of the kind bear the label.
  int Count(std::string_view label) const;
  // An element's label goes from `from` to `to`.
  void Rename(std::string_view from, std::string_view to);

 private:
  std::unordered_map<std::string, int> counts_;  // by label in capitals
};

}  // namespace pluvane
