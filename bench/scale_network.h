// The networks of the generation and scale benchmarks: elements placed
// straight on the surface with the tags the model writers read, in the
// proportions of a town's network.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"

namespace scale_bench {

using pluvane::Surface;

// An element symbol with the tags every element has.
inline int Element(Surface& s, int i_name, int i_group, const std::string& id, int x, int y) {
  const int n = s.AddObject(pluvane::kKindPicture, x - 50, y - 50, x + 50, y + 50);
  s.SetObjTag("iName", i_name);
  s.SetObjTag("iGroup", i_group);
  s.SetObjTag("Id", id);
  s.SetObjTag("libell", id);
  return n;
}

inline int LinkElement(Surface& s, int i_name, const std::string& id, int from, int to,
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
// turn) and, for each of `catchments` catchments, its routing, an outlet, a
// divider and a downstream limit; then a scenario and its record.
inline void BuildScaleNetwork(Surface& s, int scale, int catchments = 1000) {
  const int nodes = 20000 * scale, collectors = 25000 * scale, others = catchments * scale;
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

}  // namespace scale_bench
