#include "drawing/symbol_file.h"

#include "foundation/paths.h"
#include "foundation/text.h"

namespace pluvane {

std::string FindSymbolFile(const std::string& symbol_dir, std::string_view file_name) {
  if (Trim(file_name).empty()) return "";
  const std::string name(file_name);
  const std::size_t dot = name.rfind('.');
  const std::string base = dot == std::string::npos ? name : name.substr(0, dot);
  for (const std::string& candidate : {name, base + ".svg", base + ".png"}) {
    std::string found = FindFileNoCase(symbol_dir, candidate);
    if (!found.empty()) return found;
  }
  return "";
}

}  // namespace pluvane
