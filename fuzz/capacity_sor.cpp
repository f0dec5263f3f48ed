// Fuzzes the capacity map's reading of a .sor report: the input is the report,
// read onto a small network in both calculation modes. Nothing may crash, the
// network on screen must stay as it was, and the temporary table file must be
// gone afterwards.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "drawing/surface.h"
#include "drawing/surface_object.h"
#include "foundation/scripted_ui.h"
#include "fuzz_support.h"
#include "results/capacity_map.h"

namespace {

std::string Folder() {
  static const std::string folder = [] {
    const auto path = pluvane_fuzz::Folder("sor");
    pluvane::WriteCapacityScale({{65280, 0}, {65535, 50}, {255, 100}}, (path / "p.ini").string());
    return path.string();
  }();
  return folder;
}

void Network(pluvane::Surface& surface, int mode) {
  const int a = surface.AddObject(pluvane::kKindEllipse, 0, 0, 10, 10);
  const int b = surface.AddObject(pluvane::kKindEllipse, 100, 0, 110, 10);
  const char* labels[] = {"C1", "C2", "CAN7"};
  for (int i = 0; i < 3; ++i) {
    surface.SetCurrentObject(surface.AddLink(a, b));
    surface.SetObjTag("iGroup", "2");
    surface.SetObjTag("iName", i == 2 ? "7" : "5");
    surface.SetObjTag("libell", labels[i]);
  }
  surface.SetCurrentObject(surface.AddObject(pluvane::kKindRectangle, 0, 0, 1, 1));
  surface.SetObjTag("Id", "ParamReseau");
  surface.SetObjTag("CalcMode", mode);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string folder = Folder();
  const std::string sor = folder + "/S_N.Sor";
  {
    std::ofstream out(sor, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  for (int mode = 0; mode <= 1; ++mode) {
    pluvane::Surface network;
    Network(network, mode);
    const std::string before = network.CopySelection(1);
    pluvane::ScriptedUi ui;
    pluvane::CapacityMap map(ui);
    map.Load({&network, sor, folder, folder + "/p.ini"});
    for (int n = map.map().FirstObject(); n != 0; n = map.map().NextObject()) map.ToolTip(n);
    if (network.CopySelection(1) != before) __builtin_trap();
    if (std::filesystem::exists(folder + "/ficSor.tmp")) __builtin_trap();
  }
  return 0;
}
