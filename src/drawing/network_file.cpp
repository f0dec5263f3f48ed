#include "drawing/network_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

using Json = nlohmann::ordered_json;

namespace {

constexpr const char* kFormatName = "pluvane-network";
constexpr int kVersion = 1;
// Groups inside groups are rare; deeper nesting is taken for a damaged file.
constexpr int kMaxGroupDepth = 32;
const Marker kNoMarker;
const TextFormat kNoText;

// --- Writing ---------------------------------------------------------------

void AppendText(std::string& out, std::string_view text) {
  std::string decoded;
  if (!IsValidUtf8(text)) {
    decoded = DecodeText(text);
    text = decoded;
  }
  out += '"';
  for (char c : text) {
    switch (c) {
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\t':
        out += "\\t";
        break;
      default:
        if (static_cast<unsigned char>(c) < 0x20) {
          static const char kHex[] = "0123456789abcdef";
          out += "\\u00";
          out += kHex[(c >> 4) & 0xF];
          out += kHex[c & 0xF];
        } else {
          out += c;
        }
    }
  }
  out += '"';
}

void AppendInt(std::string& out, std::int64_t value) {
  char buffer[24];
  auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
  out.append(buffer, end);
}

void AppendNumber(std::string& out, double value) {
  out += std::isfinite(value) ? NumToText(value) : std::string("0");
}

void AppendKey(std::string& out, const char* key) {
  out += ",\"";
  out += key;
  out += "\":";
}

void AppendExtra(std::string& out, const Json& extra) {
  if (!extra.is_object()) return;
  for (const auto& [key, value] : extra.items()) {
    out += ',';
    AppendText(out, key);
    out += ':';
    out += value.dump(-1, ' ', false, Json::error_handler_t::replace);
  }
}

void AppendObjects(std::string& out, const std::vector<const SurfaceObject*>& objects,
                   const TagNames& names, const EndPosition& end_position, const char* separator);

void AppendObject(std::string& out, const SurfaceObject& object, std::int64_t layer_rank,
                  const TagNames& names, const EndPosition& end_position) {
  const Shape& s = object.shape;
  out += "{\"kind\":";
  AppendInt(out, s.kind);
  if (s.kind == kKindLink) {
    out += ",\"ends\":[";
    AppendInt(out, end_position(object.ends[0]));
    out += ',';
    AppendInt(out, end_position(object.ends[1]));
    out += ']';
  }
  out += ",\"box\":[";
  AppendInt(out, s.box.left);
  out += ',';
  AppendInt(out, s.box.top);
  out += ',';
  AppendInt(out, s.box.right);
  out += ',';
  AppendInt(out, s.box.bottom);
  out += ']';
  if (layer_rank >= 0) {
    AppendKey(out, "layer");
    AppendInt(out, layer_rank);
  }
  if (s.hidden) out += ",\"hidden\":true";
  if (!s.picture.empty()) {
    AppendKey(out, "picture");
    AppendText(out, s.picture);
  }
  if (s.line_color != 0 || s.line_width != 0 || s.line_style != 0) {
    out += ",\"line\":{\"color\":";
    AppendInt(out, s.line_color);
    out += ",\"width\":";
    AppendNumber(out, s.line_width);
    out += ",\"style\":";
    AppendInt(out, s.line_style);
    out += '}';
  }
  if (s.fill_color != 0 || s.fill_style != 1) {
    out += ",\"fill\":{\"color\":";
    AppendInt(out, s.fill_color);
    out += ",\"style\":";
    AppendInt(out, s.fill_style);
    out += '}';
  }
  if (!s.points.empty()) {
    out += ",\"points\":[";
    for (std::size_t i = 0; i < s.points.size(); ++i) {
      out += i ? ",[" : "[";
      AppendInt(out, s.points[i].x);
      out += ',';
      AppendInt(out, s.points[i].y);
      out += ']';
    }
    out += ']';
  }
  if (std::any_of(s.markers.begin(), s.markers.end(),
                  [](const Marker& m) { return !(m == kNoMarker); })) {
    static const int kAt[] = {0, 1, 4};
    out += ",\"markers\":[";
    bool first = true;
    for (int i = 0; i < 3; ++i) {
      const Marker& m = s.markers[i];
      if (m == kNoMarker) continue;
      out += first ? "{\"at\":" : ",{\"at\":";
      first = false;
      AppendInt(out, kAt[i]);
      out += ",\"shape\":";
      AppendInt(out, m.shape);
      out += ",\"width\":";
      AppendNumber(out, m.width);
      out += ",\"height\":";
      AppendNumber(out, m.height);
      out += ",\"color\":";
      AppendInt(out, m.color);
      out += ",\"fill\":";
      AppendInt(out, m.fill);
      out += '}';
    }
    out += ']';
  }
  if (s.kind == kKindText || !(s.text == kNoText)) {
    const TextFormat& t = s.text;
    out += ",\"text\":{\"string\":";
    AppendText(out, t.string);
    out += ",\"font\":";
    AppendText(out, t.font);
    out += ",\"size\":";
    AppendNumber(out, t.size);
    out += ",\"bold\":";
    out += t.bold ? "true" : "false";
    out += ",\"italic\":";
    out += t.italic ? "true" : "false";
    out += ",\"underline\":";
    out += t.underline ? "true" : "false";
    out += ",\"strike\":";
    out += t.strike ? "true" : "false";
    out += ",\"color\":";
    AppendInt(out, t.color);
    out += ",\"angle\":";
    AppendNumber(out, t.angle);
    out += ",\"align\":";
    AppendInt(out, t.align);
    out += ",\"fillBack\":";
    out += t.fill_back ? "true" : "false";
    out += '}';
  }
  if (s.kind == kKindGroup) {
    std::vector<const SurfaceObject*> children;
    for (const SurfaceObject& child : s.children) children.push_back(&child);
    out += ",\"group\":[";
    AppendObjects(
        out, children, names, [](std::int32_t end) { return end; }, ",");
    out += ']';
  }
  out += ",\"tags\":[";
  for (std::size_t i = 0; i < object.tags.size(); ++i) {
    out += i ? ",[" : "[";
    AppendText(out, names.Name(object.tags[i].name));
    out += ',';
    AppendText(out, object.tags[i].value);
    out += ']';
  }
  out += ']';
  AppendExtra(out, object.extra);
  out += '}';
}

// Objects in their order; the stacking is written as a rank where it is not
// that order.
void AppendObjects(std::string& out, const std::vector<const SurfaceObject*>& objects,
                   const TagNames& names, const EndPosition& end_position, const char* separator) {
  std::vector<std::size_t> by_layer(objects.size());
  for (std::size_t i = 0; i < objects.size(); ++i) by_layer[i] = i;
  std::stable_sort(by_layer.begin(), by_layer.end(), [&](std::size_t a, std::size_t b) {
    return objects[a]->shape.layer < objects[b]->shape.layer;
  });
  std::vector<std::int64_t> rank(objects.size());
  for (std::size_t r = 0; r < by_layer.size(); ++r)
    rank[by_layer[r]] = static_cast<std::int64_t>(r);
  for (std::size_t i = 0; i < objects.size(); ++i) {
    if (i) out += separator;
    const std::int64_t layer = rank[i] == static_cast<std::int64_t>(i) ? -1 : rank[i];
    AppendObject(out, *objects[i], layer, names, end_position);
  }
}

// --- Reading ---------------------------------------------------------------

bool GetInt64(const Json& value, std::int64_t& out) {
  if (value.is_number_unsigned()) {
    const auto v = value.get<std::uint64_t>();
    if (v > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) return false;
    out = static_cast<std::int64_t>(v);
    return true;
  }
  if (!value.is_number_integer()) return false;
  out = value.get<std::int64_t>();
  return true;
}

bool GetInt32(const Json& value, std::int32_t& out) {
  std::int64_t v = 0;
  if (!GetInt64(value, v) || v < std::numeric_limits<std::int32_t>::min() ||
      v > std::numeric_limits<std::int32_t>::max())
    return false;
  out = static_cast<std::int32_t>(v);
  return true;
}

bool GetInt(const Json& value, int& out) {
  std::int32_t v = 0;
  if (!GetInt32(value, v)) return false;
  out = v;
  return true;
}

bool GetDouble(const Json& value, double& out) {
  if (!value.is_number()) return false;
  out = value.get<double>();
  return std::isfinite(out);
}

bool GetBool(const Json& value, bool& out) {
  if (!value.is_boolean()) return false;
  out = value.get<bool>();
  return true;
}

bool GetString(const Json& value, std::string& out) {
  if (!value.is_string()) return false;
  out = value.get_ref<const std::string&>();
  return true;
}

// Reads the members of a small record, each by its own reader; a member that
// is not known is passed over.
template <typename Reader>
bool ReadMembers(const Json& value, Reader read) {
  if (!value.is_object()) return false;
  for (const auto& [key, member] : value.items())
    if (!read(key, member)) return false;
  return true;
}

bool ReadPoint(const Json& value, Point& point) {
  return value.is_array() && value.size() == 2 && GetInt32(value[0], point.x) &&
         GetInt32(value[1], point.y);
}

bool ReadMarkers(const Json& value, std::array<Marker, 3>& markers) {
  if (!value.is_array()) return false;
  for (const Json& entry : value) {
    int at = -1;
    Marker m;
    const bool ok = ReadMembers(entry, [&](const std::string& key, const Json& v) {
      if (key == "at") return GetInt(v, at);
      if (key == "shape") return GetInt(v, m.shape);
      if (key == "width") return GetDouble(v, m.width);
      if (key == "height") return GetDouble(v, m.height);
      if (key == "color") return GetInt32(v, m.color);
      if (key == "fill") return GetInt32(v, m.fill);
      return true;
    });
    if (!ok) return false;
    if (at == 0 || at == 1) {
      markers[at] = m;
    } else if (at == 4) {
      markers[2] = m;
    } else {
      return false;
    }
  }
  return true;
}

bool ReadText(const Json& value, TextFormat& t) {
  return ReadMembers(value, [&](const std::string& key, const Json& v) {
    if (key == "string") return GetString(v, t.string);
    if (key == "font") return GetString(v, t.font);
    if (key == "size") return GetDouble(v, t.size);
    if (key == "bold") return GetBool(v, t.bold);
    if (key == "italic") return GetBool(v, t.italic);
    if (key == "underline") return GetBool(v, t.underline);
    if (key == "strike") return GetBool(v, t.strike);
    if (key == "color") return GetInt32(v, t.color);
    if (key == "angle") return GetDouble(v, t.angle);
    if (key == "align") return GetInt(v, t.align);
    if (key == "fillBack") return GetBool(v, t.fill_back);
    return true;
  });
}

// The tags of a record: the index of the list read beside the tree.
struct TagSource {
  std::vector<std::vector<Tag>>& lists;
};

bool ReadTags(const Json& value, TagSource& source, std::vector<Tag>& tags) {
  if (!value.is_number_unsigned()) return false;
  const auto index = value.get<std::uint64_t>();
  if (index >= source.lists.size()) return false;
  tags = std::move(source.lists[index]);
  return true;
}

bool ReadObjectArray(const Json& value, TagSource& tags, int depth,
                     std::vector<SurfaceObject>& objects);

bool ReadObject(const Json& value, TagSource& tags, int depth, std::size_t position,
                SurfaceObject& object) {
  if (!value.is_object()) return false;
  // Kind first: which members are known depends on it.
  auto kind = value.find("kind");
  if (kind == value.end() || !GetInt(*kind, object.shape.kind) || !IsKnownKind(object.shape.kind))
    return false;
  const bool link = object.shape.kind == kKindLink;
  const bool group = object.shape.kind == kKindGroup;
  bool has_box = false;
  bool has_tags = false;
  bool has_ends = false;
  object.shape.layer = static_cast<std::int64_t>(position);
  Shape& s = object.shape;
  for (const auto& [key, member] : value.items()) {
    bool ok = true;
    if (key == "kind") {
      continue;
    } else if (key == "box") {
      ok = member.is_array() && member.size() == 4 && GetInt32(member[0], s.box.left) &&
           GetInt32(member[1], s.box.top) && GetInt32(member[2], s.box.right) &&
           GetInt32(member[3], s.box.bottom);
      has_box = true;
    } else if (key == "tags") {
      ok = ReadTags(member, tags, object.tags);
      has_tags = true;
    } else if (key == "ends" && link) {
      ok = member.is_array() && member.size() == 2 && GetInt32(member[0], object.ends[0]) &&
           GetInt32(member[1], object.ends[1]);
      has_ends = true;
    } else if (key == "group") {
      // Only a group has one; elsewhere its tags could not be kept as they came.
      ok = group && depth < kMaxGroupDepth && ReadObjectArray(member, tags, depth + 1, s.children);
    } else if (key == "layer") {
      ok = GetInt64(member, s.layer);
    } else if (key == "hidden") {
      ok = GetBool(member, s.hidden);
    } else if (key == "picture") {
      ok = GetString(member, s.picture);
    } else if (key == "line") {
      ok = ReadMembers(member, [&](const std::string& k, const Json& v) {
        if (k == "color") return GetInt32(v, s.line_color);
        if (k == "width") return GetDouble(v, s.line_width);
        if (k == "style") return GetInt(v, s.line_style);
        return true;
      });
    } else if (key == "fill") {
      ok = ReadMembers(member, [&](const std::string& k, const Json& v) {
        if (k == "color") return GetInt32(v, s.fill_color);
        if (k == "style") return GetInt(v, s.fill_style);
        return true;
      });
    } else if (key == "points") {
      ok = member.is_array();
      for (std::size_t i = 0; ok && i < member.size(); ++i) {
        Point p;
        ok = ReadPoint(member[i], p);
        s.points.push_back(p);
      }
    } else if (key == "markers") {
      ok = ReadMarkers(member, s.markers);
    } else if (key == "text") {
      ok = ReadText(member, s.text);
    } else {
      object.extra[key] = member;
    }
    if (!ok) return false;
  }
  return has_box && has_tags && (!link || has_ends);
}

// Every link must be bound to two other objects of the list, neither a link.
bool LinksBound(const std::vector<SurfaceObject>& objects) {
  const auto count = static_cast<std::int64_t>(objects.size());
  for (std::int64_t i = 0; i < count; ++i) {
    const SurfaceObject& object = objects[i];
    if (object.shape.kind != kKindLink) continue;
    for (std::int32_t end : object.ends) {
      if (end < 0 || end >= count || end == i || objects[end].shape.kind == kKindLink) return false;
    }
  }
  return true;
}

bool ReadObjectArray(const Json& value, TagSource& tags, int depth,
                     std::vector<SurfaceObject>& objects) {
  if (!value.is_array()) return false;
  objects.reserve(value.size());
  for (const Json& entry : value) {
    objects.emplace_back();
    if (!ReadObject(entry, tags, depth, objects.size() - 1, objects.back())) return false;
  }
  return LinksBound(objects);
}

bool ReadPage(const Json& value, PageState& page, Json& extra) {
  if (!value.is_object()) return false;
  for (const auto& [key, v] : value.items()) {
    bool ok = true;
    if (key == "logicLeft") {
      ok = GetInt32(v, page.logic_left);
    } else if (key == "logicTop") {
      ok = GetInt32(v, page.logic_top);
    } else if (key == "logicWidth") {
      ok = GetInt32(v, page.logic_width);
    } else if (key == "logicHeight") {
      ok = GetInt32(v, page.logic_height);
    } else if (key == "color") {
      ok = GetInt32(v, page.page_color);
    } else if (key == "backColor1") {
      ok = GetInt32(v, page.back_color1);
    } else if (key == "backColor2") {
      ok = GetInt32(v, page.back_color2);
    } else if (key == "scrollBars") {
      ok = GetInt(v, page.scroll_bars);
    } else if (key == "grid") {
      ok = ReadMembers(v, [&](const std::string& k, const Json& m) {
        if (k == "on") return GetInt(m, page.grid_on);
        if (k == "stepX") return GetInt32(m, page.grid_step_x);
        if (k == "stepY") return GetInt32(m, page.grid_step_y);
        return true;
      });
    } else if (key == "background") {
      ok = ReadMembers(v, [&](const std::string& k, const Json& m) {
        if (k == "file") return GetString(m, page.background_picture);
        if (k == "mode") return GetInt(m, page.background_mode);
        if (k == "scale") return GetDouble(m, page.background_scale);
        return true;
      });
    } else {
      extra[key] = v;
    }
    if (!ok) return false;
  }
  return true;
}

// Builds the JSON tree of a file, except the tag lists of objects, which are
// read straight into tags (they are most of a network file, and a tree of
// them would cost more than the rest). A tag list stands in the tree as its
// index in `tag_lists`.
class TreeReader {
 public:
  TreeReader(Json& root, TagNames& names, std::vector<std::vector<Tag>>& tag_lists)
      : tree_(root, false), names_(names), tag_lists_(tag_lists) {}

