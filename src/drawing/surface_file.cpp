// The surface's files and clipboard: the native network file, the defaults'
// picture, and the object list copied between drawings.
#include <algorithm>

#include "drawing/atomic_file.h"
#include "drawing/network_file.h"
#include "drawing/surface.h"
#include "drawing/surface_edits.h"

namespace pluvane {

bool Surface::LoadFile(const std::string& path, int mode) {
  if (mode == 1) {
    std::string bytes;
    if (!ReadWholeFile(path, bytes)) return false;
    const int saved = current_;
    current_ = kDefaults;
    SetObjectPicture(path);
    current_ = saved;
    return true;
  }
  if (mode != 0 && mode != 2) return false;
  NetworkDocument document;
  if (!ReadNetworkFile(path, names_, document)) return false;
  if (mode == 2) {
    AddObjects(std::move(document.objects));
    Refresh();
    return true;
  }
  Reset();
  page_ = document.page;
  page_extra_ = std::move(document.page_extra);
  document_extra_ = std::move(document.document_extra);
  {
    Step step(*this);
    InsertBatch(std::move(document.objects), true);
  }
  journal_.Reset();
  current_ = kPage;
  Refresh();
  return true;
}

bool Surface::SaveFile(const std::string& path, int format, int /*flag*/) {
  file_format_ = format;
  if (format != kNativeFormat) return false;
  std::vector<const SurfaceObject*> objects;
  objects.reserve(static_cast<std::size_t>(live_count_));
  // Position of each object in the file, by slot.
  std::vector<std::int32_t> position(slots_.size(), -1);
  for (std::size_t slot = 0; slot < slots_.size(); ++slot) {
    if (!slots_[slot]) continue;
    position[slot] = static_cast<std::int32_t>(objects.size());
    objects.push_back(slots_[slot].get());
  }
  const std::string text =
      WriteNetworkDocument(page_, page_extra_, document_extra_, objects, names_,
                           [&](std::int32_t end) { return position[SlotOf(end)]; });
  return WriteFileAtomically(path, text);
}

std::string Surface::CopySelection(int mode) const {
  std::vector<const SurfaceObject*> objects;
  std::vector<int> numbers;
  for (std::size_t slot = 0; slot < slots_.size(); ++slot) {
    const SurfaceObject* object = slots_[slot].get();
    if (object && (mode == 1 || object->selected)) {
      objects.push_back(object);
      numbers.push_back(NumberOfSlot(slot));
    }
  }
  auto position = [&](std::int32_t number) {
    auto at = std::lower_bound(numbers.begin(), numbers.end(), number);
    return at != numbers.end() && *at == number ? static_cast<std::int32_t>(at - numbers.begin())
                                                : -1;
  };
  // A link goes along only with both of its ends.
  std::vector<const SurfaceObject*> kept;
  std::vector<int> kept_numbers;
  for (std::size_t i = 0; i < objects.size(); ++i) {
    const SurfaceObject* object = objects[i];
    if (object->shape.kind == kKindLink &&
        (position(object->ends[0]) < 0 || position(object->ends[1]) < 0))
      continue;
    kept.push_back(object);
    kept_numbers.push_back(numbers[i]);
  }
  return WriteObjectList(kept, names_, [&](std::int32_t number) {
    return static_cast<std::int32_t>(
        std::lower_bound(kept_numbers.begin(), kept_numbers.end(), number) - kept_numbers.begin());
  });
}

int Surface::PasteClipboard(std::string_view text) {
  const auto blank = text.find_first_not_of(" \t\r\n");
  if (blank == std::string_view::npos) return 0;
  ObjectBatch objects;
  if (!ReadObjectList(text, names_, objects)) return 2;
  AddObjects(std::move(objects));
  Refresh();
  return 1;
}

int Surface::AddObjects(ObjectBatch objects) {
  Step step(*this);
  for (auto& object : slots_)
    if (object) Mark(*object, false);
  for (auto& object : objects) object->selected = true;
  return static_cast<int>(InsertBatch(std::move(objects), true).size());
}

}  // namespace pluvane
