#include "monitors/text_scan.h"

#include <vector>

namespace orvik {

std::size_t NextByByte(const Sieve& sieve, const unsigned char* bytes, std::size_t from,
                       std::size_t places) {
  const auto& [first, second] = sieve.marks;
  for (; from < places; ++from) {
    if (sieve.folded[bytes[from + first.offset]] == first.folded &&
        sieve.folded[bytes[from + second.offset]] == second.folded) {
      break;
    }
  }
  return from;
}

std::span<const ScanKernel> ScanKernels() {
  static const std::vector<ScanKernel> kernels = [] {
    std::vector<ScanKernel> found;
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx2")) found.push_back({"256 bits", NextBy256});
#endif
    found.push_back({"bytes", NextByByte});
    return found;
  }();
  return kernels;
}

}  // namespace orvik
