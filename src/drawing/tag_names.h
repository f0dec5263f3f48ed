// Tag names interned as small integers: a drawing holds the same few dozen
// names on thousands of objects, so each object keeps numbers and compares
// numbers, and the text of each name is held once.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pluvane {

// Hash of texts that finds a std::string key from a std::string_view. Not
// noexcept on purpose: the standard library then keeps each key's hash in its
// node, as it does for std::hash<std::string>, instead of hashing the keys of
// a bucket again at every look-up (which made the Id index of a large network
// slow to fill).
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const {
    return std::hash<std::string_view>{}(text);
  }
};

class TagNames {
 public:
  // The number of a name, giving it one if it has none yet.
  std::uint32_t Intern(std::string_view name);
  // The number of a name already known.
  std::optional<std::uint32_t> Find(std::string_view name) const;
  const std::string& Name(std::uint32_t id) const { return names_[id]; }

 private:
  std::unordered_map<std::string, std::uint32_t, TextHash, std::equal_to<>> ids_;
  std::vector<std::string> names_;
};

}  // namespace pluvane
