// A model text file being written: each line in Windows-1252 and ended by
// CR LF, the file created anew. Failing to open or write it is a run-time
// error (AppError) that the generation driver catches.
#pragma once

#include <fstream>
#include <string>
#include <string_view>

namespace pluvane {

class ModelTextFile {
 public:
  // Creates (or empties) the file; throws AppError when it cannot be opened.
  explicit ModelTextFile(const std::string& path);
  ModelTextFile(const ModelTextFile&) = delete;
  ModelTextFile& operator=(const ModelTextFile&) = delete;

  void Line(std::string_view text);
  // Writes what is pending to the disk; throws AppError on a failure.
  void Flush();

 private:
  std::ofstream out_;
};

}  // namespace pluvane
