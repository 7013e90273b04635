#if defined(__x86_64__)

#include <immintrin.h>

#include "fileengine/crc_folding.h"
#include "fileengine/crc_kernels.h"

#define ORVIK_TARGET __attribute__((target("avx512f,avx512bw,avx512vbmi,pclmul,vpclmulqdq")))

namespace orvik::mdlSupport {

namespace {

constexpr std::size_t kRegister = 64;
constexpr std::size_t kRegisters = 4;

// The upper half of a code page, two registers to each byte of a character.
struct UpperHalf {
  __m512i low[2], high[2];
};

struct Registers {
  __m512i of[kRegisters];
};

ORVIK_TARGET inline __m512i Load(const void* at) { return _mm512_loadu_si512(at); }

// The text of 64 bytes.
ORVIK_TARGET inline void Expand(const UpperHalf& upper, const unsigned char* at, __m512i& odd,
                                __m512i& even) {
  const __m512i bytes = Load(at);
  const __mmask64 above = _mm512_movepi8_mask(bytes);
  const __m512i low = _mm512_mask2_permutex2var_epi8(upper.low[0], bytes, above, upper.low[1]);
  const __m512i high = _mm512_maskz_permutex2var_epi8(above, upper.high[0], bytes, upper.high[1]);
  odd = _mm512_unpacklo_epi8(low, high);
  even = _mm512_unpackhi_epi8(low, high);
}

ORVIK_TARGET inline Registers Block(const UpperHalf& upper, const unsigned char* bytes) {
  Registers block;
  Expand(upper, bytes, block.of[0], block.of[1]);
  Expand(upper, bytes + kRegister, block.of[2], block.of[3]);
  return block;
}

}  // namespace

ORVIK_TARGET std::uint32_t AddByFolding512(const CrcPage& page, std::uint32_t running,
                                           const unsigned char* bytes, std::size_t count) {
  constexpr Fold kFold(kRegisters * 512);
  const __m512i multipliers =
      _mm512_set4_epi64(static_cast<long long>(kFold.second), static_cast<long long>(kFold.first),
                        static_cast<long long>(kFold.second), static_cast<long long>(kFold.first));
  const UpperHalf upper = {{Load(page.low.data()), Load(page.low.data() + kRegister)},
                           {Load(page.high.data()), Load(page.high.data() + kRegister)}};
  const unsigned char* const end = bytes + count;
  Registers sum = Block(upper, bytes);
  sum.of[0] = _mm512_xor_si512(
      sum.of[0], _mm512_zextsi128_si512(_mm_cvtsi32_si128(static_cast<int>(running))));
  while ((bytes += kFoldingBlock512) != end) {
    const Registers next = Block(upper, bytes);
    for (std::size_t i = 0; i < kRegisters; ++i) {
      const __m512i first = _mm512_clmulepi64_epi128(sum.of[i], multipliers, 0x00);
      const __m512i second = _mm512_clmulepi64_epi128(sum.of[i], multipliers, 0x11);
      constexpr int kExclusiveOrOfThree = 0x96;
      sum.of[i] = _mm512_ternarylogic_epi64(first, second, next.of[i], kExclusiveOrOfThree);
    }
  }
  unsigned char registers[kRegisters * kRegister];
  for (std::size_t i = 0; i < kRegisters; ++i) {
    _mm512_storeu_si512(registers + i * kRegister, sum.of[i]);
  }
  return RunningOfRegisters(registers, kRegisters, kRegister);
}

}  // namespace orvik::mdlSupport

#endif
