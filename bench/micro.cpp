// Benchmarks inside one process: what a call costs, and how the cost grows.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "base/code_page.h"
#include "base/keyed_collection.h"
#include "base/numbers.h"
#include "fileengine/checksums.h"
#include "fileengine/pattern.h"
#include "fileengine/text_crc.h"
#include "monitors/text_finder.h"

namespace orvik {
namespace {

using mdlSupport::TextCRC;

constexpr std::size_t kLarge = 1 << 24;

// Contents in which a code page matters differently.
enum Content : std::int64_t { kAscii, kRussian, kBinary };

std::string Bytes(Content content, std::size_t size) {
  std::string bytes(size, ' ');
  std::uint32_t state = 1;
  for (char& byte : bytes) {
    state = state * 1664525U + 1013904223U;
    const std::uint32_t random = state >> 24;
    switch (content) {
      case kAscii:
        byte = static_cast<char>(random & 0x7F);
        break;
      case kRussian:  // letters of code page 1251, Ё and ё among them
        byte = static_cast<char>(random % 32 == 0 ? 0xB8 : 0xC0 + random % 64);
        break;
      case kBinary:
        byte = static_cast<char>(random);
        break;
    }
  }
  return bytes;
}

void FileContentCRC(benchmark::State& state) {
  const std::string bytes =
      Bytes(static_cast<Content>(state.range(0)), static_cast<std::size_t>(state.range(1)));
  const auto kernel = static_cast<std::size_t>(state.range(2));
  if (kernel >= mdlSupport::CrcKernels().size()) return state.SkipWithError("not on this machine");
  state.SetLabel(mdlSupport::CrcKernels()[kernel].name);
  for (auto _ : state) {
    TextCRC crc(CodePage::Numbered(1251), mdlSupport::CrcKernels()[kernel]);
    crc.Add(bytes);
    benchmark::DoNotOptimize(crc.Result());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(FileContentCRC)
    ->ArgNames({"content", "bytes", "kernel"})
    ->ArgsProduct({{kAscii, kRussian, kBinary}, {512, 1 << 16, kLarge}, {0, 1, 2, 3}});

void SearchText(benchmark::State& state) {
  const std::string bytes =
      Bytes(static_cast<Content>(state.range(0)), static_cast<std::size_t>(state.range(1)));
  const auto kernel = static_cast<std::size_t>(state.range(2));
  if (kernel >= ScanKernels().size()) return state.SkipWithError("not on this machine");
  state.SetLabel(ScanKernels()[kernel].name);
  const TextFinder finder(u"договор поставки", CodePage::Numbered(1251), ScanKernels()[kernel]);
  for (auto _ : state) benchmark::DoNotOptimize(finder.FoundIn(bytes));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(SearchText)
    ->ArgNames({"content", "bytes", "kernel"})
    ->ArgsProduct({{kAscii, kRussian, kBinary}, {1 << 12, 1 << 20}, {0, 1}});

void ChecksumOfText(benchmark::State& state) {
  mdlSupport::InitCRCTable();
  const Text text =
      CodePage::Numbered(1251).Decode(Bytes(kRussian, static_cast<std::size_t>(state.range(0))));
  for (auto _ : state) benchmark::DoNotOptimize(mdlSupport::ComputeCRC(text));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(ChecksumOfText)->Arg(512)->Arg(1 << 16);

void DecodeFile(benchmark::State& state) {
  const std::string bytes = Bytes(kRussian, 1 << 20);
  const CodePage& page = CodePage::Numbered(1251);
  for (auto _ : state) benchmark::DoNotOptimize(page.Decode(bytes));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(DecodeFile);

void EncodeFile(benchmark::State& state) {
  const CodePage& page = CodePage::Numbered(1251);
  const Text text = page.Decode(Bytes(kRussian, 1 << 20));
  for (auto _ : state) benchmark::DoNotOptimize(page.Encode(text));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(EncodeFile);

void LikeName(benchmark::State& state) {
  const Text name = u"протокол заседания 2011-09-01 (копия).doc";
  for (auto _ : state) benchmark::DoNotOptimize(mdlSupport::Like(name, u"*заседания ####-*.doc"));
}
BENCHMARK(LikeName);

// A pattern that makes a careless matcher take exponential time.
void LikeWorstCase(benchmark::State& state) {
  const Text text(static_cast<std::size_t>(state.range(0)), u'a');
  for (auto _ : state) benchmark::DoNotOptimize(mdlSupport::Like(text, u"*a*a*a*a*a*a*a*a*b"));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(LikeWorstCase)->Range(1 << 6, 1 << 12)->Complexity();

void CollectionFill(benchmark::State& state) {
  for (auto _ : state) {
    KeyedCollection collection;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
      const Text item = u"C:\\папка\\файл" + Decimal(i);
      collection.Add(item, u"k" + item);
    }
    benchmark::DoNotOptimize(collection.Count());
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(CollectionFill)->Range(1 << 10, 1 << 16)->Complexity();

void CollectionFind(benchmark::State& state) {
  KeyedCollection collection;
  for (std::int64_t i = 0; i < state.range(0); ++i) collection.Add(u"x", u"Ключ" + Decimal(i));
  const Text key = u"кЛЮЧ" + Decimal(state.range(0) / 2);
  for (auto _ : state) benchmark::DoNotOptimize(collection.Find(key));
}
BENCHMARK(CollectionFind)->Arg(1 << 10)->Arg(1 << 16);

}  // namespace
}  // namespace orvik