  bool null() { return !in_tags_ && tree_.null(); }
  bool boolean(bool v) { return !in_tags_ && tree_.boolean(v); }
  bool number_integer(Json::number_integer_t v) { return !in_tags_ && tree_.number_integer(v); }
  bool number_unsigned(Json::number_unsigned_t v) { return !in_tags_ && tree_.number_unsigned(v); }
  bool number_float(Json::number_float_t v, const std::string& s) {
    return !in_tags_ && tree_.number_float(v, s);
  }
  bool binary(Json::binary_t& v) { return !in_tags_ && tree_.binary(v); }
  bool string(std::string& v) {
    if (!in_tags_) return tree_.string(v);
    if (tag_depth_ != 2 || pair_fill_ >= 2) return false;
    if (pair_fill_++ == 0) {
      tag_lists_.back().push_back(Tag{names_.Intern(v), {}});
    } else {
      tag_lists_.back().back().value = std::move(v);
    }
    return true;
  }
  bool start_object(std::size_t n) {
    if (in_tags_) return false;
    frames_.push_back(Frame{false, std::move(pending_key_)});
    pending_key_.clear();
    return tree_.start_object(n);
  }
  bool key(std::string& k) {
    if (in_tags_) return false;
    if (k == "tags" && InObjectRecord()) {
      in_tags_ = true;
      tag_depth_ = 0;
      tag_lists_.emplace_back();
    }
    pending_key_ = k;
    return tree_.key(k);
  }
  bool end_object() {
    if (in_tags_) return false;
    frames_.pop_back();
    return tree_.end_object();
  }
  bool start_array(std::size_t n) {
    if (in_tags_) {
      if (tag_depth_ >= 2) return false;
      ++tag_depth_;
      pair_fill_ = 0;
      return true;
    }
    frames_.push_back(Frame{true, std::move(pending_key_)});
    pending_key_.clear();
    return tree_.start_array(n);
  }
  bool end_array() {
    if (in_tags_) {
      if (tag_depth_ == 2) {
        if (pair_fill_ != 2) return false;
        tag_depth_ = 1;
        return true;
      }
      if (tag_depth_ != 1) return false;
      in_tags_ = false;
      return tree_.number_unsigned(tag_lists_.size() - 1);
    }
    frames_.pop_back();
    return tree_.end_array();
  }
  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) {
    return false;
  }

