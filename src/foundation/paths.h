// Paths and files: existence, folders, taking a path apart, counting and
// appending lines, deleting by pattern, and finding a file that another
// program wrote whatever the case of its name. Both "\" and "/" separate when
// a path is taken apart; paths are built with the platform separator and keep
// their case.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/user_interface.h"

namespace pluvane {

// True if `path` is an existing plain file (a folder is not a file).
bool FileExist(const std::string& path);
// True if `path` is an existing folder.
bool FolderExist(const std::string& path);
// Creates the folder (one level); false when it could not be made, also when
// it exists already.
bool MakeFolder(const std::string& path);

// `folder` + separator + `name`; an empty folder gives the name alone, and a
// folder that already ends with a separator gets no second one.
std::string JoinPath(std::string_view folder, std::string_view name);

// Takes a trimmed path apart: the folder (trimmed, without its final
// separator; "/" stays for the root), the file name, its base up to the first
// "." and the extension behind it. Blanks behind each separator are dropped.
void SplitPath(std::string_view path, std::string& folder, std::string& name, std::string& base,
               std::string& extension);
std::string DirOf(std::string_view path);
std::string FileNameOf(std::string_view path);
// Base and extension of the name on disk of an existing file, found case-blind
// in its folder; empty when the file does not exist.
std::string BaseOf(const std::string& path);
std::string ExtOf(const std::string& path);

// The path of the file of `folder` whose name equals `name` case-blind (the
// exact name first, else the first such name in sorted order); empty if none.
std::string FindFileNoCase(const std::string& folder, std::string_view name);

// True when `name` matches the pattern with "*" and "?", case-blind; "*.*"
// matches every name.
bool MatchesPattern(std::string_view name, std::string_view pattern);

// Number of lines of a text file (0 for an empty file). Throws AppError when
// the file cannot be read.
std::int32_t CountLines(const std::string& file);
// Appends every line of `source` to `destination` in Windows-1252, each ended
// by CR LF; creates the destination; a missing source does nothing. Throws
// AppError when a file cannot be read or written.
void AppendFile(const std::string& source, const std::string& destination);
// Deletes the plain files of `folder` matching `pattern` and returns how many.
// On a failure reports it through ShowError ("vbFileKill " and the file) and
// returns 0.
int vbFileKill(UserInterface& ui, const std::string& folder, std::string_view pattern);
// Makes `path` the current folder of the process; throws AppError on failure.
void ChangeDir(const std::string& path);
// `path` made whole against `base` (an absolute path stays as it is), with
// its "." and ".." parts resolved. An empty path stays empty. The programs
// read the paths of their command line through it before anything changes the
// current folder.
std::string AbsolutePath(const std::string& path, const std::string& base);

}  // namespace pluvane
