// The recorded edits shared by the files that implement Surface: the undo
// step of one operation and the templates that record a shape or page change
// before making it. Private to the surface's implementation.
#pragma once

#include "drawing/surface.h"

namespace pluvane {

// Opens an undo step for one operation unless a command's step is open.
class Surface::Step {
 public:
  explicit Step(Surface& surface, std::string_view label = {}) : journal_(surface.journal_) {
    journal_.Begin(label);
  }
  ~Step() { journal_.End(); }
  Step(const Step&) = delete;
  Step& operator=(const Step&) = delete;

 private:
  Journal& journal_;
};

template <typename Edit>
void Surface::EditShape(int number, Edit edit) {
  const SurfaceObject* object = number == kDefaults ? &defaults_ : Object(number);
  if (!object) return;
  auto shape = std::make_unique<Shape>(object->shape);
  edit(*shape);
  Commit(ShapeRecord{number, std::move(shape)}, *object);
}

template <typename Edit>
void Surface::EditStyle(Edit edit) {
  Step step(*this);
  if (current_ == kDefaults) {
    EditShape(kDefaults, edit);
    return;
  }
  for (int number : WriteTargets()) EditShape(number, edit);
}

template <typename Edit>
void Surface::EditPage(Edit edit) {
  Step step(*this);
  auto page = std::make_unique<PageState>(page_);
  edit(*page);
  JournalRecord record = PageRecord{std::move(page)};
  Apply(record);
  journal_.Add(std::move(record));
}

}  // namespace pluvane
