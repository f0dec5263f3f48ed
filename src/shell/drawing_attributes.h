// The attributes of the free drawing: line and fill colours, fill and line
// styles and widths of the selected shapes, and the font, colour, size,
// orientation and alignment of the selected texts, asked through the colour
// and font dialogs or an input box. Each change is one undo step; what is
// not of the right kind in the selection is left as it is. Also the
// arrangement of the selection (group, ungroup, front, back).
#pragma once

#include <string>

#include "drawing/drawing_settings.h"
#include "drawing/surface.h"
#include "foundation/user_interface.h"

namespace pluvane {

inline constexpr const char* kShapeAttributeTitle = "Attributs de dessin";
inline constexpr const char* kTextFormatTitle = "Format de texte";
inline constexpr const char* kNoShapeSelected =
    "Les lignes, polygones, rectangles ou ellipses à modifier doivent être sélectionnés !";
inline constexpr const char* kNoTextSelected = "Les textes à modifier doivent être sélectionnés !";
inline constexpr const char* kNoSelection = "Les objets doivent être sélectionnés !";
inline constexpr const char* kArrangeTitle = "Disposition";

// True for the menus this unit runs: MnAtFillCo, MnAtFill, MnAtLineCo,
// MnAtLst, MnAtlWei, TxtFormat_Font, TxtFOrmat_Ori, MnTxAli, the items of the
// texts' pop-up but Rotation and Del, and mnuMyUtil_Group, mnuMyUtil_unGroup,
// mnuMyUtil_Upper, mnuMyUtil_Down with their twins of the actions pop-up.
bool IsDrawingAttribute(const std::string& menu);

// Runs one of them on the selection; false when nothing changed.
bool RunDrawingAttribute(const std::string& menu, Surface& surface,
                         const DrawingSettings& settings, UserInterface& ui);

// The selected objects that take line and fill attributes (lines, polylines,
// polygons, rectangles, ellipses), and the selected texts.
std::vector<int> SelectedShapes(Surface& surface);
std::vector<int> SelectedTexts(Surface& surface);

}  // namespace pluvane
