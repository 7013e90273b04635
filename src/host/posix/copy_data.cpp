#include "host/posix/copy_data.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>

namespace orvik::host::posix {
namespace {

// Up to here two plain calls are quicker than a copy inside the kernel.
constexpr off_t kSmall = off_t{64} * 1024;
constexpr std::size_t kMostAtOnce = 0x40000000;

bool WriteAll(int target, const char* bytes, std::size_t count, off_t position) {
  while (count > 0) {
    const ssize_t written = ::pwrite(target, bytes, count, position);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes += written;
    count -= static_cast<std::size_t>(written);
    position += written;
  }
  return true;
}

// Copies from a position up to a limit by reading and writing. The answer is where the source
// ended, or -1.
off_t CopyThroughBuffer(int source, int target, off_t position, off_t limit) {
  std::array<char, kSmall> buffer;
  while (position < limit) {
    const auto wanted = static_cast<std::size_t>(std::min<off_t>(kSmall, limit - position));
    const ssize_t bytes = ::pread(source, buffer.data(), wanted, position);
    if (bytes < 0 && errno == EINTR) continue;
    if (bytes < 0) return -1;
    if (bytes == 0) break;
    if (!WriteAll(target, buffer.data(), static_cast<std::size_t>(bytes), position)) return -1;
    position += bytes;
  }
  return position;
}

// Lets the kernel copy as far as it will: between some disks it can't, and some files (of /proc)
// give nothing that way. The answer is the position reached, or -1 when a write failed.
off_t CopyInKernel(int source, int target, off_t position, off_t limit) {
  while (position < limit) {
    off_t from = position;
    off_t to = position;
    const auto wanted = std::min(static_cast<std::size_t>(limit - position), kMostAtOnce);
    const ssize_t bytes = ::copy_file_range(source, &from, target, &to, wanted, 0);
    if (bytes < 0 && errno == EINTR) continue;
    if (bytes < 0 && (errno == ENOSPC || errno == EDQUOT || errno == EIO || errno == EFBIG)) {
      return -1;
    }
    if (bytes <= 0) break;
    position += bytes;
  }
  return position;
}

// The answer is where the source ended, or -1.
off_t CopyRange(int source, int target, off_t position, off_t limit) {
  if (limit - position > kSmall) position = CopyInKernel(source, target, position, limit);
  return position < 0 ? position : CopyThroughBuffer(source, target, position, limit);
}

bool HasHoles(const struct stat& status) {
  return static_cast<off_t>(status.st_blocks) * 512 < status.st_size && status.st_size > kSmall;
}

// Copies the parts that hold data and leaves the holes between them. False also where the disk
// can't tell holes; nothing is lost by copying everything then.
bool CopyAroundHoles(int source, int target, off_t length) {
  if (::ftruncate(target, 0) != 0 || ::ftruncate(target, length) != 0) return false;
  off_t position = 0;
  while (position < length) {
    const off_t data = ::lseek(source, position, SEEK_DATA);
    if (data < 0) return errno == ENXIO;  // nothing but a hole up to the end
    const off_t hole = ::lseek(source, data, SEEK_HOLE);
    if (hole < 0) return false;
    position = CopyRange(source, target, data, std::min(hole, length));
    if (position < std::min(hole, length)) return false;
  }
  return true;
}

}  // namespace

bool ReserveRoom(const struct stat& source_status, int target, const struct stat& target_status) {
  const off_t wanted = source_status.st_size;
  if (wanted <= target_status.st_size || HasHoles(source_status)) return true;
  return ::fallocate(target, 0, 0, wanted) == 0 ||
         (errno != ENOSPC && errno != EDQUOT && errno != EFBIG);
}

bool CopyData(int source, const struct stat& source_status, int target,
              const struct stat& target_status) {
  const off_t length = source_status.st_size;
  if (HasHoles(source_status) && CopyAroundHoles(source, target, length)) return true;
  // Not by emptying the target first: ext4 then writes it to disk before the close returns.
  // A source that grows meanwhile is copied as long as it was, unless it had no length, as the
  // files of /proc, which are read to their end.
  constexpr off_t kNoLimit = off_t{1} << 62;
  const off_t end = CopyRange(source, target, 0, length > 0 ? length : kNoLimit);
  if (end < 0 || end < length) return false;
  return end >= target_status.st_size || ::ftruncate(target, end) == 0;
}

}  // namespace orvik::host::posix
