// A registry in memory.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/registry.h"

namespace orvik::test {

// Values are enumerated in writing order; overwriting keeps the place.
class FakeRegistry : public host::Registry {
 public:
  FakeRegistry();
  ~FakeRegistry() override;

  // Looking from outside, by a path from the root: the values of a key, or nothing without one.
  std::optional<std::vector<host::RegistryValue>> Values(Handle root, TextView path) const;
  // Setting up: makes the key where it is missing.
  void Write(Handle root, TextView path, TextView name, TextView data);
  // Keys that were opened and not closed.
  std::size_t open_keys() const { return open_.size(); }

  Handle CreateKey(Handle parent, const Text& path) override;
  Handle OpenKey(Handle parent, const Text& path) override;
  void CloseKey(Handle key) override;
  bool SetValue(Handle key, const Text& name, std::uint32_t type, const Text& data) override;
  std::optional<host::RegistryValue> ValueAt(Handle key, std::uint32_t index) override;
  bool DeleteValue(Handle key, const Text& name) override;
  bool DeleteKey(Handle parent, const Text& name) override;

 private:
  struct Key;
  Key* Under(Handle handle) const;
  static Key* Walk(Key* key, TextView path, bool make);
  Handle Hand(Key* key);

  std::unique_ptr<Key> machine_, classes_;
  std::map<Handle, Key*> open_;
  Handle next_ = 1;
};

}  // namespace orvik::test
