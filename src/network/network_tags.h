// The names of the tags that tie the elements of a network together and place
// them: the upstream and downstream nodes of a link, the user's coordinates,
// the logical centre, the user's name, the reach and the link count.
#pragma once

#include "drawing/object_tags.h"

namespace pluvane {

inline constexpr const char* kTagSNodAm = "sNodAm";
inline constexpr const char* kTagSNodAv = "sNodAv";
inline constexpr const char* kTagXus = "Xus";
inline constexpr const char* kTagYus = "Yus";
inline constexpr const char* kTagXlog = "Xlog";
inline constexpr const char* kTagYlog = "Ylog";
inline constexpr const char* kTagUsId = "UsId";
inline constexpr const char* kTagIBief = "iBief";
inline constexpr const char* kTagILink = "iLink";

}  // namespace pluvane
