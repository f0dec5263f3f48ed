// The rule that a label (tag libell) names one element only among those of
// its kind, as every element editor checks it before it stores a new label.
#pragma once

#include <string>
#include <string_view>

#include "drawing/surface.h"
#include "foundation/user_interface.h"

namespace pluvane {

// The title of the message of a label already taken.
inline constexpr const char* kLabelCheckTitle = "Erreur de saisie";

// How many elements of the kind `i_name` (from the fifth object of the
// surface on) would hold `label`, compared without regard to case, once the
// object `element` holds it: the element counts once whatever its label now.
// The cursor is kept.
int LabelCount(Surface& surface, int i_name, int element, std::string_view label);

// True when the object `element` may take `label` within its kind (its tag
// iName); otherwise the message "<label> existe déjà." titled "Erreur de
// saisie" is shown and the result is false. Nothing is written.
bool CheckLabel(Surface& surface, UserInterface& ui, int element, std::string_view label);

// The message of a label already taken.
std::string LabelTakenMessage(std::string_view label);

}  // namespace pluvane
