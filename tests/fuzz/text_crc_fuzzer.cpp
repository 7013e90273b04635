// Every kernel of the checksum against its definition: any bytes, in any page, in any pieces.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "fileengine/checksums.h"
#include "fileengine/text_crc.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvik;
  using namespace orvik::mdlSupport;
  constexpr std::array kPages = {1251, 866, 1252, 437, 1250, 1253, 1254, 1257};
  InitCRCTable();
  if (size < 2) return 0;
  const CodePage& page = CodePage::Numbered(kPages[data[0] % kPages.size()]);
  const std::size_t piece = 1 + data[1];
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 2, size - 2);
  const std::int32_t defined = ComputeCRC(page.Decode(bytes));
  for (const CrcKernel& kernel : CrcKernels()) {
    TextCRC whole(page, kernel);
    whole.Add(std::span<const char>(bytes));
    TextCRC pieces(page, kernel);
    for (std::size_t at = 0; at < bytes.size(); at += piece) {
      pieces.Add(std::span<const char>(bytes.substr(at, piece)));
    }
    if (whole.Result() != defined || pieces.Result() != defined) std::abort();
  }
  return 0;
}
