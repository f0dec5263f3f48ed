#include "network/recent_files.h"

#include "foundation/settings_keys.h"
#include "foundation/ini_profile.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

std::string RecentFiles::Key(int index) const {
  return Trim(IniRead(kSectionRecentFiles, std::to_string(index), 255, ini_file_));
}

void RecentFiles::WriteKey(int index, const std::string& value) const {
  if (ini_file_.empty()) return;
  IniWrite(kSectionRecentFiles, std::to_string(index), value, ini_file_);
}

void RecentFiles::Load() {
  max_ = ValLong(IniRead(kSectionRecentFiles, kKeyRecentMax, 255, ini_file_));
  if (max_ <= 0) max_ = 4;
  int count = ValLong(IniRead(kSectionRecentFiles, kKeyRecentCount, 255, ini_file_));
  if (count > max_) {
    count = max_;
    IniWrite(kSectionRecentFiles, kKeyRecentCount, std::to_string(count), ini_file_);
  }
  captions_.clear();
  if (Key(1).empty()) return;
  for (int i = 1; i <= count; ++i) captions_.push_back(Key(i));
}

void RecentFiles::Add(const std::string& path) {
  for (std::size_t k = 0; k < captions_.size(); ++k) {
    if (!EqualsNoCase(captions_[k], path)) continue;
    // Known already: it moves up among the captions only.
    for (std::size_t i = k; i > 0; --i) captions_[i] = captions_[i - 1];
    captions_[0] = path;
    return;
  }
  if (ini_file_.empty()) {
    // A list bound to no file lives in memory only.
    captions_.insert(captions_.begin(), path);
    if (Count() > max_) captions_.pop_back();
    return;
  }
  int count = Count();
  if (count < max_) {
    ++count;
    IniWrite(kSectionRecentFiles, kKeyRecentCount, std::to_string(count), ini_file_);
  }
  if (Key(1) != path) {
    for (int i = max_ - 1; i >= 1; --i) WriteKey(i + 1, Key(i));
    WriteKey(1, path);
  }
  captions_.clear();
  for (int i = 1; i <= count; ++i) captions_.push_back(Key(i));
}

void RecentFiles::WriteCount() const {
  if (ini_file_.empty()) return;
  IniWrite(kSectionRecentFiles, kKeyRecentCount, std::to_string(Count()), ini_file_);
}

}  // namespace pluvane
