#include "drawing/tag_names.h"

namespace pluvane {

std::uint32_t TagNames::Intern(std::string_view name) {
  auto found = ids_.find(name);
  if (found != ids_.end()) return found->second;
  const auto id = static_cast<std::uint32_t>(names_.size());
  names_.emplace_back(name);
  ids_.emplace(std::string(name), id);
  return id;
}

std::optional<std::uint32_t> TagNames::Find(std::string_view name) const {
  auto found = ids_.find(name);
  if (found == ids_.end()) return std::nullopt;
  return found->second;
}

}  // namespace pluvane
