#include "base/keyed_collection.h"

#include <gtest/gtest.h>

#include "base/failure.h"

namespace orvik {
namespace {

TEST(KeyedCollection, KeysAreUniqueAndBlindToLetterCase) {
  KeyedCollection collection;
  collection.Add(u"first", u"kФайл");
  EXPECT_THROW(collection.Add(u"second", u"kфАЙЛ"), Failure);
  EXPECT_EQ(collection.Count(), 1u);
  EXPECT_EQ(collection.Item(u"KФАЙЛ"), u"first");
}

TEST(KeyedCollection, PositionsCountFromOne) {
  KeyedCollection collection;
  collection.Add(u"a");
  collection.Add(u"b", u"kb");
  EXPECT_EQ(collection.Item(1), u"a");
  EXPECT_EQ(collection.Item(2), u"b");
  EXPECT_THROW((void)collection.Item(0), Failure);
  EXPECT_THROW((void)collection.Item(3), Failure);
  EXPECT_THROW((void)collection.Item(u"ka"), Failure);
  EXPECT_EQ(collection.Find(u"ka"), nullptr);
}

TEST(KeyedCollection, RemovalMovesWhatIsBehind) {
  KeyedCollection collection;
  collection.Add(u"a", u"ka");
  collection.Add(u"b", u"kb");
  collection.Add(u"c", u"kc");
  collection.Remove(1);
  EXPECT_EQ(collection.Item(1), u"b");
  EXPECT_EQ(collection.Item(u"kc"), u"c");
  EXPECT_EQ(collection.Find(u"ka"), nullptr);
  collection.Add(u"a again", u"ka");
  EXPECT_EQ(collection.Item(3), u"a again");
  EXPECT_THROW(collection.Remove(4), Failure);
}

}  // namespace
}  // namespace orvik
