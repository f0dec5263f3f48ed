#include "foundation/paths.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <vector>

#include "foundation/errors.h"
#include "foundation/text.h"

namespace fs = std::filesystem;

namespace pluvane {

namespace {

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

// The characters of UTF-8 text, one view each, so that "?" takes one character.
std::vector<std::string_view> Characters(std::string_view text) {
  std::vector<std::string_view> chars;
  for (std::size_t i = 0; i < text.size();) {
    std::size_t n = 1;
    while (i + n < text.size() && (static_cast<unsigned char>(text[i + n]) & 0xC0) == 0x80) ++n;
    chars.push_back(text.substr(i, n));
    i += n;
  }
  return chars;
}

std::vector<std::string> ReadLinesOrThrow(const std::string& file) {
  std::error_code ec;
  if (fs::is_directory(file, ec)) throw FileError(EISDIR);
  std::vector<std::string> lines;
  errno = 0;
  if (!ReadTextLines(file, lines)) throw FileError(errno != 0 ? errno : ENOENT);
  return lines;
}

// The folder to search for a file that SplitPath took apart.
std::string LookupFolder(const std::string& folder) { return folder.empty() ? "." : folder; }

// The names of the plain files of a folder, in sorted order; none when the
// folder cannot be read.
std::vector<std::string> PlainFileNames(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code ec;
  for (fs::directory_iterator it(LookupFolder(folder), ec), end; !ec && it != end;
       it.increment(ec)) {
    std::error_code type_ec;
    if (it->is_regular_file(type_ec)) names.push_back(it->path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// The name on disk of an existing file, or empty.
std::string NameOnDisk(const std::string& path) {
  std::string folder, name, base, ext;
  SplitPath(path, folder, name, base, ext);
  std::string found = FindFileNoCase(folder, name);
  return found.empty() ? std::string() : fs::path(found).filename().string();
}

}  // namespace

bool FileExist(const std::string& path) {
  std::error_code ec;
  return !path.empty() && fs::is_regular_file(path, ec);
}

bool FolderExist(const std::string& path) {
  std::error_code ec;
  return !path.empty() && fs::is_directory(path, ec);
}

bool MakeFolder(const std::string& path) {
  std::error_code ec;
  return !path.empty() && fs::create_directory(path, ec) && !ec;
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  if (folder.empty()) return std::string(name);
  std::string path(folder);
  if (!IsSeparator(path.back())) path += static_cast<char>(fs::path::preferred_separator);
  return path + std::string(name);
}

void SplitPath(std::string_view path, std::string& folder, std::string& name, std::string& base,
               std::string& extension) {
  std::string rest = Trim(path);
  folder.clear();
  for (std::size_t at; (at = rest.find_first_of("\\/")) != std::string::npos;) {
    folder += rest.substr(0, at + 1);
    rest = Trim(std::string_view(rest).substr(at + 1));
  }
  if (folder.size() > 1 && IsSeparator(folder.back())) folder.pop_back();
  if (folder.size() == 1 && folder[0] == '\\') folder.clear();
  folder = Trim(folder);
  name = rest;
  std::size_t dot = name.find('.');
  base = name.substr(0, dot);
  extension = dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

std::string DirOf(std::string_view path) {
  std::string folder, name, base, ext;
  SplitPath(path, folder, name, base, ext);
  return folder;
}

std::string FileNameOf(std::string_view path) {
  std::string folder, name, base, ext;
  SplitPath(path, folder, name, base, ext);
  return name;
}

std::string BaseOf(const std::string& path) {
  std::string name = NameOnDisk(path);
  return name.substr(0, name.find('.'));
}

std::string ExtOf(const std::string& path) {
  std::string name = NameOnDisk(path);
  std::size_t dot = name.find('.');
  return dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

std::string FindFileNoCase(const std::string& folder, std::string_view name) {
  if (name.empty()) return {};
  std::string exact = JoinPath(folder, name);
  if (FileExist(exact)) return exact;
  for (const auto& entry : PlainFileNames(folder)) {
    if (EqualsNoCase(entry, name)) return JoinPath(folder, entry);
  }
  return {};
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;
  const std::string upper_name = UCase(name), upper_pattern = UCase(pattern);
  const auto n = Characters(upper_name), p = Characters(upper_pattern);
  // Greedy match with one back-track point at the last "*".
  std::size_t i = 0, j = 0, star = std::string::npos, resume = 0;
  while (i < n.size()) {
    if (j < p.size() && (p[j] == "?" || p[j] == n[i])) {
      ++i, ++j;
    } else if (j < p.size() && p[j] == "*") {
      star = j++;
      resume = i;
    } else if (star != std::string::npos) {
      j = star + 1;
      i = ++resume;
    } else {
      return false;
    }
  }
  while (j < p.size() && p[j] == "*") ++j;
  return j == p.size();
}

std::int32_t CountLines(const std::string& file) {
  return static_cast<std::int32_t>(ReadLinesOrThrow(file).size());
}

void AppendFile(const std::string& source, const std::string& destination) {
  if (!FileExist(source)) return;
  std::vector<std::string> lines = ReadLinesOrThrow(source);
  errno = 0;
  std::ofstream out(destination, std::ios::binary | std::ios::app);
  if (!out) throw FileError(errno != 0 ? errno : EACCES);
  for (const auto& line : lines) out << Utf8ToCp1252(line) << "\r\n";
  if (!out.flush()) throw FileError(EIO);
}

int vbFileKill(UserInterface& ui, const std::string& folder, std::string_view pattern) {
  int count = 0;
  for (const auto& name : PlainFileNames(folder)) {
    if (!MatchesPattern(name, pattern)) continue;
    std::string path = JoinPath(folder, name);
    if (::unlink(path.c_str()) != 0) {
      AppError error = FileError(errno);
      ShowError(ui, &error, "vbFileKill " + path);
      return 0;
    }
    ++count;
  }
  return count;
}

void ChangeDir(const std::string& path) {
  if (::chdir(path.c_str()) == 0) return;
  if (errno == ENOENT || errno == ENOTDIR) throw AppError(76, "Chemin d'accès introuvable");
  throw FileError(errno);
}

std::string AbsolutePath(const std::string& path, const std::string& base) {
  if (path.empty()) return path;
  const std::filesystem::path given(path);
  if (given.is_absolute()) return path;
  return (std::filesystem::path(base) / given).lexically_normal().string();
}

}  // namespace pluvane
