// CRC-32 over the text form of bytes.
#pragma once

#include <cstdint>
#include <span>

#include "base/code_page.h"
#include "base/text.h"
#include "fileengine/crc_kernels.h"

namespace orvik::mdlSupport {

// A running CRC-32 (published algorithm: initial value all ones, reflected, final complement) whose
// input is 16-bit characters, low byte first. Bytes of a file go in through a code page, one
// character a byte. Every kernel gives the same value.
class TextCRC {
 public:
  explicit TextCRC(const CodePage& page, const CrcKernel& kernel = CrcKernels().front());

  void Add(std::span<const char> bytes);
  void Add(TextView text);
  std::int32_t Result() const { return static_cast<std::int32_t>(~running_); }

 private:
  const CrcPage& page_;
  const CrcKernel& kernel_;
  std::uint32_t running_ = 0xFFFFFFFF;
};

}  // namespace orvik::mdlSupport
