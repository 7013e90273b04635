// The words of a script line.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace orvik::forms::headless {

// A word, or a text that stood in quotes.
struct Word {
  bool quoted = false;
  std::string plain;  // of a word
  Text text;          // of a text
};

// Cuts a line at its blanks. In quotes \" \\ \n \r \t and \uXXXX stand for one character; any other
// backslash stands for itself. Nothing, with a reason, when a text doesn't end or runs into what
// follows, or \u lacks its four digits.
std::optional<std::vector<Word>> CutWords(std::string_view line, std::string& reason);

}  // namespace orvik::forms::headless
