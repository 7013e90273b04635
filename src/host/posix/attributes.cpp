#include "host/posix/attributes.h"

#include <sys/xattr.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>

#include "host/file_system.h"

namespace orvik::host::posix {
namespace {

constexpr const char* kName = "user.DOSATTRIB";
constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr std::uint32_t kKept =
    attribute::kReadOnly | attribute::kHidden | attribute::kSystem | attribute::kArchive;

using Buffer = std::array<char, 256>;

std::uint32_t FromMode(const struct stat& status) {
  return (S_ISDIR(status.st_mode) ? attribute::kFolder : 0) |
         ((status.st_mode & S_IWUSR) == 0 ? attribute::kReadOnly : 0);
}

std::uint32_t FromAnswer(const Buffer& buffer, ssize_t bytes) {
  return bytes > 0 ? ParseAttributes({buffer.data(), static_cast<std::size_t>(bytes)}) : 0;
}

bool HasNone(int error) { return error == ENODATA || error == ENOTSUP; }

// Stores the bits of the text by two system calls that are given.
template <typename Set, typename Remove>
bool Store(std::uint32_t attributes, Set&& set, Remove&& remove) {
  attributes &= kKept;
  if (attributes == 0) return remove() == 0 || HasNone(errno);
  std::array<char, 16> text{};
  const int length = std::snprintf(text.data(), text.size(), "0x%x", attributes);
  if (set(text.data(), static_cast<std::size_t>(length)) == 0) return true;
  return errno == ENOTSUP && (attributes & (attribute::kHidden | attribute::kSystem)) == 0;
}

}  // namespace

std::uint32_t ParseAttributes(std::string_view text) {
  if (!text.starts_with("0x")) return 0;
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(text.data() + 2, text.data() + text.size(), value, 16);
  return error == std::errc() ? value & kKept : 0;
}

std::uint32_t AttributesOf(const char* path, const struct stat& status) {
  if (S_ISLNK(status.st_mode)) return 0;  // it dangles; a link has no attributes of its own
  Buffer buffer;
  return FromMode(status) |
         FromAnswer(buffer, ::getxattr(path, kName, buffer.data(), buffer.size()));
}

std::uint32_t AttributesOf(int fd, const struct stat& status) {
  Buffer buffer;
  return FromMode(status) |
         FromAnswer(buffer, ::fgetxattr(fd, kName, buffer.data(), buffer.size()));
}

bool SetAttributesOf(const char* path, const struct stat& status, std::uint32_t attributes) {
  const auto set = [&](const char* text, std::size_t length) {
    return ::setxattr(path, kName, text, length, 0);
  };
  const auto remove = [&] { return ::removexattr(path, kName); };
  const bool read_only = (attributes & attribute::kReadOnly) != 0;
  mode_t mode = status.st_mode & 07777;
  // The extended attribute can be changed only while the file may be written.
  if ((mode & S_IWUSR) == 0) {
    mode |= S_IWUSR;
    if (::chmod(path, mode) != 0) return false;
  }
  const bool stored = Store(attributes, set, remove);
  if (!read_only) return stored;
  // A folder keeps the right to write: on Windows a read-only folder still takes new files.
  if (S_ISDIR(status.st_mode) && stored) return true;
  return ::chmod(path, mode & ~kAnyWrite) == 0 && stored;
}

void PassAttributesOn(int from, const struct stat& from_status, int to,
                      const struct stat& to_status, std::uint32_t present) {
  const std::uint32_t wanted = AttributesOf(from, from_status) & kKept;
  if (wanted == (present & kKept)) return;
  const auto set = [&](const char* text, std::size_t length) {
    return ::fsetxattr(to, kName, text, length, 0);
  };
  Store(wanted, set, [&] { return ::fremovexattr(to, kName); });
  if ((wanted & attribute::kReadOnly) != 0) {
    ::fchmod(to, to_status.st_mode & 07777 & ~kAnyWrite);
  }
}

}  // namespace orvik::host::posix
