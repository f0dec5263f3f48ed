// The injection of a given hydrograph (frmHy): dry-weather flow, the
// equivalent free surface of the network upstream, and the hydrograph itself,
// up to 100 points of time against discharge.
#pragma once

#include "editors/point_form.h"

namespace pluvane {

class FrmHy : public PointForm {
 public:
  static constexpr int kPointLimit = 100;

  explicit FrmHy(EditorContext& context);

  void cmdOk() override;
};

}  // namespace pluvane
