#include "host/posix/native_files.h"

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>

#include "host/posix/unique_fd.h"

namespace orvik::host::posix {

bool ReadNativeFile(const std::string& path, std::string& bytes, struct stat& status) {
  const UniqueFd fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!fd || ::fstat(fd.get(), &status) != 0) return false;
  bytes.clear();
  std::array<char, 65536> buffer;
  for (;;) {
    const ssize_t count = ::read(fd.get(), buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return count == 0;
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

std::string ReadNativeFile(const std::string& path) {
  std::string bytes;
  struct stat status;
  return ReadNativeFile(path, bytes, status) ? bytes : std::string();
}

bool WriteNative(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(fd, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool MakeFolders(const std::string& path, mode_t mode) {
  for (std::size_t end = 1; end < path.size(); ++end) {
    if (path[end] == '/') ::mkdir(path.substr(0, end).c_str(), mode);
  }
  ::mkdir(path.c_str(), mode);
  struct stat status;
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string VariableOr(const char* name, const std::string& otherwise) {
  const char* const value = std::getenv(name);
  return value != nullptr && *value != '\0' ? value : otherwise;
}

std::string HomeFolder() {
  const passwd* const user = ::getpwuid(::getuid());
  return VariableOr("HOME", user != nullptr ? user->pw_dir : "/");
}

std::string DataHome() { return VariableOr("XDG_DATA_HOME", HomeFolder() + "/.local/share"); }

std::string ConfigHome() { return VariableOr("XDG_CONFIG_HOME", HomeFolder() + "/.config"); }

}  // namespace orvik::host::posix
