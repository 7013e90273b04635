#include "monitors/text_finder.h"

#include <algorithm>

namespace orvik {

TextFinder::TextFinder(TextView text, const CodePage& page) : wanted_(ToUpper(text)) {
  for (std::size_t byte = 0; byte < folded_.size(); ++byte) {
    folded_[byte] = ToUpper(page.characters()[byte]);
  }
}

bool TextFinder::FoundIn(std::span<const char> content) const {
  if (content.empty()) return false;
  return std::search(content.begin(), content.end(), wanted_.begin(), wanted_.end(),
                     [&](char byte, char16_t wanted) {
                       return folded_[static_cast<unsigned char>(byte)] == wanted;
                     }) != content.end() ||
         wanted_.empty();
}

}  // namespace orvik
