#include "host/win32/win32_registry.h"

#include <algorithm>
#include <string>

#include "host/win32/ansi_text.h"
#include "host/win32/windows_api.h"

namespace orvik::host::win32 {
namespace {

constexpr std::size_t kLongestValueName = 16383;
constexpr Registry::Handle kFirstRoot = 0x80000000;
constexpr Registry::Handle kLastRoot = 0xFFFFFFFF;

// Roots are 32-bit numbers for the program and sign-extended ones for the system.
HKEY Key(Registry::Handle handle) {
  const bool is_root = handle >= kFirstRoot && handle <= kLastRoot;
  const auto wide =
      is_root ? static_cast<LONG_PTR>(static_cast<LONG>(handle)) : static_cast<LONG_PTR>(handle);
  return reinterpret_cast<HKEY>(wide);  // NOLINT(performance-no-int-to-ptr): it is a number
}

Registry::Handle Number(HKEY key) { return reinterpret_cast<Registry::Handle>(key); }

// A text up to its first zero, as the services read it.
std::string Piece(const Text& text) { return ToAnsi(TextView(text).substr(0, text.find(u'\0'))); }

std::string KeyPath(const Text& path) {
  std::string bytes = Piece(path);
  if (bytes.starts_with('\\')) bytes.erase(0, 1);
  return bytes;
}

bool IsText(DWORD type) { return type == REG_SZ || type == REG_EXPAND_SZ; }

}  // namespace

// The extended calls, because the plain ones answer an empty path with the parent's own handle, and
// closing that would close the parent.
Registry::Handle Win32Registry::CreateKey(Handle parent, const Text& path) {
  HKEY key = nullptr;
  if (parent == 0) return 0;
  const LSTATUS status =
      RegCreateKeyExA(Key(parent), KeyPath(path).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                      MAXIMUM_ALLOWED, nullptr, &key, nullptr);
  return status == ERROR_SUCCESS ? Number(key) : 0;
}

Registry::Handle Win32Registry::OpenKey(Handle parent, const Text& path) {
  HKEY key = nullptr;
  if (parent == 0) return 0;
  const LSTATUS status =
      RegOpenKeyExA(Key(parent), KeyPath(path).c_str(), 0, MAXIMUM_ALLOWED, &key);
  return status == ERROR_SUCCESS ? Number(key) : 0;
}

void Win32Registry::CloseKey(Handle key) {
  if (key != 0) RegCloseKey(Key(key));
}

bool Win32Registry::SetValue(Handle key, const Text& name, std::uint32_t type, const Text& data) {
  if (key == 0) return false;
  const std::string bytes = ToAnsi(data);
  // The terminator belongs to the data of a text.
  const auto size = static_cast<DWORD>(bytes.size() + 1);
  return RegSetValueExA(Key(key), Piece(name).c_str(), 0, type,
                        reinterpret_cast<const BYTE*>(bytes.c_str()), size) == ERROR_SUCCESS;
}

std::optional<RegistryValue> Win32Registry::ValueAt(Handle key, std::uint32_t index) {
  if (key == 0) return std::nullopt;
  std::string name(kLongestValueName + 1, '\0');
  std::string data(1024, '\0');
  for (;;) {
    auto name_length = static_cast<DWORD>(name.size());
    auto data_length = static_cast<DWORD>(data.size());
    DWORD type = REG_NONE;
    const LSTATUS status = RegEnumValueA(Key(key), index, name.data(), &name_length, nullptr, &type,
                                         reinterpret_cast<BYTE*>(data.data()), &data_length);
    if (status == ERROR_MORE_DATA) {
      // Not every key says how much it needs, and another process may write meanwhile.
      data.resize(std::max<std::size_t>(data.size() * 2, data_length));
      continue;
    }
    if (status != ERROR_SUCCESS) return std::nullopt;
    std::string_view bytes = std::string_view(data).substr(0, IsText(type) ? data_length : 0);
    if (bytes.ends_with('\0')) bytes.remove_suffix(1);
    return RegistryValue{FromAnsi(std::string_view(name).substr(0, name_length)), FromAnsi(bytes)};
  }
}

bool Win32Registry::DeleteValue(Handle key, const Text& name) {
  return key != 0 && RegDeleteValueA(Key(key), Piece(name).c_str()) == ERROR_SUCCESS;
}

bool Win32Registry::DeleteKey(Handle parent, const Text& name) {
  const std::string path = KeyPath(name);
  // Without a name the call would delete the parent itself.
  return parent != 0 && !path.empty() && RegDeleteKeyA(Key(parent), path.c_str()) == ERROR_SUCCESS;
}

}  // namespace orvik::host::win32
