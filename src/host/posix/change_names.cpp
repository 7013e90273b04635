#include "host/posix/change_names.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "host/file_system.h"
#include "host/posix/attributes.h"
#include "host/posix/open_file.h"

namespace orvik::host::posix {
namespace {

bool IsReadOnly(const Entry& entry) {
  return !entry.dangling &&
         (AttributesOf(entry.path.c_str(), entry.status) & attribute::kReadOnly) != 0;
}

bool IsInUse(const Entry& entry) { return entry.IsFile() && IsHeld(entry.path.c_str()); }

// True for a target that a move may take the place of.
bool MayTakePlaceOf(const Entry& source, const Entry& target) {
  return !source.IsFolder() && !target.IsFolder() && !IsReadOnly(target) && !IsInUse(target);
}

// True when two paths are one entry of one folder, reached by links or not.
bool IsSameEntry(const NativePath& a, const NativePath& b) {
  if (a.text == b.text) return true;
  struct stat folder_a;
  struct stat folder_b;
  const NativePath above_a{a.Folder()};
  const NativePath above_b{b.Folder()};
  return a.Leaf() == b.Leaf() && ::stat(above_a.c_str(), &folder_a) == 0 &&
         ::stat(above_b.c_str(), &folder_b) == 0 && folder_a.st_ino == folder_b.st_ino &&
         folder_a.st_dev == folder_b.st_dev;
}

// Puts a source in the place of a target whose name may have another case. Two names of one file
// are left alone by the kernel, which calls that a success.
bool Replace(PathFinder& finder, const Entry& source, const Entry& target,
             const NativePath& wanted) {
  struct stat source_itself;
  struct stat target_itself;
  if (::lstat(source.path.c_str(), &source_itself) != 0 ||
      ::lstat(target.path.c_str(), &target_itself) != 0) {
    return false;
  }
  const bool one_file =
      source_itself.st_ino == target_itself.st_ino && source_itself.st_dev == target_itself.st_dev;
  if ((one_file ? ::unlink(source.path.c_str())
                : ::rename(source.path.c_str(), target.path.c_str())) != 0) {
    return false;
  }
  finder.Gone(source.path);
  if (target.path.text != wanted.text && RenameNew(target.path.c_str(), wanted.c_str()) == 0) {
    finder.Gone(target.path);
    finder.Made(wanted);
  }
  return true;
}

}  // namespace

int RenameNew(const char* source, const char* target) {
  const int result = ::renameat2(AT_FDCWD, source, AT_FDCWD, target, RENAME_NOREPLACE);
  if (result == 0 || (errno != EINVAL && errno != ENOSYS)) return result;
  // A disk that can't promise it: looking first is the best there is.
  struct stat status;
  if (::lstat(target, &status) == 0) {
    errno = EEXIST;
    return -1;
  }
  return ::rename(source, target);
}

bool CreateFolderAt(PathFinder& finder, TextView path) {
  if (path.size() > kLongestNewFolder) return false;
  std::optional<NativePath> native = finder.Translate(path);
  if (!native || native->IsRoot()) return false;
  struct stat status;
  if (!finder.Knows(*native) && ::lstat(native->c_str(), &status) == 0) return false;
  if (finder.Spell(*native) != PathFinder::Place::kFree) return false;
  if (::mkdir(native->c_str(), 0777) != 0) return false;
  finder.Made(*native);
  return true;
}

bool RemoveFolderAt(PathFinder& finder, TextView path) {
  const std::optional<Entry> entry = finder.LookAtLink(path);
  if (!entry || !entry->IsFolder() || entry->path.IsRoot() || IsReadOnly(*entry)) return false;
  const char* const native = entry->path.c_str();
  if ((entry->link ? ::unlink(native) : ::rmdir(native)) != 0) return false;
  finder.Gone(entry->path);
  return true;
}

bool DeleteFileAt(PathFinder& finder, TextView path) {
  const std::optional<Entry> entry = finder.LookAtLink(path);
  if (!entry || entry->IsFolder() || entry->path.IsRoot()) return false;
  if (IsReadOnly(*entry) || IsInUse(*entry)) return false;
  if (::unlink(entry->path.c_str()) != 0) return false;
  finder.Gone(entry->path);
  return true;
}

bool MoveEntry(PathFinder& finder, TextView source_path, TextView target_path, bool replace) {
  const std::optional<Entry> source = finder.LookAtLink(source_path);
  if (!source || source->path.IsRoot() || IsInUse(*source)) return false;
  std::optional<NativePath> wanted = finder.Translate(target_path);
  if (!wanted || wanted->IsRoot()) return false;
  if (wanted->closed && !source->IsFolder()) return false;
  const std::string leaf(wanted->Leaf());
  NativePath found = *wanted;
  const PathFinder::Place place = finder.Spell(found);
  if (place == PathFinder::Place::kNowhere) return false;
  wanted = found;
  wanted->Rename(leaf);
  if (place == PathFinder::Place::kTaken && !IsSameEntry(found, source->path)) {
    const std::optional<Entry> target = finder.LookAtLink(target_path);
    return replace && target && MayTakePlaceOf(*source, *target) &&
           Replace(finder, *source, *target, *wanted);
  }
  // Nothing is in the way, or only the case of the letters is to change.
  if (wanted->Leaf() == source->path.Leaf() && place == PathFinder::Place::kTaken) return true;
  if (RenameNew(source->path.c_str(), wanted->c_str()) != 0) return false;
  finder.Gone(source->path);
  finder.Made(*wanted);
  return true;
}

}  // namespace orvik::host::posix
