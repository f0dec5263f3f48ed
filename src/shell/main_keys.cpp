#include "shell/main_keys.h"

#include <array>

namespace pluvane {

namespace {

struct KeyEntry {
  int code;
  int alternate;  // the code 32 above a letter's, 0 when none
  MainKey key;
};

// Keys that answer without modifier.
constexpr std::array<KeyEntry, 11> kPlainKeys = {{
    {37, 0, MainKey::kLeft},
    {38, 0, MainKey::kUp},
    {39, 0, MainKey::kRight},
    {40, 0, MainKey::kDown},
    {27, 0, MainKey::kEscape},
    {46, 0, MainKey::kDelete},
    {13, 0, MainKey::kEnter},
    {113, 0, MainKey::kZoomAll},
    {114, 0, MainKey::kZoomWindow},
    {115, 0, MainKey::kZoomBounds},
    {116, 0, MainKey::kRefresh},
}};

// Keys that answer with Ctrl held.
constexpr std::array<KeyEntry, 9> kCtrlKeys = {{
    {67, 99, MainKey::kCopy},
    {86, 118, MainKey::kPaste},
    {90, 122, MainKey::kUndo},
    {89, 121, MainKey::kRedo},
    {65, 97, MainKey::kSelectAll},
    {71, 103, MainKey::kGroup},
    {85, 117, MainKey::kUngroup},
    {68, 100, MainKey::kLocateId},
    {70, 102, MainKey::kLocateLabel},
}};

constexpr int kF12 = 123;

}  // namespace

MainKey MainKeyOf(int code, int shift) {
  if (code == kF12 && shift == (kShiftMask | kCtrlMask | kAltMask)) return MainKey::kDataAccess;
  if (shift & kCtrlMask) {
    for (const KeyEntry& entry : kCtrlKeys) {
      if (code == entry.code || code == entry.alternate) return entry.key;
    }
  }
  for (const KeyEntry& entry : kPlainKeys) {
    if (code == entry.code) return entry.key;
  }
  return MainKey::kNone;
}

}  // namespace pluvane
