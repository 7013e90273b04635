// Ways to take many bytes of a file at once into the running CRC of their text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "base/code_page.h"

namespace orvik::mdlSupport {

// A code page as the kernels want it. Bytes below 0x80 are ASCII in every page.
struct CrcPage {
  explicit CrcPage(const CodePage& page);

  std::array<char16_t, 256> characters;

  // The two bytes of the characters of 0x80 to 0xFF.
  std::array<std::uint8_t, 128> low, high;

  // The same for processors that look up 16 bytes at a time. In a row of 16 bytes most characters
  // follow each other: their low byte is the byte plus low_of_row, their high byte is high_of_row.
  // The odd ones are mended by exclusive-or. A byte is odd where the bits of its row and of its
  // column meet.
  using Sixteen = std::array<std::uint8_t, 16>;
  Sixteen low_of_row = {}, high_of_row = {}, odd_in_row = {}, odd_in_column = {};
  struct Mend {
    Sixteen low, high;
    std::uint8_t row;  // its first byte
  };
  std::array<Mend, 8> mends = {};
  std::size_t mend_count = 0;

  // What a byte does at its place in a block of the tables, all else being zero; and what each byte
  // of the running value has become at the end of a block. Sixteen tables of a kilobyte stay in the
  // fastest cache.
  static constexpr std::size_t kBlock = 16;
  std::array<std::array<std::uint32_t, 256>, kBlock> of_byte;
  std::array<std::array<std::uint32_t, 256>, 4> of_running;

 private:
  void FillRow(std::size_t row);
  void FillTables();
};

struct CrcKernel {
  const char* name;
  std::size_t block;
  // The running value behind `count` more bytes, a multiple of the block and not 0.
  std::uint32_t (*add)(const CrcPage& page, std::uint32_t running, const unsigned char* bytes,
                       std::size_t count);
};

// The kernels that this processor can run, the fastest first. The last one is always the tables.
std::span<const CrcKernel> CrcKernels();

// The running value behind one byte of a text's form in bytes, and behind one character.
std::uint32_t CrcOfByte(std::uint32_t running, std::uint8_t byte);
std::uint32_t CrcOfCharacter(std::uint32_t running, char16_t c);

}  // namespace orvik::mdlSupport
