// Any text in any content, by every way of scanning, beside the plain search.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "monitors/text_finder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvik;
  constexpr std::array kPages = {1251, 866, 1253};
  if (size < 2) return 0;
  const CodePage& page = CodePage::Numbered(kPages[data[0] % kPages.size()]);
  const std::string_view rest(reinterpret_cast<const char*>(data) + 2, size - 2);
  const std::size_t length = std::min<std::size_t>(data[1], rest.size());
  const Text text = page.Decode(rest.substr(0, length));
  const std::string_view bytes = rest.substr(length);
  const Text content = page.Decode(bytes);
  const bool stands = !content.empty() && std::search(content.begin(), content.end(), text.begin(),
                                                      text.end(), [](char16_t a, char16_t b) {
                                                        return ToUpper(a) == ToUpper(b);
                                                      }) != content.end();
  // The empty text stands at the end of what isn't empty, where a search finds nothing.
  const bool wanted = stands || (text.empty() && !content.empty());
  for (const ScanKernel& kernel : ScanKernels()) {
    if (TextFinder(text, page, kernel).FoundIn(bytes) != wanted) std::abort();
  }
  return 0;
}
