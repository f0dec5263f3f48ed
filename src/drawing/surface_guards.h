// Two scope guards over the drawing: one puts CurrentObject back as it was
// found (the rule every helper keeps), the other brackets a user command as
// one undo step.
#pragma once

#include <string_view>

#include "drawing/surface.h"

namespace pluvane {

// Puts the cursor back on leaving, unless released.
class CursorKeeper {
 public:
  explicit CursorKeeper(Surface& surface) : surface_(surface), saved_(surface.CurrentObject()) {}
  ~CursorKeeper() {
    if (restore_ && saved_ >= 1) surface_.SetCurrentObject(saved_);
  }
  CursorKeeper(const CursorKeeper&) = delete;
  CursorKeeper& operator=(const CursorKeeper&) = delete;
  void Release() { restore_ = false; }
  int saved() const { return saved_; }

 private:
  Surface& surface_;
  int saved_;
  bool restore_ = true;
};

// One undo step for the whole scope; nested steps join the outer one.
class UndoStep {
 public:
  UndoStep(Surface& surface, std::string_view label) : surface_(surface) {
    surface_.BeginStep(label);
  }
  ~UndoStep() { surface_.EndStep(); }
  UndoStep(const UndoStep&) = delete;
  UndoStep& operator=(const UndoStep&) = delete;

 private:
  Surface& surface_;
};

}  // namespace pluvane
