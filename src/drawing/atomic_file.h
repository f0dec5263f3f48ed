// Whole-file reading and the safe replacement of a file: the new content goes
// to a temporary file in the same folder, which is then renamed over the old
// one, so that a failed write never destroys what was there.
#pragma once

#include <string>
#include <string_view>

namespace pluvane {

// False when the file cannot be read.
bool ReadWholeFile(const std::string& path, std::string& bytes);
// False, with the old file untouched and no temporary file left, when the
// folder cannot take a new file or the write fails.
bool WriteFileAtomically(const std::string& path, std::string_view bytes);

}  // namespace pluvane
