// Bytes that are put together one number and one text at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/text.h"

namespace orvik::host::shell_link {

inline void PutU16(std::string& bytes, std::size_t value) {
  bytes.push_back(static_cast<char>(value & 0xFF));
  bytes.push_back(static_cast<char>(value >> 8 & 0xFF));
}

inline void PutU32(std::string& bytes, std::size_t value) {
  PutU16(bytes, value & 0xFFFF);
  PutU16(bytes, value >> 16 & 0xFFFF);
}

// In UTF-16, without a closing zero.
inline void PutWide(std::string& bytes, TextView text) {
  for (const char16_t c : text) PutU16(bytes, c);
}

}  // namespace orvik::host::shell_link
