#include "drawing/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <sstream>

namespace pluvane {

bool ReadWholeFile(const std::string& path, std::string& bytes) {
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return false;
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  std::ostringstream buffer;
  buffer << in.rdbuf();
  if (in.bad()) return false;
  bytes = std::move(buffer).str();
  return true;
}

bool WriteFileAtomically(const std::string& path, std::string_view bytes) {
  if (path.empty()) return false;
  const std::size_t slash = path.find_last_of('/');
  const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  if (name.empty()) return false;
  std::string temp = (slash == std::string::npos ? std::string() : folder) + "." + name + ".XXXXXX";
  const int fd = ::mkstemp(temp.data());
  if (fd < 0) return false;

  // The new file takes the old one's permissions, or the usual ones.
  struct stat old {};
  mode_t mode = 0666;
  if (::stat(path.c_str(), &old) == 0) {
    mode = old.st_mode & 07777;
  } else {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    mode &= ~mask;
  }
  bool ok = ::fchmod(fd, mode) == 0;
  const char* data = bytes.data();
  std::size_t left = bytes.size();
  while (ok && left > 0) {
    const ssize_t written = ::write(fd, data, left);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) {
      ok = false;
      break;
    }
    data += written;
    left -= static_cast<std::size_t>(written);
  }
  ok = ok && ::fsync(fd) == 0;
  ok = (::close(fd) == 0) && ok;
  ok = ok && ::rename(temp.c_str(), path.c_str()) == 0;
  if (!ok) ::unlink(temp.c_str());
  return ok;
}

}  // namespace pluvane
