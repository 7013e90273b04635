// Bytes from anywhere, which no number in them may lead out of.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "base/code_page.h"
#include "base/text.h"

namespace orvik::host::shell_link {

class ByteView {
 public:
  ByteView() = default;
  explicit ByteView(std::string_view bytes) : bytes_(bytes) {}

  std::size_t size() const { return bytes_.size(); }
  std::string_view bytes() const { return bytes_; }

  // Numbers at a place; nothing when they aren't wholly inside.
  std::optional<std::uint8_t> U8(std::size_t at) const;
  std::optional<std::uint16_t> U16(std::size_t at) const;
  std::optional<std::uint32_t> U32(std::size_t at) const;

  // A part; nothing when it isn't wholly inside.
  std::optional<ByteView> Part(std::size_t at, std::size_t length) const;
  // All from a place on; empty behind the end.
  ByteView From(std::size_t at) const;

  // The text at the front, up to its closing zero or else to the end of the bytes.
  Text AnsiText(const CodePage& page) const;
  Text WideText() const;

 private:
  std::string_view bytes_;
};

}  // namespace orvik::host::shell_link
