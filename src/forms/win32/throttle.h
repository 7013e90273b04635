// Limits how often something costly is done.
#pragma once

#include <algorithm>

#include "forms/win32/windows_api.h"

namespace orvik::forms::win32 {

// Lets a few through at once, then one for each interval: a single request after a quiet time is
// always served, and a stream of requests is thinned out. A refusal costs one reading of the clock.
class Throttle {
 public:
  Throttle(int interval_ms, int burst) : burst_(burst) {
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    step_ = frequency.QuadPart * interval_ms / 1000;
  }

  bool Due() {
    LARGE_INTEGER now;
    QueryPerformanceCounter(&now);
    // free_at_ runs ahead of the clock by one step for each one let through.
    const LONGLONG free_at = std::max(free_at_, now.QuadPart);
    if (free_at - now.QuadPart > step_ * (burst_ - 1)) return false;
    free_at_ = free_at + step_;
    return true;
  }

  // The next request is served.
  void Reset() { free_at_ = 0; }

 private:
  const int burst_;
  LONGLONG step_;
  LONGLONG free_at_ = 0;
};

}  // namespace orvik::forms::win32
