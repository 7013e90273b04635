#if defined(__x86_64__)

#include <immintrin.h>

#include "fileengine/crc_folding.h"
#include "fileengine/crc_kernels.h"

#define ORVIK_TARGET __attribute__((target("sse4.1,pclmul")))

namespace orvik::mdlSupport {

namespace {

// Two of these are expanded to four words.
constexpr std::size_t kWord = 16;
constexpr std::size_t kWords = 4;

struct Words {
  __m128i word[kWords];
};

__m128i Load(const void* at) { return _mm_loadu_si128(static_cast<const __m128i*>(at)); }

ORVIK_TARGET inline __m128i Multipliers(const Fold& fold) {
  return _mm_set_epi64x(static_cast<long long>(fold.second), static_cast<long long>(fold.first));
}

ORVIK_TARGET inline __m128i Move(__m128i word, __m128i multipliers) {
  return _mm_xor_si128(_mm_clmulepi64_si128(word, multipliers, 0x00),
                       _mm_clmulepi64_si128(word, multipliers, 0x11));
}

// The text of 32 bytes.
ORVIK_TARGET inline Words Expand(const CrcPage& page, const unsigned char* at) {
  constexpr std::size_t kLoads = kFoldingBlock128 / kWord;
  __m128i bytes[kLoads], low[kLoads], high[kLoads];
  __m128i odd = _mm_setzero_si128();
  for (std::size_t i = 0; i < kLoads; ++i) {
    bytes[i] = Load(at + i * kWord);
    const __m128i rows = _mm_and_si128(_mm_srli_epi16(bytes[i], 4), _mm_set1_epi8(15));
    const __m128i columns = _mm_and_si128(bytes[i], _mm_set1_epi8(15));
    low[i] = _mm_add_epi8(bytes[i], _mm_shuffle_epi8(Load(page.low_of_row.data()), rows));
    high[i] = _mm_shuffle_epi8(Load(page.high_of_row.data()), rows);
    odd = _mm_or_si128(odd,
                       _mm_and_si128(_mm_shuffle_epi8(Load(page.odd_in_row.data()), rows),
                                     _mm_shuffle_epi8(Load(page.odd_in_column.data()), columns)));
  }
  const std::size_t mends = _mm_testz_si128(odd, odd) != 0 ? 0 : page.mend_count;
  for (std::size_t m = 0; m < mends; ++m) {
    const CrcPage::Mend& mend = page.mends[m];
    const __m128i row = _mm_set1_epi8(static_cast<char>(mend.row));
    for (std::size_t i = 0; i < kLoads; ++i) {
      // 0x70 and more for bytes of this row; 0x80 and more, which finds nothing, for others.
      const __m128i columns = _mm_adds_epu8(_mm_xor_si128(bytes[i], row), _mm_set1_epi8(0x70));
      low[i] = _mm_xor_si128(low[i], _mm_shuffle_epi8(Load(mend.low.data()), columns));
      high[i] = _mm_xor_si128(high[i], _mm_shuffle_epi8(Load(mend.high.data()), columns));
    }
  }
  Words text;
  for (std::size_t i = 0; i < kLoads; ++i) {
    text.word[2 * i] = _mm_unpacklo_epi8(low[i], high[i]);
    text.word[2 * i + 1] = _mm_unpackhi_epi8(low[i], high[i]);
  }
  return text;
}

}  // namespace

ORVIK_TARGET std::uint32_t AddByFolding128(const CrcPage& page, std::uint32_t running,
                                           const unsigned char* bytes, std::size_t count) {
  constexpr Fold kFold(kWords * 128);
  const __m128i multipliers = Multipliers(kFold);
  const unsigned char* const end = bytes + count;
  Words sum = Expand(page, bytes);
  sum.word[0] = _mm_xor_si128(sum.word[0], _mm_cvtsi32_si128(static_cast<int>(running)));
  while ((bytes += kFoldingBlock128) != end) {
    const Words next = Expand(page, bytes);
    for (std::size_t i = 0; i < kWords; ++i) {
      sum.word[i] = _mm_xor_si128(Move(sum.word[i], multipliers), next.word[i]);
    }
  }
  unsigned char words[kWords * kWord];
  for (std::size_t i = 0; i < kWords; ++i) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(words) + i, sum.word[i]);
  }
  return RunningOfRegisters(words, kWords, kWord);
}

ORVIK_TARGET std::uint32_t RunningOfRegisters(const unsigned char* registers, std::size_t count,
                                              std::size_t size) {
  constexpr Fold kFold(128);
  const __m128i multipliers = Multipliers(kFold);
  __m128i sum = _mm_setzero_si128();
  for (std::size_t pair = 0; pair < count; pair += 2) {
    for (std::size_t at = pair * size; at < (pair + 1) * size; at += kWord) {
      sum = _mm_xor_si128(Move(sum, multipliers), Load(registers + at));
      sum = _mm_xor_si128(Move(sum, multipliers), Load(registers + at + size));
    }
  }
  unsigned char last[kWord];
  _mm_storeu_si128(reinterpret_cast<__m128i*>(last), sum);
  std::uint32_t running = 0;
  for (const unsigned char byte : last) running = CrcOfByte(running, byte);
  return running;
}

}  // namespace orvik::mdlSupport

#endif
