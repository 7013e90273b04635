#include "base/key_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/numbers.h"

namespace orvik {
namespace {

class KeyIndexTest : public testing::Test {
 protected:
  std::uint32_t Find(TextView key) const {
    return index_.Find(key, [this](std::uint32_t item) -> TextView { return keys_[item]; });
  }
  void Add(const Text& key) {
    index_.Add(key, static_cast<std::uint32_t>(keys_.size()));
    keys_.push_back(key);
  }

  KeyIndex index_;
  std::vector<Text> keys_;
};

TEST_F(KeyIndexTest, AnEmptyIndexHasNothing) {
  EXPECT_EQ(Find(u""), KeyIndex::kNone);
  EXPECT_EQ(Find(u"a"), KeyIndex::kNone);
}

TEST_F(KeyIndexTest, LetterCaseDoesntCount) {
  Add(u"Файл");
  Add(u"");
  EXPECT_EQ(Find(u"фАЙЛ"), 0u);
  EXPECT_EQ(Find(u""), 1u);
  EXPECT_EQ(Find(u"Фай"), KeyIndex::kNone);
}

TEST_F(KeyIndexTest, EveryItemIsFoundHoweverManyThereAre) {
  for (int i = 0; i < 10000; ++i) {
    Add(u"k" + Decimal(i));
    ASSERT_EQ(Find(u"K" + Decimal(i / 2)), static_cast<std::uint32_t>(i / 2));
  }
  EXPECT_EQ(Find(u"k10000"), KeyIndex::kNone);
}

// Erasing closes gaps, on which the finding of those behind depends.
TEST_F(KeyIndexTest, ErasedItemsAloneAreGone) {
  constexpr std::uint32_t kItems = 3000;
  for (std::uint32_t i = 0; i < kItems; ++i) Add(Decimal(i));
  std::vector<std::uint32_t> order(kItems);
  for (std::uint32_t i = 0; i < kItems; ++i) order[i] = i;
  std::shuffle(order.begin(), order.end(), std::mt19937(1));
  for (std::uint32_t gone = 0; gone < kItems; ++gone) {
    index_.Erase(keys_[order[gone]], order[gone]);
    if (gone % 100 != 0) continue;
    for (std::uint32_t i = 0; i < kItems; ++i) {
      ASSERT_EQ(Find(keys_[order[i]]), i <= gone ? KeyIndex::kNone : order[i]);
    }
  }
  Add(u"again");
  EXPECT_EQ(Find(u"AGAIN"), kItems);
}

TEST_F(KeyIndexTest, ClearingTakesAll) {
  Add(u"a");
  index_.Clear();
  EXPECT_EQ(Find(u"a"), KeyIndex::kNone);
}

}  // namespace
}  // namespace orvik
