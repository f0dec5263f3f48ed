#include "simulation/model_text_file.h"

#include <cerrno>

#include "foundation/errors.h"
#include "foundation/text.h"

namespace pluvane {

ModelTextFile::ModelTextFile(const std::string& path) {
  errno = 0;
  out_.open(path, std::ios::binary | std::ios::trunc);
  if (!out_) throw FileError(errno);
}

void ModelTextFile::Line(std::string_view text) {
  out_ << Utf8ToCp1252(text) << "\r\n";
  if (!out_) throw FileError(EIO);
}

void ModelTextFile::Flush() {
  out_.flush();
  if (!out_) throw FileError(EIO);
}

}  // namespace pluvane
