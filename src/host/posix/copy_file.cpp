#include "host/posix/copy_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>

#include "host/file_system.h"
#include "host/posix/attributes.h"
#include "host/posix/copy_data.h"
#include "host/posix/open_file.h"
#include "host/posix/unique_fd.h"

namespace orvik::host::posix {
namespace {

constexpr int kFlags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

struct Side {
  NativePath path;
  UniqueFd fd;
  struct stat status = {};
  std::uint32_t attributes = 0;

  bool IsOpenFile() { return fd && ::fstat(fd.get(), &status) == 0 && S_ISREG(status.st_mode); }
};

bool OpenSource(PathFinder& finder, TextView path, Side& source) {
  std::optional<NativePath> native = finder.Translate(path);
  if (!native || native->closed) return false;
  source.path = std::move(*native);
  source.fd = UniqueFd(
      finder.Try(source.path, [](const char* at) { return ::open(at, O_RDONLY | kFlags); }));
  return source.IsOpenFile();
}

// A new file with the rights of the source, as far as the user grants them to new files. The right
// to write is needed until the end.
bool Make(PathFinder& finder, mode_t mode, Side& target) {
  const mode_t rights = (mode & 0777) | S_IWUSR;
  target.fd = UniqueFd(
      ::open(target.path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | kFlags, rights));
  if (!target.fd) return false;
  finder.Made(target.path);
  return target.IsOpenFile();
}

bool OpenForWriting(Side& target) {
  target.fd = UniqueFd(::open(target.path.c_str(), O_WRONLY | kFlags));
  return static_cast<bool>(target.fd);
}

// True for an open target that may be overwritten and has the room.
bool MayReplace(const Side& source, Side& target) {
  if (!target.IsOpenFile()) return false;
  if (source.status.st_ino == target.status.st_ino &&
      source.status.st_dev == target.status.st_dev) {
    return false;
  }
  target.attributes = AttributesOf(target.fd.get(), target.status);
  return (target.attributes & attribute::kReadOnly) == 0 && !IsHeld(target.fd.get()) &&
         ReserveRoom(source.status, target.fd.get(), target.status);
}

bool OpenTarget(PathFinder& finder, const Side& source, bool fail_if_exists, Side& target) {
  // A folder whose names are known tells a new file without a call for it.
  if (!finder.Knows(target.path)) {
    if (OpenForWriting(target)) return !fail_if_exists && MayReplace(source, target);
    if (errno != ENOENT) return false;
  }
  switch (finder.Spell(target.path)) {
    case PathFinder::Place::kNowhere:
      return false;
    case PathFinder::Place::kFree:
      if (Make(finder, source.status.st_mode, target)) return true;
      if (errno != EEXIST) return false;  // else somebody was quicker
      [[fallthrough]];
    case PathFinder::Place::kTaken:
      return !fail_if_exists && OpenForWriting(target) && MayReplace(source, target);
  }
  return false;
}

// The time and the attributes. A target that belongs to somebody else keeps its own; the content is
// what counts.
void PassRestOn(const Side& source, const Side& target) {
  const std::array<struct timespec, 2> times = {{{0, UTIME_OMIT}, source.status.st_mtim}};
  ::futimens(target.fd.get(), times.data());
  PassAttributesOn(source.fd.get(), source.status, target.fd.get(), target.status,
                   target.attributes);
}

// Removes a part of a copy; behind a link, which stays, it is emptied.
void Discard(PathFinder& finder, const Side& target) {
  struct stat status;
  const bool itself = ::lstat(target.path.c_str(), &status) == 0 && !S_ISLNK(status.st_mode);
  if (itself && ::unlink(target.path.c_str()) == 0) return finder.Gone(target.path);
  [[maybe_unused]] const int emptied = ::ftruncate(target.fd.get(), 0);
}

}  // namespace

bool CopyOne(PathFinder& finder, TextView source_path, TextView target_path, bool fail_if_exists) {
  Side source;
  if (!OpenSource(finder, source_path, source)) return false;
  std::optional<NativePath> native = finder.Translate(target_path);
  if (!native || native->closed || native->IsRoot()) return false;
  Side target;
  target.path = std::move(*native);
  if (!OpenTarget(finder, source, fail_if_exists, target)) return false;
  if (!CopyData(source.fd.get(), source.status, target.fd.get(), target.status)) {
    Discard(finder, target);
    return false;
  }
  PassRestOn(source, target);
  if (target.fd.Close()) return true;
  Discard(finder, target);
  return false;
}

}  // namespace orvik::host::posix
