// Text as the program holds it: UTF-8 strings in memory, Windows-1252 with
// CR LF in the files it writes, UTF-8 or Windows-1252 in the files it reads.
// Widths and positions count characters, not bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pluvane {

// Removes blanks (character 32) from both ends; tabs stay.
std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);

// Capitals and small letters of ASCII and of the Windows-1252 letters
// (é -> É, œ -> Œ, ÿ -> Ÿ); other characters are kept.
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);
// Equality of the upper-cased forms.
bool EqualsNoCase(std::string_view a, std::string_view b);

// Character counts and slices of UTF-8 text; `start` is 1-based as the old
// string functions were. Out-of-range arguments give what is there.
std::size_t CharCount(std::string_view text);
std::string CharLeft(std::string_view text, std::size_t count);
std::string CharRight(std::string_view text, std::size_t count);
std::string CharMid(std::string_view text, std::size_t start, std::size_t count = std::string::npos);
// 1-based character position of `what` in `text` from character `start`, 0 if absent.
std::size_t CharFind(std::string_view text, std::string_view what, std::size_t start = 1);

// True when the bytes are valid UTF-8.
bool IsValidUtf8(std::string_view bytes);
// File bytes to UTF-8: kept when valid UTF-8, else read as Windows-1252.
std::string DecodeText(std::string_view bytes);
// Windows-1252 bytes to UTF-8.
std::string Cp1252ToUtf8(std::string_view bytes);
// UTF-8 to Windows-1252 bytes; a character without a Windows-1252 byte becomes '?'.
std::string Utf8ToCp1252(std::string_view text);

// The lines of a text file, decoded; LF and CR LF both end a line, and a last
// line without an end counts. False when the file cannot be opened.
bool ReadTextLines(const std::string& path, std::vector<std::string>& lines);
// The whole text of a file, decoded the same way, its line ends as they stand.
// False when the file cannot be opened.
bool ReadTextFile(const std::string& path, std::string& text);
// Writes lines in Windows-1252, each ended by CR LF, replacing the file.
bool WriteTextLines(const std::string& path, const std::vector<std::string>& lines);

// Appends lines in Windows-1252, each ended by CR LF; creates the file.
bool AppendTextLines(const std::string& path, const std::vector<std::string>& lines);

// The text between the first two apostrophes, trimmed; an unclosed quote takes
// the rest of the line. `position` gets the 1-based place of the first
// apostrophe, 0 (and an empty result) when there is none.
std::string QuotedPart(std::string_view line, int& position);

}  // namespace pluvane
