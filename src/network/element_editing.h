// The element editor opened on the one selected element (the tool "Editeur
// élémentaire"): the form of each kind of element, and the warning when the
// element's Id is not alone on the drawing.
#pragma once

#include <string>

#include "foundation/user_interface.h"
#include "drawing/surface.h"

namespace pluvane {

inline constexpr const char* kEditElementTitle = "Edition d'élément";

// The editor form of a kind of element ("frmCac" for 5); empty for a node or
// a kind without editor.
std::string EditorOfIName(int i_name);

// With exactly one selected object that is not a node: warns of the objects
// that share its Id (of duplicated links only the first stays selected), shows
// its label in the status line and returns the form to open, with the object
// left current.
// Empty when there is nothing to edit.
std::string EditSelectedElement(Surface& surface, UserInterface& ui);

}  // namespace pluvane
