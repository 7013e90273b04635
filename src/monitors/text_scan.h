// Ways to pass over bytes among which a text can't stand.
#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace orvik {

// Two bytes that tell most places where a text doesn't stand from those where it may.
struct Sieve {
  // What all spellings of a character, in capitals and small letters, have in common, by byte.
  std::array<unsigned char, 256> folded;
  struct Mark {
    std::size_t offset;  // in the text
    unsigned char folded;
    std::array<unsigned char, 2> spellings;  // the same byte twice where there is only one
  };
  std::array<Mark, 2> marks;
};

struct ScanKernel {
  const char* name;
  // The first place from `from` on, below `places`, where both marks are; `places` when there is
  // none. Behind the last place the bytes go on for as far as the marks reach.
  std::size_t (*next)(const Sieve& sieve, const unsigned char* bytes, std::size_t from,
                      std::size_t places);
};

// The kernels that this processor can run, the fastest first. The last one, which alone can do with
// more than two spellings, is there on every processor.
std::span<const ScanKernel> ScanKernels();

// By registers of 256 bits, for processors with AVX2.
std::size_t NextBy256(const Sieve& sieve, const unsigned char* bytes, std::size_t from,
                      std::size_t places);
// Byte by byte.
std::size_t NextByByte(const Sieve& sieve, const unsigned char* bytes, std::size_t from,
                       std::size_t places);

}  // namespace orvik
