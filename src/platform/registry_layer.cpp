#include "platform/registry_layer.h"

#include <array>
#include <optional>

#include "base/failure.h"
#include "host/host.h"
#include "startup/globals.h"

namespace orvik::mdlSupport {

std::int16_t RegLastError = 0;
Text RegLastErrorText;

namespace {

constexpr std::int16_t kNothingFound = -1;
constexpr std::int16_t kInvalidKey = 2;
constexpr std::int16_t kInvalidValues = 4;
constexpr std::int16_t kInvalidPath = 5;

// Indexed by code plus one. Codes 1 and 3 belong to the table, though nothing sets them.
constexpr std::array<TextView, 7> kErrorTexts = {
    u"The key does not exist. Possibility of a zerokey or Invalid path.",
    u"No error",
    u"Invalid KeyType",
    u"Invalid hKey",
    u"Action abort. Registry is ReadOnly",
    u"Invalid or missing values, please check values",
    u"Invalid path"};

// Used where a call passes an empty value name. Nothing assigns it: that is the unnamed value.
const Text default_value_name;

// What an enumeration leaves in its buffers when there was nothing at the index.
constexpr int kBufferLength = 255;

std::uint32_t ResolveRootKey(std::uint32_t hKey) {
  if (hKey != 0) return hKey;
  if (mdlMain::RegRootKey == 0) RaiseRegError(kInvalidKey);
  return mdlMain::RegRootKey;
}

const Text& ResolvePath(const Text& path) {
  const Text& resolved = path.empty() ? mdlMain::RegRootPath : path;
  if (resolved.empty()) RaiseRegError(kInvalidPath);
  return resolved;
}

const Text& ResolveValueName(const Text& name) { return name.empty() ? default_value_name : name; }

std::uint32_t ResolveValueType(std::uint32_t type) { return type == 0 ? host::kTextValue : type; }

// A key that is open for one operation.
class OpenedKey {
 public:
  explicit OpenedKey(host::Registry::Handle handle) : handle_(handle) {}
  ~OpenedKey() { host::Keys().CloseKey(handle_); }
  OpenedKey(const OpenedKey&) = delete;
  OpenedKey& operator=(const OpenedKey&) = delete;
  operator host::Registry::Handle() const { return handle_; }  // NOLINT: it is that handle

 private:
  const host::Registry::Handle handle_;
};

// What one enumeration step left in the two buffers.
struct EnumBuffers {
  Text name = Text(kBufferLength, u' ');
  Text data = Text(kBufferLength, u' ');
  bool untouched = true;

  EnumBuffers(host::Registry::Handle key, std::uint32_t index) {
    if (auto value = host::Keys().ValueAt(key, index)) {
      name = std::move(value->name);
      data = std::move(value->data);
      untouched = false;
    }
  }
  // The end of a list shows by both lengths being still those of the buffers. The pending code is
  // added on purpose: with one pending from an earlier end, this one goes unnoticed, and the
  // untouched blanks are the answer.
  bool ShowEnd() const { return untouched && RegLastError + 2 * kBufferLength == 510; }
};

}  // namespace

void SetRegError(std::int16_t code) {
  RegLastError = code;
  RegLastErrorText = kErrorTexts[static_cast<std::size_t>(code + 1)];
}

void RaiseRegError(std::int16_t code) {
  if (RegLastError == 0) SetRegError(code);
}

void WriteRegValue(std::uint32_t hKey, const Text& path, const Text& name, const Text& data,
                   std::uint32_t type) {
  SetRegError(0);
  const std::uint32_t root = ResolveRootKey(hKey);
  const OpenedKey key(host::Keys().CreateKey(root, ResolvePath(path)));
  host::Keys().SetValue(key, ResolveValueName(name), ResolveValueType(type), data);
}

void DeleteRegValue(std::uint32_t hKey, const Text& path, const Text& name) {
  const std::uint32_t root = ResolveRootKey(hKey);
  const OpenedKey key(host::Keys().CreateKey(root, ResolvePath(path)));
  host::Keys().DeleteValue(key, ResolveValueName(name));
}

void DeleteRegKey(std::uint32_t hKey, const Text& path) {
  SetRegError(0);
  const Text& resolved = ResolvePath(path);
  const std::uint32_t root = ResolveRootKey(hKey);
  // Without a backslash the key stands directly under the root.
  const std::size_t last = resolved.rfind(u'\\');
  const Text parent = last == Text::npos ? Text() : resolved.substr(0, last);
  const Text name = last == Text::npos ? resolved : resolved.substr(last + 1);
  const OpenedKey key(host::Keys().CreateKey(root, parent));
  host::Keys().DeleteKey(key, name);
}

Text ReadRegValue(std::uint32_t hKey, const Text& path, const Text& name) {
  SetRegError(0);
  const std::uint32_t root = ResolveRootKey(hKey);
  const OpenedKey key(host::Keys().OpenKey(root, ResolvePath(path)));
  const Text& wanted = ResolveValueName(name);
  for (std::uint32_t index = 0; RegLastError == 0; ++index) {
    EnumBuffers entry(key, index);
    if (entry.ShowEnd()) {
      SetRegError(kNothingFound);
    } else if (entry.name == wanted) {
      // No text can be cut from empty data: that counts as a failure, with an empty answer.
      if (entry.data.empty()) RaiseRegError(kInvalidValues);
      return entry.data;
    }
  }
  return {};
}

Text EnumRegValueName(std::uint32_t hKey, const Text& path, std::int32_t index) {
  const std::uint32_t root = ResolveRootKey(hKey);
  const OpenedKey key(host::Keys().OpenKey(root, ResolvePath(path)));
  EnumBuffers entry(key, static_cast<std::uint32_t>(index));
  if (!entry.ShowEnd()) return entry.name;
  SetRegError(kNothingFound);
  return {};
}

Text EnumRegValueData(std::uint32_t hKey, const Text& path, std::int32_t index) {
  const std::uint32_t root = ResolveRootKey(hKey);
  const OpenedKey key(host::Keys().OpenKey(root, ResolvePath(path)));
  EnumBuffers entry(key, static_cast<std::uint32_t>(index));
  if (entry.ShowEnd()) {
    SetRegError(kNothingFound);
    return {};
  }
  if (entry.data.empty()) RaiseRegError(kInvalidValues);
  return entry.data;
}

}  // namespace orvik::mdlSupport
