#include "drawing/surface_journal.h"

namespace pluvane {

namespace {
const std::string kNoLabel;
}

bool Journal::Begin(std::string_view label) {
  if (depth_++ > 0) return false;
  open_id_ = next_id_++;
  open_.label = std::string(label);
  open_.records.clear();
  return true;
}

void Journal::End() {
  if (depth_ == 0 || --depth_ > 0) return;
  open_id_ = 0;
  if (open_.records.empty()) return;
  redo_.clear();
  undo_.push_back(std::move(open_));
  open_ = JournalStep();
  if (undo_.size() > kMaxSteps) undo_.pop_front();
}

void Journal::Add(JournalRecord record) { open_.records.push_back(std::move(record)); }

const std::string& Journal::UndoLabel() const {
  return undo_.empty() ? kNoLabel : undo_.back().label;
}

const std::string& Journal::RedoLabel() const {
  return redo_.empty() ? kNoLabel : redo_.back().label;
}

JournalStep* Journal::TakeUndo() {
  if (!CanUndo()) return nullptr;
  redo_.push_back(std::move(undo_.back()));
  undo_.pop_back();
  return &redo_.back();
}

JournalStep* Journal::TakeRedo() {
  if (!CanRedo()) return nullptr;
  undo_.push_back(std::move(redo_.back()));
  redo_.pop_back();
  return &undo_.back();
}

void Journal::Reset() {
  undo_.clear();
  redo_.clear();
  open_.records.clear();
}

}  // namespace pluvane