 private:
  struct Frame {
    bool array;
    std::string key;
  };
  bool InObjectRecord() const { return IsRecord(frames_.size() - 1); }
  // Whether frame i is an object record: an entry of the clipboard's list,
  // of the file's object list, or of the group of a record.
  bool IsRecord(std::size_t i) const {
    if (i == 0 || i >= frames_.size() || frames_[i].array || !frames_[i - 1].array) return false;
    const std::string& list = frames_[i - 1].key;
    if (i == 1) return frames_[0].array;
    if (i == 2) return !frames_[0].array && list == "objects";
    return list == "group" && IsRecord(i - 2);
  }

  nlohmann::detail::json_sax_dom_parser<Json> tree_;
  TagNames& names_;
  std::vector<std::vector<Tag>>& tag_lists_;
  std::vector<Frame> frames_;
  std::string pending_key_;
  bool in_tags_ = false;
  int tag_depth_ = 0;
  int pair_fill_ = 0;
};

// False when the text is not JSON; a tag list that is not a list of pairs of
// texts makes it fail too.
bool Parse(std::string_view text, TagNames& names, Json& root,
           std::vector<std::vector<Tag>>& tag_lists) {
  TreeReader reader(root, names, tag_lists);
  return Json::sax_parse(text.begin(), text.end(), &reader, nlohmann::detail::input_format_t::json,
                         true);
}

}  // namespace

