// The file system of Linux in the words of the program.
#pragma once

#include "host/file_system.h"
#include "host/posix/drive_map.h"
#include "host/posix/folder_cache.h"
#include "host/posix/folder_reader.h"
#include "host/posix/name_codec.h"
#include "host/posix/path_finder.h"
#include "host/posix/search.h"

namespace orvik::host::posix {

// For one thread. A Search or a File may outlive it.
class PosixFileSystem : public FileSystem {
 public:
  PosixFileSystem(const NameCodec& codec, const DriveMap& drives)
      : codec_(codec), drives_(drives) {}

  PathFinder& finder() { return finder_; }
  // The folder that relative paths are below, in drive form.
  Text CurrentFolder() const { return drives_.CurrentFolder(); }

  std::unique_ptr<Search> FindFirst(const Text& path_and_mask, Details details,
                                    FindRecord& record) override;
  bool PathExists(const Text& path) override;
  std::optional<std::uint32_t> Attributes(const Text& path) override;
  bool SetAttributes(const Text& path, std::uint32_t attributes) override;
  std::optional<std::int64_t> FileLength(const Text& path) override;
  bool CreateFolder(const Text& path) override;
  bool RemoveFolder(const Text& path) override;
  bool CopyFile(const Text& source, const Text& target, bool fail_if_exists) override;
  bool MoveFile(const Text& source, const Text& target, bool replace) override;
  bool DeleteFile(const Text& path) override;
  std::unique_ptr<File> Open(const Text& path, OpenMode mode) override;
  std::optional<Text> ShortName(const Text& path) override;
  std::optional<std::uint64_t> FolderSize(const Text& path) override;
  int DriveType(const Text& drive) override;
  std::optional<DiskSpace> Space(const Text& path) override;
  // Disks of Linux have no label that every user can read: the empty text where there is a drive.
  std::optional<Text> VolumeLabel(const Text& drive) override;

 private:
  const NameCodec& codec_;
  const DriveMap& drives_;
  FolderReader reader_;
  FolderCache cache_{codec_, reader_};
  PathFinder finder_{drives_, cache_};
  Searcher searcher_{finder_, reader_, codec_};
};

}  // namespace orvik::host::posix
