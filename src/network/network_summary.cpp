#include "network/network_summary.h"

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "network/calibration_points.h"
#include "network/catalogue.h"

namespace pluvane {

std::map<int, int> CountsByIName(const Surface& surface) {
  std::map<int, int> counts;
  for (int n : surface.Objects()) {
    const int i_name = ValLong(surface.TagOf(n, kTagIName));
    if (i_name > 0) ++counts[i_name];
  }
  return counts;
}

bool IsCalibrated(Surface& surface) {
  Calibration scratch;
  return ReadCalibrationPoints(surface, kINameHiddenCalage, scratch);
}

std::string NetworkInfoText(Surface& surface, const NetworkState& state) {
  std::string text;
  for (const auto& [i_name, count] : CountsByIName(surface)) {
    text +=
        std::to_string(i_name) + "\t" + std::to_string(count) + "\t" + LabelOfIName(i_name) + "\n";
  }
  text += "Scénario courant : " + state.ScenarioName + "\n";
  text += std::string("Calé : ") + (IsCalibrated(surface) ? "oui" : "non") + "\n";
  return text;
}

}  // namespace pluvane
