#include "simulation/model_text_file.h"

#include <algorithm>
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
  // Plain ASCII, most lines, is the same in both encodings.
  const bool ascii = std::all_of(text.begin(), text.end(),
                                 [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (ascii) {
    out_.write(text.data(), static_cast<std::streamsize>(text.size()));
  } else {
    const std::string bytes = Utf8ToCp1252(text);
    out_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }
  out_.write("\r\n", 2);
  if (!out_) throw FileError(EIO);
}

void ModelTextFile::Flush() {
  out_.flush();
  if (!out_) throw FileError(EIO);
}

}  // namespace pluvane
