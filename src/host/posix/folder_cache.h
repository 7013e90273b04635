// The names in folders, for look-ups in another letter case than the one on disk.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "base/text.h"
#include "host/posix/folder_reader.h"
#include "host/posix/name_codec.h"

namespace orvik::host::posix {

// Linux can say at once whether a name exists as it is spelled, but not whether it exists in
// another case. For that a folder must be read; reading it again for each new file would make the
// copying of many files into one folder quadratic. So the names are kept, and are believed as long
// as the folder's change time and identity are what they were. The program's own changes are told
// to the cache, which then takes the folder's new time for granted once; since another program's
// change could hide behind that, such a folder is read again from time to time.
class FolderCache {
 public:
  FolderCache(const NameCodec& codec, FolderReader& reader) : codec_(codec), reader_(reader) {}

  struct Answer {
    bool folder = false;                // there is such a folder
    const std::string* name = nullptr;  // how it spells the name; valid until the next call
  };
  // Looks for a name in any case. Where several differ in case only, the answer is one of them. A
  // folder that can't be read has no names.
  Answer Look(const std::string& folder, std::string_view name);

  // True when a look-up in this folder wouldn't read it.
  bool Knows(const std::string& folder) const { return index_.contains(folder); }

  // The program itself has made or removed a name in a folder.
  void Made(const std::string& folder, std::string_view name);
  void Gone(const std::string& folder, std::string_view name);

 private:
  struct Folder {
    std::string path;
    struct timespec changed = {};
    dev_t device = 0;
    ino_t inode = 0;
    bool own_change = false;  // the next change of time is believed to be ours
    bool doubtful = false;    // another program's change may have been missed
    bool twins = false;       // some names differ only in case
    std::int64_t read_at = 0;
    std::unordered_map<Text, std::string> names;  // by folded name
  };
  using Position = std::list<Folder>::iterator;

  Folder* Find(const std::string& path);
  Folder* Current(const std::string& path, const struct stat& status);
  bool StillTrue(Folder& folder, const struct stat& status) const;
  Folder* Read(const std::string& path);
  void Forget(Position folder);
  void Shrink();

  const NameCodec& codec_;
  FolderReader& reader_;
  std::list<Folder> folders_;  // the last used one in front
  std::unordered_map<std::string, Position> index_;
  std::size_t names_ = 0;  // in all folders
};

}  // namespace orvik::host::posix
