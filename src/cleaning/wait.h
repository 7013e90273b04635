// The timed wait that keeps the message loop alive.
#pragma once

#include <cstdint>

namespace orvik::mdlSupport {

// Waits for an interval in milliseconds, -1 for no end, and yields whenever there is input. Answers
// 258 at the end of the interval.
std::uint32_t WaitWithMessages(std::int32_t interval);

}  // namespace orvik::mdlSupport
