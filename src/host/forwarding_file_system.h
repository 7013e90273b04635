// A file system that hands every call on. Decorators derive from it and change what they are for.
#pragma once

#include "host/file_system.h"

namespace orvik::host {

class ForwardingFileSystem : public FileSystem {
 public:
  explicit ForwardingFileSystem(FileSystem& inner) : inner_(inner) {}

  std::unique_ptr<Search> FindFirst(const Text& path_and_mask, Details details,
                                    FindRecord& record) override {
    return inner_.FindFirst(path_and_mask, details, record);
  }
  bool PathExists(const Text& path) override { return inner_.PathExists(path); }
  std::optional<std::uint32_t> Attributes(const Text& path) override {
    return inner_.Attributes(path);
  }
  bool SetAttributes(const Text& path, std::uint32_t attributes) override {
    return inner_.SetAttributes(path, attributes);
  }
  std::optional<std::int64_t> FileLength(const Text& path) override {
    return inner_.FileLength(path);
  }
  bool CreateFolder(const Text& path) override { return inner_.CreateFolder(path); }
  bool RemoveFolder(const Text& path) override { return inner_.RemoveFolder(path); }
  bool CopyFile(const Text& source, const Text& target, bool fail_if_exists) override {
    return inner_.CopyFile(source, target, fail_if_exists);
  }
  bool MoveFile(const Text& source, const Text& target, bool replace) override {
    return inner_.MoveFile(source, target, replace);
  }
  bool DeleteFile(const Text& path) override { return inner_.DeleteFile(path); }
  std::unique_ptr<File> Open(const Text& path, OpenMode mode) override {
    return inner_.Open(path, mode);
  }
  std::optional<Text> ShortName(const Text& path) override { return inner_.ShortName(path); }
  std::optional<std::uint64_t> FolderSize(const Text& path) override {
    return inner_.FolderSize(path);
  }
  int DriveType(const Text& drive) override { return inner_.DriveType(drive); }
  std::optional<DiskSpace> Space(const Text& path) override { return inner_.Space(path); }
  std::optional<Text> VolumeLabel(const Text& drive) override { return inner_.VolumeLabel(drive); }

 protected:
  FileSystem& inner_;
};

}  // namespace orvik::host
