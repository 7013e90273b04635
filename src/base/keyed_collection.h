// An ordered list of texts whose items may have keys.
#pragma once

#include <cstddef>
#include <vector>

#include "base/key_index.h"
#include "base/text.h"

namespace orvik {

// Positions count from 1. Keys are unique and blind to letter case. Look-up by key takes constant
// time.
class KeyedCollection {
 public:
  // Adds at the end. Throws Failure, and adds nothing, when the key exists.
  void Add(Text item, TextView key);
  // Adds an item without a key at the end.
  void Add(Text item) { items_.push_back({std::move(item), Text()}); }

  // The item at a position or under a key; throws Failure when there is none.
  const Text& Item(std::size_t position) const;
  const Text& Item(TextView key) const;
  // The item under a key, or nullptr.
  const Text* Find(TextView key) const;

  std::size_t Count() const { return items_.size(); }

 private:
  struct Entry {
    Text item;
    Text key;
  };
  std::vector<Entry> items_;
  KeyIndex index_;
};

}  // namespace orvik
