// Where the picture of a symbol lies. The catalogue names Windows metafiles
// while the shipped symbols are SVG: a name is looked up as it is, then with
// its base and ".svg", then ".png", each case-blind in the symbol folder.
#pragma once

#include <string>
#include <string_view>

namespace pluvane {

// The path of the first file found; empty when none is there.
std::string FindSymbolFile(const std::string& symbol_dir, std::string_view file_name);

}  // namespace pluvane
