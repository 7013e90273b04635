#include "forms/headless/script_words.h"

#include <charconv>

namespace orvik::forms::headless {

namespace {

constexpr std::string_view kBlanks = " \t";

// The character that "\uXXXX" stands for, given the four digits.
std::optional<char16_t> ReadUnit(std::string_view digits) {
  unsigned unit = 0;
  if (digits.size() != 4) return std::nullopt;
  const auto [stop, error] = std::from_chars(digits.data(), digits.data() + 4, unit, 16);
  if (error != std::errc() || stop != digits.data() + 4) return std::nullopt;
  return static_cast<char16_t>(unit);
}

// Reads a text behind its opening quote; `at` moves behind the closing one.
std::optional<Text> ReadQuoted(std::string_view line, std::size_t& at, std::string& reason) {
  Text text;
  std::size_t plain = at;  // where the run begins that holds no escape
  const auto take_plain = [&](std::size_t end) {
    text += FromUtf8(line.substr(plain, end - plain));
  };
  for (; at < line.size(); ++at) {
    if (line[at] == '"') {
      take_plain(at++);
      return text;
    }
    if (line[at] != '\\' || at + 1 == line.size()) continue;
    constexpr std::string_view kLetters = "\"\\nrt";
    constexpr std::u16string_view kMeanings = u"\"\\\n\r\t";
    const std::size_t letter = kLetters.find(line[at + 1]);
    if (letter == std::string_view::npos && line[at + 1] != 'u') continue;
    take_plain(at);
    if (letter != std::string_view::npos) {
      text += kMeanings[letter];
      at += 1;
    } else if (const auto unit = ReadUnit(line.substr(at + 2, 4))) {
      text += *unit;
      at += 5;
    } else {
      reason = "\\u needs four hexadecimal digits";
      return std::nullopt;
    }
    plain = at + 1;
  }
  reason = "a text isn't closed";
  return std::nullopt;
}

}  // namespace

std::optional<std::vector<Word>> CutWords(std::string_view line, std::string& reason) {
  std::vector<Word> words;
  for (std::size_t at = 0; (at = line.find_first_not_of(kBlanks, at)) != std::string_view::npos;) {
    Word word;
    if (line[at] == '"') {
      auto text = ReadQuoted(line, ++at, reason);
      if (!text) return std::nullopt;
      word.quoted = true;
      word.text = std::move(*text);
      if (at < line.size() && kBlanks.find(line[at]) == std::string_view::npos) {
        reason = "no blank behind a text";
        return std::nullopt;
      }
    } else {
      const std::size_t end = std::min(line.find_first_of(kBlanks, at), line.size());
      word.plain = line.substr(at, end - at);
      at = end;
    }
    words.push_back(std::move(word));
  }
  return words;
}

}  // namespace orvik::forms::headless
