// Bytes written out by hand, piece by piece.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/text.h"

namespace orvik::host {

inline const CodePage& Page() { return CodePage::Numbered(1251); }

// "4C 00" as two bytes; blanks are passed over.
inline std::string Hex(std::string_view digits) {
  std::string bytes;
  int pending = -1;
  for (const char c : digits) {
    if (c == ' ') continue;
    const int digit = c <= '9' ? c - '0' : c - 'A' + 10;
    if (pending >= 0) bytes.push_back(static_cast<char>(pending * 16 + digit));
    pending = pending >= 0 ? -1 : digit;
  }
  return bytes;
}

// UTF-16 without a closing zero.
inline std::string Wide(TextView text) {
  std::string bytes;
  for (const char16_t c : text) {
    bytes.push_back(static_cast<char>(c & 0xFF));
    bytes.push_back(static_cast<char>(c >> 8));
  }
  return bytes;
}

// The other way round, for messages that a person can read.
inline std::string Digits(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += {"0123456789ABCDEF"[byte >> 4], "0123456789ABCDEF"[byte & 15], ' '};
  }
  return text;
}

inline std::string LittleEndian(std::uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text.push_back(static_cast<char>(value >> 8 * i & 0xFF));
  return text;
}
inline std::string U16(std::size_t value) {
  return LittleEndian(static_cast<std::uint32_t>(value), 2);
}
inline std::string U32(std::size_t value) {
  return LittleEndian(static_cast<std::uint32_t>(value), 4);
}

}  // namespace orvik::host
