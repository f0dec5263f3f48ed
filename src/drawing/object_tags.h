// The names of the tags that give an object its place in the network: its
// kind (a number of the catalogue), its name, and its group.
#pragma once

namespace pluvane {

inline constexpr const char* kTagIName = "iName";
inline constexpr const char* kTagId = "Id";
inline constexpr const char* kTagIGroup = "iGroup";

}  // namespace pluvane
