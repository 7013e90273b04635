#include "host/posix/registry_text.h"

namespace orvik::host::posix {
namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

Text FromUtf16Bytes(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto low = static_cast<unsigned char>(bytes[i]);
    const auto high = static_cast<unsigned char>(bytes[i + 1]);
    text.push_back(static_cast<char16_t>(low | high << 8));
  }
  return text;
}

}  // namespace

RegistryFileText DecodeRegistryFile(std::string_view bytes) {
  RegistryFileText file;
  if (bytes.empty()) return file;
  if (bytes.starts_with(kUtf16Mark)) {
    file.text = FromUtf16Bytes(bytes.substr(kUtf16Mark.size()));
  } else if (bytes.starts_with(kUtf8Mark)) {
    file.encoding = RegistryEncoding::kUtf8Marked;
    file.text = FromUtf8(bytes.substr(kUtf8Mark.size()));
  } else {
    file.encoding = RegistryEncoding::kUtf8;
    file.text = FromUtf8(bytes);
  }
  file.faithful = EncodeRegistryFile(file.text, file.encoding) == bytes;
  return file;
}

std::string EncodeRegistryFile(TextView text, RegistryEncoding encoding) {
  if (encoding == RegistryEncoding::kUtf8) return ToUtf8(text);
  if (encoding == RegistryEncoding::kUtf8Marked) return std::string(kUtf8Mark) + ToUtf8(text);
  std::string bytes(kUtf16Mark);
  bytes.reserve(bytes.size() + 2 * text.size());
  for (const char16_t c : text) {
    bytes.push_back(static_cast<char>(c & 0xFF));
    bytes.push_back(static_cast<char>(c >> 8));
  }
  return bytes;
}

}  // namespace orvik::host::posix
