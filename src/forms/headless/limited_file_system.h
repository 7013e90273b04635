// Ends the run when its calls to the file system, or its time, are used up.
#pragma once

#include "forms/headless/clock.h"
#include "host/file_system.h"

namespace orvik::forms::headless {

// Counts every operation, and each further entry of a search. Once `calls` of them are done, the
// next one throws RunEnded instead. Looks at the clock as well, since some loops of the program do
// nothing but ask the file system.
class LimitedFileSystem : public host::FileSystem {
 public:
  LimitedFileSystem(host::FileSystem& inner, std::optional<std::int64_t> calls, const Clock& clock)
      : inner_(inner), calls_(calls), clock_(clock) {}

  std::unique_ptr<host::Search> FindFirst(const Text& path_and_mask, host::Details details,
                                          host::FindRecord& record) override;
  bool PathExists(const Text& path) override { return Counted().PathExists(path); }
  std::optional<std::uint32_t> Attributes(const Text& path) override {
    return Counted().Attributes(path);
  }
  bool SetAttributes(const Text& path, std::uint32_t attributes) override {
    return Counted().SetAttributes(path, attributes);
  }
  std::optional<std::int64_t> FileLength(const Text& path) override {
    return Counted().FileLength(path);
  }
  bool CreateFolder(const Text& path) override { return Counted().CreateFolder(path); }
  bool RemoveFolder(const Text& path) override { return Counted().RemoveFolder(path); }
  bool CopyFile(const Text& source, const Text& target, bool fail_if_exists) override {
    return Counted().CopyFile(source, target, fail_if_exists);
  }
  bool MoveFile(const Text& source, const Text& target, bool replace) override {
    return Counted().MoveFile(source, target, replace);
  }
  bool DeleteFile(const Text& path) override { return Counted().DeleteFile(path); }
  std::unique_ptr<host::File> Open(const Text& path, host::OpenMode mode) override {
    return Counted().Open(path, mode);
  }
  std::optional<Text> ShortName(const Text& path) override { return Counted().ShortName(path); }
  std::optional<std::uint64_t> FolderSize(const Text& path) override {
    return Counted().FolderSize(path);
  }
  int DriveType(const Text& drive) override { return Counted().DriveType(drive); }
  std::optional<host::DiskSpace> Space(const Text& path) override { return Counted().Space(path); }
  std::optional<Text> VolumeLabel(const Text& drive) override {
    return Counted().VolumeLabel(drive);
  }

 private:
  class CountedSearch;
  // The file system inside, for one more call.
  host::FileSystem& Counted();

  host::FileSystem& inner_;
  const std::optional<std::int64_t> calls_;
  const Clock& clock_;
  std::int64_t done_ = 0;
};

}  // namespace orvik::forms::headless
