// The surface's edit mode: what a press on the drawing does. The drawing tools
// share their numbers with the kinds of object they make.
#pragma once

#include "drawing/surface_object.h"

namespace pluvane {

enum SurfaceEditMode : int {
  kEditView = 0,  // the view only: nothing is selected
  kEditLine = kKindLine,
  kEditRectangle = kKindRectangle,
  kEditEllipse = kKindEllipse,
  kEditArc = kKindArc,
  kEditPie = kKindPie,
  kEditChord = kKindChord,
  kEditPolyline = kKindPolyline,
  kEditPolygon = kKindPolygon,
  kEditText = kKindText,
  kEditSelection = 11,  // clicks select, drags move or band-select
  kEditPicture = kKindPicture,
  kEditRotation = 13,
  kEditBezier = kKindBezier,
  kEditFreeLink = kKindLink,
  kEditDimension = kKindDimension,
  kEditZoomWindow = 24,  // the zoom rectangle
};

}  // namespace pluvane
