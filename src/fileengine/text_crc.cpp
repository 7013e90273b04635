#include "fileengine/text_crc.h"

#include <map>

namespace orvik::mdlSupport {

namespace {

const CrcPage& PageFor(const CodePage& page) {
  static std::map<int, CrcPage> pages;
  return pages.try_emplace(page.number(), page).first->second;
}

}  // namespace

TextCRC::TextCRC(const CodePage& page, const CrcKernel& kernel)
    : page_(PageFor(page)), kernel_(kernel) {}

void TextCRC::Add(std::span<const char> bytes) {
  const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
  std::size_t left = bytes.size();
  for (const CrcKernel* kernel : {&kernel_, &CrcKernels().back()}) {
    const std::size_t count = left - left % kernel->block;
    if (count > 0) running_ = kernel->add(page_, running_, at, count);
    at += count;
    left -= count;
  }
  for (; left > 0; --left) running_ = CrcOfCharacter(running_, page_.characters[*at++]);
}

void TextCRC::Add(TextView text) {
  for (char16_t c : text) running_ = CrcOfCharacter(running_, c);
}

}  // namespace orvik::mdlSupport
