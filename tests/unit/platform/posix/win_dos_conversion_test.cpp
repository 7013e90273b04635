// The tables against the C library's own knowledge of the two code pages.
#include "platform/win_dos_conversion.h"

#include <gtest/gtest.h>
#include <iconv.h>

#include <map>

namespace orvik::WinDosConv2 {
namespace {

using Exceptions = std::map<int, std::string_view>;

// By target: the bytes whose character the other page lacks.
const Exceptions kToDos = {
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
    {0x07, "\x95"},
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
const Exceptions kToWindows = {
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

// The byte of the same character in another page, or -1.
int Published(const char* from, const char* to, int byte) {
  const iconv_t converter = iconv_open(to, from);
  EXPECT_NE(converter, reinterpret_cast<iconv_t>(-1));
  char in = static_cast<char>(byte);
  char out = 0;
  char* source = &in;
  char* target = &out;
  std::size_t left = 1;
  std::size_t room = 1;
  const std::size_t result = iconv(converter, &source, &left, &target, &room);
  iconv_close(converter);
  return result == 0 && room == 0 ? static_cast<unsigned char>(out) : -1;
}

int Excepted(const Exceptions& exceptions, int byte) {
  for (const auto& [target, sources] : exceptions) {
    if (sources.find(static_cast<char>(byte)) != std::string_view::npos) return target;
  }
  return -1;
}

void Compare(const std::array<std::uint8_t, 256>& table, const char* from, const char* to,
             const Exceptions& exceptions) {
  int published = 0;
  int excepted = 0;
  for (int byte = 0; byte < 256; ++byte) {
    const int same = Published(from, to, byte);
    const int other = Excepted(exceptions, byte);
    EXPECT_TRUE((same < 0) != (other < 0)) << from << " " << byte;
    EXPECT_EQ(table[static_cast<std::size_t>(byte)], same >= 0 ? same : other)
        << from << " " << byte;
    if (byte < 0x80) {
      EXPECT_EQ(same, byte);
    } else {
      ++(same >= 0 ? published : excepted);
    }
  }
  EXPECT_EQ(published, 77);
  EXPECT_EQ(excepted, 51);
}

TEST(CharTables, WindowsToDos) {
  BuildCharTables();
  Compare(WinToDosTable, "CP1251", "CP866", kToDos);
}

TEST(CharTables, DosToWindows) {
  BuildCharTables();
  Compare(DosToWinTable, "CP866", "CP1251", kToWindows);
}

}  // namespace
}  // namespace orvik::WinDosConv2
