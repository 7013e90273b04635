#include "forms/headless/clock.h"

#include <algorithm>
#include <thread>

#include "forms/headless/run_end.h"

namespace orvik::forms::headless {

std::int64_t Clock::Now() const {
  if (pace_ == Pace::kVirtual) return virtual_;
  const auto passed = std::chrono::steady_clock::now() - start_;
  return std::chrono::duration_cast<std::chrono::milliseconds>(passed).count();
}

void Clock::AdvanceTo(std::int64_t time) {
  const std::int64_t target = limit_ ? std::min(time, *limit_) : time;
  if (pace_ == Pace::kVirtual) {
    virtual_ = std::max(virtual_, target);
  } else {
    // A system may wake a sleeper a little early.
    while (Now() < target) {
      std::this_thread::sleep_until(start_ + std::chrono::milliseconds(target));
    }
  }
  Check();
}

void Clock::Check() const {
  if (limit_ && Now() >= *limit_) throw RunEnded{RunEnd::kTime};
}

void Clock::AdvanceToLimit() {
  if (limit_) AdvanceTo(*limit_);
}

}  // namespace orvik::forms::headless
