// The recorded edits shared by the files that implement Surface: the undo
// step of one operation and the templates that record a shape or page change
// before making it. Private to the surface's implementation.
#pragma once

#include "network/surface.h"

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
  SurfaceObject* object = number == kDefaults ? &defaults_ : Object(number);
  if (!object) return;
  if (!Fresh(*object))
    journal_.Add(ShapeRecord{number, std::make_unique<Shape>(object->shape)});
  edit(object->shape);
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
  journal_.Add(PageRecord{std::make_unique<PageState>(page_)});
  edit(page_);
}

}  // namespace pluvane
