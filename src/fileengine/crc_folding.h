// Kernels by carry-less multiplication.
//
// The bytes are expanded to the text's form in bytes and taken as a polynomial, of which only the
// remainder by the CRC's polynomial counts. A word of 128 bits may therefore be taken off the front
// and added, multiplied by the power of x that it stands in front, to the word that far behind. See
// V. Gopal and others, "Fast CRC Computation for Generic Polynomials Using PCLMULQDQ Instruction".
#pragma once

#if defined(__x86_64__)

#include <cstddef>
#include <cstdint>

namespace orvik::mdlSupport {

struct CrcPage;

// How many bytes of a file go in at a time: as many as keep the multiplier busy.
constexpr std::size_t kFoldingBlock128 = 32;
constexpr std::size_t kFoldingBlock256 = 64;
constexpr std::size_t kFoldingBlock512 = 128;

// As CrcKernel::add. Named after the width of the registers; they need, in this order, SSE4.1 and
// PCLMULQDQ; AVX2 and VPCLMULQDQ besides; AVX-512 with BW and VBMI besides.
std::uint32_t AddByFolding128(const CrcPage& page, std::uint32_t running,
                              const unsigned char* bytes, std::size_t count);
std::uint32_t AddByFolding256(const CrcPage& page, std::uint32_t running,
                              const unsigned char* bytes, std::size_t count);
std::uint32_t AddByFolding512(const CrcPage& page, std::uint32_t running,
                              const unsigned char* bytes, std::size_t count);

// The multipliers that move a word of 128 bits, lowest byte first in the file, a distance in bits
// further on: for its first half and for its second. Bits are reflected, as in the CRC itself, for
// which the product of two halves stands one bit too high.
struct Fold {
  std::uint64_t first, second;

  explicit constexpr Fold(int distance)
      : first(Power(distance + 63)), second(Power(distance - 1)) {}

 private:
  // x to the nth, by the polynomial of the CRC.
  static constexpr std::uint64_t Power(int n) {
    std::uint32_t power = 0x80000000;
    for (; n > 0; --n) power = (power >> 1) ^ ((power & 1) != 0 ? 0xEDB88320 : 0);
    return static_cast<std::uint64_t>(power) << 32;
  }
};

// The running value that the words in some registers of this size in bytes come to. Characters are
// put together from their two bytes within each word of a register, so that the text runs through
// the words of two registers by turns.
std::uint32_t RunningOfRegisters(const unsigned char* registers, std::size_t count,
                                 std::size_t size);

}  // namespace orvik::mdlSupport

#endif
