// Counters that are 16 or 32 bits wide by design.
#pragma once

#include <cmath>
#include <cstdint>
#include <utility>

#include "base/failure.h"

namespace orvik {

// A truth value of the program: 16 bits, true is -1, false is 0.
using Flag = std::int16_t;
constexpr Flag kTrue = -1;
constexpr Flag kFalse = 0;
constexpr Flag ToFlag(bool value) { return value ? kTrue : kFalse; }

// The value in a narrower type; throws Failure when it doesn't fit.
template <typename Narrow, typename Wide>
constexpr Narrow Narrowed(Wide value) {
  if (!std::in_range<Narrow>(value)) throw Failure{};
  return static_cast<Narrow>(value);
}

// A number rounded to a signed 32-bit one, halves to the even neighbour; throws Failure when it
// doesn't fit.
inline std::int32_t RoundToInt32(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) throw Failure{};
  return static_cast<std::int32_t>(rounded);
}

// An integer whose arithmetic throws Failure when it leaves its range, and then keeps its value.
template <typename Integer>
class Checked {
 public:
  constexpr Checked(Integer value = 0) : value_(value) {}  // NOLINT: a counter is its number
  constexpr operator Integer() const { return value_; }    // NOLINT

  constexpr Checked& operator+=(std::int64_t step) {
    value_ = Narrowed<Integer>(static_cast<std::int64_t>(value_) + step);
    return *this;
  }
  constexpr Checked& operator++() { return *this += 1; }
  constexpr Checked& operator--() { return *this += -1; }

 private:
  Integer value_;
};

using Int16 = Checked<std::int16_t>;
using Int32 = Checked<std::int32_t>;

}  // namespace orvik
