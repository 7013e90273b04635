// The file behind the registry, shared with other processes.
#pragma once

#include <sys/stat.h>

#include <string>

#include "host/posix/registry_document.h"
#include "host/posix/registry_text.h"

namespace orvik::host::posix {

// Reads take what the file says at the time; changes are made under a lock on a second file beside
// it, on the state that the file then has, and put in place by a rename. So no process sees half a
// change, and none loses another one's. Nothing that couldn't be understood is lost either: lines
// are kept as they stand, and a file whose bytes aren't a text is put aside under the name
// "….saved" before it is first replaced. A file that can't be read at all is never replaced.
class RegistryFile {
 public:
  explicit RegistryFile(std::string path) : path_(std::move(path)) {}

  // The present state; an empty one where there is no file or it can't be read.
  const RegistryDocument& Read();

  // Calls a change, which answers whether it has changed anything, and writes the outcome. False
  // when there was no change or it couldn't be written; then the file is as before.
  template <typename Change>
  bool Update(Change&& change) {
    const Lock lock(path_ + ".lock");
    if (!lock || !Load()) return false;
    if (!change(document_)) {
      known_ = false;  // whatever it has done to the document isn't in the file
      return false;
    }
    return Save();
  }

 private:
  // The lock of all processes, held for as long as the object lives.
  class Lock {
   public:
    explicit Lock(const std::string& path);
    ~Lock();
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
    explicit operator bool() const { return fd_ >= 0; }

   private:
    int fd_ = -1;
  };

  bool Load();
  bool Save();
  bool PutAside(const std::string& target) const;

  std::string path_;
  std::string bytes_;  // of which the document is the reading
  RegistryDocument document_;
  RegistryEncoding encoding_ = RegistryEncoding::kUtf16;
  bool faithful_ = true;
  bool known_ = false;
  struct stat status_ = {};
};

}  // namespace orvik::host::posix