bool ReadNetworkDocument(std::string_view text, TagNames& names, NetworkDocument& document) {
  try {
    Json root;
    std::vector<std::vector<Tag>> tag_lists;
    if (!Parse(text, names, root, tag_lists) || !root.is_object()) return false;
    TagSource tags{tag_lists};
    auto format = root.find("format");
    if (format == root.end() || !format->is_string() || *format != kFormatName) return false;
    bool has_objects = false;
    for (const auto& [key, value] : root.items()) {
      if (key == "format") continue;
      if (key == "version") {
        int version = 0;
        if (!GetInt(value, version) || version < 1 || version > kVersion) return false;
      } else if (key == "page") {
        if (!ReadPage(value, document.page, document.page_extra)) return false;
      } else if (key == "objects") {
        if (!ReadObjectArray(value, tags, 0, document.objects)) return false;
        has_objects = true;
      } else {
        document.document_extra[key] = value;
      }
    }
    return has_objects;
  } catch (const std::exception&) {
    return false;
  }
}

bool ReadObjectList(std::string_view text, TagNames& names, std::vector<SurfaceObject>& objects) {
  try {
    Json root;
    std::vector<std::vector<Tag>> tag_lists;
    if (!Parse(text, names, root, tag_lists)) return false;
    TagSource tags{tag_lists};
    return ReadObjectArray(root, tags, 0, objects);
  } catch (const std::exception&) {
    return false;
  }
}

