#include "host/posix/search.h"

#include <dirent.h>
#include <fcntl.h>

#include "host/name_mask.h"
#include "host/posix/attributes.h"

namespace orvik::host::posix {
namespace {

bool HasWildcards(TextView mask) { return mask.find_first_of(u"*?") != TextView::npos; }

// Puts the folder from the mask: behind the last separator, or behind the drive of "T:*".
std::size_t MaskBegin(TextView path) {
  const std::size_t separator = path.find_last_of(u"\\/");
  if (separator != TextView::npos) return separator + 1;
  return path.size() >= 2 && path[1] == u':' ? 2 : 0;
}

std::uint64_t SortKey(TextView capitals) {
  std::uint64_t key = 0;
  for (std::size_t i = 0; i < 4; ++i) key = key << 16 | (i < capitals.size() ? capitals[i] : 0U);
  return key;
}

// Fills the details of an item whose kind the directory entry doesn't tell, or where more is asked.
// The last entry of a full path, to be put together only for attributes.
class ItemDetails {
 public:
  ItemDetails(const UniqueFd& folder, const std::string& path, Details details)
      : folder_(folder), path_(path + '/'), prefix_(path_.size()), details_(details) {}

  void Fill(std::string_view name, unsigned char type, Listing::Item& item) {
    const bool known = type != DT_LNK && type != DT_UNKNOWN;
    item.attributes = type == DT_DIR ? attribute::kFolder : 0;
    if (known &&
        (details_ == Details::kFolderBit || (details_ == Details::kSizes && type != DT_REG)))
      return;
    // Names come from the kernel with a zero behind them. A dangling link is a file without size.
    struct stat status = {};
    if (::fstatat(folder_.get(), name.data(), &status, 0) != 0) return;
    item.attributes = S_ISDIR(status.st_mode) ? attribute::kFolder : 0;
    if (S_ISREG(status.st_mode)) item.size = static_cast<std::uint64_t>(status.st_size);
    if (details_ != Details::kAll) return;
    path_.resize(prefix_);
    path_ += name;
    item.attributes = AttributesOf(path_.c_str(), status);
  }

 private:
  const UniqueFd& folder_;
  std::string path_;
  std::size_t prefix_;
  Details details_;
};

}  // namespace

std::unique_ptr<Search> Searcher::FindFirst(const Text& path_and_mask, Details details,
                                            FindRecord& record) {
  if (path_and_mask.size() > kLongestPath) return nullptr;
  const TextView path = path_and_mask;
  const std::size_t begin = MaskBegin(path);
  const TextView mask = path.substr(begin);
  if (mask.empty()) return nullptr;
  std::shared_ptr<const Listing> listing =
      HasWildcards(mask) ? ListMatching(path.substr(0, begin), mask, details) : ListOne(path, mask);
  if (listing == nullptr) return nullptr;
  auto search = std::make_unique<ListingSearch>(std::move(listing));
  if (!search->Next(record)) return nullptr;
  return search;
}

UniqueFd Searcher::OpenFolder(NativePath& path) {
  return UniqueFd(finder_.Try(path, [](const char* at) {
    return ::open(at, O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
  }));
}

// The folder itself and the one above are found by masks too, except in the root of a drive.
void Searcher::AddDots(TextView mask, Listing& listing) const {
  for (const TextView dots : {TextView(u"."), TextView(u"..")}) {
    if (!FitsMask(dots, mask)) continue;
    Listing::Item item;
    item.attributes = attribute::kFolder;
    item.begin = static_cast<std::uint32_t>(listing.names.size());
    item.length = static_cast<std::uint16_t>(dots.size());
    listing.names += dots;
    listing.capitals += dots;
    listing.items.push_back(item);
  }
}

std::shared_ptr<const Listing> Searcher::ListMatching(TextView folder, TextView mask,
                                                      Details details) {
  std::optional<NativePath> path = finder_.Translate(folder.empty() ? TextView(u".") : folder);
  if (!path) return nullptr;
  const bool everything = mask == u"*" || mask == u"*.*";
  const bool names_alone = everything && details == Details::kFolderBit;
  if (names_alone) {
    if (auto known = last_.For(*path, LastListing::Moment())) return known;
  }
  const UniqueFd fd = OpenFolder(*path);
  struct stat before = {};
  if (!fd || (names_alone && ::fstat(fd.get(), &before) != 0)) return nullptr;
  const std::int64_t moment = LastListing::Moment();
  auto listing = std::make_shared<Listing>();
  if (!path->IsRoot()) AddDots(mask, *listing);
  const std::size_t dots = listing->items.size();
  ItemDetails filler(fd, path->text, details);
  bool told_by_names = true;
  const auto add = [&](std::string_view name, unsigned char type) {
    const std::size_t begin = listing->names.size();
    codec_.AppendListed(name, listing->names);
    const TextView listed = TextView(listing->names).substr(begin);
    if (!everything && !FitsMask(listed, mask)) {
      listing->names.resize(begin);
      return;
    }
    Listing::Item& item = listing->items.emplace_back();
    item.begin = static_cast<std::uint32_t>(begin);
    item.length = static_cast<std::uint16_t>(listed.size());
    for (const char16_t c : listed) listing->capitals.push_back(codec_.Upper(c));
    item.sort_key = SortKey(TextView(listing->capitals).substr(begin));
    filler.Fill(name, type, item);
    // What a link leads to may change while the folder stays as it is.
    told_by_names &= type != DT_LNK && type != DT_UNKNOWN;
  };
  // What could be read of a folder counts, as when an entry vanishes while Windows reads one.
  const bool whole = reader_.Read(fd, add);
  listing->Sort(dots);
  if (whole && names_alone && told_by_names) last_.Keep(*path, before, moment, listing);
  return listing;
}

// A path without wildcards finds the one entry that it names.
std::shared_ptr<const Listing> Searcher::ListOne(TextView path, TextView mask) {
  const std::optional<Entry> entry = finder_.Look(path);
  if (!entry || entry->path.IsRoot()) return nullptr;
  auto listing = std::make_shared<Listing>();
  Listing::Item item;
  codec_.AppendListed(entry->path.Leaf(), listing->names);
  if (!FitsMask(listing->names, mask)) return nullptr;  // "." and ".." aren't names
  item.length = static_cast<std::uint16_t>(listing->names.size());
  item.attributes = AttributesOf(entry->path.c_str(), entry->status);
  if (entry->IsFile()) item.size = static_cast<std::uint64_t>(entry->status.st_size);
  listing->items.push_back(item);
  return listing;
}

}  // namespace orvik::host::posix
