#include "tools/network_builder.h"

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "network/calibration_points.h"
#include "network/catalogue.h"
#include "network/default_tags.h"
#include "network/georeferencing.h"
#include "network/hidden_record.h"
#include "network/persistence.h"
#include "network/view_zoom.h"
#include "shell/app_state.h"

namespace pluvane {

namespace {

// The values of the shipped pluvane.ini that shape a drawing.
constexpr double kSymbolSize = 120;
constexpr double kLinkThick = 50;
constexpr std::int32_t kWhite = 16777215;
// The first view of the program: the middle half of the shipped extent. New
// nodes take a 150th of its height, whatever the size of the network.
constexpr double kFirstViewLeft = kBuilderLogicSize / 4.0;
constexpr double kFirstViewRight = 3 * kBuilderLogicSize / 4.0;

}  // namespace

TagValue::TagValue(double value) : text(NumToText(value)) {}

NetworkBuilder::NetworkBuilder(Surface& surface, AppState& state, UserInterface& ui,
                               const std::string& symbol_dir, std::int32_t logic_size)
    : surface_(surface), state_(state), ui_(ui) {
  state_.AppPath = DirOf(symbol_dir);
  state_.WorkDir = state_.AppPath;
  state_.SymbolDir = symbol_dir;
  state_.LogicWidth = logic_size;
  state_.LogicHeight = logic_size;
  state_.SymbolSize = kSymbolSize;
  state_.LinkThick = kLinkThick;
  state_.ScreenBackColor = kWhite;
  surface_.SetCurrentObject(kPage);
  surface_.SetScale(0, 0, logic_size, logic_size, 4096);
  surface_.SetPageColor(kWhite);
  surface_.SetBackColor1(kWhite);
  surface_.SetBackColor2(kWhite);
  ZoomToRect(surface_, state_, kFirstViewLeft, kFirstViewLeft, kFirstViewRight, kFirstViewRight);
  state_.ZoomFactor = 1;
  DefaultCalibrationFromCorners(state_.calibration, logic_size, logic_size);
  NetworkSession session{surface_, state_, ui_, recent_};
  ResetNetwork(session);
}

void NetworkBuilder::Check(int number) {
  if (number == 0) ok_ = false;
}

bool NetworkBuilder::Calibrate(double x0, double y0, double scale,
                               const std::vector<Point>& points) {
  if (points.size() != kCalibrationPointCount) return false;
  Calibration& c = state_.calibration;
  for (int i = 1; i <= kCalibrationPointCount; ++i) {
    const Point& p = points[static_cast<std::size_t>(i - 1)];
    c.logic_x[i] = p.x;
    c.logic_y[i] = p.y;
    c.user_x[i] = x0 + scale * p.x;
    c.user_y[i] = y0 - scale * p.y;
  }
  if (!SolveCalibration(c)) return false;
  // As the calibration form leaves them: made visible, then put out of sight.
  AddCalibrationPoints(surface_, state_);
  HideCalibrationPoints(surface_, state_);
  return true;
}

int NetworkBuilder::Node(std::int32_t x, std::int32_t y, double invert, double cover) {
  const int node = DrawSymbol(surface_, state_, ui_, x, y, "X_NOD");
  Check(node);
  if (node == 0) return 0;
  inverts_[node] = invert;
  Tags(node, {{"Zus", invert + cover}});
  return node;
}

int NetworkBuilder::OnNode(std::string_view key, int node) {
  // Dropped where the user would release it: on the node's centre.
  const auto [x, y] = ObjectCentre(surface_, node);
  const int number = DrawSymbol(surface_, state_, ui_, x, y, key, node);
  Check(number);
  return number;
}

int NetworkBuilder::Free(std::string_view key, std::int32_t x, std::int32_t y) {
  const int number = DrawSymbol(surface_, state_, ui_, x, y, key);
  Check(number);
  return number;
}

HydrologicalComplex NetworkBuilder::Complex(int node) {
  HydrologicalComplex made = PlaceHydrologicalComplex(surface_, state_, ui_, node);
  Check(made.route);
  return made;
}

int NetworkBuilder::Link(std::string_view key, int from, int to) {
  const int link = DrawLink(surface_, state_, key, from, to, 0, 0);
  Check(link);
  return link;
}

int NetworkBuilder::Collector(std::string_view key, int from, int to) {
  const int link = Link(key, from, to);
  if (link != 0) Tags(link, {{"ZRam", InvertOf(from)}, {"ZRav", InvertOf(to)}});
  return link;
}

void NetworkBuilder::Tags(int object, const TagSet& tags) {
  CursorKeeper keeper(surface_);
  surface_.SetCurrentObject(object);
  if (object < kFirstObjectNumber || surface_.CurrentObject() != object) return;
  for (const auto& [name, value] : tags) surface_.SetObjTag(name, value.text);
}

void NetworkBuilder::Table(int object, const std::vector<std::string>& columns,
                           const std::vector<std::vector<double>>& rows) {
  CursorKeeper keeper(surface_);
  surface_.SetCurrentObject(object);
  if (object < kFirstObjectNumber || surface_.CurrentObject() != object) return;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t c = 0; c < columns.size() && c < rows[i].size(); ++c) {
      surface_.SetObjTag(columns[c] + std::to_string(i + 1), rows[i][c]);
    }
  }
}

