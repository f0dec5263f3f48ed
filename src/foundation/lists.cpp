#include "foundation/lists.h"

#include "foundation/text.h"

namespace pluvane {

int FindInList(const std::vector<std::string>& list, std::string_view text) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (EqualsNoCase(list[i], text)) return static_cast<int>(i) + 1;
  }
  return 0;
}

int FindLong(const std::vector<std::int32_t>& list, std::int32_t value) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (list[i] == value) return static_cast<int>(i) + 1;
  }
  return 0;
}

bool IsDoubled(std::string_view text, const std::vector<std::string>& list) {
  int found = 0;
  for (const auto& entry : list) {
    if (EqualsNoCase(entry, text) && ++found == 2) return true;
  }
  return false;
}

int MarkInList(std::vector<std::string>& list, std::string_view text) {
  int changed = 0;
  for (auto& entry : list) {
    if (entry != "$" && EqualsNoCase(entry, text)) {
      entry = "$";
      ++changed;
    }
  }
  return changed;
}

bool IsAscending(const std::vector<double>& values, int& index) {
  if (values.size() < 2) return false;
  for (std::size_t i = 1; i < values.size(); ++i) {
    if (values[i] - values[i - 1] < 0.000001) {
      index = static_cast<int>(i) + 1;
      return false;
    }
  }
  return true;
}

}  // namespace pluvane
