#include "host/posix/name_codec.h"

#include <array>

namespace orvik::host::posix {
namespace {

constexpr char16_t kCachedCapitals = 0x600;

// The ASCII characters that Windows allows in a name.
constexpr std::array<bool, 128> AllowedTable() {
  std::array<bool, 128> allowed{};
  for (std::size_t c = 0x20; c < 0x80; ++c) allowed[c] = true;
  for (const char16_t c : TextView(u"\\/:*?\"<>|")) allowed[c] = false;
  return allowed;
}
constexpr std::array<bool, 128> kAllowed = AllowedTable();

unsigned char ByteAt(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

// True when two bytes at a place are one character of U+0080 to U+07FF, where most letters are.
bool IsPair(std::string_view bytes, std::size_t at) {
  return ByteAt(bytes, at) >= 0xC2 && ByteAt(bytes, at) < 0xE0 && at + 1 < bytes.size() &&
         (ByteAt(bytes, at + 1) & 0xC0) == 0x80;
}

}  // namespace

NameCodec::NameCodec(const CodePage& page) : page_(page), upper_(kCachedCapitals) {
  for (char16_t c = 0; c < kCachedCapitals; ++c) upper_[c] = ToUpper(c);
}

bool NameCodec::AppendNative(TextView name, std::string& native) const {
  const std::size_t begin = native.size();
  bool plain = true;
  for (const char16_t c : name) {
    if (c < 0x80 ? !kAllowed[c] : !page_.Has(c) || (c >= 0xD800 && c < 0xE000)) return false;
    plain &= c < 0x80;
    native.push_back(static_cast<char>(c));
  }
  if (!plain) native.replace(begin, std::string::npos, ToUtf8(name));
  return true;
}

bool NameCodec::AppendListedCharacter(char16_t c, Text& listed) const {
  const bool known = c < 0x80 ? kAllowed[c] : c != 0xFFFD && page_.Has(c);
  listed.push_back(known ? c : u'?');
  return known;
}

bool NameCodec::AppendListed(std::string_view native, Text& listed) const {
  bool reachable = true;
  for (std::size_t at = 0; at < native.size(); ++at) {
    const unsigned char byte = ByteAt(native, at);
    if (byte < 0x80) {
      reachable &= AppendListedCharacter(byte, listed);
    } else if (IsPair(native, at)) {
      const int pair = (byte & 0x1F) << 6 | (ByteAt(native, at + 1) & 0x3F);
      reachable &= AppendListedCharacter(static_cast<char16_t>(pair), listed);
      ++at;
    } else {
      // Rare characters and malformed bytes take the thorough way, once for the rest of the name.
      for (const char16_t c : FromUtf8(native.substr(at))) {
        reachable &= AppendListedCharacter(c, listed);
      }
      break;
    }
  }
  if (!native.empty() && (native.back() == '.' || native.back() == ' ')) {
    listed.back() = u'?';
    reachable = false;
  }
  return reachable;
}

Text NameCodec::Folded(std::string_view native) const {
  Text folded;
  folded.reserve(native.size());
  AppendListed(native, folded);
  for (char16_t& c : folded) c = Upper(c);
  return folded;
}

}  // namespace orvik::host::posix
