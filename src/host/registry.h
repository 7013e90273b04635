// The registry: keys that hold named texts.
#pragma once

#include <cstdint>
#include <optional>

#include "base/text.h"

namespace orvik::host {

constexpr std::uint32_t kLocalMachine = 0x80000002;
constexpr std::uint32_t kClassesRoot = 0x80000000;
constexpr std::uint32_t kTextValue = 1;  // REG_SZ

struct RegistryValue {
  Text name;  // empty for the unnamed value
  Text data;  // without a terminator
};

// Names of keys and values ignore letter case and keep the case of their first writing. Values are
// enumerated in writing order (under Wine sorted); overwriting keeps the place. Texts travel
// through the ANSI code page. Nothing throws.
class Registry {
 public:
  // An open key. 0 is no key: every operation on it fails without harm.
  using Handle = std::uintptr_t;

  virtual ~Registry() = default;

  // Opens a key under a root or under another open key, making it and its parents when missing. A
  // leading backslash of the path is passed over; an empty path is the parent itself.
  virtual Handle CreateKey(Handle parent, const Text& path) = 0;
  // Opens an existing key; 0 when it is missing.
  virtual Handle OpenKey(Handle parent, const Text& path) = 0;
  virtual void CloseKey(Handle key) = 0;

  virtual bool SetValue(Handle key, const Text& name, std::uint32_t type, const Text& data) = 0;
  // The value at an index from 0; nothing past the end. Data that isn't a text reads as empty.
  virtual std::optional<RegistryValue> ValueAt(Handle key, std::uint32_t index) = 0;
  virtual bool DeleteValue(Handle key, const Text& name) = 0;
  // Deletes a key directly under another. False when it has sub-keys.
  virtual bool DeleteKey(Handle parent, const Text& name) = 0;
};

}  // namespace orvik::host
