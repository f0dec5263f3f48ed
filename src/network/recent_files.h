// The list of recently opened networks: entries "1", "2"... of the section
// "Fichiers recents" of pluvane.ini, most recent first, shown as the repeated
// menu item mnuRUF. The menu captions are kept here; the window draws them.
// A list bound to no file (treatments without a window) lives in memory only.
#pragma once

#include <string>
#include <vector>

namespace pluvane {

class RecentFiles {
 public:
  explicit RecentFiles(std::string ini_file = {}) : ini_file_(std::move(ini_file)) {}
  void SetIniFile(std::string ini_file) { ini_file_ = std::move(ini_file); }

  // Reads the list: nbMaxFichiers (0 counts as 4), nbFichiers (cut to the
  // maximum and written back), then the entries. A blank first entry leaves
  // the list empty.
  void Load();
  // Puts a path first: an entry equal to it (case-blind) moves up among the
  // captions; a new one shifts the entries of the file down.
  void Add(const std::string& path);
  // Writes the count, as the program does when it ends.
  void WriteCount() const;

  const std::vector<std::string>& Captions() const { return captions_; }
  int Count() const { return static_cast<int>(captions_.size()); }
  int Max() const { return max_; }

 private:
  std::string Key(int index) const;
  void WriteKey(int index, const std::string& value) const;

  std::string ini_file_;
  int max_ = 4;
  std::vector<std::string> captions_;
};

}  // namespace pluvane
