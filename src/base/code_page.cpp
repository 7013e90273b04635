#include "base/code_page.h"

#include <map>

#include "base/code_page_tables.h"

namespace orvik {

namespace {

const CodePageTable& TableOf(int number) {
  const CodePageTable* fallback = nullptr;
  for (const CodePageTable& table : kCodePageTables) {
    if (table.number == number) return table;
    if (table.number == 1251) fallback = &table;
  }
  return *fallback;
}

}  // namespace

CodePage::CodePage(int number, const std::array<char16_t, 128>& upper_half)
    : number_(number), characters_(), bytes_(0x10000, '?') {
  for (std::size_t byte = 0; byte < 256; ++byte) {
    const char16_t assigned = byte < 0x80 ? char16_t(0) : upper_half[byte - 0x80];
    characters_[byte] = assigned != 0 ? assigned : static_cast<char16_t>(byte);
    bytes_[characters_[byte]] = static_cast<char>(byte);
  }
}

const CodePage& CodePage::Numbered(int number) {
  static std::map<int, CodePage> pages;
  const CodePageTable& table = TableOf(number);
  return pages.try_emplace(table.number, table.number, table.upper_half).first->second;
}

Text CodePage::Decode(std::string_view bytes) const {
  Text text(bytes.size(), u'\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    text[i] = characters_[static_cast<unsigned char>(bytes[i])];
  }
  return text;
}

std::string CodePage::Encode(TextView text) const {
  std::string bytes(text.size(), '\0');
  for (std::size_t i = 0; i < text.size(); ++i) bytes[i] = Byte(text[i]);
  return bytes;
}

}  // namespace orvik
