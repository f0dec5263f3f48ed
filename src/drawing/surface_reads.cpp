// The const reads of the drawing: tags, kinds and searches by object number,
// which leave the cursor where it is.
#include "drawing/surface.h"

#include <algorithm>

#include "drawing/object_tags.h"

namespace pluvane {

std::optional<std::string_view> Surface::FirstTag(const SurfaceObject& object,
                                                  std::uint32_t name) {
  const std::size_t at = object.tags.Find(name);
  if (at == object.tags.size()) return std::nullopt;
  return object.tags.Value(at);
}

std::string_view Surface::TagOf(int number, std::string_view name) const {
  const SurfaceObject* object = Object(number);
  if (!object) return {};
  const auto id = names_.Find(name);
  if (!id) return {};
  return FirstTag(*object, *id).value_or(std::string_view());
}

int Surface::KindOf(int number) const {
  const SurfaceObject* object = Object(number);
  return object ? object->shape.kind : 0;
}

void Surface::ForEachTagOf(
    int number, const std::function<void(std::string_view, std::string_view)>& visit) const {
  const SurfaceObject* object = Object(number);
  if (!object) return;
  for (std::size_t i = 0; i < object->tags.size(); ++i)
    visit(names_.Name(object->tags.Name(i)), object->tags.Value(i));
}

int Surface::LinkEndOf(int number, int end) const {
  const SurfaceObject* object = Object(number);
  if (!object || object->shape.kind != kKindLink || (end != 0 && end != 1)) return 0;
  return object->ends[static_cast<std::size_t>(end)];
}

int Surface::FindByTagFrom(std::string_view name, const TagMatch& value, int after) const {
  if (name == kTagId && !value.numeric()) {
    const auto found = id_index_.find(value.text());
    return found == id_index_.end() ? 0 : found->second.After(after);
  }
  const auto id = names_.Find(name);
  if (!id) return 0;
  if (const TagIndex* index = IndexOfTag(*id)) {
    // The first holder of a matching value after the start.
    int found = 0;
    for (const auto& [text, numbers] : index->values) {
      if (!value.Matches(text)) continue;
      auto at = std::upper_bound(numbers.begin(), numbers.end(), after);
      if (at != numbers.end() && (found == 0 || *at < found)) found = *at;
    }
    return found;
  }
  for (std::size_t slot = after < base_ ? 0 : SlotOf(after) + 1; slot < slots_.size(); ++slot) {
    const SurfaceObject* object = slots_[slot].get();
    if (!object) continue;
    const auto text = FirstTag(*object, *id);
    if (text && value.Matches(*text)) return NumberOfSlot(slot);
  }
  return 0;
}

std::vector<int> Surface::FindAllByTag(std::string_view name, const TagMatch& value) const {
  // Ids come from their index.
  if (name == kTagId && !value.numeric()) {
    auto found = id_index_.find(value.text());
    return found == id_index_.end() ? std::vector<int>() : found->second.Numbers();
  }
  std::vector<int> numbers;
  const auto id = names_.Find(name);
  if (!id) return numbers;
  if (const TagIndex* index = IndexOfTagNow(*id)) {
    for (const auto& [text, holders] : index->values)
      if (value.Matches(text)) numbers.insert(numbers.end(), holders.begin(), holders.end());
    std::sort(numbers.begin(), numbers.end());
    return numbers;
  }
  for (int n = FindByTagFrom(name, value, 0); n > 0; n = FindByTagFrom(name, value, n))
    numbers.push_back(n);
  return numbers;
}

int Surface::CountByTag(std::string_view name, const TagMatch& value) const {
  if (name == kTagId && !value.numeric()) return CountById(value.text());
  return static_cast<int>(FindAllByTag(name, value).size());
}

std::vector<int> Surface::FindAllWhere(std::string_view name,
                                       const std::function<bool(std::string_view)>& keep) const {
  const auto found = FindAllWhereWithValues(name, keep);
  std::vector<int> numbers(found.size());
  std::transform(found.begin(), found.end(), numbers.begin(), [](auto& f) { return f.first; });
  return numbers;
}

std::vector<std::pair<int, std::string_view>> Surface::FindAllWhereWithValues(
    std::string_view name, const std::function<bool(std::string_view)>& keep) const {
  std::vector<std::pair<int, std::string_view>> found;
  const auto id = names_.Find(name);
  if (!id) return found;
  if (const TagIndex* index = IndexOfTagNow(*id)) {
    for (const auto& [text, holders] : index->values)
      if (keep(text))
        for (int n : holders) found.emplace_back(n, text);
    std::sort(found.begin(), found.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });
    return found;
  }
  for (std::size_t slot = 0; slot < slots_.size(); ++slot) {
    const SurfaceObject* object = slots_[slot].get();
    if (!object) continue;
    const auto text = FirstTag(*object, *id);
    if (text && keep(*text)) found.emplace_back(NumberOfSlot(slot), *text);
  }
  return found;
}

}  // namespace pluvane
