#if defined(__x86_64__)

#include <immintrin.h>

#include <algorithm>
#include <bit>
#include <cstdint>

#include "monitors/text_scan.h"

#define ORVIK_TARGET __attribute__((target("avx2")))

namespace orvik {

namespace {

constexpr std::size_t kRegister = 32;

struct Spellings {
  __m256i first, second;
};

ORVIK_TARGET inline Spellings SpellingsOf(const Sieve::Mark& mark) {
  return {_mm256_set1_epi8(static_cast<char>(mark.spellings[0])),
          _mm256_set1_epi8(static_cast<char>(mark.spellings[1]))};
}

// All bits of those of the next 32 bytes that are one of the spellings.
ORVIK_TARGET inline __m256i Marked(const unsigned char* at, const Spellings& spellings) {
  const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(at));
  return _mm256_or_si256(_mm256_cmpeq_epi8(bytes, spellings.first),
                         _mm256_cmpeq_epi8(bytes, spellings.second));
}

}  // namespace

ORVIK_TARGET std::size_t NextBy256(const Sieve& sieve, const unsigned char* bytes, std::size_t from,
                                   std::size_t places) {
  if (places < kRegister) return NextByByte(sieve, bytes, from, places);
  const auto& [first, second] = sieve.marks;
  const Spellings of_first = SpellingsOf(first);
  const Spellings of_second = SpellingsOf(second);
  const auto both = [&](std::size_t at) ORVIK_TARGET {
    return _mm256_and_si256(Marked(bytes + at + first.offset, of_first),
                            Marked(bytes + at + second.offset, of_second));
  };
  for (; from + 2 * kRegister <= places; from += 2 * kRegister) {
    const __m256i low = both(from);
    const __m256i high = both(from + kRegister);
    const __m256i either = _mm256_or_si256(low, high);
    if (_mm256_testz_si256(either, either) != 0) continue;
    const std::uint64_t found =
        static_cast<std::uint32_t>(_mm256_movemask_epi8(low)) |
        std::uint64_t{static_cast<std::uint32_t>(_mm256_movemask_epi8(high))} << kRegister;
    return from + static_cast<std::size_t>(std::countr_zero(found));
  }
  // The last places may overlap with those that are done.
  while (from < places) {
    const std::size_t at = std::min(from, places - kRegister);
    const auto found = static_cast<std::uint32_t>(_mm256_movemask_epi8(both(at))) >> (from - at);
    if (found != 0) return from + static_cast<std::size_t>(std::countr_zero(found));
    from = at + kRegister;
  }
  return places;
}

}  // namespace orvik

#endif
