#include "fileengine/checksums.h"

#include <algorithm>
#include <memory>
#include <span>
#include <vector>

#include "base/failure.h"
#include "base/numbers.h"
#include "fileengine/crc_table.h"
#include "fileengine/text_crc.h"
#include "host/host.h"

namespace orvik::mdlSupport {

std::array<std::uint32_t, 256> CRCTable;

namespace {

constexpr std::int32_t kDefaultBlock = 512;

Flag table_ready = kFalse;

// A file opened for a checksum, with its length at that moment.
struct Source {
  std::unique_ptr<host::File> file;
  std::int32_t length = 0;

  explicit Source(const Text& path) : file(host::Files().Open(path, host::OpenMode::kRead)) {
    if (!file) return;
    if (const auto bytes = file->Length()) {
      length = ReportedLength(*bytes);
    } else {
      file.reset();
    }
  }
  // No buffer can be had for a negative length.
  bool Readable() const { return file && length >= 0; }

  void Read(std::int64_t position, std::span<char> buffer) const {
    const auto count = file->ReadAt(position, buffer);
    if (!count || *count != buffer.size()) throw Failure{};
  }
};

// A buffer that is kept from file to file.
std::span<char> Buffer(std::size_t size) {
  static std::vector<char> buffer;
  if (buffer.size() < size) buffer.resize(size);
  return std::span(buffer).first(size);
}

std::int32_t WholeCRC(const Source& source) {
  constexpr std::int64_t kChunk = 1 << 18;
  TextCRC crc(host::TheSystem().AnsiPage());
  for (std::int64_t at = 0; at < source.length;) {
    const auto chunk =
        Buffer(static_cast<std::size_t>(std::min<std::int64_t>(kChunk, source.length - at)));
    source.Read(at, chunk);
    crc.Add(chunk);
    at += static_cast<std::int64_t>(chunk.size());
  }
  return crc.Result();
}

std::int32_t SampledCRC(const Source& source, std::int32_t block_size) {
  const auto block = static_cast<std::size_t>(block_size);
  // Everything but the last byte; the tail begins one byte before the file's last block.
  const std::size_t behind_tail = static_cast<std::size_t>(source.length) - 1;
  std::span<char> head;
  std::span<char> tail;
  if (behind_tail <= 2 * block) {
    const auto both = Buffer(behind_tail);
    source.Read(0, both);
    head = both.first(block);
    tail = both.last(block);
  } else {
    const auto both = Buffer(2 * block);
    head = both.first(block);
    tail = both.last(block);
    source.Read(0, head);
    source.Read(static_cast<std::int64_t>(behind_tail - block), tail);
  }
  TextCRC crc(host::TheSystem().AnsiPage());
  crc.Add(head);
  crc.Add(tail);
  crc.Add(SpacedDecimal(source.length));
  return crc.Result();
}

// 0 when a step fails.
std::int32_t FastCRC(const Source& source, std::int32_t block_size) {
  if (block_size < 1) block_size = kDefaultBlock;
  std::int32_t result = 0;
  if (!source.Readable()) return result;
  Attempt([&] {
    result = source.length <= block_size ? WholeCRC(source) : SampledCRC(source, block_size);
  });
  return result;
}

}  // namespace

void InitCRCTable() {
  if (table_ready != kFalse) return;
  CRCTable = kPublishedCRCTable;
  table_ready = kTrue;
}

std::int32_t ComputeCRC(TextView text) {
  std::uint32_t running = 0xFFFFFFFF;
  const auto add = [&](unsigned byte) {
    running = (running >> 8) ^ CRCTable[(running ^ byte) & 0xFF];
  };
  for (char16_t c : text) {
    add(c & 0xFFU);
    add(static_cast<unsigned>(c) >> 8);
  }
  return static_cast<std::int32_t>(~running);
}

std::int32_t GetFileCRC(const Text& path) {
  const Source source(path);
  std::int32_t result = 0;
  if (source.Readable()) Attempt([&] { result = WholeCRC(source); });
  return result;
}

std::int32_t GetFastCRC(const Text& path, std::int32_t block_size) {
  return FastCRC(Source(path), block_size);
}

Flag SameFastCRC(const Text& first, const Text& second) {
  // A file that can't be opened still has its length, and the checksum 0.
  const auto length_of = [](const Source& source, const Text& path) {
    std::int32_t length = source.length;
    if (!source.file) Attempt([&] { length = FileLength(path); });
    return length;
  };
  const Source a(first);
  const Source b(second);
  return ToFlag(length_of(a, first) == length_of(b, second) && FastCRC(a, 0) == FastCRC(b, 0));
}

std::int32_t ReportedLength(std::int64_t length) {
  constexpr std::int64_t kSignBit = 0x80000000;
  if (length < kSignBit) return static_cast<std::int32_t>(length);
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(length | kSignBit));
}

std::int32_t FileLength(const Text& path) {
  const auto length = host::Files().FileLength(path);
  if (!length) throw Failure{};
  return ReportedLength(*length);
}

}  // namespace orvik::mdlSupport