std::string NetworkBuilder::Tag(int object, std::string_view name) {
  CursorKeeper keeper(surface_);
  surface_.SetCurrentObject(object);
  if (object < kFirstObjectNumber || surface_.CurrentObject() != object) return "";
  return surface_.ObjTag(name);
}

double NetworkBuilder::InvertOf(int node) const {
  const auto found = inverts_.find(node);
  return found == inverts_.end() ? 0 : found->second;
}

int NetworkBuilder::Record(const TagSet& tags) {
  const int record = AddHiddenRecord(surface_, state_);
  Tags(record, tags);
  surface_.SetCurrentObject(record);
  return record;
}

int NetworkBuilder::Reach(int number, const std::vector<int>& collectors) {
  const int record = AddHiddenRecord(surface_, state_);
  state_.PendingReach = number;
  CreateDefaultTags(surface_, state_, "X_BIEF", false);
  state_.PendingReach = 0;
  TagSet list{{"NbColl", static_cast<int>(collectors.size())}};
  std::vector<std::string> names;  // the tags' names must outlive the list
  names.reserve(2 * collectors.size());
  for (std::size_t rank = 1; rank <= collectors.size(); ++rank) {
    const int collector = collectors[rank - 1];
    names.push_back("IdColl" + std::to_string(rank));
    list.emplace_back(names.back(), IdOf(collector));
    names.push_back("InameColl" + std::to_string(rank));
    list.emplace_back(names.back(), Tag(collector, "iName"));
  }
  Tags(record, list);
  for (int collector : collectors) Tags(collector, {{"iBief", number}});
  return record;
}

void NetworkBuilder::PicturesByName() {
  CursorKeeper keeper(surface_);
  for (int n = surface_.FirstObject(); n > 10; n = surface_.NextObject()) {
    const std::string picture = surface_.ObjectPicture();
    if (picture.empty()) continue;
    // Records drawn after a symbol inherit the defaults' picture, which only
    // a picture symbol shows.
    surface_.SetObjectPicture(surface_.ObjectKind() == kKindPicture ? FileNameOf(picture) : "");
  }
  surface_.SetCurrentObject(kDefaults);
  surface_.SetObjectPicture("");
}

void NetworkBuilder::ViewWholeNetwork() { ShowWholeNetwork(surface_, state_); }

bool NetworkBuilder::Save(const std::string& path) {
  NetworkSession session{surface_, state_, ui_, recent_};
  return SaveNetwork(session, path);
}

}  // namespace pluvane
