// From a path of the program to what really lies there.
#pragma once

#include <sys/stat.h>

#include <cerrno>
#include <optional>
#include <string>
#include <unordered_map>

#include "host/posix/drive_map.h"
#include "host/posix/folder_cache.h"

namespace orvik::host::posix {

// What was found under a path.
struct Entry {
  NativePath path;          // as it is spelled on disk
  struct stat status = {};  // of the target of a link; of the link itself when it dangles
  bool link = false;        // known only where a look didn't follow links
  bool dangling = false;

  bool IsFolder() const { return S_ISDIR(status.st_mode); }
  bool IsFile() const { return S_ISREG(status.st_mode); }
};

// The exact spelling is tried first, at the price of one system call. Only when it misses are the
// folders on the way looked through for other cases.
class PathFinder {
 public:
  PathFinder(const DriveMap& drives, FolderCache& cache) : drives_(drives), cache_(cache) {}

  std::optional<NativePath> Translate(TextView path) const { return drives_.Translate(path); }

  // The entry under a path, links followed; a dangling link is a file. Nothing when there is none.
  std::optional<Entry> Look(TextView path);
  // The same with `link` told as well.
  std::optional<Entry> LookAtLink(TextView path);

  enum class Place {
    kNowhere,  // no such folder
    kFree,     // the folder is there, and has no such name in any case
    kTaken,
  };
  // Spells a path as on disk: its folder always, its last component when that is taken.
  Place Spell(NativePath& path);

  // Calls an attempt that answers as system calls do (below 0 and errno), and once more under the
  // spelling on disk when the path is missing as it is spelled.
  template <typename Attempt>
  int Try(NativePath& path, Attempt&& attempt) {
    const int result = attempt(path.c_str());
    if (result >= 0 || errno != ENOENT) return result;
    if (Spell(path) == Place::kTaken) return attempt(path.c_str());
    errno = ENOENT;
    return -1;
  }

  // True when a spelling can be told without reading the folder.
  bool Knows(const NativePath& path) const { return !path.IsRoot() && cache_.Knows(path.Folder()); }
  // The program has made or removed an entry itself.
  void Made(const NativePath& path) { cache_.Made(path.Folder(), path.Leaf()); }
  void Gone(const NativePath& path) { cache_.Gone(path.Folder(), path.Leaf()); }

 private:
  std::optional<Entry> LookBy(TextView path, bool at_link);
  FolderCache::Answer LookIn(std::string& folder, const NativePath& path);

  const DriveMap& drives_;
  FolderCache& cache_;
  std::unordered_map<std::string, std::string> folders_;  // spelled so once -> on disk then
};

}  // namespace orvik::host::posix
