// The keys of the drawing: which command a key code and shift state (bit 1
// Shift, 2 Ctrl, 4 Alt) stand for. Letters answer on their capital code and on
// the code 32 above it, which the numeric pad's digits and some function keys
// share: the pairs are kept as they always were, so Ctrl with the pad's 3 or
// with F7 copies and pastes.
#pragma once

namespace pluvane {

enum class MainKey {
  kNone,
  kLeft,
  kUp,
  kRight,
  kDown,
  kEscape,
  kDelete,
  kEnter,
  kZoomAll,      // F2
  kZoomWindow,   // F3
  kZoomBounds,   // F4
  kRefresh,      // F5
  kCopy,         // Ctrl+C
  kPaste,        // Ctrl+V
  kUndo,         // Ctrl+Z
  kRedo,         // Ctrl+Y
  kSelectAll,    // Ctrl+A
  kGroup,        // Ctrl+G
  kUngroup,      // Ctrl+U
  kLocateId,     // Ctrl+D
  kLocateLabel,  // Ctrl+F
  kDataAccess,   // Ctrl+Shift+Alt+F12
};

inline constexpr int kShiftMask = 1;
inline constexpr int kCtrlMask = 2;
inline constexpr int kAltMask = 4;

// The command of a key; kNone for a key that does nothing (F1 among them).
MainKey MainKeyOf(int code, int shift);

}  // namespace pluvane
