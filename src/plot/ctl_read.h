// Reading a control file back, one line at a time in step with drawing: each
// reader takes its fields by their columns and settles the defaults of blank
// fields. Only the scale line can be refused, with its message.
#pragma once

#include <string_view>

#include "foundation/user_interface.h"
#include "plot/ctl_records.h"

namespace pluvane {

// Line 1: the page code and its size and offsets (an unknown code is A4
// landscape), and the number of frames.
CtlPage ReadCtlPage(std::string_view line);

CtlFrame ReadCtlFrame(std::string_view line);

// Reads the scale line of frame `frame_rank` into `scale`, which holds the
// frame before's values. Reversed X or Y limits, or a date scale without its
// origin date, show their message and leave the rest of the line unread:
// false. A date that is no date raises AppError 13, as the conversion did.
bool ReadCtlScale(UserInterface& ui, std::string_view line, int frame_rank, CtlScale& scale);

CtlGrid ReadCtlGrid(std::string_view line);
CtlPlot ReadCtlPlot(std::string_view line);

// The count line of the comments.
int ReadCtlCount(std::string_view line);
CtlComment ReadCtlComment(std::string_view line);

}  // namespace pluvane