std::string WriteNetworkDocument(const PageState& page, const Json& page_extra,
                                 const Json& document_extra,
                                 const std::vector<const SurfaceObject*>& objects,
                                 const TagNames& names, const EndPosition& end_position) {
  std::string out;
  out.reserve(256 + objects.size() * 512);
  out += "{\"format\":\"";
  out += kFormatName;
  out += "\",\"version\":";
  AppendInt(out, kVersion);
  out += ",\n\"page\":{\"logicLeft\":";
  AppendInt(out, page.logic_left);
  AppendKey(out, "logicTop");
  AppendInt(out, page.logic_top);
  AppendKey(out, "logicWidth");
  AppendInt(out, page.logic_width);
  AppendKey(out, "logicHeight");
  AppendInt(out, page.logic_height);
  AppendKey(out, "color");
  AppendInt(out, page.page_color);
  AppendKey(out, "backColor1");
  AppendInt(out, page.back_color1);
  AppendKey(out, "backColor2");
  AppendInt(out, page.back_color2);
  out += ",\"grid\":{\"on\":";
  AppendInt(out, page.grid_on);
  AppendKey(out, "stepX");
  AppendInt(out, page.grid_step_x);
  AppendKey(out, "stepY");
  AppendInt(out, page.grid_step_y);
  out += '}';
  AppendKey(out, "scrollBars");
  AppendInt(out, page.scroll_bars);
  if (!page.background_picture.empty()) {
    out += ",\"background\":{\"file\":";
    AppendText(out, page.background_picture);
    AppendKey(out, "mode");
    AppendInt(out, page.background_mode);
    AppendKey(out, "scale");
    AppendNumber(out, page.background_scale);
    out += '}';
  }
  AppendExtra(out, page_extra);
  out += '}';
  if (document_extra.is_object() && !document_extra.empty()) {
    out += ",\n";
    std::string extra;
    AppendExtra(extra, document_extra);
    out.append(extra, 1);  // without its leading comma
  }
  out += ",\n\"objects\":[\n";
  AppendObjects(out, objects, names, end_position, ",\n");
  out += "\n]}\n";
  return out;
}

std::string WriteObjectList(const std::vector<const SurfaceObject*>& objects, const TagNames& names,
                            const EndPosition& end_position) {
  std::string out = "[\n";
  AppendObjects(out, objects, names, end_position, ",\n");
  out += "\n]\n";
  return out;
}

}  // namespace pluvane
