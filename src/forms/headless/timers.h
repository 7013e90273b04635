// The timers that are switched on.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "forms/simple_controls.h"

namespace orvik::forms::headless {

class Timers {
 public:
  // Begins a timer's interval anew, or takes the timer out: whatever its state says now.
  void Follow(Timer& timer, std::int64_t now);
  // The form goes: its timers never fire again.
  void Forget(const Form& form);

  // When the next one is due; nothing when none is on.
  std::optional<std::int64_t> NextDue() const;
  // Fires what is due, each timer once, in order of due time and then of activation. A timer comes
  // again an interval after its due time, however late it fired; intervals that were missed
  // altogether don't fire later.
  void FireDue(std::int64_t now, const std::function<void(Timer&)>& fire);

 private:
  struct Running {
    Timer* timer;
    std::int64_t due;
    std::int64_t activation;  // a running number
  };
  Running* Find(std::int64_t activation);

  std::vector<Running> running_;  // in order of activation
  std::int64_t activations_ = 0;
};

}  // namespace orvik::forms::headless
