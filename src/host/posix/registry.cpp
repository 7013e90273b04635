#include "host/posix/registry.h"

#include "host/posix/registry_data.h"

namespace orvik::host::posix {
namespace {

const Text kLocalMachinePath = u"HKEY_LOCAL_MACHINE";
const Text kClassesRootPath = u"HKEY_CLASSES_ROOT";
constexpr std::size_t kLongestKeyName = 255;

bool IsRoot(TextView path) { return path.find(u'\\') == TextView::npos; }

}  // namespace

const Text* PosixRegistry::PathOf(Handle key) const {
  if (key == kLocalMachine) return &kLocalMachinePath;
  if (key == kClassesRoot) return &kClassesRootPath;
  const auto found = open_.find(key);
  return found != open_.end() ? &found->second : nullptr;
}

Text PosixRegistry::ThroughPage(TextView text) const { return page_.Decode(page_.Encode(text)); }

// The full path of a key below another; empty components are passed over.
std::optional<Text> PosixRegistry::Joined(Handle parent, TextView path) const {
  const Text* const above = PathOf(parent);
  if (above == nullptr) return std::nullopt;
  Text full = *above;
  for (const TextView name : Split(path, u"\\")) {
    if (name.empty()) continue;
    if (name.size() > kLongestKeyName) return std::nullopt;
    if (name.find_first_of(TextView(u"\r\n\0", 3)) != TextView::npos) return std::nullopt;
    full += u'\\';
    full += ThroughPage(name);
  }
  return full;
}

bool PosixRegistry::Exists(const Text& path) { return IsRoot(path) || file_.Read().Has(path); }

Registry::Handle PosixRegistry::Opened(Text path) {
  const Handle handle = next_;
  next_ += 4;
  open_.emplace(handle, std::move(path));
  return handle;
}

Registry::Handle PosixRegistry::CreateKey(Handle parent, const Text& path) {
  std::optional<Text> full = Joined(parent, path);
  if (!full) return 0;
  if (!Exists(*full) && !file_.Update([&](RegistryDocument& document) {
        document.Create(*full);
        return true;
      })) {
    return 0;
  }
  return Opened(std::move(*full));
}

Registry::Handle PosixRegistry::OpenKey(Handle parent, const Text& path) {
  std::optional<Text> full = Joined(parent, path);
  return full && Exists(*full) ? Opened(std::move(*full)) : 0;
}

void PosixRegistry::CloseKey(Handle key) { open_.erase(key); }

bool PosixRegistry::SetValue(Handle key, const Text& name, std::uint32_t type, const Text& data) {
  const Text* const path = PathOf(key);
  if (path == nullptr) return false;
  const Text spelled = ThroughPage(TextView(name).substr(0, name.find(u'\0')));
  const Text stored = RegistryData(type, ThroughPage(data), page_.Encode(data));
  return file_.Update([&](RegistryDocument& document) {
    if (IsRoot(*path)) document.Create(*path);
    return document.Set(*path, spelled, stored);
  });
}

std::optional<RegistryValue> PosixRegistry::ValueAt(Handle key, std::uint32_t index) {
  const Text* const path = PathOf(key);
  if (path == nullptr) return std::nullopt;
  const RegistryLine* const line = file_.Read().ValueAt(*path, index);
  if (line == nullptr) return std::nullopt;
  return RegistryValue{ThroughPage(line->name), ThroughPage(TextOfRegistryData(line->data))};
}

bool PosixRegistry::DeleteValue(Handle key, const Text& name) {
  const Text* const path = PathOf(key);
  if (path == nullptr) return false;
  const Text spelled = ThroughPage(name);
  return file_.Update([&](RegistryDocument& document) { return document.Unset(*path, spelled); });
}

bool PosixRegistry::DeleteKey(Handle parent, const Text& name) {
  const std::optional<Text> full = Joined(parent, name);
  const Text* const above = PathOf(parent);
  if (!full || above == nullptr || full->size() <= above->size()) return false;
  return file_.Update([&](RegistryDocument& document) { return document.Remove(*full); });
}

}  // namespace orvik::host::posix
