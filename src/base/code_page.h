// Single-byte code pages: one byte of a file is one 16-bit character of a text.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/text.h"

namespace orvik {

// A value with 256 characters and the way back. Bytes that a page leaves unassigned become the
// character of the same number, so that every byte maps and a content survives reading and writing.
class CodePage {
 public:
  // A page from the characters of its bytes 0x80 to 0xFF; 0 stands for an unassigned byte. Bytes
  // below 0x80 are ASCII.
  CodePage(int number, const std::array<char16_t, 128>& upper_half);

  // The page of this number: 437, 850, 866, 1250 to 1254 and 1257 are known. Any other number
  // gives 1251, so that stored checksums stay valid where a page isn't single-byte.
  static const CodePage& Numbered(int number);

  int number() const { return number_; }
  const std::array<char16_t, 256>& characters() const { return characters_; }

  // True when a byte stands for this character.
  bool Has(char16_t c) const { return bytes_[c] != '?' || c == u'?'; }
  // The byte of a character, or '?' where the page lacks it.
  char Byte(char16_t c) const { return bytes_[c]; }

  Text Decode(std::string_view bytes) const;
  std::string Encode(TextView text) const;

 private:
  int number_;
  std::array<char16_t, 256> characters_;
  std::string bytes_;  // indexed by character, so that writing is one look-up a character
};

}  // namespace orvik
