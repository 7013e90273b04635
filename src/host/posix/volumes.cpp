#include "host/posix/volumes.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/statvfs.h>

#include <cerrno>
#include <vector>

namespace orvik::host::posix {
namespace {

// Adds up the files right in a folder and collects its subfolders. False when it can't be read.
bool AddFolder(FolderReader& reader, const std::string& folder, std::uint64_t& total,
               std::vector<std::string>& subfolders) {
  const UniqueFd fd = FolderReader::Open(folder);
  if (!fd) return errno == ENOENT;
  return reader.Read(fd, [&](std::string_view name, unsigned char type) {
    struct stat status = {};
    if (type != DT_DIR && ::fstatat(fd.get(), name.data(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
      return;
    }
    if (type == DT_DIR || S_ISDIR(status.st_mode)) {
      subfolders.push_back(folder + '/' + std::string(name));
      return;
    }
    const bool link = S_ISLNK(status.st_mode);
    if (link && ::fstatat(fd.get(), name.data(), &status, 0) != 0) return;
    if (S_ISREG(status.st_mode)) total += static_cast<std::uint64_t>(status.st_size);
  });
}

}  // namespace

std::optional<std::uint64_t> SizeOfFolder(PathFinder& finder, FolderReader& reader, TextView path) {
  const std::optional<Entry> entry = finder.Look(path);
  if (!entry || !entry->IsFolder()) return std::nullopt;
  const UniqueFd root = FolderReader::Open(entry->path.text);
  if (!root) return std::nullopt;
  std::uint64_t total = 0;
  std::vector<std::string> folders = {entry->path.text};
  while (!folders.empty()) {
    const std::string folder = std::move(folders.back());
    folders.pop_back();
    if (!AddFolder(reader, folder, total, folders)) return std::nullopt;
  }
  return total;
}

std::optional<DiskSpace> SpaceAt(PathFinder& finder, TextView path) {
  const std::optional<Entry> entry = finder.Look(path);
  struct statvfs disk = {};
  if (!entry || ::statvfs(entry->path.c_str(), &disk) != 0) return std::nullopt;
  return DiskSpace{std::uint64_t{disk.f_blocks} * disk.f_frsize,
                   std::uint64_t{disk.f_bfree} * disk.f_frsize};
}

}  // namespace orvik::host::posix
