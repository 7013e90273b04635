#include "host/posix/replace_content.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>

#include "host/file_system.h"
#include "host/posix/attributes.h"
#include "host/posix/change_names.h"
#include "host/posix/native_files.h"
#include "host/posix/open_file.h"
#include "host/posix/unique_fd.h"

namespace orvik::host::posix {
namespace {

constexpr int kMostDrafts = 1000;

// What is there before; no descriptor when nothing is.
struct Present {
  UniqueFd fd;
  struct stat status = {};
};

// Opens a file that may be replaced.
bool OpenPresent(const Entry& entry, Present& present) {
  if (!entry.IsFile()) return false;
  present.fd = UniqueFd(::open(entry.path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!present.fd || ::fstat(present.fd.get(), &present.status) != 0) return false;
  return (AttributesOf(present.fd.get(), present.status) & attribute::kReadOnly) == 0 &&
         !IsHeld(present.fd.get());
}

// Makes an empty file of an unused name beside the target.
UniqueFd MakeDraft(const std::string& target, std::string& draft) {
  for (int number = 0; number < kMostDrafts; ++number) {
    draft = target.substr(0, target.rfind('/')) + "/.orvik-" + std::to_string(::getpid()) + "-" +
            std::to_string(number);
    UniqueFd fd(::open(draft.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (fd || errno != EEXIST) return fd;
  }
  return {};
}

// The owner, rights and attributes of the file whose place is taken. Only the right to give files
// away is often missing, and isn't needed.
bool TakeOver(const Present& present, int fd) {
  [[maybe_unused]] const int given = ::fchown(fd, present.status.st_uid, present.status.st_gid);
  struct stat status;
  if (::fchmod(fd, present.status.st_mode & 07777) != 0 || ::fstat(fd, &status) != 0) return false;
  PassAttributesOn(present.fd.get(), present.status, fd, status, 0);
  return true;
}

bool PutInPlace(const Present& present, const std::string& target, std::string_view bytes) {
  std::string draft;
  UniqueFd fd = MakeDraft(target, draft);
  if (!fd) return false;
  const bool written = WriteNative(fd.get(), bytes) && (!present.fd || TakeOver(present, fd.get()));
  // What somebody else has made meanwhile isn't replaced: nobody has looked whether it may be.
  if (fd.Close() && written &&
      (present.fd ? ::rename(draft.c_str(), target.c_str())
                  : RenameNew(draft.c_str(), target.c_str())) == 0) {
    return true;
  }
  ::unlink(draft.c_str());
  return false;
}

std::string RealPath(const std::string& path) {
  char* const real = ::realpath(path.c_str(), nullptr);
  if (real == nullptr) return path;
  std::string result(real);
  std::free(real);
  return result;
}

}  // namespace

bool ReplaceContent(PathFinder& finder, TextView path, std::string_view bytes) {
  std::optional<NativePath> native = finder.Translate(path);
  if (!native || native->closed || native->IsRoot()) return false;
  switch (finder.Spell(*native)) {
    case PathFinder::Place::kNowhere:
      return false;
    case PathFinder::Place::kFree:
      if (!PutInPlace({}, native->text, bytes)) return false;
      finder.Made(*native);
      return true;
    case PathFinder::Place::kTaken:
      break;
  }
  const std::optional<Entry> entry = finder.Look(path);
  Present present;
  return entry && OpenPresent(*entry, present) &&
         PutInPlace(present, RealPath(entry->path.text), bytes);
}

}  // namespace orvik::host::posix
