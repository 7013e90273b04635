#include "host/posix/folder_cache.h"

#include <ctime>
#include <utility>

namespace orvik::host::posix {
namespace {

constexpr std::size_t kMostNames = 1'000'000;
constexpr std::size_t kMostFolders = 10'000;

// How long a folder that other programs may have changed unseen is believed, in nanoseconds.
constexpr std::int64_t kDoubtfulFor = 2'000'000'000;
// Time stamps may be as coarse as a tick of the kernel: a folder that changed that shortly before
// it was read may change once more without a new time.
constexpr std::int64_t kCoarseStamp = 20'000'000;

std::int64_t Nanoseconds(const struct timespec& time) {
  return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

std::int64_t Clock(clockid_t clock) {
  struct timespec now = {};
  ::clock_gettime(clock, &now);
  return Nanoseconds(now);
}

const char* PathOf(const std::string& folder) { return folder.empty() ? "/" : folder.c_str(); }

}  // namespace

FolderCache::Folder* FolderCache::Find(const std::string& path) {
  const auto found = index_.find(path);
  if (found == index_.end()) return nullptr;
  folders_.splice(folders_.begin(), folders_, found->second);
  return &folders_.front();
}

bool FolderCache::StillTrue(Folder& folder, const struct stat& status) const {
  if (status.st_dev != folder.device || status.st_ino != folder.inode) return false;
  if (folder.doubtful && Clock(CLOCK_MONOTONIC_COARSE) - folder.read_at > kDoubtfulFor) {
    return false;
  }
  const bool own_change = std::exchange(folder.own_change, false);
  if (Nanoseconds(status.st_ctim) == Nanoseconds(folder.changed)) return true;
  if (!own_change) return false;
  folder.doubtful = true;
  folder.changed = status.st_ctim;
  return true;
}

FolderCache::Folder* FolderCache::Current(const std::string& path, const struct stat& status) {
  if (Folder* const known = Find(path)) {
    if (StillTrue(*known, status)) return known;
    Forget(folders_.begin());
  }
  return Read(path);
}

FolderCache::Folder* FolderCache::Read(const std::string& path) {
  const UniqueFd fd = FolderReader::Open(path);
  struct stat status = {};
  if (!fd || ::fstat(fd.get(), &status) != 0) return nullptr;
  Folder folder;
  folder.path = path;
  folder.changed = status.st_ctim;
  folder.device = status.st_dev;
  folder.inode = status.st_ino;
  folder.read_at = Clock(CLOCK_MONOTONIC_COARSE);
  folder.doubtful = Clock(CLOCK_REALTIME) - Nanoseconds(status.st_ctim) < kCoarseStamp;
  Text listed;
  const bool whole = reader_.Read(fd, [&](std::string_view name, unsigned char) {
    listed.clear();
    if (!codec_.AppendListed(name, listed)) return;
    for (char16_t& c : listed) c = codec_.Upper(c);
    const auto [place, added] = folder.names.try_emplace(listed, name);
    if (added) return;
    folder.twins = true;
    if (name < place->second) place->second = name;  // the same answer whatever the disk's order
  });
  if (!whole) return nullptr;
  names_ += folder.names.size();
  folders_.push_front(std::move(folder));
  index_[path] = folders_.begin();
  Shrink();
  return &folders_.front();
}

void FolderCache::Forget(Position folder) {
  names_ -= folder->names.size();
  index_.erase(folder->path);
  folders_.erase(folder);
}

void FolderCache::Shrink() {
  while (folders_.size() > 1 && (names_ > kMostNames || folders_.size() > kMostFolders)) {
    Forget(std::prev(folders_.end()));
  }
}

FolderCache::Answer FolderCache::Look(const std::string& folder, std::string_view name) {
  struct stat status = {};
  if (::stat(PathOf(folder), &status) != 0 || !S_ISDIR(status.st_mode)) return {};
  Folder* const current = Current(folder, status);
  if (current == nullptr) return {true, nullptr};
  const auto found = current->names.find(codec_.Folded(name));
  return {true, found != current->names.end() ? &found->second : nullptr};
}

void FolderCache::Made(const std::string& folder, std::string_view name) {
  Folder* const known = Find(folder);
  if (known == nullptr) return;
  known->own_change = true;
  const auto [place, added] = known->names.try_emplace(codec_.Folded(name), name);
  names_ += added;
  known->twins |= !added && place->second != name;
}

void FolderCache::Gone(const std::string& folder, std::string_view name) {
  Folder* const known = Find(folder);
  if (known == nullptr) return;
  if (known->twins) return Forget(folders_.begin());  // the twin may be there still
  known->own_change = true;
  names_ -= known->names.erase(codec_.Folded(name));
}

}  // namespace orvik::host::posix
