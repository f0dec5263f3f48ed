#include "drawing/surface.h"

#include <algorithm>
#include <array>

#include "drawing/object_tags.h"
#include "drawing/stacking_order.h"
#include "foundation/numbers.h"
#include "drawing/surface_edits.h"

namespace pluvane {

Surface::Surface() : id_name_(names_.Intern(kTagId)) {}

Surface::~Surface() = default;

// ---------------------------------------------------------------------------
// Object storage

SurfaceObject* Surface::Object(int number) {
  if (number < base_) return nullptr;
  const std::size_t slot = SlotOf(number);
  return slot < slots_.size() ? slots_[slot].get() : nullptr;
}

const SurfaceObject* Surface::Object(int number) const {
  return const_cast<Surface*>(this)->Object(number);
}

const Shape* Surface::ObjectShape(int number) const {
  if (number == kDefaults) return &defaults_.shape;
  const SurfaceObject* object = Object(number);
  return object ? &object->shape : nullptr;
}

std::vector<int> Surface::WriteTargets() const {
  std::vector<int> targets;
  if (CurrentReal()) {
    targets.push_back(current_);
  } else if (current_ == kSelection || current_ == kAllObjects) {
    for (std::size_t slot = 0; slot < slots_.size(); ++slot) {
      const SurfaceObject* object = slots_[slot].get();
      if (object && (current_ == kAllObjects || object->selected))
        targets.push_back(NumberOfSlot(slot));
    }
  }
  return targets;
}

const Shape& Surface::ReadShape() const {
  static const Shape kNone;
  if (current_ == kDefaults) return defaults_.shape;
  const SurfaceObject* object = CurrentReal();
  return object ? object->shape : kNone;
}

int Surface::NextLive(int after) const {
  std::size_t slot = after < base_ ? 0 : SlotOf(after) + 1;
  for (; slot < slots_.size(); ++slot)
    if (slots_[slot]) return NumberOfSlot(slot);
  return 0;
}

int Surface::NextSelectedAfter(int after) const {
  std::size_t slot = after < base_ ? 0 : SlotOf(after) + 1;
  for (; slot < slots_.size(); ++slot)
    if (slots_[slot] && slots_[slot]->selected) return NumberOfSlot(slot);
  return 0;
}

// ---------------------------------------------------------------------------
// Recorded changes

bool Surface::Fresh(const SurfaceObject& object) const {
  return journal_.IsOpen() && object.born_step == journal_.OpenId();
}

void Surface::IndexIds(int number, const SurfaceObject& object, bool add) {
  const auto id = FirstId(object);
  if (!id) return;
  if (add) {
    // One look-up; an Id is short enough to need no allocation of its own.
    id_index_.try_emplace(std::string(*id)).first->second.Insert(number);
    return;
  }
  auto found = id_index_.find(*id);
  if (found == id_index_.end()) return;
  found->second.Erase(number);
  if (found->second.Empty()) id_index_.erase(found);
}

std::optional<std::string_view> Surface::FirstId(const SurfaceObject& object) const {
  return FirstTag(object, id_name_);
}

std::optional<std::string> Surface::IdOf(const SurfaceObject& object) const {
  const auto id = FirstId(object);
  return id ? std::optional<std::string>(*id) : std::nullopt;
}

// Called after a change of tags that may have touched the Id, with the first
// Id as it was before.
void Surface::ReindexAround(int number, const std::optional<std::string>& old_id) {
  const SurfaceObject* object = Object(number);
  if (!object) return;
  const auto new_id = FirstId(*object);
  if (old_id && new_id && *old_id == *new_id) return;
  if (!old_id && !new_id) return;
  if (old_id) {
    SurfaceObject ghost;
    ghost.tags.Append(id_name_, *old_id);
    IndexIds(number, ghost, false);
  }
  if (new_id) IndexIds(number, *object, true);
}

void Surface::Attach(int number, std::unique_ptr<SurfaceObject> object, bool bind_ends) {
  ++shape_revision_;
  ++tag_revision_;
  SurfaceObject& placed = *object;
  slots_[SlotOf(number)] = std::move(object);
  ++live_count_;
  if (placed.selected) ++selected_count_;
  IndexIds(number, placed, true);
  if (bind_ends && placed.shape.kind == kKindLink) {
    for (int end : placed.ends) {
      if (SurfaceObject* end_object = Object(end)) {
        auto& links = end_object->links;
        auto at = std::lower_bound(links.begin(), links.end(), number);
        if (at == links.end() || *at != number) links.insert(at, number);
      }
    }
  }
}

// Binds the links of the batch numbered from `first` to their ends, which are
// in the batch too. The batch is read once in order (which objects can be
// ends, and each link's ends), and the ends are then given their links in
// order, each in one piece: nothing jumps from end to end across a large
// drawing.
void Surface::BindBatchLinks(int first, int count) {
  const auto position = [&](int number) { return static_cast<std::size_t>(number - first); };
  std::vector<char> can_end(static_cast<std::size_t>(count), 0);
  struct LinkEnds {
    int number;
    std::array<int, 2> ends;
  };
  std::vector<LinkEnds> batch_links;
  for (int number = first; number < first + count; ++number) {
    const SurfaceObject* object = Object(number);
    if (!object) continue;
    if (object->shape.kind != kKindLink) {
      can_end[position(number)] = 1;
      continue;
    }
    std::array<int, 2> ends{object->ends[0], object->ends[1]};
    if (ends[1] == ends[0]) ends[1] = -1;
    batch_links.push_back({number, ends});
  }
  std::vector<int> start(static_cast<std::size_t>(count) + 1, 0);
  for (LinkEnds& link : batch_links) {
    for (int& end : link.ends) {
      if (end < first || end >= first + count || !can_end[position(end)]) {
        end = -1;
      } else {
        ++start[position(end) + 1];
      }
    }
  }
  for (std::size_t i = 1; i < start.size(); ++i) start[i] += start[i - 1];
  std::vector<int> bound(static_cast<std::size_t>(start.back()));
  std::vector<int> filled(start.begin(), start.end() - 1);
  for (const LinkEnds& link : batch_links) {
    for (int end : link.ends)
      if (end >= 0) bound[static_cast<std::size_t>(filled[position(end)]++)] = link.number;
  }
  for (int number = first; number < first + count; ++number) {
    const std::size_t at = position(number);
    if (start[at] == start[at + 1]) continue;
    // Numbers of the batch are above every number already bound, so the
    // links stay ascending.
    auto& links = Object(number)->links;
    links.insert(links.end(), bound.begin() + start[at], bound.begin() + start[at + 1]);
  }
}

std::unique_ptr<SurfaceObject> Surface::Detach(int number) {
  ++shape_revision_;
  ++tag_revision_;
  std::unique_ptr<SurfaceObject> object = std::move(slots_[SlotOf(number)]);
  --live_count_;
  if (object->selected) --selected_count_;
  IndexIds(number, *object, false);
  if (object->shape.kind == kKindLink) {
    for (int end : object->ends) {
      if (SurfaceObject* end_object = Object(end)) {
        auto& links = end_object->links;
        links.erase(std::remove(links.begin(), links.end(), number), links.end());
      }
    }
  }
  return object;
}

int Surface::InsertNew(SurfaceObject object) {
  std::vector<SurfaceObject> batch;
  batch.push_back(std::move(object));
  return InsertBatch(std::move(batch), false).front();
}

std::vector<int> Surface::InsertBatch(std::vector<SurfaceObject> objects, bool ends_by_position) {
  ObjectBatch batch;
  batch.reserve(objects.size());
  for (SurfaceObject& object : objects)
    batch.push_back(std::make_unique<SurfaceObject>(std::move(object)));
  objects.clear();
  return InsertBatch(std::move(batch), ends_by_position);
}

std::vector<int> Surface::InsertBatch(ObjectBatch objects, bool ends_by_position) {
  const int first = base_ + static_cast<int>(slots_.size());
  const int count = static_cast<int>(objects.size());
  slots_.resize(slots_.size() + objects.size());
  id_index_.reserve(id_index_.size() + objects.size());
  // Stacked above everything, keeping the order of their own layers.
  for (std::size_t i : StackingOrder(objects.size(),
                                     [&](std::size_t at) { return objects[at]->shape.layer; }))
    objects[i]->shape.layer = ++top_layer_;
  // Ends first, so that every link finds its ends in place (undo detaches in
  // the reverse order, links first).
  std::vector<int> numbers(objects.size());
  for (int pass = 0; pass < 2; ++pass) {
    for (int i = 0; i < count; ++i) {
      if (!objects[i]) continue;  // placed in the first pass
      SurfaceObject& object = *objects[i];
      const bool link = object.shape.kind == kKindLink;
      if (link != (pass == 1)) continue;
      if (link && ends_by_position) {
        for (auto& end : object.ends) end += first;
      }
      object.born_step = journal_.OpenId();
      object.links.clear();
      numbers[i] = first + i;
      Attach(numbers[i], std::move(objects[i]), !ends_by_position);
      journal_.Add(ExistsRecord{numbers[i], nullptr});
      // A link read without its vertices runs between the centres of its ends.
      if (link && Object(numbers[i])->shape.points.size() < 2) PlaceLinkEnds(numbers[i]);
    }
  }
  if (ends_by_position) BindBatchLinks(first, count);
  return numbers;
}

void Surface::Remove(int number) {
  if (!Object(number)) return;
  journal_.Add(ExistsRecord{number, Detach(number)});
}

void Surface::WriteTag(int number, std::uint32_t name, std::string_view value) {
  SurfaceObject* object = Object(number);
  if (!object) return;
  const std::size_t at = object->tags.Find(name);
  if (at < object->tags.size()) {
    WriteTagValue(number, at, value);
    return;
  }
  TagBlock tail;
  tail.Append(name, value);
  ReplaceTagTail(number, object->tags.size(), std::move(tail));
}

void Surface::WriteTagValue(int number, std::size_t position, std::string_view value) {
  const SurfaceObject* object = Object(number);
  if (!object || position >= object->tags.size() || object->tags.Value(position) == value) return;
  Commit(TagValueRecord{number, static_cast<std::uint32_t>(position), std::string(value)}, *object);
}

void Surface::WriteTagName(int number, std::size_t position, std::uint32_t name) {
  const SurfaceObject* object = Object(number);
  if (!object || position >= object->tags.size() || object->tags.Name(position) == name) return;
  Commit(TagNameRecord{number, static_cast<std::uint32_t>(position), name}, *object);
}

void Surface::ReplaceTagTail(int number, std::size_t position, TagBlock tail) {
  const SurfaceObject* object = Object(number);
  if (!object || position > object->tags.size()) return;
  Commit(TagTailRecord{number, static_cast<std::uint32_t>(position), std::move(tail)}, *object);
}

void Surface::Commit(JournalRecord record, const SurfaceObject& object) {
  const bool fresh = Fresh(object);
  Apply(record);
  if (!fresh) journal_.Add(std::move(record));
}

// ---------------------------------------------------------------------------
// Undo and redo

void Surface::Apply(JournalRecord& record) {
  if (auto* exists = std::get_if<ExistsRecord>(&record)) {
    if (exists->object) {
      Attach(exists->number, std::move(exists->object));
    } else if (Object(exists->number)) {
      exists->object = Detach(exists->number);
    }
  } else if (auto* shape = std::get_if<ShapeRecord>(&record)) {
    SurfaceObject* object = shape->number == kDefaults ? &defaults_ : Object(shape->number);
    if (object) std::swap(object->shape, *shape->shape);
    ++shape_revision_;
  } else if (auto* value = std::get_if<TagValueRecord>(&record)) {
    SurfaceObject* object = Object(value->number);
    if (!object || value->position >= object->tags.size()) return;
    TagBlock& tags = object->tags;
    TagsChanged(tags.Name(value->position));
    const bool id = tags.Name(value->position) == id_name_;
    const auto old_id = id ? IdOf(*object) : std::nullopt;
    std::string old(tags.Value(value->position));
    tags.SetValue(value->position, value->value);
    value->value = std::move(old);
    if (id) ReindexAround(value->number, old_id);
  } else if (auto* name = std::get_if<TagNameRecord>(&record)) {
    SurfaceObject* object = Object(name->number);
    if (!object || name->position >= object->tags.size()) return;
    const auto old_id = IdOf(*object);
    const std::uint32_t old = object->tags.Name(name->position);
    TagsChanged(old);
    TagsChanged(name->name);
    object->tags.SetName(name->position, name->name);
    name->name = old;
    ReindexAround(name->number, old_id);
  } else if (auto* tail = std::get_if<TagTailRecord>(&record)) {
    SurfaceObject* object = Object(tail->number);
    if (!object || tail->position > object->tags.size()) return;
    const auto old_id = IdOf(*object);
    TagBlock old = object->tags.Tail(tail->position);
    for (const Tag tag : old) TagsChanged(tag.name);
    for (const Tag tag : tail->tail) TagsChanged(tag.name);
    object->tags.Truncate(tail->position);
    object->tags.Extend(tail->tail);
    tail->tail = std::move(old);
    ReindexAround(tail->number, old_id);
  } else if (auto* page = std::get_if<PageRecord>(&record)) {
    std::swap(page_, *page->page);
  }
}

void Surface::BeginStep(std::string_view label) { journal_.Begin(label); }

void Surface::EndStep() { journal_.End(); }

bool Surface::Undo() {
  JournalStep* step = journal_.TakeUndo();
  if (!step) return false;
  for (auto record = step->records.rbegin(); record != step->records.rend(); ++record)
    Apply(*record);
  Refresh();
  return true;
}

bool Surface::Redo() {
  JournalStep* step = journal_.TakeRedo();
  if (!step) return false;
  for (JournalRecord& record : step->records) Apply(record);
  Refresh();
  return true;
}

// ---------------------------------------------------------------------------
// Cursor and tags

void Surface::SetCurrentObject(int number) {
  if (number == 0 || number == kAllObjects || number == kSelection || number == kDefaults ||
      number == kPage || Object(number))
    current_ = number;
}

std::string Surface::ObjTag(std::string_view name) const {
  const SurfaceObject* object = CurrentReal();
  if (!object) return {};
  const auto id = names_.Find(name);
  if (!id) return {};
  const auto value = FirstTag(*object, *id);
  return value ? std::string(*value) : std::string();
}

void Surface::SetObjTag(std::string_view name, std::string_view value) {
  Step step(*this);
  const std::uint32_t id = names_.Intern(name);
  for (int number : WriteTargets()) WriteTag(number, id, value);
}

void Surface::SetObjTag(std::string_view name, double value) { SetObjTag(name, NumToText(value)); }

void Surface::TagsChanged(std::uint32_t name) {
  for (TagIndex& index : tag_indexes_)
    if (index.name == name) index.asked = index.built = 0;
}

const Surface::TagIndex* Surface::IndexOfTagNow(std::uint32_t name) const {
  const TagIndex* index = IndexOfTag(name);
  return index ? index : IndexOfTag(name);
}

const Surface::TagIndex* Surface::IndexOfTag(std::uint32_t name) const {
  constexpr std::size_t kMaxValues = 64;
  constexpr std::size_t kMaxNames = 8;
  auto index = std::find_if(tag_indexes_.begin(), tag_indexes_.end(),
                            [name](const TagIndex& entry) { return entry.name == name; });
  if (index == tag_indexes_.end()) {
    if (tag_indexes_.size() >= kMaxNames) tag_indexes_.clear();
    tag_indexes_.push_back(TagIndex{name, tag_revision_, 0, false, {}});
    return nullptr;
  }
  if (index->built == tag_revision_) return index->usable ? &*index : nullptr;
  // A search between two changes of tags reads the drawing as it goes.
  if (index->asked != tag_revision_) {
    index->asked = tag_revision_;
    return nullptr;
  }
  index->built = tag_revision_;
  index->usable = false;
  index->values.clear();
  for (std::size_t slot = 0; slot < slots_.size(); ++slot) {
    const SurfaceObject* object = slots_[slot].get();
    if (!object) continue;
    const std::size_t at = object->tags.Find(name);
    if (at == object->tags.size()) continue;
    const std::string_view text = object->tags.Value(at);
    auto value = std::find_if(index->values.begin(), index->values.end(),
                              [text](const auto& entry) { return entry.first == text; });
    if (value == index->values.end()) {
      if (index->values.size() == kMaxValues) {
        index->values.clear();
        return nullptr;
      }
      index->values.emplace_back(std::string(text), std::vector<int>());
      value = index->values.end() - 1;
    }
    value->second.push_back(NumberOfSlot(slot));
  }
  index->usable = true;
  return &*index;
}

int Surface::FindByTag(std::string_view tag_name, const TagMatch& value, bool first) {
  const int found = FindByTagFrom(tag_name, value, (first || current_ < base_) ? 0 : current_);
  current_ = found ? found : kPage;
  return found;
}

int Surface::FindById(std::string_view id) const {
  auto found = id_index_.find(id);
  return found == id_index_.end() ? 0 : found->second.Front();
}

int Surface::CountById(std::string_view id) const {
  auto found = id_index_.find(id);
  return found == id_index_.end() ? 0 : found->second.Size();
}

int Surface::FirstObject() {
  const int number = NextLive(0);
  current_ = number ? number : kPage;
  return number;
}

int Surface::NextObject() {
  const int number = current_ >= kFirstObjectNumber ? NextLive(current_) : 0;
  current_ = number ? number : kPage;
  return number;
}

int Surface::FirstSelected() {
  const int number = NextSelectedAfter(0);
  current_ = number ? number : kSelection;
  return number;
}

int Surface::NextSelected() {
  const int number = current_ >= kFirstObjectNumber ? NextSelectedAfter(current_) : 0;
  current_ = number ? number : kSelection;
  return number;
}

int Surface::ObjectCount(int list) const {
  if (list == kSelection) return selected_count_;
  if (list == kPage || list == kAllObjects) return live_count_;
  return 0;
}

int Surface::ObjectKind() const {
  const SurfaceObject* object = CurrentReal();
  return object ? object->shape.kind : 0;
}

void Surface::SetObjectKind(int kind) {
  // Only a change between closed forms: a link stays a link, a group a group.
  auto closed = [](int k) { return IsKnownKind(k) && k != kKindLink && k != kKindGroup; };
  if (!closed(kind)) return;
  Step step(*this);
  for (int number : WriteTargets()) {
    if (closed(Object(number)->shape.kind))
      EditShape(number, [kind](Shape& shape) { shape.kind = kind; });
  }
}

int Surface::ObjTagCount() const {
  const SurfaceObject* object = CurrentReal();
  return object ? static_cast<int>(object->tags.size()) : 0;
}

void Surface::SetObjTagCount(int count) {
  if (count < 0) return;
  Step step(*this);
  const std::uint32_t blank = names_.Intern("");
  for (int number : WriteTargets()) {
    const std::size_t size = Object(number)->tags.size();
    const auto wanted = static_cast<std::size_t>(count);
    if (wanted < size) {
      ReplaceTagTail(number, wanted, {});
    } else if (wanted > size) {
      TagBlock tail;
      tail.Assign(wanted - size, [blank](std::size_t) { return Tag{blank, {}}; });
      ReplaceTagTail(number, size, std::move(tail));
    }
  }
}

std::string Surface::ObjTagName(int index) const {
  const SurfaceObject* object = CurrentReal();
  if (!object || index < 0 || static_cast<std::size_t>(index) >= object->tags.size()) return {};
  return names_.Name(object->tags.Name(static_cast<std::size_t>(index)));
}

void Surface::SetObjTagName(int index, std::string_view name) {
  if (index < 0) return;
  Step step(*this);
  const std::uint32_t id = names_.Intern(name);
  for (int number : WriteTargets()) WriteTagName(number, static_cast<std::size_t>(index), id);
}

std::string Surface::ObjTagValue(int index) const {
  const SurfaceObject* object = CurrentReal();
  if (!object || index < 0 || static_cast<std::size_t>(index) >= object->tags.size()) return {};
  return std::string(object->tags.Value(static_cast<std::size_t>(index)));
}

void Surface::SetObjTagValue(int index, std::string_view value) {
  if (index < 0) return;
  Step step(*this);
  for (int number : WriteTargets()) WriteTagValue(number, static_cast<std::size_t>(index), value);
}

void Surface::SetObjTagValue(int index, double value) { SetObjTagValue(index, NumToText(value)); }

int Surface::NodeLinkCount() const {
  const SurfaceObject* object = CurrentReal();
  return object ? static_cast<int>(object->links.size()) : 0;
}

std::vector<int> Surface::LinksOf(int number) const {
  const SurfaceObject* object = Object(number);
  return object ? object->links : std::vector<int>();
}

// ---------------------------------------------------------------------------
// Selection

void Surface::Mark(SurfaceObject& object, bool selected) {
  if (object.selected == selected) return;
  object.selected = selected;
  selected_count_ += selected ? 1 : -1;
}

bool Surface::IsSelected(int number) const {
  const SurfaceObject* object = Object(number);
  return object && object->selected;
}

bool Surface::Selected() const {
  if (const SurfaceObject* object = CurrentReal()) return object->selected;
  if (current_ == kSelection) return selected_count_ > 0;
  if (current_ == kAllObjects) return live_count_ > 0 && selected_count_ == live_count_;
  return false;
}

void Surface::SetSelected(bool selected) {
  if (SurfaceObject* object = CurrentReal()) {
    Mark(*object, selected);
    return;
  }
  if (current_ != kAllObjects && current_ != kSelection) return;
  // Hidden records are never taken into a selection of everything.
  const bool select = selected && current_ == kAllObjects;
  if (!selected || select) {
    for (auto& object : slots_)
      if (object) Mark(*object, select && !object->shape.hidden);
  }
}

int Surface::SelectAll() {
  edit_mode_ = kEditSelection;
  const int saved = current_;
  current_ = kAllObjects;
  SetSelected(true);
  current_ = saved;
  return ObjectCount(kSelection);
}

void Surface::DeselectAll() {
  for (auto& object : slots_)
    if (object) Mark(*object, false);
  selection_enabled_ = true;
  Refresh();
}

// ---------------------------------------------------------------------------
// Creation and deletion

int Surface::AddObject(int kind, std::int32_t left, std::int32_t top, std::int32_t right,
                       std::int32_t bottom) {
  if (!IsKnownKind(kind) || kind == kKindLink || kind == kKindGroup) return 0;
  Step step(*this);
  SurfaceObject object;
  object.shape = defaults_.shape;
  object.shape.kind = kind;
  object.shape.text.string.clear();
  object.shape.box = Box{std::min(left, right), std::min(top, bottom), std::max(left, right),
                         std::max(top, bottom)};
  current_ = InsertNew(std::move(object));
  return current_;
}

int Surface::AddObjectAtDefaults(int kind) {
  const auto x = ToLong(view_left_ + view_width_ / 2);
  const auto y = ToLong(view_top_ + view_height_ / 2);
  return AddObject(kind, x, y, x, y);
}

int Surface::AddLink(int object1, int object2) {
  const SurfaceObject* a = Object(object1);
  const SurfaceObject* b = Object(object2);
  if (!a || !b || object1 == object2 || a->shape.kind == kKindLink || b->shape.kind == kKindLink)
    return 0;
  Step step(*this);
  SurfaceObject link;
  link.shape = defaults_.shape;
  link.shape.kind = kKindLink;
  link.shape.text.string.clear();
  link.shape.picture.clear();
  link.ends = {object1, object2};
  const int number = InsertNew(std::move(link));
  PlaceLinkEnds(number);
  current_ = number;
  return number;
}

int Surface::DeleteObject(int which) {
  std::vector<int> numbers;
  if (which == kSelection || which == kAllObjects) {
    const int saved = current_;
    current_ = which;
    numbers = WriteTargets();
    current_ = saved;
  } else if (which == kDefaults) {
    if (CurrentReal()) numbers.push_back(current_);
  } else if (Object(which)) {
    numbers.push_back(which);
  }
  if (numbers.empty()) return 0;
  Step step(*this);
  return DeleteWithLinks(numbers);
}

int Surface::DeleteWithLinks(const std::vector<int>& numbers) {
  std::vector<int> links;
  std::vector<int> others;
  for (int number : numbers) {
    const SurfaceObject* object = Object(number);
    if (!object) continue;
    if (object->shape.kind == kKindLink) {
      links.push_back(number);
    } else {
      others.push_back(number);
      links.insert(links.end(), object->links.begin(), object->links.end());
    }
  }
  std::sort(links.begin(), links.end());
  links.erase(std::unique(links.begin(), links.end()), links.end());
  int count = 0;
  for (const auto* list : {&links, &others}) {
    for (int number : *list) {
      if (!Object(number)) continue;
      Remove(number);
      ++count;
    }
  }
  return count;
}

void Surface::Reset() {
  base_ += static_cast<int>(slots_.size());
  slots_.clear();
  live_count_ = 0;
  selected_count_ = 0;
  id_index_.clear();
  ++tag_revision_;
  tag_indexes_.clear();
  journal_.Reset();
  top_layer_ = 0;
  bottom_layer_ = 0;
  current_ = 0;
  ++shape_revision_;
  document_extra_.clear();
  page_extra_.clear();
}

void Surface::ClearDrawing() {
  Reset();
  Refresh();
}

void Surface::SetRedraw(bool redraw) {
  redraw_ = redraw;
  if (redraw) Refresh();
}

void Surface::Refresh() {
  if (!redraw_) return;
  // A copy, so that a listener may remove itself (a view that closes).
  const auto listeners = listeners_;
  for (const auto& entry : listeners) entry.second();
}

int Surface::AddListener(std::function<void()> listener) {
  listeners_.emplace_back(++last_listener_, std::move(listener));
  return last_listener_;
}

void Surface::RemoveListener(int id) {
  std::erase_if(listeners_, [id](const auto& entry) { return entry.first == id; });
}

}  // namespace pluvane
