// The rain records of the drawing: the kinds of the rain library, finding a
// record of a kind by its Id as the generation does (trimmed, in capitals),
// adding one, and the references that follow a rename.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/surface.h"
#include "network/catalogue.h"
#include "network/network_state.h"

namespace pluvane {


// The two interpolation methods of the gauges, in the order of their numbers.
inline constexpr const char* kThiessen = "1. Thiessen";
inline constexpr const char* kWeightedDistance = "2. Distance pondérée";

// Trimmed and in capitals: the form in which Ids are compared.
std::string IdKey(std::string_view id);

// The first object of the kind whose Id equals `id` (trimmed, in capitals); it
// is left current. 0 when none, the cursor put back.
int FindRainRecord(Surface& surface, int kind, std::string_view id);

// The objects of a kind, in search order.
std::vector<int> RecordsOfKind(Surface& surface, int kind);

// A new library record of the kind with iGroup -1, iName and Id; it is left
// current.
int AddRainRecord(Surface& surface, const NetworkState& state, int kind, std::string_view id);

// Every calculation scenario whose IdPluie is `old_id` (trimmed, in capitals)
// takes `new_id`. The cursor is put back.
void RenameScenarioRain(Surface& surface, std::string_view old_id, std::string_view new_id);

// Sets a tag of every object of the kind whose tag `ref_tag` is `old_id`
// (trimmed, in capitals) to `new_id`; the number of objects rewritten.
int RewriteReferences(Surface& surface, int kind, std::string_view ref_tag, std::string_view old_id,
                      std::string_view new_id);

// A tag of an object, read with the cursor put back.
std::string RecordTag(Surface& surface, int number, std::string_view tag);

}  // namespace pluvane
