#include "host/posix/listing.h"

#include <algorithm>
#include <ctime>

namespace orvik::host::posix {
namespace {

// Time stamps of some disks are as coarse as two seconds: of a folder that changed that shortly
// before it was read, the next change may leave the time as it is.
constexpr std::int64_t kCoarsestStamp = 3'000'000'000;
// Other systems' disks may keep no times of folders at all, so names aren't believed for long.
constexpr std::int64_t kBelievedFor = 1'000'000'000;

std::int64_t Nanoseconds(const struct timespec& time) {
  return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

}  // namespace

bool ListingSearch::Next(FindRecord& record) {
  if (next_ == listing_->items.size()) return false;
  const Listing::Item& item = listing_->items[next_++];
  record.attributes = item.attributes;
  record.size_high = static_cast<std::uint32_t>(item.size >> 32);
  record.size_low = static_cast<std::uint32_t>(item.size);
  record.name.assign(listing_->names, item.begin, item.length);
  return true;
}

void Listing::Sort(std::size_t first) {
  const auto capitals_of = [this](const Item& item) {
    return TextView(capitals).substr(item.begin, item.length);
  };
  const auto before = [&](const Item& a, const Item& b) {
    if (a.sort_key != b.sort_key) return a.sort_key < b.sort_key;
    if (const int order = capitals_of(a).compare(capitals_of(b)); order != 0) return order < 0;
    return TextView(names).substr(a.begin, a.length) < TextView(names).substr(b.begin, b.length);
  };
  std::sort(items.begin() + static_cast<std::ptrdiff_t>(first), items.end(), before);
}

std::int64_t LastListing::Moment() {
  struct timespec now = {};
  ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
  return Nanoseconds(now);
}

std::shared_ptr<const Listing> LastListing::For(const NativePath& folder,
                                                std::int64_t moment) const {
  struct stat now = {};
  if (listing_ == nullptr || folder.text != folder_.text || folder.IsRoot() != folder_.IsRoot() ||
      moment < moment_ || moment - moment_ > kBelievedFor || ::stat(folder.c_str(), &now) != 0) {
    return nullptr;
  }
  const bool same = now.st_dev == status_.st_dev && now.st_ino == status_.st_ino &&
                    Nanoseconds(now.st_ctim) == Nanoseconds(status_.st_ctim) &&
                    Nanoseconds(now.st_mtim) == Nanoseconds(status_.st_mtim);
  return same ? listing_ : nullptr;
}

void LastListing::Keep(const NativePath& folder, const struct stat& before, std::int64_t moment,
                       std::shared_ptr<const Listing> listing) {
  listing_.reset();
  if (moment - Nanoseconds(before.st_ctim) < kCoarsestStamp) return;
  folder_ = folder;
  status_ = before;
  moment_ = moment;
  listing_ = std::move(listing);
}

}  // namespace orvik::host::posix
