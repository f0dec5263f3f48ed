// Searches and checks on the small lists the forms keep (labels, numbers,
// table columns). Indexes in results are 1-based, 0 meaning "none".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pluvane {

// Index of the first entry equal to `text`, case-blind; 0 if none.
int FindInList(const std::vector<std::string>& list, std::string_view text);

// Index of the first entry equal to `value`; 0 if none or if the list is empty.
int FindLong(const std::vector<std::int32_t>& list, std::int32_t value);

// True as soon as two entries equal `text`, case-blind.
bool IsDoubled(std::string_view text, const std::vector<std::string>& list);

// Overwrites each entry equal to `text` (case-blind) with "$" and returns how
// many it changed; an entry that already is "$" is neither changed nor counted.
int MarkInList(std::vector<std::string>& list, std::string_view text);

// True when each value exceeds the one before by at least 0.000001. False for
// fewer than two values (`index` untouched), or with `index` set to the first
// value that fails.
bool IsAscending(const std::vector<double>& values, int& index);

}  // namespace pluvane
