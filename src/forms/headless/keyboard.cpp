// Which key types what.
#include <string_view>

#include "forms/headless/user.h"

namespace orvik::forms::headless {

namespace {

constexpr int kSpace = 32;
constexpr int kDigit0 = 48, kDigit9 = 57;
constexpr int kLetterA = 65, kLetterZ = 90;
constexpr int kPad0 = 96, kPad9 = 105;
constexpr int kControlBackspace = 127, kLineFeed = 10;

int WithControl(int code) {
  if (code >= kLetterA && code <= kLetterZ) return code - kLetterA + 1;
  if (code == kKeyBackspace) return kControlBackspace;
  if (code == kKeyEnter) return kLineFeed;
  return code == kKeyEscape || code == kSpace ? code : 0;
}

}  // namespace

int CharacterOf(Key key) {
  const bool shift = (key.shift & kShift) != 0;
  if ((key.shift & kAlt) != 0) return 0;
  if ((key.shift & kCtrl) != 0) return WithControl(key.code);
  if (key.code >= kLetterA && key.code <= kLetterZ) return shift ? key.code : key.code + 32;
  if (key.code >= kDigit0 && key.code <= kDigit9) {
    constexpr std::string_view kOverDigits = ")!@#$%^&*(";
    return shift ? kOverDigits[static_cast<std::size_t>(key.code - kDigit0)] : key.code;
  }
  if (key.code >= kPad0 && key.code <= kPad9) return key.code - kPad0 + kDigit0;
  const bool typing = key.code == kKeyBackspace || key.code == kKeyEnter ||
                      key.code == kKeyEscape || key.code == kSpace;
  return typing ? key.code : 0;
}

}  // namespace orvik::forms::headless
