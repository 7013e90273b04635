// The listing of folders.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "host/file_system.h"
#include "host/posix/folder_reader.h"
#include "host/posix/path_finder.h"

namespace orvik::host::posix {

// One listing: all that matched when the folder was read, in the order of NTFS, which is by
// capitals. Later changes don't show. All names share one block of memory.
class Listing : public Search {
 public:
  bool Next(FindRecord& record) override;

  struct Item {
    std::uint64_t sort_key = 0;  // the first four capitals, which settle most comparisons
    std::uint64_t size = 0;
    std::uint32_t attributes = 0;
    std::uint32_t begin = 0;  // in both texts
    std::uint16_t length = 0;
  };
  std::vector<Item> items;
  Text names;
  Text capitals;

  // Sorts the items from an index on.
  void Sort(std::size_t first);

 private:
  std::size_t next_ = 0;
};

class Searcher {
 public:
  Searcher(PathFinder& finder, FolderReader& reader, const NameCodec& codec)
      : finder_(finder), reader_(reader), codec_(codec) {}

  // As FileSystem::FindFirst.
  std::unique_ptr<Search> FindFirst(const Text& path_and_mask, Details details, FindRecord& record);

 private:
  std::unique_ptr<Listing> ListMatching(TextView folder, TextView mask, Details details);
  std::unique_ptr<Listing> ListOne(TextView path, TextView mask);
  void AddDots(TextView mask, Listing& listing) const;
  UniqueFd OpenFolder(NativePath& path);

  PathFinder& finder_;
  FolderReader& reader_;
  const NameCodec& codec_;
};

}  // namespace orvik::host::posix
