#include "cleaning/wait.h"

#include "forms/front_end.h"
#include "host/host.h"

namespace orvik::mdlSupport {

namespace {

constexpr std::uint32_t kTimeOut = 258;
constexpr std::int32_t kForEver = -1;

// What is left of an interval, in 32 bits that wrap as the tick counter does.
std::int32_t Remaining(std::uint32_t end) {
  return static_cast<std::int32_t>(end - host::TheSystem().Ticks());
}

// Tells a passed end from a distant one across the wrap of the counter.
bool IsOver(std::int32_t remaining, std::int32_t interval) {
  return (remaining ^ interval) > 0 ? remaining > interval : remaining < 0;
}

}  // namespace

std::uint32_t WaitWithMessages(std::int32_t interval) {
  const std::uint32_t end = host::TheSystem().Ticks() + static_cast<std::uint32_t>(interval);
  for (;;) {
    std::int32_t remaining = kForEver;
    if (interval != kForEver) {
      remaining = Remaining(end);
      if (IsOver(remaining, interval)) return kTimeOut;
    }
    const bool input = forms::Front().WaitForInput(remaining);
    forms::Yield();
    if (!input) return kTimeOut;
  }
}

}  // namespace orvik::mdlSupport
