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

struct Mark {
  std::size_t offset;
  __m256i first, second;  // its spellings
};

ORVIK_TARGET inline Mark Widened(const Sieve::Mark& mark) {
  return {mark.offset, _mm256_set1_epi8(static_cast<char>(mark.spellings[0])),
          _mm256_set1_epi8(static_cast<char>(mark.spellings[1]))};
}

// All bits of those of 32 places at which the mark is.
ORVIK_TARGET inline __m256i Marked(const unsigned char* places, const Mark& mark) {
  const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(places + mark.offset));
  return _mm256_or_si256(_mm256_cmpeq_epi8(bytes, mark.first),
                         _mm256_cmpeq_epi8(bytes, mark.second));
}

ORVIK_TARGET inline __m256i MarkedByBoth(const unsigned char* places, const Mark& a,
                                         const Mark& b) {
  return _mm256_and_si256(Marked(places, a), Marked(places, b));
}

// One bit a place.
ORVIK_TARGET inline std::uint32_t Bits(__m256i marked) {
  return static_cast<std::uint32_t>(_mm256_movemask_epi8(marked));
}

}  // namespace

ORVIK_TARGET std::size_t NextBy256(const Sieve& sieve, const unsigned char* bytes, std::size_t from,
                                   std::size_t places) {
  if (places < kRegister) return NextByByte(sieve, bytes, from, places);
  const Mark a = Widened(sieve.marks[0]);
  const Mark b = Widened(sieve.marks[1]);
  for (; from + 2 * kRegister <= places; from += 2 * kRegister) {
    const __m256i low = MarkedByBoth(bytes + from, a, b);
    const __m256i high = MarkedByBoth(bytes + from + kRegister, a, b);
    const __m256i either = _mm256_or_si256(low, high);
    if (_mm256_testz_si256(either, either) != 0) continue;
    const std::uint64_t found = Bits(low) | std::uint64_t{Bits(high)} << kRegister;
    return from + static_cast<std::size_t>(std::countr_zero(found));
  }
  // The last places may overlap with those that are done.
  while (from < places) {
    const std::size_t at = std::min(from, places - kRegister);
    const std::uint32_t found = Bits(MarkedByBoth(bytes + at, a, b)) >> (from - at);
    if (found != 0) return from + static_cast<std::size_t>(std::countr_zero(found));
    from = at + kRegister;
  }
  return places;
}

}  // namespace orvik

#endif
