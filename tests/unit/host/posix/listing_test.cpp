#include "host/posix/listing.h"

#include <thread>

#include "unit/host/posix/posix_test.h"

namespace orvik::host::posix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t kSecond = 1'000'000'000;

class LastListingTest : public PosixTest {
 protected:
  LastListingTest() {
    ::mkdir(Native("a").c_str(), 0777);
    folder_path_ = {Native("a"), Native("a").size() - 2, false};
  }

  std::int64_t Changed() const {
    return Status().st_ctim.tv_sec * kSecond + Status().st_ctim.tv_nsec;
  }
  struct stat Status() const {
    struct stat status = {};
    ::stat(Native("a").c_str(), &status);
    return status;
  }
  // As if the folder had been read so long after its last change.
  void KeepAfter(std::int64_t nanoseconds) {
    moment_ = Changed() + nanoseconds;
    last_.Keep(folder_path_, Status(), moment_, listing_);
  }
  bool Known(std::int64_t later = 0) const {
    return last_.For(folder_path_, moment_ + later) == listing_;
  }

  LastListing last_;
  NativePath folder_path_;
  std::shared_ptr<const Listing> listing_ = std::make_shared<Listing>();
  std::int64_t moment_ = 0;
};

TEST_F(LastListingTest, AnUnchangedFolderIsKnownForASecond) {
  EXPECT_EQ(last_.For(folder_path_, 0), nullptr);
  KeepAfter(3 * kSecond);
  EXPECT_TRUE(Known());
  EXPECT_TRUE(Known(kSecond));
  EXPECT_FALSE(Known(kSecond + 1));
  EXPECT_FALSE(Known(-1));  // the clock was put back
}

TEST_F(LastListingTest, AFolderThatHasJustChangedIsNotKept) {
  KeepAfter(3 * kSecond - 1);
  EXPECT_FALSE(Known());
  // What was known before is forgotten with it.
  KeepAfter(3 * kSecond);
  KeepAfter(0);
  EXPECT_FALSE(Known());
}

TEST_F(LastListingTest, EveryChangeOfNamesIsSeen) {
  const auto change = [&](auto&& make) {
    KeepAfter(3 * kSecond);
    ASSERT_TRUE(Known());
    // Past the tick of the clock that stamps.
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    make();
    EXPECT_FALSE(Known());
  };
  change([&] { WriteNative("a/x", ""); });
  change([&] { ::rename(Native("a/x").c_str(), Native("a/y").c_str()); });
  change([&] { ::unlink(Native("a/y").c_str()); });
  change([&] { ::mkdir(Native("a/y").c_str(), 0777); });
  change([&] { ::rmdir(Native("a/y").c_str()); });
  change([&] { ::chmod(Native("a").c_str(), 0700); });
  change([&] {
    ::rename(Native("a").c_str(), Native("b").c_str());
    ::mkdir(Native("a").c_str(), 0777);
  });
  change([&] { ::rmdir(Native("a").c_str()); });
}

TEST_F(LastListingTest, OtherFoldersAreNotKnown) {
  KeepAfter(3 * kSecond);
  NativePath other = folder_path_;
  other.text = Native("A");
  EXPECT_EQ(last_.For(other, moment_), nullptr);
  // The root of a drive lists neither itself nor the folder above.
  other = folder_path_;
  other.root_length = other.text.size();
  EXPECT_EQ(last_.For(other, moment_), nullptr);
}

class SettledFolderTest : public PosixTest {};

TEST_F(SettledFolderTest, ListsAgainWhatItHolds) {
  ::mkdir(Native("a").c_str(), 0777);
  ::mkdir(Native("a/folder").c_str(), 0777);
  WriteNative("a/file.txt", "1");
  ::mkdir(Native("linked").c_str(), 0777);
  ::symlink(Native("a/file.txt").c_str(), Native("linked/link").c_str());
  std::this_thread::sleep_for(std::chrono::milliseconds(3100));
  for (int round = 0; round < 3; ++round) {
    EXPECT_THAT(Names(u"T:\\a\\*"), ElementsAre(".", "..", "file.txt", "folder"));
    EXPECT_THAT(Names(u"T:\\a\\*.*"), ElementsAre(".", "..", "file.txt", "folder"));
    EXPECT_THAT(Names(u"T:\\a\\*.txt"), ElementsAre("file.txt"));
    EXPECT_THAT(Names(u"T:\\*"), ElementsAre("a", "linked"));
  }
  const auto attributes_of_link = [&] {
    FindRecord record;
    const auto search = files().FindFirst(u"T:\\linked\\*", Details::kFolderBit, record);
    while (search->Next(record)) {
    }
    return record.attributes;
  };
  EXPECT_EQ(attributes_of_link(), 0U);
  // The folder that holds the link stays as it is when its target becomes a folder.
  ::unlink(Native("a/file.txt").c_str());
  ::mkdir(Native("a/file.txt").c_str(), 0777);
  EXPECT_EQ(attributes_of_link(), attribute::kFolder);
  EXPECT_THAT(Names(u"T:\\a\\*"), ElementsAre(".", "..", "file.txt", "folder"));
  WriteNative("a/new", "");
  EXPECT_THAT(Names(u"T:\\a\\*"), ElementsAre(".", "..", "file.txt", "folder", "new"));
}

TEST_F(SettledFolderTest, ChangesInQuickSuccessionAreAllSeen) {
  ::mkdir(Native("a").c_str(), 0777);
  for (int round = 0; round < 2000; ++round) {
    WriteNative("a/x", "");
    ASSERT_THAT(Names(u"T:\\a\\*"), ElementsAre(".", "..", "x"));
    ::unlink(Native("a/x").c_str());
    ASSERT_THAT(Names(u"T:\\a\\*"), ElementsAre(".", ".."));
  }
}

}  // namespace
}  // namespace orvik::host::posix
