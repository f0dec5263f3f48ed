#include "drawing/network_file.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <limits>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>

#include "drawing/stacking_order.h"
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
  // Runs of characters that need no escape go in whole.
  std::size_t run = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (static_cast<unsigned char>(c) >= 0x20 && c != '"' && c != '\\') continue;
    out.append(text.substr(run, i - run));
    run = i + 1;
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
      default: {
        static const char kHex[] = "0123456789abcdef";
        out += "\\u00";
        out += kHex[(c >> 4) & 0xF];
        out += kHex[c & 0xF];
      }
    }
  }
  out.append(text.substr(run));
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

// The members of a record as written back: each `,"name":value`.
std::string ExtraText(const Json& extra) {
  std::string out;
  if (!extra.is_object()) return out;
  for (const auto& [key, value] : extra.items()) {
    out += ',';
    AppendText(out, key);
    out += ':';
    out += value.dump(-1, ' ', false, Json::error_handler_t::replace);
  }
  return out;
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
    AppendText(out, names.Name(object.tags.Name(i)));
    out += ',';
    AppendText(out, object.tags.Value(i));
    out += ']';
  }
  out += ']';
  if (object.extra) out += *object.extra;
  out += '}';
}

// Objects in their order; the stacking is written as a rank where it is not
// that order.
void AppendObjects(std::string& out, const std::vector<const SurfaceObject*>& objects,
                   const TagNames& names, const EndPosition& end_position, const char* separator) {
  const std::vector<std::size_t> by_layer =
      StackingOrder(objects.size(), [&](std::size_t at) { return objects[at]->shape.layer; });
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

// Every link must be bound to two other objects of the list, neither a link.
template <typename At>
bool LinksBound(std::size_t size, At at) {
  const auto count = static_cast<std::int64_t>(size);
  for (std::int64_t i = 0; i < count; ++i) {
    const SurfaceObject& object = at(i);
    if (object.shape.kind != kKindLink) continue;
    for (std::int32_t end : object.ends) {
      if (end < 0 || end >= count || end == i || at(end).shape.kind == kKindLink) return false;
    }
  }
  return true;
}

bool LinksBound(const std::vector<SurfaceObject>& objects) {
  return LinksBound(objects.size(), [&](std::int64_t i) -> const SurfaceObject& {
    return objects[static_cast<std::size_t>(i)];
  });
}

bool LinksBound(const ObjectBatch& objects) {
  return LinksBound(objects.size(), [&](std::int64_t i) -> const SurfaceObject& {
    return *objects[static_cast<std::size_t>(i)];
  });
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

// Reads a file in one pass of the parser's events, straight into the objects:
// kind, box, link ends, vertices, tags and groups, which make most of a
// network file, are taken as their numbers and texts arrive. The small
// records (line, fill, markers, text, the page) and the members this program
// does not know are gathered into a small JSON value each and read from it.
// A member that repeats counts by its last value; a known member that is not
// well formed makes the whole file unreadable.
class DirectReader {
 public:
  // `document` is null for a clipboard list, whose objects go to `list`.
  DirectReader(TagNames& names, NetworkDocument* document, ObjectBatch* list)
      : names_(names), document_(document), list_(list) {}

  // Whether the text held what was asked for, once the parse succeeded.
  bool Complete() const {
    if (!document_) return list_done_;
    return root_seen_ && format_ok_ && has_objects_;
  }

  bool null() { return Scalar(Value::Null()); }
  bool boolean(bool v) { return Scalar(Value::Bool(v)); }
  bool number_integer(Json::number_integer_t v) { return Scalar(Value::Int(v)); }
  bool number_unsigned(Json::number_unsigned_t v) { return Scalar(Value::Unsigned(v)); }
  bool number_float(Json::number_float_t v, const std::string& s) {
    if (capture_) return Captured(capture_->number_float(v, s));
    return Scalar(Value::Float(v));
  }
  bool binary(Json::binary_t&) { return false; }
  bool string(std::string& v) {
    if (capture_) return Captured(capture_->string(v));
    if (frames_.empty()) return false;
    Frame& f = frames_.back();
    if (f.at == At::kTagPair) {
      if (f.count >= 2) return false;
      if (f.count++ == 0) {
        tag_names_.push_back(NameOf(v, tag_names_.size()));
      } else {
        tag_text_ += v;
        tag_ends_.push_back(tag_text_.size());
      }
      return true;
    }
    if (f.at == At::kObject) {
      if (key_ == Key::kPicture) {
        f.object->shape.picture = std::move(v);
        return true;
      }
      if (IsCapturedKey()) return StartCapture(), Captured(capture_->string(v));
      return false;
    }
    if (f.at == At::kDocument) return StartCapture(), Captured(capture_->string(v));
    return false;
  }

  bool start_object(std::size_t) {
    if (capture_) return Deeper(capture_->start_object(static_cast<std::size_t>(-1)));
    if (frames_.empty()) {
      if (!document_) return false;
      root_seen_ = true;
      frames_.push_back(Frame{At::kDocument});
      return true;
    }
    Frame& f = frames_.back();
    if (f.at == At::kObjects) {
      SurfaceObject* made = nullptr;
      std::size_t position = 0;
      if (f.batch) {
        position = f.batch->size();
        f.batch->push_back(std::make_unique<SurfaceObject>());
        made = f.batch->back().get();
      } else {
        position = f.list->size();
        made = &f.list->emplace_back();
      }
      SurfaceObject& object = *made;
      object.shape.layer = static_cast<std::int64_t>(position);
      extras_.emplace_back();
      Frame next{At::kObject};
      next.object = &object;
      next.depth = f.depth;
      frames_.push_back(next);
      return true;
    }
    if ((f.at == At::kObject && IsCapturedKey()) || f.at == At::kDocument)
      return StartCapture(), Deeper(capture_->start_object(static_cast<std::size_t>(-1)));
    return false;
  }

  bool key(std::string& k) {
    if (capture_) return capture_->key(k);
    if (frames_.empty()) return false;
    Frame& f = frames_.back();
    key_text_ = k;
    if (f.at == At::kDocument) {
      key_ = k == "objects" ? Key::kObjects : Key::kOther;
      return true;
    }
    if (f.at != At::kObject) return false;
    key_ = ObjectKey(k);
    // Which members a record knows depends on its kind, which comes first in
    // the files this program writes; otherwise the ends wait among the unknown.
    if (key_ == Key::kEnds && f.object->shape.kind != kKindLink) key_ = Key::kOther;
    if (key_ == Key::kKind) f.has_kind = true;
    return true;
  }

  bool end_object() {
    if (capture_) return Shallower(capture_->end_object());
    if (frames_.empty()) return false;
    Frame& f = frames_.back();
    if (f.at == At::kDocument) {
      document_->document_extra = ExtraText(document_extra_);
      frames_.pop_back();
      return true;
    }
    if (f.at != At::kObject) return false;
    if (!FinishObject(f)) return false;
    frames_.pop_back();
    return true;
  }

  bool start_array(std::size_t) {
    if (capture_) return Deeper(capture_->start_array(static_cast<std::size_t>(-1)));
    if (frames_.empty()) {
      if (document_) return false;
      frames_.push_back(Frame{At::kObjects});
      frames_.back().batch = list_;
      return true;
    }
    Frame& f = frames_.back();
    Frame next{At::kNone};
    next.object = f.object;
    switch (f.at) {
      case At::kDocument:
        if (key_ != Key::kObjects) return StartCapture(), Deeper(capture_->start_array(0));
        document_->objects.clear();
        has_objects_ = true;
        next.at = At::kObjects;
        next.batch = &document_->objects;
        break;
      case At::kObject:
        switch (key_) {
          case Key::kBox:
            f.has_box = true;
            next.at = At::kBox;
            break;
          case Key::kEnds:
            f.has_ends = true;
            next.at = At::kEnds;
            break;
          case Key::kPoints:
            f.object->shape.points.clear();
            next.at = At::kPoints;
            break;
          case Key::kTags:
            f.has_tags = true;
            tag_names_.clear();
            tag_ends_.clear();
            tag_text_.clear();
            next.at = At::kTags;
            break;
          case Key::kGroup:
            // Deeper nesting is taken for a damaged file.
            if (f.depth >= kMaxGroupDepth) return false;
            f.has_group = true;
            f.object->shape.children.clear();
            next.at = At::kObjects;
            next.list = &f.object->shape.children;
            next.depth = f.depth + 1;
            break;
          default:
            if (!IsCapturedKey()) return false;
            return StartCapture(), Deeper(capture_->start_array(0));
        }
        break;
      case At::kPoints:
        f.object->shape.points.emplace_back();
        next.at = At::kPoint;
        break;
      case At::kTags:
        next.at = At::kTagPair;
        break;
      default:
        return false;
    }
    frames_.push_back(next);
    return true;
  }

  bool end_array() {
    if (capture_) return Shallower(capture_->end_array());
    if (frames_.empty()) return false;
    const Frame f = frames_.back();
    frames_.pop_back();
    switch (f.at) {
      case At::kObjects:
        if (!(f.batch ? LinksBound(*f.batch) : LinksBound(*f.list))) return false;
        if (frames_.empty()) list_done_ = true;
        return true;
      case At::kBox:
        return f.count == 4;
      case At::kEnds:
      case At::kPoint:
      case At::kTagPair:
        return f.count == 2;
      case At::kTags:
        f.object->tags.Assign(tag_names_.size(), [this](std::size_t i) {
          const std::size_t begin = i == 0 ? 0 : tag_ends_[i - 1];
          return Tag{tag_names_[i],
                     std::string_view(tag_text_).substr(begin, tag_ends_[i] - begin)};
        });
        return true;
      case At::kPoints:
        return true;
      default:
        return false;
    }
  }

  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) {
    return false;
  }

 private:
  enum class At { kNone, kDocument, kObjects, kObject, kBox, kEnds, kPoints, kPoint, kTags, kTagPair };
  enum class Key {
    kOther, kObjects, kKind, kBox, kEnds, kPoints, kTags, kGroup, kLayer, kHidden, kPicture,
    kLine, kFill, kMarkers, kText
  };
  struct Frame {
    At at = At::kNone;
    SurfaceObject* object = nullptr;
    std::vector<SurfaceObject>* list = nullptr;  // a group's objects
    ObjectBatch* batch = nullptr;                 // or those of the file
    int depth = 0;    // of groups, for an object list and its records
    int count = 0;    // numbers or texts read in a fixed-size list
    bool has_kind = false;
    bool has_box = false;
    bool has_tags = false;
    bool has_ends = false;
    bool has_group = false;
  };
  // A scalar value as the parser gives it.
  struct Value {
    enum class Type { kNull, kBool, kInt, kUnsigned, kFloat } type = Type::kNull;
    bool flag = false;
    std::int64_t integer = 0;
    std::uint64_t natural = 0;
    double real = 0;
    static Value Null() { return Value{}; }
    static Value Bool(bool v) {
      Value x;
      x.type = Type::kBool;
      x.flag = v;
      return x;
    }
    static Value Int(std::int64_t v) {
      Value x;
      x.type = Type::kInt;
      x.integer = v;
      return x;
    }
    static Value Unsigned(std::uint64_t v) {
      Value x;
      x.type = Type::kUnsigned;
      x.natural = v;
      return x;
    }
    static Value Float(double v) {
      Value x;
      x.type = Type::kFloat;
      x.real = v;
      return x;
    }
    Json ToJson() const {
      switch (type) {
        case Type::kBool:
          return Json(flag);
        case Type::kInt:
          return Json(integer);
        case Type::kUnsigned:
          return Json(natural);
        case Type::kFloat:
          return Json(real);
        default:
          return Json(nullptr);
      }
    }
    bool Int64(std::int64_t& out) const {
      if (type == Type::kUnsigned) {
        if (natural > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
          return false;
        out = static_cast<std::int64_t>(natural);
        return true;
      }
      if (type != Type::kInt) return false;
      out = integer;
      return true;
    }
    bool Int32(std::int32_t& out) const {
      std::int64_t v = 0;
      if (!Int64(v) || v < std::numeric_limits<std::int32_t>::min() ||
          v > std::numeric_limits<std::int32_t>::max())
        return false;
      out = static_cast<std::int32_t>(v);
      return true;
    }
  };

  static Key ObjectKey(std::string_view k) {
    if (k == "kind") return Key::kKind;
    if (k == "box") return Key::kBox;
    if (k == "tags") return Key::kTags;
    if (k == "ends") return Key::kEnds;
    if (k == "points") return Key::kPoints;
    if (k == "group") return Key::kGroup;
    if (k == "layer") return Key::kLayer;
    if (k == "hidden") return Key::kHidden;
    if (k == "picture") return Key::kPicture;
    if (k == "line") return Key::kLine;
    if (k == "fill") return Key::kFill;
    if (k == "markers") return Key::kMarkers;
    if (k == "text") return Key::kText;
    return Key::kOther;
  }

  // The number of a tag name. Records of one kind follow each other with
  // the same names in the same order, so the name at the same place in the
  // record before is tried first.
  std::uint32_t NameOf(const std::string& name, std::size_t position) {
    if (position < name_hints_.size()) {
      const std::uint32_t hint = name_hints_[position];
      if (names_.Name(hint) == name) return hint;
    } else if (position < 64) {
      name_hints_.resize(position + 1);
    } else {
      return names_.Intern(name);
    }
    return name_hints_[position] = names_.Intern(name);
  }

  // Members of a record gathered whole before they are read.
  bool IsCapturedKey() const {
    return key_ == Key::kOther || key_ == Key::kLine || key_ == Key::kFill ||
           key_ == Key::kMarkers || key_ == Key::kText;
  }

  bool Scalar(const Value& v) {
    if (capture_) {
      Json value = v.ToJson();
      return Captured(CaptureScalar(value));
    }
    if (frames_.empty()) return false;
    Frame& f = frames_.back();
    switch (f.at) {
      case At::kBox: {
        Box& box = f.object->shape.box;
        std::int32_t* slots[] = {&box.left, &box.top, &box.right, &box.bottom};
        return f.count < 4 && v.Int32(*slots[f.count++]);
      }
      case At::kEnds:
        return f.count < 2 && v.Int32(f.object->ends[static_cast<std::size_t>(f.count++)]);
      case At::kPoint: {
        Point& p = f.object->shape.points.back();
        return f.count < 2 && v.Int32(f.count++ == 0 ? p.x : p.y);
      }
      case At::kObject:
        switch (key_) {
          case Key::kKind: {
            std::int32_t kind = 0;
            if (!v.Int32(kind)) return false;
            f.object->shape.kind = kind;
            return true;
          }
          case Key::kLayer:
            return v.Int64(f.object->shape.layer);
          case Key::kHidden:
            if (v.type != Value::Type::kBool) return false;
            f.object->shape.hidden = v.flag;
            return true;
          default:
            if (!IsCapturedKey()) return false;
            StartCapture();
            return Captured(CaptureScalar(v.ToJson()));
        }
      case At::kDocument:
        StartCapture();
        return Captured(CaptureScalar(v.ToJson()));
      default:
        return false;
    }
  }

  bool CaptureScalar(Json value) {
    switch (value.type()) {
      case Json::value_t::boolean:
        return capture_->boolean(value.get<bool>());
      case Json::value_t::number_integer:
        return capture_->number_integer(value.get<std::int64_t>());
      case Json::value_t::number_unsigned:
        return capture_->number_unsigned(value.get<std::uint64_t>());
      case Json::value_t::number_float:
        return capture_->number_float(value.get<double>(), {});
      default:
        return capture_->null();
    }
  }

  void StartCapture() {
    captured_ = Json();
    capture_.emplace(captured_, false);
    capture_depth_ = 0;
  }
  bool Deeper(bool ok) {
    ++capture_depth_;
    return ok;
  }
  bool Shallower(bool ok) {
    --capture_depth_;
    return Captured(ok);
  }
  // After each event of a gathered value: once it is whole, it is read.
  bool Captured(bool ok) {
    if (!ok) return false;
    if (capture_depth_ > 0) return true;
    capture_.reset();
    return Deliver();
  }

  bool Deliver() {
    Frame& f = frames_.back();
    if (f.at == At::kDocument) {
      if (key_text_ == "format") {
        format_ok_ = captured_.is_string() && captured_ == kFormatName;
      } else if (key_text_ == "version") {
        int version = 0;
        if (!GetInt(captured_, version) || version < 1 || version > kVersion) return false;
      } else if (key_ == Key::kObjects) {
        return false;  // not a list
      } else if (key_text_ == "page") {
        document_->page = PageState{};
        Json extra;
        if (!ReadPage(captured_, document_->page, extra)) return false;
        document_->page_extra = ExtraText(extra);
      } else {
        document_extra_[key_text_] = std::move(captured_);
      }
      return true;
    }
    Shape& s = f.object->shape;
    const Shape blank;
    switch (key_) {
      case Key::kLine:
        s.line_color = blank.line_color;
        s.line_width = blank.line_width;
        s.line_style = blank.line_style;
        return ReadMembers(captured_, [&](const std::string& k, const Json& v) {
          if (k == "color") return GetInt32(v, s.line_color);
          if (k == "width") return GetDouble(v, s.line_width);
          if (k == "style") return GetInt(v, s.line_style);
          return true;
        });
      case Key::kFill:
        s.fill_color = blank.fill_color;
        s.fill_style = blank.fill_style;
        return ReadMembers(captured_, [&](const std::string& k, const Json& v) {
          if (k == "color") return GetInt32(v, s.fill_color);
          if (k == "style") return GetInt(v, s.fill_style);
          return true;
        });
      case Key::kMarkers:
        s.markers = blank.markers;
        return ReadMarkers(captured_, s.markers);
      case Key::kText:
        s.text = TextFormat{};
        return ReadText(captured_, s.text);
      default:
        extras_.back()[key_text_] = std::move(captured_);
        return true;
    }
  }

  // The checks of a whole record: its kind known, box and tags present, a
  // link's ends, a group's objects on a group only.
  bool FinishObject(Frame& f) {
    SurfaceObject& object = *f.object;
    if (!f.has_kind || !IsKnownKind(object.shape.kind)) return false;
    const bool link = object.shape.kind == kKindLink;
    if (f.has_group && object.shape.kind != kKindGroup) return false;
    Json& extra = extras_.back();
    if (link && !f.has_ends && extra.is_object()) {
      // The ends came before the kind: they wait among the unknown members.
      auto ends = extra.find("ends");
      if (ends != extra.end()) {
        if (!(ends->is_array() && ends->size() == 2 && GetInt32((*ends)[0], object.ends[0]) &&
              GetInt32((*ends)[1], object.ends[1])))
          return false;
        extra.erase(ends);
        f.has_ends = true;
      }
    }
    if (extra.is_object() && !extra.empty())
      object.extra = std::make_shared<const std::string>(ExtraText(extra));
    extras_.pop_back();
    return f.has_box && f.has_tags && (!link || f.has_ends);
  }

  TagNames& names_;
  NetworkDocument* document_;
  ObjectBatch* list_;
  std::vector<Frame> frames_;
  Key key_ = Key::kOther;
  std::string key_text_;
  std::optional<nlohmann::detail::json_sax_dom_parser<Json>> capture_;
  Json captured_;
  int capture_depth_ = 0;
  bool root_seen_ = false;
  bool format_ok_ = false;
  bool has_objects_ = false;
  bool list_done_ = false;
  std::vector<std::uint32_t> name_hints_;
  // The tags of the record being read, set on it whole at the end of its list.
  std::vector<std::uint32_t> tag_names_;
  std::vector<std::size_t> tag_ends_;
  std::string tag_text_;
  // The unknown members of each record being read, innermost last.
  std::vector<Json> extras_;
  Json document_extra_;
};

// Room for the objects of a text, as this program writes them: one a line.
// Bounded by the shortest record, so that a text of blank lines asks for little.
std::size_t ExpectedObjects(std::string_view text) {
  const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  return std::min(lines, text.size() / 64);
}

bool Parse(std::string_view text, DirectReader& reader) {
  return Json::sax_parse(text.begin(), text.end(), &reader, nlohmann::detail::input_format_t::json,
                         true) &&
         reader.Complete();
}

// A file read a piece at a time, walked by the parser through ChunkIterator.
class ChunkedFile {
 public:
  explicit ChunkedFile(std::FILE* file) : file_(file) { Fill(); }
  bool Failed() const { return std::ferror(file_) != 0; }

 private:
  friend class ChunkIterator;
  void Fill() {
    size_ = std::fread(buffer_.data(), 1, buffer_.size(), file_);
    at_ = 0;
  }
  std::FILE* file_;
  std::array<char, 1 << 16> buffer_{};
  std::size_t size_ = 0;
  std::size_t at_ = 0;
};

// The characters of a ChunkedFile; a default one stands for its end.
class ChunkIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;
  ChunkIterator() = default;
  explicit ChunkIterator(ChunkedFile* file) : file_(file) {}
  const char& operator*() const { return file_->buffer_[file_->at_]; }
  ChunkIterator& operator++() {
    if (++file_->at_ == file_->size_) file_->Fill();
    return *this;
  }
  bool operator==(const ChunkIterator& other) const { return AtEnd() == other.AtEnd(); }

 private:
  bool AtEnd() const { return !file_ || file_->at_ >= file_->size_; }
  ChunkedFile* file_ = nullptr;
};

}  // namespace

bool ReadNetworkFile(const std::string& path, TagNames& names, NetworkDocument& document) {
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return false;
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (!file) return false;
  bool ok = false;
  try {
    ChunkedFile chunks(file);
    DirectReader reader(names, &document, nullptr);
    ok = Json::sax_parse(ChunkIterator(&chunks), ChunkIterator(), &reader,
                         nlohmann::detail::input_format_t::json, true) &&
         reader.Complete() && !chunks.Failed();
  } catch (const std::exception&) {
    ok = false;
  }
  std::fclose(file);
  return ok;
}

bool ReadObjectList(std::string_view text, TagNames& names, ObjectBatch& objects) {
  try {
    objects.reserve(objects.size() + ExpectedObjects(text));
    DirectReader reader(names, nullptr, &objects);
    return Parse(text, reader);
  } catch (const std::exception&) {
    return false;
  }
}


std::string WriteNetworkDocument(const PageState& page, std::string_view page_extra,
                                 std::string_view document_extra,
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
  out += page_extra;
  out += '}';
  if (!document_extra.empty()) {
    out += ",\n";
    out += document_extra.substr(1);  // without its leading comma
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
