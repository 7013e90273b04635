// Looks for one text in many files, blind to letter case.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"

namespace orvik {

class TextFinder {
 public:
  // The text as it was typed; a character that the code page lacks is found nowhere.
  TextFinder(TextView text, const CodePage& page);

  // True when the text stands somewhere in a content of one byte a character. The empty text stands
  // in every content that isn't empty.
  bool FoundIn(std::span<const char> content) const;

 private:
  std::array<char16_t, 256> folded_;  // by byte
  Text wanted_;
};

}  // namespace orvik
