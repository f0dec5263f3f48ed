// The library of the program's own pictures and strings, addressed by number:
// the cursors of the creation and interaction commands above all. It is a
// folder of files named by their number (`110.svg`, `3.txt`...), named in the
// configuration by `Fichier Ressource`.
#pragma once

#include <string>

#include "foundation/user_interface.h"

namespace pluvane {

class ResourceLibrary {
 public:
  // Opens the library folder. False, with "Error in loading DLL: " and the
  // name, when it cannot be opened; the program goes on without its pictures.
  bool Load(UserInterface& ui, const std::string& path);
  bool Loaded() const { return !folder_.empty(); }
  const std::string& Folder() const { return folder_; }

  // The file of a picture (.svg, .png, .cur, .bmp), of a string (.txt) or of a
  // custom resource (.bin); empty, with the library's message, when missing.
  std::string PicturePath(UserInterface& ui, int number) const;
  std::string String(UserInterface& ui, int number) const;
  std::string CustomPath(UserInterface& ui, int number) const;
  // The picture's path without a message, for cursor look-ups that may miss.
  std::string FindPicture(int number) const;

  // "RES://<library file name>/<name>".
  std::string ResPath(const std::string& name) const;

 private:
  std::string Find(int number, std::initializer_list<const char*> extensions) const;

  std::string folder_;
  std::string name_;
};

}  // namespace pluvane
