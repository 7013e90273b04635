#include "fileengine/text_crc.h"

#include <map>
#include <memory>

#include "fileengine/crc_table.h"

namespace orvik::mdlSupport {

namespace {

// Sixteen tables of a kilobyte stay in the fastest cache.
constexpr std::size_t kBlock = 16;

std::uint32_t Step(std::uint32_t running, std::uint8_t byte) {
  return (running >> 8) ^ kPublishedCRCTable[(running ^ byte) & 0xFF];
}

// The running value behind one character. Linear in both arguments.
std::uint32_t StepCharacter(std::uint32_t running, char16_t c) {
  return Step(Step(running, static_cast<std::uint8_t>(c)), static_cast<std::uint8_t>(c >> 8));
}

}  // namespace

struct TextCRC::Tables {
  // What a byte does at its place in a block, all else being zero.
  std::array<std::array<std::uint32_t, 256>, kBlock> of_byte;
  // What each byte of the running value has become at the end of a block.
  std::array<std::array<std::uint32_t, 256>, 4> of_running;
  std::array<char16_t, 256> characters;

  explicit Tables(const CodePage& page) : of_byte(), of_running(), characters(page.characters()) {
    for (std::size_t byte = 0; byte < 256; ++byte) {
      std::uint32_t value = StepCharacter(0, characters[byte]);
      for (std::size_t place = kBlock; place-- > 0; value = StepCharacter(value, 0)) {
        of_byte[place][byte] = value;
      }
      for (std::size_t i = 0; i < 4; ++i) {
        std::uint32_t advanced = static_cast<std::uint32_t>(byte) << (8 * i);
        for (std::size_t step = 0; step < kBlock; ++step) advanced = StepCharacter(advanced, 0);
        of_running[i][byte] = advanced;
      }
    }
  }

  std::uint32_t Advance(std::uint32_t running, const unsigned char* block) const {
    std::uint32_t result = of_running[0][running & 0xFF] ^ of_running[1][(running >> 8) & 0xFF] ^
                           of_running[2][(running >> 16) & 0xFF] ^ of_running[3][running >> 24];
    for (std::size_t i = 0; i < kBlock; ++i) result ^= of_byte[i][block[i]];
    return result;
  }
};

const TextCRC::Tables& TextCRC::TablesOf(const CodePage& page) {
  static std::map<int, std::unique_ptr<Tables>> all;
  auto& tables = all[page.number()];
  if (!tables) tables = std::make_unique<Tables>(page);
  return *tables;
}

TextCRC::TextCRC(const CodePage& page) : tables_(TablesOf(page)) {}

void TextCRC::Add(std::span<const char> bytes) {
  const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
  std::size_t left = bytes.size();
  for (; left >= kBlock; left -= kBlock, at += kBlock) running_ = tables_.Advance(running_, at);
  for (; left > 0; --left) running_ = StepCharacter(running_, tables_.characters[*at++]);
}

void TextCRC::Add(TextView text) {
  for (char16_t c : text) running_ = StepCharacter(running_, c);
}

}  // namespace orvik::mdlSupport
