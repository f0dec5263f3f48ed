// Settings files read and written key by key as the Windows profile functions
// did: section and key names match case-blind (accents kept), blanks and tabs
// around names and values do not count, a value in quotes loses them, lines
// starting with ";" are comments. Files are read as UTF-8 or Windows-1252 and
// written in Windows-1252 with CR LF.
#pragma once

#include <string>
#include <string_view>

namespace pluvane {

// The value of `key` in `section`, cut to buffer_size - 1 characters; empty
// when the file, the section or the key is missing.
std::string IniRead(std::string_view section, std::string_view key, int buffer_size,
                    const std::string& ini_file);

// Sets `key` of `section` to `value`: the key's line is rewritten in place, a
// new key goes after the last key of its section, a new section at the end of
// the file, a missing file is created. Every other line is kept as it was. The
// file is replaced at once (written beside it, then renamed). False when a
// name is empty or the file cannot be written.
bool IniWrite(std::string_view section, std::string_view key, std::string_view value,
              const std::string& ini_file);

}  // namespace pluvane
