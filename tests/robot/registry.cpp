#include "robot/registry.h"

#include <vector>

namespace orvik::robot {

namespace {

// A key open for reading; none when it doesn't exist.
class OpenKey {
 public:
  explicit OpenKey(const forms::headless::KeyPath& key) {
    const auto root = reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(key.root)));
    if (RegOpenKeyExW(root, Wide(key.path), 0, KEY_READ, &key_) != ERROR_SUCCESS) key_ = nullptr;
  }
  ~OpenKey() {
    if (key_ != nullptr) RegCloseKey(key_);
  }
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;

  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

struct Value {
  Text name;
  Text data;
};

// The data of a value of text; other kinds show none.
Text TextOf(const std::vector<char16_t>& buffer, DWORD size, DWORD type) {
  if (type != REG_SZ && type != REG_EXPAND_SZ) return {};
  const Text whole(buffer.data(), size / sizeof(char16_t));
  return whole.substr(0, whole.find(u'\0'));
}

std::vector<Value> ValuesOf(HKEY key) {
  constexpr DWORD kLongestName = 16384;
  DWORD longest = 0;
  RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                   &longest, nullptr, nullptr);
  std::vector<Value> values;
  std::vector<wchar_t> name(kLongestName);
  std::vector<char16_t> data(longest / sizeof(char16_t) + 1);
  for (DWORD index = 0;; ++index) {
    DWORD length = kLongestName;
    DWORD size = static_cast<DWORD>(data.size() * sizeof(char16_t));
    DWORD type = 0;
    if (RegEnumValueW(key, index, name.data(), &length, nullptr, &type,
                      reinterpret_cast<BYTE*>(data.data()), &size) != ERROR_SUCCESS) {
      return values;
    }
    values.push_back({FromWide(name.data(), length), TextOf(data, size, type)});
  }
}

}  // namespace

void WriteRegistryKey(forms::headless::JsonWriter& json, const forms::headless::KeyPath& key) {
  const OpenKey open(key);
  if (open.get() == nullptr) {
    json.Null();
    return;
  }
  json.BeginArray();
  for (const Value& value : ValuesOf(open.get())) {
    json.BeginArray();
    json.String(TextView(value.name));
    json.String(TextView(value.data));
    json.EndArray();
  }
  json.EndArray();
}

}  // namespace orvik::robot
