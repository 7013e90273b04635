// The listing of folders.
#pragma once

#include <memory>

#include "host/file_system.h"
#include "host/posix/folder_reader.h"
#include "host/posix/listing.h"
#include "host/posix/path_finder.h"

namespace orvik::host::posix {

class Searcher {
 public:
  Searcher(PathFinder& finder, FolderReader& reader, const NameCodec& codec)
      : finder_(finder), reader_(reader), codec_(codec) {}

  // As FileSystem::FindFirst.
  std::unique_ptr<Search> FindFirst(const Text& path_and_mask, Details details, FindRecord& record);

 private:
  std::shared_ptr<const Listing> ListMatching(TextView folder, TextView mask, Details details);
  std::shared_ptr<const Listing> ListOne(TextView path, TextView mask);
  void AddDots(TextView mask, Listing& listing) const;
  UniqueFd OpenFolder(NativePath& path);

  PathFinder& finder_;
  FolderReader& reader_;
  const NameCodec& codec_;
  LastListing last_;
};

}  // namespace orvik::host::posix
