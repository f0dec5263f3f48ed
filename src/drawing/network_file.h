// The network file (.mtf): one UTF-8 JSON document holding the page and every
// object of the drawing in creation order, with kind, box, style, link ends,
// ordered tags and group children. Links name their ends by zero-based
// position in the object list. Members this program does not know, on the
// document, the page and each object, are kept and written back. The
// clipboard carries the same object form as a bare list.
#pragma once

#include <cstdint>
#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/surface_object.h"
#include "drawing/tag_names.h"

namespace pluvane {

struct NetworkDocument {
  PageState page;
  nlohmann::ordered_json page_extra;
  nlohmann::ordered_json document_extra;
  std::vector<SurfaceObject> objects;  // links bound by position
};

// Reads the text of a network file. False, with `document` unusable, for
// anything that is not a well-formed network file: bad JSON, missing or
// mistyped members, unknown kinds, link ends out of range.
bool ReadNetworkDocument(std::string_view text, TagNames& names, NetworkDocument& document);
// Reads a clipboard object list; the same rules.
bool ReadObjectList(std::string_view text, TagNames& names, std::vector<SurfaceObject>& objects);

// Gives the position in the written list of a link's end as the object holds it.
using EndPosition = std::function<std::int32_t(std::int32_t)>;

std::string WriteNetworkDocument(const PageState& page, const nlohmann::ordered_json& page_extra,
                                 const nlohmann::ordered_json& document_extra,
                                 const std::vector<const SurfaceObject*>& objects,
                                 const TagNames& names, const EndPosition& end_position);
std::string WriteObjectList(const std::vector<const SurfaceObject*>& objects, const TagNames& names,
                            const EndPosition& end_position);

}  // namespace pluvane
