#include "simulation/rain_block.h"

#include <cerrno>
#include <filesystem>
#include <vector>

#include "foundation/errors.h"
#include "foundation/line_parsing.h"
#include "foundation/paths.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

bool IsHead(UserInterface& ui, const std::string& line, const std::string& keyword,
            const std::string& rain_name) {
  std::vector<std::string> elements;
  if (SplitLine(ui, line, elements) < 2) return false;
  int position = 0;
  return UCase(elements[0]) == UCase(keyword) &&
         UCase(QuotedPart(elements[1], position)) == UCase(rain_name);
}

bool EndsBlock(const std::string& line) {
  const std::string start = UCase(CharLeft(line, 2));
  return start == "PR" || start == "PP";
}

}  // namespace

bool ExtractRainBlock(UserInterface& ui, const std::string& keyword, const std::string& source,
                      const std::string& destination, const std::string& rain_name) {
  TextReader reader(source);
  if (!reader.IsOpen()) throw FileError(ENOENT);
  bool found = false;
  std::string line;
  while (reader.ReadLine(line)) {
    line = Trim(line);
    if (!IsHead(ui, line, keyword, rain_name)) continue;
    std::vector<std::string> block{line};
    // Once a block was found, a later one of the same name leaves its head line alone.
    while (!found && !reader.AtEnd()) {
      reader.ReadLine(line);
      line = Trim(line);
      if (reader.AtEnd() || EndsBlock(line)) break;
      block.push_back(line);
    }
    if (!WriteTextLines(destination, block)) throw FileError(errno != 0 ? errno : EACCES);
    found = true;
  }
  return found;
}

void CopyExternalRain(UserInterface& ui, const std::string& keyword, const std::string& source,
                      const std::string& destination, const std::string& rain_name) {
  if (ExtractRainBlock(ui, keyword, source, destination, rain_name)) return;
  if (EqualsNoCase(FileNameOf(destination), FileNameOf(source))) return;
  std::error_code error;
  std::filesystem::copy_file(source, destination, std::filesystem::copy_options::overwrite_existing,
                             error);
  if (error) throw FileError(error.value());
}

}  // namespace pluvane
