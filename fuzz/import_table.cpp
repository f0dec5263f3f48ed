// Fuzzes the table import: the first eleven bytes choose the columns of the
// .Fld, the rest is the table. It is imported as nodes (blanks, then commas
// as a .Mid), catchments and the three kinds of collector between the nodes
// made, and its text twin is written as the MapInfo node import does. Every
// node made must carry its Id and label, and every collector the Ids of its
// end nodes.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "drawing/surface.h"
#include "drawing/surface_helpers.h"
#include "exchange/fld_file.h"
#include "exchange/kalder_import.h"
#include "foundation/scripted_ui.h"
#include "fuzz_support.h"
#include "network/georeferencing.h"
#include "network/network_state.h"

namespace {

using pluvane_fuzz::Check;

void CheckNetwork(pluvane::Surface& surface, int nodes) {
  const std::vector<int> made = pluvane::FindObjectList(surface, "iName", "99");
  Check(static_cast<int>(made.size()) == nodes);
  for (int n : made) {
    surface.SetCurrentObject(n);
    Check(surface.ObjTag("Id").rfind("Nod_", 0) == 0);
    Check(!surface.ObjTag("libell").empty());
  }
  for (const char* i_name : {"5", "6", "7"}) pluvane_fuzz::CheckLinkEnds(surface, i_name);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string folder = pluvane_fuzz::Folder("import").string();
  constexpr std::size_t kColumns = 11;
  std::vector<int> columns;
  for (std::size_t i = 0; i < kColumns; ++i) columns.push_back(i < size ? data[i] % 14 : 0);
  const std::size_t skip = size < kColumns ? size : kColumns;
  const std::string table(reinterpret_cast<const char*>(data) + skip, size - skip);
  const std::string fld = folder + "/t.Fld", file = folder + "/t.txt";
  pluvane::WriteFldFile(fld, columns);
  {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << table;
  }

  pluvane::ScriptedUi ui;
  pluvane::NetworkState state;
  state.LogicWidth = 100000;
  state.LogicHeight = 100000;
  state.SymbolSize = 20;
  state.SymbolDir = pluvane_fuzz::SymbolFolder();
  pluvane::DefaultCalibrationFromCorners(state.calibration, 100000, 100000);
  pluvane::Surface surface;
  pluvane::ImportTarget target{surface, state, ui};
  const int nodes = pluvane::ImportNodes(target, file, fld, " ");
  Check(nodes >= 0);
  const int more = pluvane::ImportNodes(target, file, fld, ",");
  Check(more >= 0);
  Check(pluvane::ImportBV(target, file, fld, " ") >= 0);
  for (const char* type : {"CI", "PF", "PO"}) {
    Check(pluvane::ImportLinks(target, type, file, fld, " ") >= 0);
    Check(pluvane::ImportLinks(target, type, file, fld, ",") >= 0);
  }
  CheckNetwork(surface, nodes + more);
  const int records = pluvane::imp_GenNod_MidFile2TxtFile(ui, file, folder + "/t.Txt");
  Check(records >= 0);
  return 0;
}
