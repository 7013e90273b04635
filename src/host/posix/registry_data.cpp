#include "host/posix/registry_data.h"

#include <array>
#include <cstdio>
#include <string>

#include "host/posix/registry_text.h"

namespace orvik::host::posix {
namespace {

constexpr std::uint32_t kPlainText = 1;
constexpr std::uint32_t kTextWithVariables = 2;

// A line can't hold these, and a file in UTF-8 not all of them.
bool FitsLine(TextView text) {
  for (const char16_t c : text) {
    if (c < 0x20 || (c >= 0xD800 && c < 0xE000) || c == 0xFFFD) return false;
  }
  return true;
}

std::string Utf16Bytes(TextView text) {
  std::string bytes;
  for (const char16_t c : text) {
    bytes.push_back(static_cast<char>(c & 0xFF));
    bytes.push_back(static_cast<char>(c >> 8));
  }
  return bytes;
}

Text HexData(std::uint32_t type, std::string_view bytes) {
  std::array<char, 24> piece{};
  std::snprintf(piece.data(), piece.size(), "hex(%x):", type);
  std::string data = piece.data();
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    std::snprintf(piece.data(), piece.size(), i == 0 ? "%02x" : ",%02x",
                  static_cast<unsigned>(static_cast<unsigned char>(bytes[i])));
    data += piece.data();
  }
  return FromUtf8(data);
}

int DigitOf(char16_t c) {
  if (c >= u'0' && c <= u'9') return c - u'0';
  return ToLower(c) >= u'a' && ToLower(c) <= u'f' ? ToLower(c) - u'a' + 10 : -1;
}

// The bytes of hexadecimal numbers between commas.
std::string BytesOf(TextView numbers) {
  std::string bytes;
  for (const TextView number : Split(numbers, u",")) {
    int value = 0;
    for (const char16_t c : number) {
      const int digit = DigitOf(c);
      if (digit >= 0) value = (value * 16 + digit) & 0xFF;
    }
    bytes.push_back(static_cast<char>(value));
  }
  return bytes;
}

Text TextOfBytes(std::string_view bytes) {
  Text text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto low = static_cast<unsigned char>(bytes[i]);
    const auto high = static_cast<unsigned char>(bytes[i + 1]);
    text.push_back(static_cast<char16_t>(low | high << 8));
  }
  if (text.ends_with(u'\0')) text.pop_back();
  return text;
}

}  // namespace

Text RegistryData(std::uint32_t type, TextView text, std::string_view ansi) {
  if (type == kPlainText && FitsLine(text)) return Quoted(text);
  if (type != kPlainText && type != kTextWithVariables) return HexData(type, ansi);
  return HexData(type, Utf16Bytes(Text(text) + u'\0'));
}

Text TextOfRegistryData(TextView data) {
  if (const std::optional<Text> text = TakeQuoted(data)) return *text;
  const std::size_t colon = data.find(u':');
  const TextView type = data.substr(0, colon);
  if (!EqualNoCase(type, u"hex(1)") && !EqualNoCase(type, u"hex(2)")) return {};
  return TextOfBytes(BytesOf(data.substr(colon + 1)));
}

}  // namespace orvik::host::posix
