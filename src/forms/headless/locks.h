// Paths that behave as if another process held them open without sharing.
#pragma once

#include <vector>

#include "forms/headless/clock.h"
#include "forms/headless/options.h"
#include "host/forwarding_file_system.h"

namespace orvik::forms::headless {

class Locks {
 public:
  Locks(std::vector<LockEntry> entries, const Clock& clock);

  bool empty() const { return entries_.empty(); }
  // True while the path itself is held. Letter case, doubled and closing backslashes don't matter.
  bool Holds(TextView path) const;
  // True while it or something below it is held, so that a folder can't move.
  bool HoldsWithin(TextView path) const;

 private:
  std::vector<LockEntry> entries_;
  const Clock& clock_;
};

// A locked path exists and has its length and attributes, and is listed; it can't be opened,
// replaced, moved or deleted.
class LockedFileSystem : public host::ForwardingFileSystem {
 public:
  LockedFileSystem(host::FileSystem& inner, const Locks& locks)
      : ForwardingFileSystem(inner), locks_(locks) {}

  bool RemoveFolder(const Text& path) override;
  bool CopyFile(const Text& source, const Text& target, bool fail_if_exists) override;
  bool MoveFile(const Text& source, const Text& target, bool replace) override;
  bool DeleteFile(const Text& path) override;
  std::unique_ptr<host::File> Open(const Text& path, host::OpenMode mode) override;

 private:
  const Locks& locks_;
};

}  // namespace orvik::forms::headless
