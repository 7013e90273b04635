// What a folder held when it was read.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "host/file_system.h"
#include "host/posix/native_path.h"

namespace orvik::host::posix {

// All that matched when a folder was read, in the order of NTFS, which is by capitals. All names
// share one block of memory.
struct Listing {
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
};

// One search: later changes of the folder don't show.
class ListingSearch : public Search {
 public:
  explicit ListingSearch(std::shared_ptr<const Listing> listing) : listing_(std::move(listing)) {}
  bool Next(FindRecord& record) override;

 private:
  std::shared_ptr<const Listing> listing_;
  std::size_t next_ = 0;
};

// The names of the folder that was read last, all of them. A walk asks for each folder twice in a
// row, for its folders and for its files; the second time this answers, as long as the folder's own
// time says that no name has come or gone.
class LastListing {
 public:
  // Nanoseconds of the system's clock.
  static std::int64_t Moment();

  // What the folder holds at this moment, in nanoseconds of the system's clock; nothing when it
  // must be read for that.
  std::shared_ptr<const Listing> For(const NativePath& folder, std::int64_t moment) const;
  // Takes a listing over, unless a later change of the folder might not show in its time. `before`
  // is the folder's status, and `moment` the time, from before it was read.
  void Keep(const NativePath& folder, const struct stat& before, std::int64_t moment,
            std::shared_ptr<const Listing> listing);

 private:
  NativePath folder_;
  struct stat status_ = {};
  std::int64_t moment_ = 0;
  std::shared_ptr<const Listing> listing_;
};

}  // namespace orvik::host::posix
