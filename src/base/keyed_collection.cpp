#include "base/keyed_collection.h"

#include "base/failure.h"

namespace orvik {

void KeyedCollection::Add(Text item, TextView key) {
  if (!index_.try_emplace(Text(key), items_.size()).second) throw Failure{};
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
  const auto found = index_.find(key);
  return found == index_.end() ? nullptr : &items_[found->second].item;
}

void KeyedCollection::Remove(std::size_t position) {
  if (position < 1 || position > items_.size()) throw Failure{};
  const auto indexed = index_.find(items_[position - 1].key);
  if (indexed != index_.end() && indexed->second == position - 1) index_.erase(indexed);
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position - 1));
  for (auto& [key, place] : index_) {
    if (place >= position) --place;
  }
}

}  // namespace orvik
