// The network file (.mtf): one UTF-8 JSON document holding the page and every
// object of the drawing in creation order, with kind, box, style, link ends,
// ordered tags and group children. Links name their ends by zero-based
// position in the object list. Members this program does not know, on the
// document, the page and each object, are kept and written back. The
// clipboard carries the same object form as a bare list.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/surface_object.h"
#include "drawing/tag_names.h"

namespace pluvane {

struct NetworkDocument {
  PageState page;
  // Members of the page and of the document this program does not know, as
  // they are written back (each `,"name":value`).
  std::string page_extra;
  std::string document_extra;
  ObjectBatch objects;  // links bound by position
};

// Reads a network file from disk a piece at a time, so that its text is never
// held whole. False, with `document` unusable, for a file that is not a
// regular file that can be read, or not a well-formed network file: bad JSON,
// missing or mistyped members, unknown kinds, link ends out of range.
bool ReadNetworkFile(const std::string& path, TagNames& names, NetworkDocument& document);
// Reads a clipboard object list; the same rules.
bool ReadObjectList(std::string_view text, TagNames& names, ObjectBatch& objects);

// Gives the position in the written list of a link's end as the object holds it.
using EndPosition = std::function<std::int32_t(std::int32_t)>;

std::string WriteNetworkDocument(const PageState& page, std::string_view page_extra,
                                 std::string_view document_extra,
                                 const std::vector<const SurfaceObject*>& objects,
                                 const TagNames& names, const EndPosition& end_position);
std::string WriteObjectList(const std::vector<const SurfaceObject*>& objects, const TagNames& names,
                            const EndPosition& end_position);

}  // namespace pluvane
