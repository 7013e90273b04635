#include "base/key_index.h"

#include <algorithm>
#include <utility>

namespace orvik {

std::uint32_t KeyIndex::Hash(TextView key) {
  const std::uint64_t hash = HashNoCase(key);
  return static_cast<std::uint32_t>(hash ^ hash >> 32);
}

void KeyIndex::Put(Place place) {
  std::size_t at = Home(place.hash);
  while (places_[at].item != kNone) at = Next(at);
  places_[at] = place;
}

void KeyIndex::Grow() {
  constexpr std::size_t kFirst = 16;
  const auto former =
      std::exchange(places_, std::vector<Place>(std::max(kFirst, 2 * places_.size())));
  for (const Place& place : former) {
    if (place.item != kNone) Put(place);
  }
}

void KeyIndex::Add(TextView key, std::uint32_t item) {
  if (4 * (taken_ + 1) > 3 * places_.size()) Grow();
  Put({Hash(key), item});
  ++taken_;
}

// Those behind move up, so that none is cut off from its home.
void KeyIndex::Erase(TextView key, std::uint32_t item) {
  std::size_t hole = Home(Hash(key));
  while (places_[hole].item != item) hole = Next(hole);
  const std::size_t last = places_.size() - 1;
  for (std::size_t at = Next(hole); places_[at].item != kNone; at = Next(at)) {
    const std::size_t from_home = (at - Home(places_[at].hash)) & last;
    const std::size_t from_hole = (at - hole) & last;
    if (from_home < from_hole) continue;
    places_[hole] = places_[at];
    hole = at;
  }
  places_[hole] = {};
  --taken_;
}

}  // namespace orvik
