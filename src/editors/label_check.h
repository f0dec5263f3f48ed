// The rule that keeps the user's labels apart: no two elements of one kind
// (iName) may share a libell, compared without regard to case. An editor
// writes the new label first and counts: the element itself counts once, so
// two or more is a duplicate, which is refused with the old label put back.
#pragma once

#include <string>
#include <string_view>

#include "drawing/surface.h"
#include "foundation/user_interface.h"

namespace pluvane {

inline constexpr const char* kInputErrorTitle = "Erreur de saisie";

// How many elements of kind `i_name` have `label` as libell, case-blind, over
// the whole drawing.
int LabelCount(Surface& surface, int i_name, std::string_view label);

// True when `count` elements with one label make a duplicate.
inline bool IsDuplicateLabel(int count) { return count >= 2; }

// The message of a duplicate: the label and " existe déjà.", titled
// "Erreur de saisie".
std::string DuplicateLabelMessage(std::string_view label);

// Writes `label` to the current object's libell and checks it against the
// other elements of the object's kind. On a duplicate the message is shown,
// `old_label` goes back into libell, and the result is false.
bool WriteUniqueLabel(Surface& surface, UserInterface& ui, const std::string& label,
                      const std::string& old_label);

}  // namespace pluvane
