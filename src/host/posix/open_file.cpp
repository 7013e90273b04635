#include "host/posix/open_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

#include "host/posix/attributes.h"
#include "host/posix/unique_fd.h"

namespace orvik::host::posix {
namespace {

// Without waiting for the other end of a pipe, which isn't a file for this program anyway.
constexpr int kFlags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
constexpr mode_t kNewFile = 0666;

class OpenedFile : public File {
 public:
  OpenedFile(UniqueFd fd, std::int64_t length) : fd_(std::move(fd)), length_(length) {}

  std::optional<std::int64_t> Length() override {
    // Opening has asked for it already; only later answers need the system again.
    if (const auto fresh = std::exchange(length_, std::nullopt)) return fresh;
    struct stat status;
    if (::fstat(fd_.get(), &status) != 0) return std::nullopt;
    return status.st_size;
  }

  std::optional<std::size_t> ReadAt(std::int64_t position, std::span<char> buffer) override {
    std::size_t done = 0;
    while (done < buffer.size()) {
      const std::size_t wanted = std::min(buffer.size() - done, kMostAtOnce);
      const ssize_t bytes = ::pread(fd_.get(), buffer.data() + done, wanted,
                                    position + static_cast<std::int64_t>(done));
      if (bytes < 0 && errno == EINTR) continue;
      if (bytes < 0) return std::nullopt;
      done += static_cast<std::size_t>(bytes);
      if (static_cast<std::size_t>(bytes) < wanted) break;  // the end of the file
    }
    return done;
  }

  bool WriteAt(std::int64_t position, std::span<const char> bytes) override {
    length_.reset();
    while (!bytes.empty()) {
      const ssize_t written =
          ::pwrite(fd_.get(), bytes.data(), std::min(bytes.size(), kMostAtOnce), position);
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) return false;
      bytes = bytes.subspan(static_cast<std::size_t>(written));
      position += written;
    }
    return true;
  }

 private:
  static constexpr std::size_t kMostAtOnce = 0x40000000;

  UniqueFd fd_;
  std::optional<std::int64_t> length_;
};

struct Opened {
  UniqueFd fd;
  struct stat status = {};

  explicit operator bool() const { return static_cast<bool>(fd); }
};

// Opens an existing regular file; pipes, devices and folders are none.
Opened OpenExisting(PathFinder& finder, NativePath& path, int access) {
  Opened opened;
  opened.fd =
      UniqueFd(finder.Try(path, [access](const char* at) { return ::open(at, access | kFlags); }));
  const bool file =
      opened.fd && ::fstat(opened.fd.get(), &opened.status) == 0 && S_ISREG(opened.status.st_mode);
  if (opened.fd && !file) {
    opened.fd.Close();
    errno = EISDIR;
  }
  return opened;
}

// Makes an empty file where there is none, or the missing target of a link.
Opened Create(PathFinder& finder, NativePath& path) {
  if (path.closed) return {};
  const PathFinder::Place place = finder.Spell(path);
  if (place == PathFinder::Place::kNowhere) return {};
  Opened opened;
  opened.fd = UniqueFd(::open(path.c_str(), O_RDWR | O_CREAT | kFlags, kNewFile));
  if (!opened.fd || ::fstat(opened.fd.get(), &opened.status) != 0) return {};
  finder.Made(path);
  return opened;
}

bool MayWrite(const Opened& opened) {
  return (AttributesOf(opened.fd.get(), opened.status) & attribute::kReadOnly) == 0;
}

bool LockForHold(int fd) {
  if (::flock(fd, LOCK_EX | LOCK_NB) != 0) return false;
  struct flock lock = {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  // A file opened for reading only can't carry this one, and does with the first.
  return ::fcntl(fd, F_OFD_SETLK, &lock) == 0 || errno == EBADF;
}

// For reading and writing, or else for reading only.
Opened OpenReadWrite(PathFinder& finder, NativePath& path) {
  Opened opened = OpenExisting(finder, path, O_RDWR);
  if (!opened && errno == ENOENT) return Create(finder, path);
  const bool refused = !opened ? errno == EACCES || errno == EROFS || errno == ETXTBSY
                               : !MayWrite(opened) || IsHeld(opened.fd.get());
  return refused ? OpenExisting(finder, path, O_RDONLY) : std::move(opened);
}

}  // namespace

bool IsHeld(int fd) {
  if (::flock(fd, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK) return true;
  struct flock lock = {};
  lock.l_type = F_RDLCK;
  lock.l_whence = SEEK_SET;
  return ::fcntl(fd, F_OFD_GETLK, &lock) == 0 && lock.l_type == F_WRLCK;
}

bool IsHeld(const char* path) {
  const UniqueFd fd(::open(path, O_RDONLY | kFlags));
  return fd && IsHeld(fd.get());
}

std::unique_ptr<File> OpenFile(PathFinder& finder, const Text& path, OpenMode mode) {
  std::optional<NativePath> native = finder.Translate(path);
  if (!native || native->closed) return nullptr;
  Opened opened = mode == OpenMode::kRead ? OpenExisting(finder, *native, O_RDONLY)
                                          : OpenReadWrite(finder, *native);
  if (!opened) return nullptr;
  if (mode == OpenMode::kHold && !LockForHold(opened.fd.get())) return nullptr;
  return std::make_unique<OpenedFile>(std::move(opened.fd), opened.status.st_size);
}

}  // namespace orvik::host::posix
