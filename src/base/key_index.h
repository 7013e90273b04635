// Finds the items of a list by their keys, blind to letter case.
#pragma once

#include <cstdint>
#include <vector>

#include "base/text.h"

namespace orvik {

// Holds eight bytes an item or a little more, for the keys themselves stay with the items. Items
// are numbers below kNone, and whoever has the list says which key an item has: `key_of`, a routine
// from an item's number to its key as a TextView.
class KeyIndex {
 public:
  static constexpr std::uint32_t kNone = UINT32_MAX;

  // The item with a key, kNone when there is none.
  template <typename KeyOf>
  std::uint32_t Find(TextView key, const KeyOf& key_of) const {
    if (places_.empty()) return kNone;
    const std::uint32_t hash = Hash(key);
    for (std::size_t at = Home(hash); places_[at].item != kNone; at = Next(at)) {
      const Place& place = places_[at];
      if (place.hash == hash && EqualNoCase(key_of(place.item), key)) return place.item;
    }
    return kNone;
  }

  // Takes in an item under a key that isn't in the index yet.
  void Add(TextView key, std::uint32_t item);
  // Takes out an item, which is in the index under this key.
  void Erase(TextView key, std::uint32_t item);
  void Clear() { *this = {}; }

 private:
  struct Place {
    std::uint32_t hash = 0;
    std::uint32_t item = kNone;
  };

  static std::uint32_t Hash(TextView key);
  std::size_t Home(std::uint32_t hash) const { return hash & (places_.size() - 1); }
  std::size_t Next(std::size_t at) const { return (at + 1) & (places_.size() - 1); }
  void Put(Place place);
  void Grow();

  std::vector<Place> places_;  // a power of two of them, a quarter of them free at least
  std::size_t taken_ = 0;
};

}  // namespace orvik
