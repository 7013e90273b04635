// Files, folders and drives of Windows.
#pragma once

#include "host/file_system.h"

namespace orvik::host::win32 {

class Win32FileSystem : public FileSystem {
 public:
  // find_files.cpp
  std::unique_ptr<Search> FindFirst(const Text& path_and_mask, Details details,
                                    FindRecord& record) override;
  std::optional<std::uint64_t> FolderSize(const Text& path) override;

  // file_operations.cpp
  bool PathExists(const Text& path) override;
  std::optional<std::uint32_t> Attributes(const Text& path) override;
  bool SetAttributes(const Text& path, std::uint32_t attributes) override;
  std::optional<std::int64_t> FileLength(const Text& path) override;
  bool CreateFolder(const Text& path) override;
  bool RemoveFolder(const Text& path) override;
  bool CopyFile(const Text& source, const Text& target, bool fail_if_exists) override;
  bool MoveFile(const Text& source, const Text& target, bool replace) override;
  bool DeleteFile(const Text& path) override;
  std::optional<Text> ShortName(const Text& path) override;

  // open_file.cpp
  std::unique_ptr<File> Open(const Text& path, OpenMode mode) override;

  // drives.cpp
  int DriveType(const Text& drive) override;
  std::optional<DiskSpace> Space(const Text& path) override;
  std::optional<Text> VolumeLabel(const Text& drive) override;
};

}  // namespace orvik::host::win32
