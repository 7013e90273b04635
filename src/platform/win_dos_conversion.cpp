#include "platform/win_dos_conversion.h"

#include <algorithm>
#include <string_view>

#include "base/code_page.h"
#include "host/host.h"

namespace orvik::WinDosConv2 {

Flag CharTablesReady = kFalse;
std::array<std::uint8_t, 256> DosToWinTable;
std::array<std::uint8_t, 256> WinToDosTable;

namespace {

constexpr int kDos = 866;
constexpr int kWindows = 1251;

// Bytes whose character the other page lacks, and the look-alike that takes its place there.
struct LookAlike {
  unsigned char target;
  std::string_view sources;
};

// Lines and blocks become what letters and signs draw best.
constexpr LookAlike kInWindows[] = {
    {0x2D, "\xB0\xB1\xB2\xBC\xBD\xBE\xC4\xD5\xD9\xDA\xDB\xDC\xDF"},
    {0xA6, "\xB3\xB5\xB6\xB9\xBA\xC6\xC7\xCA\xCC\xCF\xD0\xDD\xDE\xFE"},
    {0x2B, "\xB4\xC1\xC3\xC5\xCE\xD7\xD8"},
    {0xAC, "\xB7\xB8\xBB\xBF"},
    {0x4C, "\xC0\xC8\xD3\xD4"},
    {0x54, "\xC2\xCB\xD1\xD2"},
    {0xE3, "\xC9\xD6"},
    {0x3D, "\xCD"},
    {0x95, "\xF9"},
    {0x76, "\xFB"},
};

constexpr LookAlike kInDos[] = {
    {0x3F,
     "\x80\x81\x83\x88\x8A\x8C\x8D\x8E\x8F\x90\x98\x9A\x9C\x9D\x9E\x9F\xA3\xA5\xB2\xB3\xB4\xBC\xBD"
     "\xBE"},
    {0x27, "\x82\x91\x92"},
    {0x22, "\x84\x93\x94"},
    {0x3A, "\x85"},
    {0xC5, "\x86"},
    {0xD8, "\x87"},
    {0x25, "\x89"},
    {0x3C, "\x8B\xAB"},
    {0x07, "\x95"},  // the screen of DOS draws bullets and other signs for control characters
    {0x2D, "\x96\x97\xAD"},
    {0x54, "\x99"},
    {0x3E, "\x9B\xBB"},
    {0xB3, "\xA6"},
    {0x15, "\xA7"},
    {0x63, "\xA9"},
    {0xBF, "\xAC"},
    {0x52, "\xAE"},
    {0x2B, "\xB1"},
    {0xE7, "\xB5"},
    {0x14, "\xB6"},
};

using ByteTable = std::array<std::uint8_t, 256>;

// The byte of each character of one page in another, a question mark where it lacks it.
ByteTable Correspondence(const CodePage& from, const CodePage& to) {
  ByteTable table;
  for (std::size_t byte = 0; byte < table.size(); ++byte) {
    table[byte] = static_cast<std::uint8_t>(to.Byte(from.characters()[byte]));
  }
  return table;
}

template <std::size_t kCount>
void PutLookAlikes(const LookAlike (&all)[kCount], ByteTable& table) {
  for (const LookAlike& one : all) {
    for (const char source : one.sources) table[static_cast<std::uint8_t>(source)] = one.target;
  }
}

ByteTable WindowsBytes(const CodePage& dos, const CodePage& windows) {
  ByteTable table = Correspondence(dos, windows);
  if (dos.number() == kDos && windows.number() == kWindows) PutLookAlikes(kInWindows, table);
  return table;
}

ByteTable DosBytes(const CodePage& windows, const CodePage& dos) {
  ByteTable table = Correspondence(windows, dos);
  if (dos.number() == kDos && windows.number() == kWindows) PutLookAlikes(kInDos, table);
  return table;
}

// Replaces the characters in front of an end by those whose bytes a table gives, all as the ANSI
// code page has them.
void Convert(Text& text, std::size_t end, const ByteTable& table) {
  const CodePage& page = host::TheSystem().AnsiPage();
  std::array<char16_t, 256> characters;
  for (std::size_t byte = 0; byte < table.size(); ++byte) {
    characters[byte] = page.characters()[table[byte]];
  }
  char16_t* const data = text.data();
  for (std::size_t i = 0; i < end; ++i) {
    data[i] = characters[static_cast<std::uint8_t>(page.Byte(data[i]))];
  }
}

// The system's conversion works on texts that a zero ends.
std::size_t EndForTheSystem(const Text& text) { return std::min(text.find(u'\0'), text.size()); }

}  // namespace

void ConvertCharToOem(Text& text) {
  host::System& system = host::TheSystem();
  Convert(text, EndForTheSystem(text), DosBytes(system.AnsiPage(), system.OemPage()));
}

void ConvertOemToChar(Text& text) {
  host::System& system = host::TheSystem();
  Convert(text, EndForTheSystem(text), WindowsBytes(system.OemPage(), system.AnsiPage()));
}

void BuildCharTables() {
  if (CharTablesReady != kFalse) return;
  CharTablesReady = kTrue;
  const CodePage& dos = CodePage::Numbered(kDos);
  const CodePage& windows = CodePage::Numbered(kWindows);
  DosToWinTable = WindowsBytes(dos, windows);
  WinToDosTable = DosBytes(windows, dos);
}

void ConvertWinToDos(Text& text) {
  BuildCharTables();
  Convert(text, text.size(), WinToDosTable);
}

}  // namespace orvik::WinDosConv2
