// A file system in memory, which logs what was asked of it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/text.h"
#include "host/file_system.h"
#include "unit/support/fake_node.h"

namespace orvik::test {

// Drives "C:" and "T:" exist from the start; more come into being with AddDrive. Names are compared
// without letter case and listed in the order in which they were made. Relative paths are below
// `current_folder`. Records of a search hold what the caller asked for and nothing more.
class FakeFileSystem : public host::FileSystem {
 public:
  FakeFileSystem();
  ~FakeFileSystem() override;

  // Setting up and looking afterwards; none of these is logged.
  void AddDrive(TextView drive, int type = host::drive_type::kFixed, host::DiskSpace space = {},
                Text label = {});
  void AddFolder(TextView path, std::uint32_t attributes = 0);  // with its parents
  void AddFile(TextView path, std::string content = {},
               std::uint32_t attributes = host::attribute::kArchive);
  // A file of zeros that takes no memory.
  void AddLargeFile(TextView path, std::int64_t length);
  bool Exists(TextView path) const;
  bool IsFolder(TextView path) const;
  // Empty for a missing file, too.
  std::string Content(TextView path) const;
  // All paths below a folder, depth first.
  std::vector<Text> Tree(TextView folder) const;

  Text current_folder = u"C:\\";
  // Every call in order, such as "CopyFile T:\a -> T:\b"; those that may change something are in
  // `changes` too, whether they worked or not.
  std::vector<std::string> calls;
  std::vector<std::string> changes;

  std::unique_ptr<host::Search> FindFirst(const Text& path_and_mask, host::Details details,
                                          host::FindRecord& record) override;
  bool PathExists(const Text& path) override;
  std::optional<std::uint32_t> Attributes(const Text& path) override;
  bool SetAttributes(const Text& path, std::uint32_t attributes) override;
  std::optional<std::int64_t> FileLength(const Text& path) override;
  bool CreateFolder(const Text& path) override;
  bool RemoveFolder(const Text& path) override;
  bool CopyFile(const Text& source, const Text& target, bool fail_if_exists) override;
  bool MoveFile(const Text& source, const Text& target, bool replace) override;
  bool DeleteFile(const Text& path) override;
  std::unique_ptr<host::File> Open(const Text& path, host::OpenMode mode) override;
  std::optional<Text> ShortName(const Text& path) override;
  std::optional<std::uint64_t> FolderSize(const Text& path) override;
  int DriveType(const Text& drive) override;
  std::optional<host::DiskSpace> Space(const Text& path) override;
  std::optional<Text> VolumeLabel(const Text& drive) override;

  // Takes a file or folder away with all it holds, as the Recycle Bin does. False when missing.
  bool Take(TextView path);

 private:
  struct Drive;
  struct Place;  // where a path leads: the folder that holds its last name, and what is there

  // The path with its drive; it isn't empty.
  Text Full(TextView path) const;
  Place Locate(TextView path) const;
  FakeNode* At(TextView path) const;
  Drive* DriveOf(TextView path) const;
  FakeNode& Make(TextView given, bool folder);
  void Log(std::string call, bool change);

  std::vector<std::unique_ptr<Drive>> drives_;
};

}  // namespace orvik::test
