// The undo journal of a drawing. Each change is kept as a small record that
// swaps its content with the drawing's when applied, so that applying it once
// takes the change back and applying it again redoes it. Records are grouped
// in steps, one per user command; a step is undone and redone whole.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "drawing/surface_object.h"

namespace pluvane {

// The object is in the drawing when `object` is empty; else it is held here.
struct ExistsRecord {
  std::int32_t number = 0;
  std::unique_ptr<SurfaceObject> object;
};
struct ShapeRecord {
  std::int32_t number = 0;  // 4 for the defaults
  std::unique_ptr<Shape> shape;
};
struct TagValueRecord {
  std::int32_t number = 0;
  std::uint32_t position = 0;
  std::string value;
};
struct TagNameRecord {
  std::int32_t number = 0;
  std::uint32_t position = 0;
  std::uint32_t name = 0;
};
// The tags from `position` on, swapped whole: appends and truncations.
struct TagTailRecord {
  std::int32_t number = 0;
  std::uint32_t position = 0;
  TagBlock tail;
};
struct PageRecord {
  std::unique_ptr<PageState> page;
};

using JournalRecord = std::variant<ExistsRecord, ShapeRecord, TagValueRecord, TagNameRecord,
                                   TagTailRecord, PageRecord>;

struct JournalStep {
  std::string label;
  std::vector<JournalRecord> records;
};

class Journal {
 public:
  // Oldest steps are dropped beyond this many.
  static constexpr std::size_t kMaxSteps = 1000;

  // Opens a step, or joins the one open. Returns true when it opened one.
  bool Begin(std::string_view label);
  // Closes one level; the outermost close files the step if it holds anything.
  void End();
  bool IsOpen() const { return depth_ > 0; }
  // Serial of the open step; objects created in it need no further records.
  std::uint64_t OpenId() const { return open_id_; }
  void Add(JournalRecord record);

  bool CanUndo() const { return depth_ == 0 && !undo_.empty(); }
  bool CanRedo() const { return depth_ == 0 && !redo_.empty(); }
  const std::string& UndoLabel() const;
  const std::string& RedoLabel() const;
  // Moves the last step between the two stacks and gives it for applying.
  JournalStep* TakeUndo();
  JournalStep* TakeRedo();

  // Forgets everything, including what the open step holds.
  void Reset();

 private:
  std::deque<JournalStep> undo_;
  std::deque<JournalStep> redo_;
  JournalStep open_;
  int depth_ = 0;
  std::uint64_t open_id_ = 0;
  std::uint64_t next_id_ = 1;
};

}  // namespace pluvane
