// The small helpers that the whole program uses on the drawing: searches and
// counts by tag, selection and deletion by tag, the largest Id number of a
// kind, centres and the size of new symbols. Each one puts CurrentObject back
// as it found it, except FindObject and FindObject2, which leave the object
// found current.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "drawing/surface.h"
#include "drawing/tag_match.h"

namespace pluvane {

// First object, in creation order, whose tag has the value; it stays current.
// 0 if none, and the cursor is put back. Searches on "Id" go through the index.
int FindObject(Surface& surface, std::string_view tag_name, const TagMatch& value);
// The numbers of all such objects (their count is the size).
// These, and the counts, leave the cursor alone.
std::vector<int> FindObjectList(const Surface& surface, std::string_view tag_name,
                                const TagMatch& value);
int CountByTag(const Surface& surface, std::string_view tag_name, const TagMatch& value);
// Objects of a kind of element (tag iName).
int CountByName(const Surface& surface, int i_name);
// Objects of the kind whose libell is `label`, compared without regard to case.
int CountLabel(const Surface& surface, int i_name, std::string_view label);
// Replaces the selection by every match; returns how many.
int SelectByTag(Surface& surface, std::string_view tag_name, const TagMatch& value);
// Deletes every object whose Id is `id` (with its links); returns how many.
int DeleteByTagId(Surface& surface, std::string_view id);
// First object with both values; it stays current. 0 if none.
int FindObject2(Surface& surface, std::string_view tag1, const TagMatch& value1,
                std::string_view tag2, const TagMatch& value2);
// The same without the cursor.
int FindFirstWithBoth(const Surface& surface, std::string_view tag1, const TagMatch& value1,
                      std::string_view tag2, const TagMatch& value2);
// The selected objects in creation order.
std::vector<int> SelectedObjects(Surface& surface);
// The largest number after the first underscore of Id over the objects of the
// kind ("Rsp_4" gives 4); 0 if none, or if that largest is negative.
int MaxIdNumber(const Surface& surface, int i_name);
// The same for every kind 1 to 99 in one walk of the drawing (index 0 unused).
std::array<int, 100> MaxIdNumbers(const Surface& surface);
// The number after the first underscore of an Id; false when there is none.
bool IdNumberOf(std::string_view id, int& number);
// A tag of an object, "" when the object or the tag is missing. The cursor
// does not move.
std::string TagOfObject(const Surface& surface, int number, std::string_view name);
// The positions of a link's markers: its two ends, then its middle.
inline constexpr std::array<int, 3> kLinkMarkerPositions{0, 1, 4};
// The markers of the current link at those positions, and writing them back.
std::array<Marker, 3> ReadLinkMarkers(const Surface& surface);
void WriteLinkMarkers(Surface& surface, const std::array<Marker, 3>& markers);
// The centre of an object, ((left + right) / 2, (top + bottom) / 2).
std::pair<double, double> ObjectCentre(const Surface& surface, int number);
// Half the width of the first node (iName 99) if that is at least 1; else
// `symbol_size` if a node exists; with no node, the height of the view / 150.
double NodeHalfSize(Surface& surface, double symbol_size);

}  // namespace pluvane
