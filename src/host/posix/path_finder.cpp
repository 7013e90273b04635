#include "host/posix/path_finder.h"

namespace orvik::host::posix {
namespace {
constexpr std::size_t kMostFolders = 10'000;
}

// Looks for the last component of a path in its folder, and gives the folder's spelling on disk. An
// earlier finding is only a guess: it counts when the folder is still there.
FolderCache::Answer PathFinder::LookIn(std::string& folder, const NativePath& path) {
  FolderCache::Answer answer = cache_.Look(folder, path.Leaf());
  if (answer.folder || folder.size() <= path.root_length) return answer;
  if (const auto guess = folders_.find(folder); guess != folders_.end()) {
    answer = cache_.Look(guess->second, path.Leaf());
    if (answer.folder) {
      folder = guess->second;
      return answer;
    }
  }
  NativePath above{folder, path.root_length, false};
  if (Spell(above) != Place::kTaken) return {};
  if (folders_.size() >= kMostFolders) folders_.clear();
  folders_[folder] = above.text;
  folder = above.text;
  return cache_.Look(folder, path.Leaf());
}

PathFinder::Place PathFinder::Spell(NativePath& path) {
  if (path.IsRoot()) return Place::kNowhere;
  std::string folder = path.Folder();
  const FolderCache::Answer answer = LookIn(folder, path);
  if (!answer.folder) return Place::kNowhere;
  std::string leaf(path.Leaf());
  path.text = folder + '/' + leaf;
  if (answer.name == nullptr) return Place::kFree;
  // Another case than asked for is the answer only where the exact one is missing.
  struct stat status;
  if (*answer.name != leaf && ::lstat(path.c_str(), &status) != 0) path.Rename(*answer.name);
  return Place::kTaken;
}

std::optional<Entry> PathFinder::LookBy(TextView path, bool at_link) {
  std::optional<NativePath> native = Translate(path);
  if (!native) return std::nullopt;
  Entry entry;
  entry.path = std::move(*native);
  struct stat* const status = &entry.status;
  const auto stat_link = [&](const char* at) { return ::lstat(at, status); };
  const auto stat_target = [&](const char* at) { return ::stat(at, status); };
  if (at_link) {
    if (Try(entry.path, stat_link) != 0) return std::nullopt;
    entry.link = S_ISLNK(entry.status.st_mode);
  }
  if ((!at_link || entry.link) && Try(entry.path, stat_target) != 0) {
    if (errno != ENOENT && errno != ELOOP) return std::nullopt;
    if (stat_link(entry.path.c_str()) != 0) return std::nullopt;
    entry.dangling = true;
  }
  if (entry.path.closed && !entry.IsFolder()) return std::nullopt;
  return entry;
}

std::optional<Entry> PathFinder::Look(TextView path) { return LookBy(path, false); }

std::optional<Entry> PathFinder::LookAtLink(TextView path) { return LookBy(path, true); }

}  // namespace orvik::host::posix
