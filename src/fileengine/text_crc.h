// CRC-32 over the text form of bytes, at the speed of several bytes a step.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "base/code_page.h"
#include "base/text.h"

namespace orvik::mdlSupport {

// A running CRC-32 (published algorithm: initial value all ones, reflected, final complement) whose
// input is 16-bit characters, low byte first. Bytes of a file go in through a code page, one
// character a byte, without being expanded: a table holds for each byte, and each place in a block,
// what its character does to the running value.
class TextCRC {
 public:
  explicit TextCRC(const CodePage& page);

  void Add(std::span<const char> bytes);
  void Add(TextView text);
  std::int32_t Result() const { return static_cast<std::int32_t>(~running_); }

 private:
  struct Tables;
  static const Tables& TablesOf(const CodePage& page);

  const Tables& tables_;
  std::uint32_t running_ = 0xFFFFFFFF;
};

}  // namespace orvik::mdlSupport
