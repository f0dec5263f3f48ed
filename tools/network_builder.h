// Networks built by program: the demonstration network shipped in Exemples/
// and the large generated networks of the benchmarks. Everything is placed
// through the program's own routines (symbols, links, the hydrological
// complex, default tags, hidden records, calibration points, parameter
// records), as an engineer's clicks would place it, so that the files these
// builders write are files the program itself could have written. Developer
// tooling: not part of the shipped program.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/user_interface.h"
#include "network/placement.h"
#include "network/recent_files.h"
#include "drawing/surface.h"
#include "shell/app_state.h"

namespace pluvane {

// The logical extent of the shipped configuration ("Résolution Maxi").
inline constexpr std::int32_t kBuilderLogicSize = 100000;

// One tag value, as the editors store it: numbers in their plain text form.
struct TagValue {
  TagValue(double value);
  TagValue(int value) : TagValue(static_cast<double>(value)) {}
  TagValue(const char* value) : text(value) {}
  TagValue(std::string value) : text(std::move(value)) {}
  std::string text;
};
using TagSet = std::vector<std::pair<std::string_view, TagValue>>;

class NetworkBuilder {
 public:
  // Starts an empty network on `surface` as the program starts with the
  // shipped pluvane.ini (symbols 120, links 50, white page, the first view),
  // over a logical space of `logic_size` units square; symbols come from
  // `symbol_dir`.
  NetworkBuilder(Surface& surface, AppState& state, UserInterface& ui,
                 const std::string& symbol_dir, std::int32_t logic_size = kBuilderLogicSize);

  Surface& surface() { return surface_; }
  AppState& state() { return state_; }
  // False once a placement failed (its message went to the user interface).
  bool ok() const { return ok_; }

  // Calibrates on a map without rotation: X = x0 + scale * Xlog and
  // Y = y0 - scale * Ylog, through three hidden calibration points placed at
  // the logical positions given, and solved as the calibration form solves.
  bool Calibrate(double x0, double y0, double scale, const std::vector<Point>& points);

  // A node at a logical position; `invert` is the level of the collectors'
  // inverts there, the ground level (Zus) standing `cover` metres above it.
  int Node(std::int32_t x, std::int32_t y, double invert, double cover = 2.5);
  // A point element dropped on a node, or a free one (gauge) at a position.
  int OnNode(std::string_view key, int node);
  int Free(std::string_view key, std::int32_t x, std::int32_t y);
  // Catchment outlet on the node, the catchment beside it and its route.
  HydrologicalComplex Complex(int node);
  // A link of the key between two objects.
  int Link(std::string_view key, int from, int to);
  // A collector whose inverts are those of its two nodes.
  int Collector(std::string_view key, int from, int to);

  // Tags written on an object in order (existing tags keep their place).
  void Tags(int object, const TagSet& tags);
  std::string Tag(int object, std::string_view name);
  // A table in numbered tags: for each row i (from 1), the column's prefix
  // followed by i takes the row's value in that column ("X1", "Y1", "X2"...).
  void Table(int object, const std::vector<std::string>& columns,
             const std::vector<std::vector<double>>& rows);
  std::string IdOf(int object) { return Tag(object, "Id"); }
  double InvertOf(int node) const;

  // A library or parameter record (hidden), made current, with its tags.
  int Record(const TagSet& tags);
  // A reach of the collectors, in their order (upstream first): the record
  // with its list, and iBief on each collector.
  int Reach(int number, const std::vector<int>& collectors);

  // Pictures by file name only, so that the file does not depend on the
  // folder it was built in (the view finds them in the symbol folder); none
  // on the records and the defaults.
  void PicturesByName();
  // The whole network in view, centred with a margin, as a network opens.
  void ViewWholeNetwork();
  // Writes the parameter records and the network file. False when the file
  // could not be written (the message went to the user interface).
  bool Save(const std::string& path);

 private:
  void Check(int number);

  Surface& surface_;
  AppState& state_;
  UserInterface& ui_;
  RecentFiles recent_;
  std::map<int, double> inverts_;
  bool ok_ = true;
};

// The demonstration network shipped as Exemples/Demo.mtf: an urban catchment
// of 30 nodes with every kind of element, sections, rains, a scenario, a
// reach and a calibration in Lambert-93 coordinates. False when a symbol was
// missing.
bool BuildDemoNetwork(NetworkBuilder& builder);

// What a large generated network holds.
struct LargeNetworkCounts {
  int nodes = 0;
  int collectors = 0;
  int others = 0;  // dividers and the outlet
};

// About `nodes` nodes on a grid drained by a tree of circular collectors
// towards one outlet, with a quarter as many derivations (a divider on the
// node and a second collector to the next row): 1.25 N collectors, 0.25 N
// other elements. The logical space grows with the grid.
LargeNetworkCounts BuildLargeNetwork(NetworkBuilder& builder, int nodes);
// The logical extent a large network of that many nodes needs.
std::int32_t LargeNetworkLogicSize(int nodes);

}  // namespace pluvane
