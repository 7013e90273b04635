#include "host/shell_link/byte_view.h"

#include <algorithm>

namespace orvik::host::shell_link {

std::optional<std::uint8_t> ByteView::U8(std::size_t at) const {
  if (at >= bytes_.size()) return std::nullopt;
  return static_cast<std::uint8_t>(bytes_[at]);
}

std::optional<std::uint16_t> ByteView::U16(std::size_t at) const {
  const auto part = Part(at, 2);
  if (!part) return std::nullopt;
  const auto low = static_cast<unsigned char>(part->bytes_[0]);
  const auto high = static_cast<unsigned char>(part->bytes_[1]);
  return static_cast<std::uint16_t>(high << 8 | low);
}

std::optional<std::uint32_t> ByteView::U32(std::size_t at) const {
  const auto part = Part(at, 4);
  if (!part) return std::nullopt;
  return std::uint32_t{*part->U16(2)} << 16 | *part->U16(0);
}

std::optional<ByteView> ByteView::Part(std::size_t at, std::size_t length) const {
  if (at > bytes_.size() || length > bytes_.size() - at) return std::nullopt;
  return ByteView(bytes_.substr(at, length));
}

ByteView ByteView::From(std::size_t at) const {
  return ByteView(bytes_.substr(std::min(at, bytes_.size())));
}

Text ByteView::AnsiText(const CodePage& page) const {
  return page.Decode(bytes_.substr(0, bytes_.find('\0')));
}

Text ByteView::WideText() const {
  Text text;
  for (std::size_t at = 0; at + 2 <= bytes_.size(); at += 2) {
    const char16_t c = *U16(at);
    if (c == 0) break;
    text.push_back(c);
  }
  return text;
}

}  // namespace orvik::host::shell_link
