#include "shell/resource_library.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "foundation/text.h"

namespace pluvane {

namespace fs = std::filesystem;

namespace {

const char kTitle[] = "Pluvane";

}  // namespace

bool ResourceLibrary::Load(UserInterface& ui, const std::string& path) {
  std::error_code error;
  folder_.clear();
  name_ = fs::path(path).filename().string();
  if (path.empty() || !fs::is_directory(path, error)) {
    ui.ShowMessage("Error in loading DLL: " + name_, kTitle, MessageIcon::kCritical);
    return false;
  }
  folder_ = path;
  return true;
}

std::string ResourceLibrary::Find(int number,
                                  std::initializer_list<const char*> extensions) const {
  if (folder_.empty()) return {};
  std::error_code error;
  for (const char* extension : extensions) {
    fs::path candidate = fs::path(folder_) / (std::to_string(number) + extension);
    if (fs::is_regular_file(candidate, error)) return candidate.string();
  }
  return {};
}

std::string ResourceLibrary::FindPicture(int number) const {
  return Find(number, {".svg", ".png", ".cur", ".bmp"});
}

std::string ResourceLibrary::PicturePath(UserInterface& ui, int number) const {
  std::string path = FindPicture(number);
  if (path.empty()) {
    ui.ShowMessage("Picture resource with identifier " + std::to_string(number) + " not found.",
                   kTitle, MessageIcon::kCritical);
  }
  return path;
}

std::string ResourceLibrary::String(UserInterface& ui, int number) const {
  std::string path = Find(number, {".txt"});
  if (path.empty()) {
    ui.ShowMessage("String resource with identifier " + std::to_string(number) + " not found.",
                   kTitle, MessageIcon::kCritical);
    return {};
  }
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  std::string value = DecodeText(text.str());
  while (!value.empty() && (value.back() == '\n' || value.back() == '\r')) value.pop_back();
  return value;
}

std::string ResourceLibrary::CustomPath(UserInterface& ui, int number) const {
  std::string path = Find(number, {".bin"});
  if (path.empty()) {
    ui.ShowMessage("Custom resource with identifier " + std::to_string(number) + " not found.",
                   kTitle, MessageIcon::kCritical);
  }
  return path;
}

std::string ResourceLibrary::ResPath(const std::string& name) const {
  return "RES://" + name_ + "/" + name;
}

}  // namespace pluvane
