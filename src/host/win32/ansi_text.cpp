#include "host/win32/ansi_text.h"

#include <algorithm>

#include "host/file_system.h"
#include "host/win32/windows_api.h"

namespace orvik::host::win32 {
namespace {

std::string Encoded(const wchar_t* wide, int length, DWORD flags) {
  const int needed = WideCharToMultiByte(CP_ACP, flags, wide, length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(std::max(needed, 0)), '\0');
  WideCharToMultiByte(CP_ACP, flags, wide, length, bytes.data(), needed, nullptr, nullptr);
  return bytes;
}

std::string WideToAnsi(std::wstring_view wide) {
  if (wide.empty()) return {};
  const int length = static_cast<int>(wide.size());
  std::string bytes = Encoded(wide.data(), length, WC_NO_BEST_FIT_CHARS);
  // A system whose ANSI code page is UTF-8 refuses the flag, and needs none.
  if (bytes.empty()) bytes = Encoded(wide.data(), length, 0);
  return bytes;
}

bool IsAscii(std::wstring_view wide) {
  return std::ranges::all_of(wide, [](wchar_t c) { return c < 0x80; });
}

bool IsDriveLetter(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z'); }

}  // namespace

std::string ToAnsi(TextView text) { return WideToAnsi(ToWide(text)); }

Text FromAnsi(std::string_view bytes) {
  if (bytes.empty()) return {};
  const int length = static_cast<int>(bytes.size());
  const int needed = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(std::max(needed, 0)), L'\0');
  MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, wide.data(), needed);
  return FromWide(wide);
}

Text ThroughAnsi(std::wstring_view wide) {
  return IsAscii(wide) ? FromWide(wide) : FromAnsi(WideToAnsi(wide));
}

std::wstring ToWide(TextView text) { return {text.begin(), text.end()}; }

Text FromWide(std::wstring_view wide) { return {wide.begin(), wide.end()}; }

bool IsBeyondUse(const Text& path) {
  if (path.size() > kLongestPath || path.find(u'\0') != Text::npos) return true;
  const std::size_t colon = path.rfind(u':');
  return colon != Text::npos && (colon != 1 || !IsDriveLetter(path[0]));
}

std::optional<std::string> AnsiPath(const Text& path) {
  if (path.empty() || IsBeyondUse(path)) return std::nullopt;
  std::string bytes = ToAnsi(path);
  if (bytes.find_first_of("?*") != std::string::npos) return std::nullopt;
  return bytes;
}

}  // namespace orvik::host::win32
