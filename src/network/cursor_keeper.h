// Puts the drawing's cursor back where it was when a routine leaves, as every
// helper that is not meant to move CurrentObject must.
#pragma once

#include "network/surface.h"

namespace pluvane {

class CursorKeeper {
 public:
  explicit CursorKeeper(Surface& surface) : surface_(surface), saved_(surface.CurrentObject()) {}
  ~CursorKeeper() {
    if (restore_) surface_.SetCurrentObject(saved_);
  }
  CursorKeeper(const CursorKeeper&) = delete;
  CursorKeeper& operator=(const CursorKeeper&) = delete;
  // Leaves the cursor where the routine put it.
  void Release() { restore_ = false; }

 private:
  Surface& surface_;
  int saved_;
  bool restore_ = true;
};

}  // namespace pluvane
