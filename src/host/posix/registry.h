// The registry, kept in one text file.
#pragma once

#include <map>
#include <string>

#include "base/code_page.h"
#include "host/posix/registry_file.h"
#include "host/registry.h"

namespace orvik::host::posix {

// Names of keys can't hold line breaks, since a line of the file can't tell them; names and data of
// values can.
class PosixRegistry : public Registry {
 public:
  PosixRegistry(std::string path, const CodePage& page) : file_(std::move(path)), page_(page) {}

  Handle CreateKey(Handle parent, const Text& path) override;
  Handle OpenKey(Handle parent, const Text& path) override;
  void CloseKey(Handle key) override;
  bool SetValue(Handle key, const Text& name, std::uint32_t type, const Text& data) override;
  std::optional<RegistryValue> ValueAt(Handle key, std::uint32_t index) override;
  bool DeleteValue(Handle key, const Text& name) override;
  bool DeleteKey(Handle parent, const Text& name) override;

 private:
  // The full path of an open key, nullptr for a handle that isn't one.
  const Text* PathOf(Handle key) const;
  std::optional<Text> Joined(Handle parent, TextView path) const;
  bool Exists(const Text& path);
  Handle Opened(Text path);
  Text ThroughPage(TextView text) const;

  RegistryFile file_;
  const CodePage& page_;
  std::map<Handle, Text> open_;
  Handle next_ = 4;
};

}  // namespace orvik::host::posix
