// Writing a tag of one element from a form that keeps the element's number,
// the cursor of the drawing left where it was (reading is TagOfObject).
#pragma once

#include <string_view>

#include "drawing/surface.h"

namespace pluvane {

void SetTagOfObject(Surface& surface, int element, std::string_view name, std::string_view value);

}  // namespace pluvane
