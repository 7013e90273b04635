// Text: sequences of 16-bit characters, and what the program does with them everywhere.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvik {

// Paths, masks, lists and whole file contents are plain texts. Positions that a user or a file
// format sees count from 1; indexes in code count from 0.
using Text = std::u16string;
using TextView = std::u16string_view;

constexpr TextView kCrLf = u"\r\n";

// UTF-8 to text. Malformed bytes become U+FFFD, one for each byte that fits nowhere.
Text FromUtf8(std::string_view utf8);
// Text to UTF-8. A surrogate without its partner becomes U+FFFD.
std::string ToUtf8(TextView text);

// Simple case mapping of one character, by the Unicode tables for Latin, Greek and Cyrillic: all
// letters that a single-byte Windows code page of Europe knows. Other characters stay.
char16_t ToLower(char16_t c);
char16_t ToUpper(char16_t c);
Text ToLower(TextView text);
Text ToUpper(TextView text);

// Equality as the file system, the registry and keyed collections see it: letter case ignored.
bool EqualNoCase(TextView a, TextView b);

// The text without blanks (U+0020 and nothing else) at either end.
TextView Trim(TextView text);

// The pieces between the separators. An empty text has no piece at all, not one empty piece.
std::vector<TextView> Split(TextView text, TextView separator);

// True when the text begins, ends with the piece, exactly.
inline bool StartsWith(TextView text, TextView piece) { return text.starts_with(piece); }
inline bool EndsWith(TextView text, TextView piece) { return text.ends_with(piece); }

// The same number for all texts that are equal but for letter case.
std::uint64_t HashNoCase(TextView text);

}  // namespace orvik
