// Fuzzes the GIS import with GeoJSON: the bytes are a GeoJSON file, imported
// as nodes then as circular collectors into a calibrated network in
// Lambert-93. A refused import must leave the network as it was; every
// collector made must carry the Ids of its end nodes.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "drawing/surface.h"
#include "drawing/surface_helpers.h"
#include "foundation/console.h"
#include "foundation/scripted_ui.h"
#include "fuzz_support.h"
#include "gis/gis_import.h"
#include "network/georeferencing.h"
#include "network/network_state.h"

namespace {

using pluvane_fuzz::Check;

class SilentConsole : public pluvane::Console {
 public:
  void Debut(const std::string&) override {}
  void AfficheMessage(const std::string& text) override { Check(!text.empty()); }
  void AfficheJauge(int, const std::string&) override {}
  void EffaceJauge() override {}
  void Fin(bool) override {}
  std::string GetStatus() const override { return {}; }
  void SetStatus(const std::string&) override {}
  void Clear() override {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string file = [] {
    const auto path = pluvane_fuzz::Folder("gis");
    return (path / "couche.geojson").string();
  }();
  pluvane_fuzz::WriteBytes(file, data, size);
  pluvane::ScriptedUi ui;
  pluvane::NetworkState state;
  state.LogicWidth = 100000;
  state.LogicHeight = 100000;
  state.SymbolSize = 20;
  state.SymbolDir = pluvane_fuzz::SymbolFolder();
  state.CoordinateSystem = "EPSG:2154";
  pluvane::Calibration& c = state.calibration;
  c.logic_x = {0, 0, 0, 100000};
  c.logic_y = {0, 0, 100000, 100000};
  c.user_x = {0, 650000, 650000, 660000};
  c.user_y = {0, 6870000, 6860000, 6860000};
  Check(pluvane::SolveCalibration(c));
  pluvane::Surface surface;
  SilentConsole console;
  pluvane::GisImportRequest request;
  request.file = file;
  request.tolerance = 1;
  for (pluvane::GisImportKind kind :
       {pluvane::GisImportKind::kNodes, pluvane::GisImportKind::kCI}) {
    request.kind = kind;
    const int before = surface.ObjectCount(pluvane::kAllObjects);
    const int made = pluvane::ImportGisLayer({surface, state, ui}, console, request);
    Check(made >= -1);
    if (made < 0) Check(surface.ObjectCount(pluvane::kAllObjects) == before);
  }
  pluvane_fuzz::CheckLinkEnds(surface, "5");
  return 0;
}
