// The section library of the network: each parametric cross-section is a
// hidden record of the drawing (iName 101, iGroup -1) named by its Id, with
// NbPt points of top width Xi and height above the invert Yi. The library is
// every such record in the order of the drawing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// The first section whose Id is `id` (exactly), 0 if none; the cursor stays.
int FindSection(Surface& surface, std::string_view id);

// The Ids of the sections in the order of the drawing.
std::vector<std::string> SectionIds(Surface& surface);

// The Ids joined by tabs, without a trailing tab: the entries of the list of
// sections in the collector editors.
std::string SectionListEntries(Surface& surface);

// Adds a section record named `id` (tags Id, iName 101, iGroup -1, in that
// order) out of sight; returns its number. The cursor stays where it was.
int AddSection(Surface& surface, const NetworkState& state, std::string_view id);

}  // namespace pluvane
