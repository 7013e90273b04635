// The registry of Windows.
#pragma once

#include "host/registry.h"

namespace orvik::host::win32 {

class Win32Registry : public Registry {
 public:
  Handle CreateKey(Handle parent, const Text& path) override;
  Handle OpenKey(Handle parent, const Text& path) override;
  void CloseKey(Handle key) override;
  bool SetValue(Handle key, const Text& name, std::uint32_t type, const Text& data) override;
  std::optional<RegistryValue> ValueAt(Handle key, std::uint32_t index) override;
  bool DeleteValue(Handle key, const Text& name) override;
  bool DeleteKey(Handle parent, const Text& name) override;
};

}  // namespace orvik::host::win32
