#include "unit/support/fake_registry.h"

#include <algorithm>

namespace orvik::test {

using host::RegistryValue;

struct FakeRegistry::Key {
  Text name;
  std::vector<RegistryValue> values;
  std::vector<std::unique_ptr<Key>> children;

  auto Child(TextView wanted) const {
    return std::find_if(children.begin(), children.end(),
                        [&](const auto& child) { return EqualNoCase(child->name, wanted); });
  }
  auto Value(TextView wanted) {
    return std::find_if(values.begin(), values.end(),
                        [&](const auto& value) { return EqualNoCase(value.name, wanted); });
  }
};

FakeRegistry::FakeRegistry()
    : machine_(std::make_unique<Key>()), classes_(std::make_unique<Key>()) {}
FakeRegistry::~FakeRegistry() = default;

FakeRegistry::Key* FakeRegistry::Under(Handle handle) const {
  if (handle == host::kLocalMachine) return machine_.get();
  if (handle == host::kClassesRoot) return classes_.get();
  const auto found = open_.find(handle);
  return found == open_.end() ? nullptr : found->second;
}

FakeRegistry::Key* FakeRegistry::Walk(Key* key, TextView path, bool make) {
  for (TextView name : Split(path, u"\\")) {
    if (key == nullptr || name.empty()) continue;
    const auto child = key->Child(name);
    if (child != key->children.end()) {
      key = child->get();
    } else if (make) {
      key = key->children.emplace_back(std::make_unique<Key>(Key{Text(name), {}, {}})).get();
    } else {
      key = nullptr;
    }
  }
  return key;
}

FakeRegistry::Handle FakeRegistry::Hand(Key* key) {
  if (key == nullptr) return 0;
  open_[next_] = key;
  return next_++;
}

std::optional<std::vector<RegistryValue>> FakeRegistry::Values(Handle root, TextView path) const {
  const Key* key = Walk(Under(root), path, false);
  if (key == nullptr) return std::nullopt;
  return key->values;
}

void FakeRegistry::Write(Handle root, TextView path, TextView name, TextView data) {
  const Handle key = CreateKey(root, Text(path));
  SetValue(key, Text(name), host::kTextValue, Text(data));
  CloseKey(key);
}

FakeRegistry::Handle FakeRegistry::CreateKey(Handle parent, const Text& path) {
  return Hand(Walk(Under(parent), path, true));
}

FakeRegistry::Handle FakeRegistry::OpenKey(Handle parent, const Text& path) {
  return Hand(Walk(Under(parent), path, false));
}

void FakeRegistry::CloseKey(Handle key) { open_.erase(key); }

bool FakeRegistry::SetValue(Handle key, const Text& name, std::uint32_t type, const Text& data) {
  Key* at = Under(key);
  if (at == nullptr) return false;
  const Text stored = type == host::kTextValue ? data : Text();
  if (const auto value = at->Value(name); value != at->values.end()) {
    value->data = stored;
  } else {
    at->values.push_back({name, stored});
  }
  return true;
}

std::optional<RegistryValue> FakeRegistry::ValueAt(Handle key, std::uint32_t index) {
  const Key* at = Under(key);
  if (at == nullptr || index >= at->values.size()) return std::nullopt;
  return at->values[index];
}

bool FakeRegistry::DeleteValue(Handle key, const Text& name) {
  Key* at = Under(key);
  if (at == nullptr) return false;
  const auto value = at->Value(name);
  if (value == at->values.end()) return false;
  at->values.erase(value);
  return true;
}

bool FakeRegistry::DeleteKey(Handle parent, const Text& name) {
  Key* at = Under(parent);
  const std::size_t cut = name.rfind(u'\\');
  if (cut != Text::npos) at = Walk(at, TextView(name).substr(0, cut), false);
  if (at == nullptr) return false;
  const auto child = at->Child(cut == Text::npos ? TextView(name) : TextView(name).substr(cut + 1));
  if (child == at->children.end() || !(*child)->children.empty()) return false;
  std::erase_if(open_, [&](const auto& open) { return open.second == child->get(); });
  at->children.erase(child);
  return true;
}

}  // namespace orvik::test
