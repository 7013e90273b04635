#include "platform/xor_text.h"

#include <algorithm>
#include <string>

#include "base/code_page.h"
#include "host/host.h"

namespace orvik::mdlMain {

namespace {

// The key's codes in the order of their use, repeated so often that a text rarely has to begin
// again at the front.
std::string Pattern(TextView key, const CodePage& page) {
  constexpr std::size_t kLongEnough = 4096;
  std::string codes = page.Encode(key);
  std::rotate(codes.begin(), codes.begin() + 1, codes.end());
  std::string pattern = codes;
  while (pattern.size() < kLongEnough) pattern += codes;
  return pattern;
}

}  // namespace

void XorText(Text& text, TextView key) {
  if (text.empty() || key.empty()) return;
  const CodePage& page = host::TheSystem().AnsiPage();
  const std::string pattern = Pattern(key.substr(0, text.size()), page);
  const char16_t* const characters = page.characters().data();
  for (std::size_t begin = 0; begin < text.size(); begin += pattern.size()) {
    char16_t* const data = text.data() + begin;
    const std::size_t count = std::min(pattern.size(), text.size() - begin);
    for (std::size_t i = 0; i < count; ++i) {
      data[i] = characters[static_cast<unsigned char>(page.Byte(data[i]) ^ pattern[i])];
    }
  }
}

}  // namespace orvik::mdlMain
