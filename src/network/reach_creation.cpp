#include "network/reach_creation.h"

#include <vector>

#include "network/frm_bief_user_create.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/network_tags.h"
#include "network/reaches.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"

namespace pluvane {

namespace {

bool IsCollectorKind(int i_name) {
  return i_name == kINameCAC || i_name == kINameCAF || i_name == kINameCAO;
}

bool IsCollector(Surface& surface, int object) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(object);
  return object > 10 && surface.CurrentObject() == object &&
         IsCollectorKind(ValInt(surface.ObjTag(kTagIName)));
}

}  // namespace

void mnuOpt_Bief_New(NetworkState& state, PlacementState& placement, UserInterface& ui) {
  state.CurrentMode = kReachMode;
  ArmCreation(placement, kReachKey);
  ui.ShowStatus(
      "Sélectionnez les collecteurs constitutifs du bief à créer (touche Entée pour finir).");
}

std::string ReachClickInfo(Surface& surface, UserInterface& ui, int object) {
  if (!IsCollector(surface, object)) return "";
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(object);
  const std::string reach = Trim(surface.ObjTag(kTagIBief));
  const std::string text = surface.ObjTag("libell") + " : bief " +
                           (reach.empty() || Val(reach) == 0 ? std::string("?") : reach);
  ui.ShowStatus(text);
  return text;
}

int EndReachCreation(Surface& surface, NetworkState& state, UserInterface& ui,
                     const ShowModalForm& show_modal) {
  if (state.CurrentMode == kReachMode) state.CurrentMode.clear();
  std::vector<int> kept;
  for (int object : SelectedObjects(surface)) {
    if (IsCollector(surface, object)) kept.push_back(object);
  }
  surface.DeselectAll();
  if (kept.empty()) {
    ui.ShowMessage("Sélectionnez au moins un collecteur pour former un bief.", kReachCreationTitle,
                   MessageIcon::kExclamation);
    return 0;
  }

  FrmBiefUserCreate form(surface, state, ui);
  if (show_modal) show_modal(form);
  if (!form.Closed()) form.cmdAnnul();
  if (state.PendingReach < 1) return 0;

  std::vector<std::string> upstream, downstream;
  {
    CursorKeeper keeper(surface);
    for (int object : kept) {
      surface.SetCurrentObject(object);
      upstream.push_back(surface.ObjTag(kTagSNodAm));
      downstream.push_back(surface.ObjTag(kTagSNodAv));
    }
  }
  CollectorOrder order;
  if (OrdonnerCollecteurs(ui, kept, upstream, downstream, order) < 1) {
    state.PendingReach = 0;
    return 0;
  }
  UndoStep step(surface, "Création d'un bief");
  const std::string number = std::to_string(state.PendingReach);
  const int reach = AddReachRecord(surface, state, order.objects);
  state.PendingReach = 0;
  ui.ShowStatus("ok création du bief " + number + " composé de " +
                std::to_string(order.objects.size()) + " collecteurs.");
  return reach;
}

}  // namespace pluvane
