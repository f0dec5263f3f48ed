// Times the network file commands on large networks: opening and saving a
// network of 100 000 objects (nodes, the collectors between them and the
// elements standing on them), and merging two networks of 20 000 elements.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

#include "bench_clock.h"
#include "bench_sheet.h"
#include "drawing/surface.h"
#include "foundation/numbers.h"
#include "foundation/scripted_ui.h"
#include "network/calibration_points.h"
#include "network/georeferencing.h"
#include "network/hidden_record.h"
#include "network/merge_network.h"
#include "network/persistence.h"
#include "shell/app_state.h"

namespace {

using namespace pluvane;

struct Bench {
  explicit Bench(const std::filesystem::path& folder) {
    PrepareSheet(surface, state, folder, 1000000);
    state.LinkThick = 50;
    recent.SetIniFile((folder / "pluvane.ini").string());
  }
  NetworkSession Session() { return {surface, state, ui, recent}; }

  void Tags(std::initializer_list<std::pair<const char*, std::string>> tags) {
    for (const auto& [name, value] : tags) surface.SetObjTag(name, value);
  }

  // `nodes` nodes in rows, a collector from each to the next of its row, and
  // an element on one node in `every`. Returns how many objects were made.
  int Build(int nodes, int every) {
    surface.BeginStep("Construction");
    std::vector<int> numbers(nodes);
    int made = 0;
    for (int i = 0; i < nodes; ++i) {
      const int x = 1000 + (i % 400) * 2000, y = 1000 + (i / 400) * 2000;
      numbers[i] = surface.AddObject(kKindPicture, x - 100, y - 100, x + 100, y + 100);
      surface.SetObjectPicture("NOD.wmf");
      const std::string id = "Nod_" + std::to_string(i + 1);
      const double x_us = LogicToUserX(state.calibration, x, y);
      const double y_us = LogicToUserY(state.calibration, x, y);
      Tags({{"Id", id}, {"libell", id}, {"iName", "99"}, {"iGroup", "99"},
            {"Xlog", std::to_string(x)}, {"Ylog", std::to_string(y)},
            {"Xus", NumToText(x_us)}, {"Yus", NumToText(y_us)}, {"iLink", "2"}});
      ++made;
      if (i % every == 0) {
        const int e = i / every + 1;
        surface.AddObject(kKindPicture, x - 100, y - 100, x + 100, y + 100);
        surface.SetObjectPicture("FIN.wmf");
        Tags({{"Id", "Cla_" + std::to_string(e)}, {"libell", "Cla_" + std::to_string(e)},
              {"iName", "14"}, {"iGroup", "1"}, {"sNodAm", id}, {"Export", "0"}});
        ++made;
      }
    }
    for (int i = 0; i + 1 < nodes; ++i) {
      if ((i + 1) % 400 == 0) continue;
      surface.SetCurrentObject(kDefaults);
      surface.SetLineColor(16711680);
      surface.SetLineWidth(-50);
      surface.AddLink(numbers[i], numbers[i + 1]);
      const std::string id = "Cac_" + std::to_string(i + 1);
      Tags({{"Id", id}, {"libell", id}, {"iName", "5"}, {"iGroup", "2"},
            {"sNodAm", "Nod_" + std::to_string(i + 1)}, {"sNodAv", "Nod_" + std::to_string(i + 2)},
            {"iBief", "0"}, {"ZRam", "12.5"}, {"ZRav", "12.1"}, {"Dn", "0.8"}, {"L", "2000"},
            {"K", "60"}, {"HD", "1.5"}, {"SR", "0"}});
      ++made;
    }
    surface.EndStep();
    return made;
  }

  void Calibrate() {
    for (int i = 1; i <= 3; ++i) {
      AddHiddenRecord(surface, state);
      Tags({{"iName", "150"}, {"Id", CalibrationPointId(i)},
            {"Xlog", std::to_string(state.calibration.logic_x[i])},
            {"Ylog", std::to_string(state.calibration.logic_y[i])},
            {"Xcal", NumToText(state.calibration.user_x[i])},
            {"Ycal", NumToText(state.calibration.user_y[i])}});
    }
  }

  Surface surface;
  AppState state;
  ScriptedUi ui;
  RecentFiles recent;
};

}  // namespace

int main() {
  const auto folder = std::filesystem::temp_directory_path() / "pluvane_bench_persistence";
  std::filesystem::create_directories(folder);
  bool ok = true;
  {
    Bench b(folder);
    b.Build(40040, 2);
    const std::string path = (folder / "grand.mtf").string();
    NetworkSession s = b.Session();
    auto start = std::chrono::steady_clock::now();
    ok &= SaveNetwork(s, path);
    std::printf("SaveNetwork, %d objects (%.1f MB): %.0f ms\n", b.surface.ObjectCount(kPage),
                static_cast<double>(std::filesystem::file_size(path)) / 1e6, Milliseconds(start));
    {
      Surface scratch;
      start = std::chrono::steady_clock::now();
      ok &= scratch.LoadFile(path, 0);
      std::printf("  of which reading the file (LoadFile): %.0f ms\n", Milliseconds(start));
    }
    b.surface.ClearDrawing();
    start = std::chrono::steady_clock::now();
    ok &= OpenNetwork(s, true, path);
    std::printf("OpenNetwork, %d objects: %.0f ms\n", b.surface.ObjectCount(kPage),
                Milliseconds(start));
  }
  {
    Bench host(folder), guest(folder);
    const int host_made = host.Build(8000, 2);
    host.Calibrate();
    const int guest_made = guest.Build(8000, 2);
    const std::string host_path = (folder / "hote.mtf").string();
    const std::string guest_path = (folder / "invite.mtf").string();
    ok &= guest.surface.SaveFile(guest_path, kNativeFormat);
    ok &= host.surface.SaveFile(host_path, kNativeFormat);
    host.surface.ClearDrawing();
    NetworkSession s = host.Session();
    ok &= OpenNetwork(s, true, host_path);
    host.ui.Queue(guest_path);
    const auto start = std::chrono::steady_clock::now();
    const int merged = MergeNetwork(s);
    std::printf("MergeNetwork, %d elements into %d: %.0f ms (%d objects came in)\n", guest_made,
                host_made, Milliseconds(start), merged);
    ok &= merged == guest_made;
  }
  std::filesystem::remove_all(folder);
  return ok ? 0 : 1;
}
