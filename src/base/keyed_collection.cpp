#include "base/keyed_collection.h"

#include "base/failure.h"

namespace orvik {

void KeyedCollection::Add(Text item, TextView key) {
  if (Find(key) != nullptr) throw Failure{};
  index_.Add(key, static_cast<std::uint32_t>(items_.size()));
  items_.push_back({std::move(item), Text(key)});
}

const Text& KeyedCollection::Item(std::size_t position) const {
  if (position < 1 || position > items_.size()) throw Failure{};
  return items_[position - 1].item;
}

const Text& KeyedCollection::Item(TextView key) const {
  const Text* found = Find(key);
  if (found == nullptr) throw Failure{};
  return *found;
}

const Text* KeyedCollection::Find(TextView key) const {
  const auto key_of = [&](std::uint32_t i) -> TextView { return items_[i].key; };
  const std::uint32_t found = index_.Find(key, key_of);
  return found == KeyIndex::kNone ? nullptr : &items_[found].item;
}

}  // namespace orvik
