// Splitting the lines of the program's text files into their fields: the
// general splitter with quotes and any separator, the older fixed-count
// splitter of the node import, and the single-quoted keys of the data files.
// Element i of a result is held at index i - 1.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "foundation/user_interface.h"

namespace pluvane {

// Splits `line` on `separator` (an empty separator counts as one blank) and
// returns the number of elements; `elements` is cut to that number. A field in
// double quotes keeps its separators; the one character behind its closing
// quote is swallowed. A missing closing quote shows its message and gives 0.
int SplitLine(UserInterface& ui, std::string_view line, std::vector<std::string>& elements,
              std::string_view separator = " ");

// Fills elements 1 to n of blank-separated fields (the vector is grown to n if
// it is shorter). On a short line the missing fields become "0", except the
// last one, which keeps its old value. A missing closing quote beeps, shows its
// message and leaves the remaining elements as they were.
void GetEline(UserInterface& ui, std::string_view line, int n, std::vector<std::string>& elements);

// A text file opened for reading line by line (decoded as UTF-8 or
// Windows-1252, LF or CR LF). The whole text is read at once and the lines
// are handed out from it.
class TextReader {
 public:
  explicit TextReader(const std::string& path);
  bool IsOpen() const { return open_; }
  bool AtEnd() const { return next_ >= text_.size(); }
  // The next line; false at the end of the file.
  bool ReadLine(std::string& line);
  // The same without a copy: the view lasts as long as the reader.
  bool ReadLine(std::string_view& line);
  // What is left to read, line ends included.
  std::string_view Rest() const {
    return AtEnd() ? std::string_view() : std::string_view(text_).substr(next_);
  }

 private:
  std::string text_;
  std::size_t next_ = 0;
  bool open_ = false;
};

// Reads the next line, trims it and returns its single-quoted part (see
// QuotedPart); at the end of the file an empty text and position 0. When
// `raw_line` is given it receives the line as read.
std::string ReadQuoted(TextReader& reader, int& position, std::string* raw_line = nullptr);

// True when some line of the file has a single-quoted part equal to `key`,
// case-blind. A missing file shows its message and gives false.
bool FindQuotedKey(UserInterface& ui, const std::string& file, std::string_view key);

}  // namespace pluvane
