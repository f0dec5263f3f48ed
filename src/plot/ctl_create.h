// The translation of one page file of a plot script into its control file:
// the page line, then per frame its frame, scale, grid and curve lines, then
// the comments, each field in its fixed columns.
#pragma once

#include <string>

#include "foundation/user_interface.h"

namespace pluvane {

// At most this many frames in a page, and comments kept from a page.
inline constexpr int kMaxFrames = 20;
inline constexpr int kMaxComments = 500;

// Writes `ctl_file` from `page_file` (found whatever the case of its name) in
// four passes. More than 20 frames shows its message and leaves an empty
// control file; a trapped file error shows its message and leaves what was
// there. Both give false, and the caller goes on.
bool CtlCreate(UserInterface& ui, const std::string& page_file, const std::string& ctl_file);

}  // namespace pluvane
