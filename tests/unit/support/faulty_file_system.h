// A file system whose calls fail where a test wants them to.
#pragma once

#include <algorithm>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "host/forwarding_file_system.h"

namespace orvik::test {

// Counts the calls that could fail, and lets fail
//  - the call number `fail_call` (from 1), or from there on every call when `fail_all_after` is
//  set;
//  - every call of `fail_operation`, by the operation's name, such as "CopyFile";
//  - every call on `fail_path`, as first or second argument, letter case ignored;
//  - what writes more than `room` bytes in all: a write goes out in part, a copy doesn't happen.
// A sweep sets fail_call to 1, 2, 3 ... until `calls` stays below it.
class FaultyFileSystem : public host::ForwardingFileSystem {
 public:
  using ForwardingFileSystem::ForwardingFileSystem;

  int calls = 0;
  int fail_call = 0;
  bool fail_all_after = false;
  std::string fail_operation;
  std::optional<Text> fail_path;
  std::int64_t room = std::numeric_limits<std::int64_t>::max();

  std::unique_ptr<host::Search> FindFirst(const Text& path, host::Details details,
                                          host::FindRecord& record) override {
    if (Fails("FindFirst", path)) return nullptr;
    return inner_.FindFirst(path, details, record);
  }
  bool PathExists(const Text& path) override {
    return !Fails("PathExists", path) && inner_.PathExists(path);
  }
  std::optional<std::uint32_t> Attributes(const Text& path) override {
    if (Fails("Attributes", path)) return std::nullopt;
    return inner_.Attributes(path);
  }
  bool SetAttributes(const Text& path, std::uint32_t attributes) override {
    return !Fails("SetAttributes", path) && inner_.SetAttributes(path, attributes);
  }
  std::optional<std::int64_t> FileLength(const Text& path) override {
    if (Fails("FileLength", path)) return std::nullopt;
    return inner_.FileLength(path);
  }
  bool CreateFolder(const Text& path) override {
    return !Fails("CreateFolder", path) && inner_.CreateFolder(path);
  }
  bool RemoveFolder(const Text& path) override {
    return !Fails("RemoveFolder", path) && inner_.RemoveFolder(path);
  }
  bool CopyFile(const Text& source, const Text& target, bool fail_if_exists) override {
    if (Fails("CopyFile", source, target)) return false;
    const std::int64_t length = inner_.FileLength(source).value_or(0);
    if (length > room || !inner_.CopyFile(source, target, fail_if_exists)) return false;
    room -= length;
    return true;
  }
  bool MoveFile(const Text& source, const Text& target, bool replace) override {
    return !Fails("MoveFile", source, target) && inner_.MoveFile(source, target, replace);
  }
  bool DeleteFile(const Text& path) override {
    return !Fails("DeleteFile", path) && inner_.DeleteFile(path);
  }
  std::unique_ptr<host::File> Open(const Text& path, host::OpenMode mode) override {
    if (Fails("Open", path)) return nullptr;
    auto file = inner_.Open(path, mode);
    if (file == nullptr) return nullptr;
    return std::make_unique<FaultyFile>(*this, path, std::move(file));
  }

 private:
  class FaultyFile : public host::File {
   public:
    FaultyFile(FaultyFileSystem& owner, Text path, std::unique_ptr<host::File> inner)
        : owner_(owner), path_(std::move(path)), inner_(std::move(inner)) {}
    std::optional<std::int64_t> Length() override {
      if (owner_.Fails("Length", path_)) return std::nullopt;
      return inner_->Length();
    }
    std::optional<std::size_t> ReadAt(std::int64_t position, std::span<char> buffer) override {
      if (owner_.Fails("ReadAt", path_)) return std::nullopt;
      return inner_->ReadAt(position, buffer);
    }
    bool WriteAt(std::int64_t position, std::span<const char> bytes) override {
      if (owner_.Fails("WriteAt", path_)) return false;
      const auto fitting = static_cast<std::size_t>(
          std::clamp<std::int64_t>(owner_.room, 0, static_cast<std::int64_t>(bytes.size())));
      owner_.room -= static_cast<std::int64_t>(fitting);
      return inner_->WriteAt(position, bytes.first(fitting)) && fitting == bytes.size();
    }

   private:
    FaultyFileSystem& owner_;
    Text path_;
    std::unique_ptr<host::File> inner_;
  };

  bool Fails(std::string_view operation, TextView path, TextView second = {}) {
    ++calls;
    if (fail_call > 0 && (calls == fail_call || (fail_all_after && calls > fail_call))) return true;
    if (fail_operation == operation) return true;
    return fail_path && (EqualNoCase(path, *fail_path) || EqualNoCase(second, *fail_path));
  }
};

}  // namespace orvik::test
