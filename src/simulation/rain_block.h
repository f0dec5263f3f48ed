// Taking one rain block out of a rain text file kept outside the network (the
// external gauge and hyetograph rains). The block runs from its head line to
// the next line that begins with "PR" or "PP"; the reading keeps two habits
// the engine's users know: a block that ends the file loses its last line,
// and the head that ends a block is swallowed, never tested as a match.
#pragma once

#include <string>

#include "foundation/user_interface.h"

namespace pluvane {

// Writes the block whose head has `keyword` as first field and `rain_name` as
// the quoted part of its second field (both compared in capitals) into
// `destination`, replacing it. A later block of the same head replaces the
// destination again. True when a block was found. An unreadable source
// throws AppError.
bool ExtractRainBlock(UserInterface& ui, const std::string& keyword, const std::string& source,
                      const std::string& destination, const std::string& rain_name);

// The step of the generation for an external rain: the block, or else the
// whole source copied over the destination, unless both have the same file
// name (then the source is taken to be the destination and stays as it is).
// Throws AppError when a file cannot be read or written.
void CopyExternalRain(UserInterface& ui, const std::string& keyword, const std::string& source,
                      const std::string& destination, const std::string& rain_name);

}  // namespace pluvane
