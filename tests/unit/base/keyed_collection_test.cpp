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

}  // namespace
}  // namespace orvik
