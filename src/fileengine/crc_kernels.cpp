#include "fileengine/crc_kernels.h"

#include <map>
#include <vector>

#include "fileengine/crc_folding.h"
#include "fileengine/crc_table.h"

namespace orvik::mdlSupport {

namespace {

std::uint32_t AddByTables(const CrcPage& page, std::uint32_t running, const unsigned char* bytes,
                          std::size_t count) {
  for (const unsigned char* const end = bytes + count; bytes != end; bytes += CrcPage::kBlock) {
    std::uint32_t next =
        page.of_running[0][running & 0xFF] ^ page.of_running[1][(running >> 8) & 0xFF] ^
        page.of_running[2][(running >> 16) & 0xFF] ^ page.of_running[3][running >> 24];
    for (std::size_t i = 0; i < CrcPage::kBlock; ++i) next ^= page.of_byte[i][bytes[i]];
    running = next;
  }
  return running;
}

std::vector<CrcKernel> KernelsOfThisProcessor() {
  std::vector<CrcKernel> kernels;
#if defined(__x86_64__)
  if (__builtin_cpu_supports("pclmul") && __builtin_cpu_supports("sse4.1")) {
    if (__builtin_cpu_supports("vpclmulqdq") && __builtin_cpu_supports("avx2")) {
      if (__builtin_cpu_supports("avx512vbmi") && __builtin_cpu_supports("avx512bw")) {
        kernels.push_back({"folding by 512 bits", kFoldingBlock512, AddByFolding512});
      }
      kernels.push_back({"folding by 256 bits", kFoldingBlock256, AddByFolding256});
    }
    kernels.push_back({"folding by 128 bits", kFoldingBlock128, AddByFolding128});
  }
#endif
  kernels.push_back({"tables", CrcPage::kBlock, AddByTables});
  return kernels;
}

}  // namespace

std::uint32_t CrcOfByte(std::uint32_t running, std::uint8_t byte) {
  return (running >> 8) ^ kPublishedCRCTable[(running ^ byte) & 0xFF];
}

std::uint32_t CrcOfCharacter(std::uint32_t running, char16_t c) {
  return CrcOfByte(CrcOfByte(running, static_cast<std::uint8_t>(c)),
                   static_cast<std::uint8_t>(c >> 8));
}

std::span<const CrcKernel> CrcKernels() {
  static const std::vector<CrcKernel> kernels = KernelsOfThisProcessor();
  return kernels;
}

CrcPage::CrcPage(const CodePage& page)
    : characters(page.characters()), low(), high(), of_byte(), of_running() {
  for (std::size_t i = 0; i < low.size(); ++i) {
    low[i] = static_cast<std::uint8_t>(characters[0x80 + i]);
    high[i] = static_cast<std::uint8_t>(characters[0x80 + i] >> 8);
  }
  for (std::size_t row = 0x80; row < 0x100; row += 0x10) FillRow(row);
  FillTables();
}

void CrcPage::FillRow(std::size_t row) {
  // How a byte becomes its character: the high byte, and what is added for the low byte.
  const auto way = [&](std::size_t i) {
    const char16_t character = characters[row + i];
    const auto added = static_cast<std::uint8_t>(character - (row + i));
    return static_cast<std::uint16_t>((character & 0xFF00) | added);
  };
  std::map<std::uint16_t, int> votes;
  std::uint16_t best = way(0);
  for (std::size_t i = 0; i < 16; ++i) {
    // This letter of the Russian alphabet alone stands apart from the others, and texts are full of
    // it.
    const bool frequent = ToUpper(characters[row + i]) == u'Ё';
    votes[way(i)] += frequent ? 16 : 1;
    if (votes[way(i)] > votes[best]) best = way(i);
  }
  low_of_row[row >> 4] = static_cast<std::uint8_t>(best);
  high_of_row[row >> 4] = static_cast<std::uint8_t>(best >> 8);
  Mend mend = {};
  mend.row = static_cast<std::uint8_t>(row);
  const auto bit = static_cast<std::uint8_t>(1 << ((row >> 4) - 8));
  for (std::size_t i = 0; i < 16; ++i) {
    if (way(i) == best) continue;
    const char16_t character = characters[row + i];
    mend.low[i] = static_cast<std::uint8_t>((row + i + best) ^ character);
    mend.high[i] = static_cast<std::uint8_t>((best ^ character) >> 8);
    odd_in_row[row >> 4] = bit;
    odd_in_column[i] |= bit;
  }
  if (odd_in_row[row >> 4] != 0) mends[mend_count++] = mend;
}

void CrcPage::FillTables() {
  for (std::size_t byte = 0; byte < 256; ++byte) {
    std::uint32_t value = CrcOfCharacter(0, characters[byte]);
    for (std::size_t place = kBlock; place-- > 0; value = CrcOfCharacter(value, 0)) {
      of_byte[place][byte] = value;
    }
    for (std::size_t i = 0; i < 4; ++i) {
      std::uint32_t advanced = static_cast<std::uint32_t>(byte) << (8 * i);
      for (std::size_t step = 0; step < kBlock; ++step) advanced = CrcOfCharacter(advanced, 0);
      of_running[i][byte] = advanced;
    }
  }
}

}  // namespace orvik::mdlSupport
