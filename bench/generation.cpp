// Times a model generation as `pluvane-cli generate` runs it (start, open the
// network, checks, every model file) on networks of 20 000 nodes, 25 000
// collectors and 5 000 other elements, then twice and four times that size.
// Run it from the build's bin folder, or give the application folder (with
// pluvane.ini and Symboles) as its argument.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>

#include "drawing/surface.h"
#include "shell/cli.h"

namespace {

namespace fs = std::filesystem;
using pluvane::Surface;

double Milliseconds(std::chrono::steady_clock::time_point since) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - since)
      .count();
}

// An element symbol with the tags every element has.
int Element(Surface& s, int i_name, int i_group, const std::string& id, int x, int y) {
  const int n = s.AddObject(pluvane::kKindPicture, x - 50, y - 50, x + 50, y + 50);
  s.SetObjTag("iName", i_name);
  s.SetObjTag("iGroup", i_group);
  s.SetObjTag("Id", id);
  s.SetObjTag("libell", id);
  return n;
}

int LinkElement(Surface& s, int i_name, const std::string& id, int from, int to,
                const std::string& up, const std::string& down) {
  const int n = s.AddLink(from, to);
  s.SetObjTag("iName", i_name);
  s.SetObjTag("iGroup", 2);
  s.SetObjTag("Id", id);
  s.SetObjTag("libell", id);
  s.SetObjTag("sNodAm", up);
  s.SetObjTag("sNodAv", down);
  return n;
}

// `scale` times 20 000 nodes, 25 000 collectors (circular, closed and open in
// turn) and 5 000 others: catchments with their routing, outlets, dividers
// and downstream limits, a fifth each.
void BuildNetwork(Surface& s, int scale) {
  const int nodes = 20000 * scale, collectors = 25000 * scale, others = 1000 * scale;
  s.BeginStep("Construction");
  std::vector<int> node(nodes);
  auto node_id = [](int i) { return "Nod_" + std::to_string(i + 1); };
  for (int i = 0; i < nodes; ++i) {
    node[i] = Element(s, 99, 99, node_id(i), 100 + (i % 400) * 200, 100 + (i / 400) * 200);
    s.SetObjTag("Xlog", 100 + (i % 400) * 200);
    s.SetObjTag("Ylog", 100 + (i / 400) * 200);
  }
  for (int i = 0; i < collectors; ++i) {
    const int a = i % nodes, b = (i * 7 + 1) % nodes;
    const int kind = 5 + i % 3;
    const std::string prefix = kind == 5 ? "Cac_" : kind == 6 ? "Caf_" : "Cao_";
    LinkElement(s, kind, prefix + std::to_string(i + 1), node[a], node[b], node_id(a), node_id(b));
    s.SetObjTag("ZRam", 100 - i * 0.001);
    s.SetObjTag("ZRav", 99.5 - i * 0.001);
    s.SetObjTag("L", 120.5);
    if (kind == 5) {
      s.SetObjTag("Dn", 0.8);
      s.SetObjTag("K", 70);
    } else {
      s.SetObjTag("IdSect", "Section " + std::to_string(i % 50));
      s.SetObjTag(kind == 6 ? "K" : "Kmin", 60);
    }
  }
  for (int i = 0; i < others; ++i) {
    const int a = (i * 13) % nodes;
    const std::string n = std::to_string(i + 1);
    const int bv = Element(s, 1, 1, "Bv_" + n, 300 + (i % 400) * 200, 50 + (i / 400) * 200);
    for (const char* tag : {"S", "L", "m", "ci", "Fpluie", "Fpluie1", "Fruissel", "K"})
      s.SetObjTag(tag, "1. valeur");
    LinkElement(s, 2, "Rou_" + n, bv, node[a], "Bv_" + n, node_id(a));
    Element(s, 3, 1, "Hbv_" + n, 0, 0);
    s.SetObjTag("sNodAm", node_id(a));
    Element(s, 8, 3, "Dqq_" + n, 0, 0);
    s.SetObjTag("sNodAm", node_id(a));
    s.SetObjTag("IdAval", "Cac_" + std::to_string(3 * i + 1));
    s.SetObjTag("NbDer", 2);
    s.SetObjTag("IdDer_a", "Caf_" + std::to_string(3 * i + 2));
    s.SetObjTag("IdDer_b", "Inconnu");
    s.SetObjTag("NbPt", 3);
    Element(s, 14, 1, "Cla_" + n, 0, 0);
    s.SetObjTag("sNodAm", node_id(a));
  }
  const int scenario = s.AddObject(pluvane::kKindRectangle, 0, 0, 10, 10);
  s.SetCurrentObject(scenario);
  s.SetObjTag("iName", 111);
  s.SetObjTag("Id", "Scn-1");
  s.SetObjTag("CalcMode", "1: mode diagnostic ");
  s.SetObjTag("CalcDuree", 120);
  s.SetObjTag("CalcDt", 2);
  s.SetObjTag("IdPluie", "P1");
  s.AddObject(pluvane::kKindRectangle, 0, 0, 10, 10);
  s.SetObjTag("iName", 112);
  s.SetObjTag("Id", "Scn-1");
  s.EndStep();
}

}  // namespace

int main(int argc, char** argv) {
  const fs::path programs = argc > 1 ? fs::path(argv[1]) : fs::absolute(argv[0]).parent_path();
  const fs::path work = fs::temp_directory_path() / "pluvane_bench_generation";
  fs::remove_all(work);
  fs::create_directories(work / "app");
  // An application folder of its own, so that the recent files stay out of the build's.
  fs::copy_file(programs / "pluvane.ini", work / "app" / "pluvane.ini");
  fs::copy(programs / "Symboles", work / "app" / "Symboles", fs::copy_options::recursive);
  double first = 0;
  for (int scale : {1, 2, 4}) {
    const std::string network = (work / ("reseau" + std::to_string(scale) + ".mtf")).string();
    {
      Surface surface;
      BuildNetwork(surface, scale);
      surface.SaveFile(network, pluvane::kNativeFormat);
    }
    std::ostringstream out, err;
    const auto start = std::chrono::steady_clock::now();
    const int status = pluvane::RunCli({"generate", network}, pluvane::CoreCliCommands(),
                                        (work / "app").string(), out, err);
    const double ms = Milliseconds(start);
    if (scale == 1) first = ms;
    std::printf("%dx (%d nodes, %d collectors, %d others): generate %s in %.0f ms (%.2f x 1x)\n",
                scale, 20000 * scale, 25000 * scale, 5000 * scale, status == 0 ? "ok" : "FAILED",
                ms, ms / first);
    if (status != 0) std::printf("%s", err.str().c_str());
  }
  // PLUVANE_BENCH_KEEP keeps the networks for a closer look (perf, pluvane-cli).
  if (!std::getenv("PLUVANE_BENCH_KEEP")) fs::remove_all(work);
  return 0;
}
