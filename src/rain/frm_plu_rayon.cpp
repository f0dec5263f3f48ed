#include "rain/frm_plu_rayon.h"

#include <cmath>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "drawing/surface_object.h"
#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "network/default_tags.h"
#include "network/georeferencing.h"
#include "network/network_tags.h"
#include "rain/rain_records.h"

namespace pluvane {

int FindRadius(Surface& surface) {
  CursorKeeper keeper(surface);
  return FindObject2(surface, kTagIName, kINameRayon, kTagId, "Rayon");
}

FrmPluRayon::FrmPluRayon(EditorContext& context) : context_(context), grid_(1, 3) {
  grid_.SetCaption(Caption());
  grid_.SetText(0, kRowRadius, "Rayon d'action (m)=");
  grid_.SetText(0, kRowX, "Coord Xc (m)=");
  grid_.SetText(0, kRowY, "Coord Yc (m)=");
  grid_.SetColWidth(1, 14);
  Surface& surface = context_.surface;
  const int current = surface.CurrentObject();
  radius_ = current > 10 && TagOfObject(surface, current, kTagIName) == std::to_string(kINameRayon)
                ? current
                : FindRadius(surface);
  if (radius_ == 0) return;
  // A circle just drawn carries the tags of its centre and radius already.
  grid_.SetText(1, kRowRadius, TagOfObject(surface, radius_, "Rayon"));
  grid_.SetText(1, kRowX, TagOfObject(surface, radius_, kTagXus));
  grid_.SetText(1, kRowY, TagOfObject(surface, radius_, kTagYus));
}

std::vector<FormCommand> FrmPluRayon::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }},
          {"cmdDel", "&Supprimer", [this] { cmdDel(); }},
          {"cmdAnnul", "&Annuler", [this] { cmdAnnul(); }}};
}

void FrmPluRayon::cmdOk() {
  Surface& surface = context_.surface;
  const Calibration& c = context_.state.calibration;
  const double r = grid_.Value(1, kRowRadius);
  const double xc = grid_.Value(1, kRowX);
  const double yc = grid_.Value(1, kRowY);
  const std::int32_t x_log = UserToLogicX(c, xc, yc);
  const std::int32_t y_log = UserToLogicY(c, xc, yc);
  // The radius on the plan: the distance to the point r metres east.
  const double dx = UserToLogicX(c, xc + r, yc) - static_cast<double>(x_log);
  const double dy = UserToLogicY(c, xc + r, yc) - static_cast<double>(y_log);
  const std::int32_t r_log = RoundLong(std::sqrt(dx * dx + dy * dy));

  CursorKeeper keeper(surface);
  int radius =
      radius_ > 10 && TagOfObject(surface, radius_, kTagIName) == std::to_string(kINameRayon)
          ? radius_
          : 0;
  // At most one radius: the others go.
  for (int other : FindObjectList(surface, kTagIName, kINameRayon)) {
    if (other != radius) surface.DeleteObject(other);
  }
  if (radius == 0) {
    radius =
        surface.AddObject(kKindEllipse, x_log - r_log, y_log - r_log, x_log + r_log, y_log + r_log);
    CreateDefaultTags(surface, context_.state, "X_RAYON", false);
  }
  surface.SetCurrentObject(radius);
  surface.SetObjectBounds(x_log - r_log, y_log - r_log, x_log + r_log, y_log + r_log);
  surface.SetObjTag(kTagId, "Rayon");
  surface.SetObjTag(kTagXlog, x_log);
  surface.SetObjTag(kTagYlog, y_log);
  surface.SetObjTag(kTagXus, xc);
  surface.SetObjTag(kTagYus, yc);
  surface.SetObjTag("Rayon", r);
  Close();
}

void FrmPluRayon::cmdDel() {
  Surface& surface = context_.surface;
  for (int radius : FindObjectList(surface, kTagIName, kINameRayon)) surface.DeleteObject(radius);
  Close();
}

}  // namespace pluvane
