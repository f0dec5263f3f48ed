// Ctrl+C and Ctrl+V on the drawing. The selection goes to the system
// clipboard in our own format (kClipboardType, named "xpr" in the messages),
// or, with nothing selected, a picture of the whole drawing. A paste adds the
// objects as they were copied, Ids included, so a paste into the same network
// makes doublets: the user is warned first when the drawing holds a node.
#pragma once

#include "network/create_mode.h"

namespace pluvane {

// Copies the selection, or a picture of the drawing when nothing is selected,
// and tells in the status line how many objects were copied. False, after
// "Aucun Obj n'est copié !", when nothing could be put on the clipboard.
bool CopySelectionToClipboard(PlacementContext& context);

// What PasteFromClipboard did.
inline constexpr int kPasteDeclined = -1;  // the user answered No
inline constexpr int kPasteEmpty = 0;      // "Le presse-papier est vide !"
inline constexpr int kPasteDone = 1;       // the objects are in, selected
inline constexpr int kPasteForeign = 2;    // not our format

// Adds the clipboard's objects to the drawing as the selection, in edit
// mode 11, after asking ("Importation de données") when the drawing holds a
// node. One undo step.
int PasteFromClipboard(PlacementContext& context);

}  // namespace pluvane
