#include "base/text.h"

#include <array>
#include <cstdint>

namespace orvik {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf16(Text& text, char32_t c) {
  if (c < 0x10000) {
    text.push_back(static_cast<char16_t>(c));
    return;
  }
  c -= 0x10000;
  text.push_back(static_cast<char16_t>(0xD800 + (c >> 10)));
  text.push_back(static_cast<char16_t>(0xDC00 + (c & 0x3FF)));
}

void AppendUtf8(std::string& bytes, char32_t c) {
  const auto put = [&](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | (c >> 6));
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | (c >> 12));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | (c >> 18));
    put(0x80 | ((c >> 12) & 0x3F));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

// The character that begins at `at`, which moves behind it; a byte that fits nowhere is passed over
// alone.
char32_t NextCharacter(std::string_view utf8, std::size_t& at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned char lead = byte(at++);
  if (lead < 0x80) return lead;
  const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC2 || lead > 0xF4 || at + static_cast<std::size_t>(more) > utf8.size()) {
    return kReplacement;
  }
  char32_t c = lead & (0x3F >> more);
  for (int i = 0; i < more; ++i) {
    const unsigned char next = byte(at + static_cast<std::size_t>(i));
    if ((next & 0xC0) != 0x80) return kReplacement;
    c = (c << 6) | (next & 0x3F);
  }
  constexpr char32_t kSmallest[] = {0x80, 0x800, 0x10000};
  if (c < kSmallest[more - 1] || c > 0x10FFFF || (c >= 0xD800 && c < 0xE000)) return kReplacement;
  at += static_cast<std::size_t>(more);
  return c;
}

// In these ranges an even character is the capital of the odd one behind it ...
constexpr bool CapitalsAreEven(char16_t c) {
  return (c >= 0x100 && c <= 0x137 && c != 0x130 && c != 0x131) || (c >= 0x14A && c <= 0x177) ||
         (c >= 0x460 && c <= 0x481) || (c >= 0x48A && c <= 0x4BF) || (c >= 0x4D0 && c <= 0x52F);
}
// ... and in these an odd one.
constexpr bool CapitalsAreOdd(char16_t c) {
  return (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E) || (c >= 0x4C1 && c <= 0x4CE);
}

// Ranges of capitals with their small letters at a constant distance.
struct Range {
  char16_t first, last;
  char16_t distance;
};
constexpr Range kRanges[] = {
    {u'A', u'Z', 32},   {0xC0, 0xD6, 32},   {0xD8, 0xDE, 32},   {0x386, 0x386, 38},
    {0x388, 0x38A, 37}, {0x38C, 0x38C, 64}, {0x38E, 0x38F, 63}, {0x391, 0x3A1, 32},
    {0x3A3, 0x3AB, 32}, {0x400, 0x40F, 80}, {0x410, 0x42F, 32}, {0x531, 0x556, 48},
};

constexpr char16_t SmallLetterOf(char16_t c) {
  if (c < 0x80) return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
  if (c == 0x178) return 0xFF;
  if (c == 0x4C0) return 0x4CF;
  if (CapitalsAreEven(c)) return static_cast<char16_t>(c | 1);
  if (CapitalsAreOdd(c)) return static_cast<char16_t>(c + (c & 1));
  for (const Range& range : kRanges) {
    if (c >= range.first && c <= range.last) return static_cast<char16_t>(c + range.distance);
  }
  return c;
}

constexpr char16_t CapitalOf(char16_t c) {
  if (c < 0x80) return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 32) : c;
  if (c == 0xFF) return 0x178;
  if (c == 0x4CF) return 0x4C0;
  if (c == 0x3C2) return 0x3A3;  // the small sigma at the end of a word
  if (CapitalsAreEven(c)) return static_cast<char16_t>(c & ~1);
  if (CapitalsAreOdd(c)) return static_cast<char16_t>(c - !(c & 1));
  for (const Range& range : kRanges) {
    if (c >= range.first + range.distance && c <= range.last + range.distance) {
      return static_cast<char16_t>(c - range.distance);
    }
  }
  return c;
}

// All letters with two cases that are mapped lie below this.
constexpr char16_t kMapped = 0x590;

using CaseTable = std::array<char16_t, kMapped>;

constexpr CaseTable TableOf(char16_t (*map)(char16_t)) {
  CaseTable table{};
  for (char16_t c = 0; c < kMapped; ++c) table[c] = map(c);
  return table;
}

// Every comparison of names goes through these, a character at a time.
constexpr CaseTable kSmallLetters = TableOf(SmallLetterOf);
constexpr CaseTable kCapitals = TableOf(CapitalOf);

}  // namespace

Text FromUtf8(std::string_view utf8) {
  Text text;
  text.reserve(utf8.size());
  for (std::size_t at = 0; at < utf8.size();) AppendUtf16(text, NextCharacter(utf8, at));
  return text;
}

std::string ToUtf8(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (c >= 0xD800 && c < 0xE000) {
      const bool pair = c < 0xDC00 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00;
      c = pair ? 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00U) : kReplacement;
    }
    AppendUtf8(bytes, c);
  }
  return bytes;
}

char16_t ToLower(char16_t c) { return c < kMapped ? kSmallLetters[c] : c; }

char16_t ToUpper(char16_t c) { return c < kMapped ? kCapitals[c] : c; }

Text ToLower(TextView text) {
  Text result(text);
  for (char16_t& c : result) c = ToLower(c);
  return result;
}

Text ToUpper(TextView text) {
  Text result(text);
  for (char16_t& c : result) c = ToUpper(c);
  return result;
}

bool EqualNoCase(TextView a, TextView b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i] != b[i] && ToUpper(a[i]) != ToUpper(b[i])) return false;
  }
  return true;
}

TextView Trim(TextView text) {
  const std::size_t first = text.find_first_not_of(u' ');
  if (first == TextView::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::vector<TextView> Split(TextView text, TextView separator) {
  std::vector<TextView> pieces;
  if (text.empty()) return pieces;
  std::size_t begin = 0;
  for (std::size_t end; (end = text.find(separator, begin)) != TextView::npos;
       begin = end + separator.size()) {
    pieces.push_back(text.substr(begin, end - begin));
  }
  pieces.push_back(text.substr(begin));
  return pieces;
}

std::uint64_t HashNoCase(TextView text) {
  std::uint64_t hash = 0xCBF29CE484222325;  // FNV-1a over capitals
  for (char16_t c : text) hash = (hash ^ ToUpper(c)) * 0x100000001B3;
  return hash;
}

}  // namespace orvik
