#if defined(__x86_64__)

#include <immintrin.h>

#include "fileengine/crc_folding.h"
#include "fileengine/crc_kernels.h"

#define ORVIK_TARGET __attribute__((target("avx2,pclmul,vpclmulqdq")))

namespace orvik::mdlSupport {

namespace {

constexpr std::size_t kRegister = 32;
constexpr std::size_t kRegisters = 4;

struct Registers {
  __m256i of[kRegisters];
};

ORVIK_TARGET inline __m256i Twice(const void* at) {
  return _mm256_broadcastsi128_si256(_mm_loadu_si128(static_cast<const __m128i*>(at)));
}

// The text of 64 bytes.
ORVIK_TARGET inline Registers Expand(const CrcPage& page, const unsigned char* at) {
  constexpr std::size_t kLoads = kFoldingBlock256 / kRegister;
  __m256i bytes[kLoads], low[kLoads], high[kLoads];
  __m256i odd = _mm256_setzero_si256();
  for (std::size_t i = 0; i < kLoads; ++i) {
    bytes[i] = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(at) + i);
    const __m256i rows = _mm256_and_si256(_mm256_srli_epi16(bytes[i], 4), _mm256_set1_epi8(15));
    const __m256i columns = _mm256_and_si256(bytes[i], _mm256_set1_epi8(15));
    low[i] = _mm256_add_epi8(bytes[i], _mm256_shuffle_epi8(Twice(page.low_of_row.data()), rows));
    high[i] = _mm256_shuffle_epi8(Twice(page.high_of_row.data()), rows);
    odd = _mm256_or_si256(
        odd, _mm256_and_si256(_mm256_shuffle_epi8(Twice(page.odd_in_row.data()), rows),
                              _mm256_shuffle_epi8(Twice(page.odd_in_column.data()), columns)));
  }
  const std::size_t mends = _mm256_testz_si256(odd, odd) != 0 ? 0 : page.mend_count;
  for (std::size_t m = 0; m < mends; ++m) {
    const CrcPage::Mend& mend = page.mends[m];
    const __m256i row = _mm256_set1_epi8(static_cast<char>(mend.row));
    const __m256i mend_low = Twice(mend.low.data());
    const __m256i mend_high = Twice(mend.high.data());
    for (std::size_t i = 0; i < kLoads; ++i) {
      // 0x70 and more for bytes of this row; 0x80 and more, which finds nothing, for others.
      const __m256i columns =
          _mm256_adds_epu8(_mm256_xor_si256(bytes[i], row), _mm256_set1_epi8(0x70));
      low[i] = _mm256_xor_si256(low[i], _mm256_shuffle_epi8(mend_low, columns));
      high[i] = _mm256_xor_si256(high[i], _mm256_shuffle_epi8(mend_high, columns));
    }
  }
  Registers text;
  for (std::size_t i = 0; i < kLoads; ++i) {
    text.of[2 * i] = _mm256_unpacklo_epi8(low[i], high[i]);
    text.of[2 * i + 1] = _mm256_unpackhi_epi8(low[i], high[i]);
  }
  return text;
}

}  // namespace

ORVIK_TARGET std::uint32_t AddByFolding256(const CrcPage& page, std::uint32_t running,
                                           const unsigned char* bytes, std::size_t count) {
  constexpr Fold kFold(kRegisters * 256);
  const __m256i multipliers =
      _mm256_set_epi64x(static_cast<long long>(kFold.second), static_cast<long long>(kFold.first),
                        static_cast<long long>(kFold.second), static_cast<long long>(kFold.first));
  const unsigned char* const end = bytes + count;
  Registers sum = Expand(page, bytes);
  sum.of[0] = _mm256_xor_si256(
      sum.of[0], _mm256_zextsi128_si256(_mm_cvtsi32_si128(static_cast<int>(running))));
  while ((bytes += kFoldingBlock256) != end) {
    const Registers next = Expand(page, bytes);
    for (std::size_t i = 0; i < kRegisters; ++i) {
      const __m256i first = _mm256_clmulepi64_epi128(sum.of[i], multipliers, 0x00);
      const __m256i second = _mm256_clmulepi64_epi128(sum.of[i], multipliers, 0x11);
      sum.of[i] = _mm256_xor_si256(_mm256_xor_si256(first, second), next.of[i]);
    }
  }
  unsigned char registers[kRegisters * kRegister];
  for (std::size_t i = 0; i < kRegisters; ++i) {
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(registers) + i, sum.of[i]);
  }
  return RunningOfRegisters(registers, kRegisters, kRegister);
}

}  // namespace orvik::mdlSupport

#endif
