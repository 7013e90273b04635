// File names on their way between Linux and the program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"

namespace orvik::host::posix {

// Linux keeps names as bytes, by custom UTF-8; the program sees what the ANSI code page can tell of
// them. A name is reachable when it survives the way there and back: every character is in the page
// and allowed on Windows, and no dot or blank stands at its end, where Windows drops it. What isn't
// reachable is listed with question marks, so that no operation ever meets another file in its
// place.
class NameCodec {
 public:
  explicit NameCodec(const CodePage& page);

  // Appends one component of a path as bytes. False, with the bytes in any state, when a character
  // can't stand in a name.
  bool AppendNative(TextView name, std::string& native) const;

  // Appends a name as it is listed. False when the name isn't reachable.
  bool AppendListed(std::string_view native, Text& listed) const;

  // A name as a key that ignores letter case.
  Text Folded(std::string_view native) const;

  char16_t Upper(char16_t c) const { return c < upper_.size() ? upper_[c] : ToUpper(c); }

 private:
  bool AppendListedCharacter(char16_t c, Text& listed) const;

  const CodePage& page_;
  std::vector<char16_t> upper_;  // capitals of the alphabets that code pages hold, for speed
};

}  // namespace orvik::host::posix
