// The names that a folder holds, straight from the kernel.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/posix/unique_fd.h"

namespace orvik::host::posix {

// Reads folders through one buffer that is kept, since a walk opens thousands of them.
class FolderReader {
 public:
  FolderReader();

  // Calls for each entry but "." and "..", in the order of the disk, with its name and its type as
  // in a directory entry (DT_DIR, DT_LNK, DT_UNKNOWN where the disk doesn't tell). False when the
  // folder can't be read to its end. The visitor must not read another folder with this reader.
  template <typename Visitor>
  bool Read(const UniqueFd& folder, Visitor&& visit) {
    for (;;) {
      const long bytes = Fill(folder);
      if (bytes <= 0) return bytes == 0;
      for (long at = 0; at < bytes;) {
        const Entry entry = EntryAt(at);
        at += entry.length;
        if (entry.name != "." && entry.name != "..") visit(entry.name, entry.type);
      }
    }
  }

  // The folder opened for reading; nothing open when it can't be.
  static UniqueFd Open(const std::string& folder);

 private:
  struct Entry {
    std::string_view name;
    unsigned char type;
    unsigned short length;
  };

  long Fill(const UniqueFd& folder);
  Entry EntryAt(long at) const;

  std::unique_ptr<char[]> buffer_;
};

}  // namespace orvik::host::posix
