#include "drawing/surface_object.h"

namespace pluvane {

bool IsKnownKind(int kind) {
  switch (kind) {
    case kKindLine:
    case kKindRectangle:
    case kKindEllipse:
    case kKindArc:
    case kKindPie:
    case kKindChord:
    case kKindPolyline:
    case kKindPolygon:
    case kKindText:
    case kKindPicture:
    case kKindBezier:
    case kKindLink:
    case kKindDimension:
    case kKindGroup:
      return true;
    default:
      return false;
  }
}

bool IsLineKind(int kind) {
  return kind == kKindLine || kind == kKindPolyline || kind == kKindBezier || kind == kKindLink ||
         kind == kKindDimension || kind == kKindArc;
}

}  // namespace pluvane
