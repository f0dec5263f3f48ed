// Times the general editor frmEdit on a generated network of 20 000 nodes,
// 25 000 collectors and 5 000 dividers (50 000 elements): its opening with
// every sheet filled, then its save loop, once with nothing changed and once
// with a field of every row changed. Each must stay under a second. The
// number of nodes is the first argument (default 20000).
#include <chrono>
#include <cstdio>
#include <string>

#include "bench/bench_clock.h"
#include "bench/large_bench.h"
#include "editors/frm_edit.h"

int main(int argc, char** argv) {
  LargeBench bench;
  if (!BuildLargeBench(bench, argc, argv)) return 1;
  pluvane::ScriptedUi& ui = bench.ui;
  pluvane::Surface& surface = bench.surface;
  pluvane::AppState& state = bench.state;
  state.WorkDir = PLUVANE_BENCH_OUT;
  pluvane::ViewerState viewer;
  pluvane::EditorContext context{surface, state, ui, {}, viewer, {}};

  // The main window makes the opened form one undo step.
  surface.BeginStep("Editeur général");
  auto start = std::chrono::steady_clock::now();
  pluvane::FrmEdit form(context);
  int rows = 0;
  for (int tab = 0; tab < form.TabCount(); ++tab) {
    if (form.TabCaption(tab).empty()) continue;
    form.ClickTab(tab);
    rows += form.Sheet(tab).MaxRows();
  }
  const double opening = Milliseconds(start);
  std::printf("opening, every sheet filled (%d rows): %.0f ms\n", rows, opening);

  double unchanged = 0, changed = 0;
  for (int tab = 0; tab < form.TabCount(); ++tab) {
    if (form.TabCaption(tab).empty()) continue;
    form.ClickTab(tab);
    start = std::chrono::steady_clock::now();
    form.mnSave();
    unchanged += Milliseconds(start);
    pluvane::Grid& sheet = form.Sheet(tab);
    for (int row = 1; row <= sheet.MaxRows(); ++row)
      sheet.SetText(1, row, "E" + std::to_string(row));
    start = std::chrono::steady_clock::now();
    form.mnSave();
    changed += Milliseconds(start);
  }
  std::printf("save loop of every sheet, nothing changed: %.0f ms\n", unchanged);
  std::printf("save loop of every sheet, every label changed: %.0f ms\n", changed);
  surface.EndStep();
  std::printf("messages: %zu\n", ui.Messages().size());
  return opening < 1000 && unchanged < 1000 && changed < 1000 ? 0 : 1;
}
