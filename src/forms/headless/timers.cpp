#include "forms/headless/timers.h"

#include <algorithm>

#include "forms/form.h"

namespace orvik::forms::headless {

void Timers::Follow(Timer& timer, std::int64_t now) {
  std::erase_if(running_, [&](const Running& running) { return running.timer == &timer; });
  // An interval of 0 is a timer that is off.
  if (!timer.active() || timer.interval() <= 0) return;
  running_.push_back({&timer, now + timer.interval(), ++activations_});
}

void Timers::Forget(const Form& form) {
  std::erase_if(running_, [&](const Running& running) { return &running.timer->form() == &form; });
}

std::optional<std::int64_t> Timers::NextDue() const {
  const auto next = std::min_element(running_.begin(), running_.end(),
                                     [](const auto& a, const auto& b) { return a.due < b.due; });
  if (next == running_.end()) return std::nullopt;
  return next->due;
}

Timers::Running* Timers::Find(std::int64_t activation) {
  const auto found = std::find_if(running_.begin(), running_.end(), [&](const Running& running) {
    return running.activation == activation;
  });
  return found == running_.end() ? nullptr : &*found;
}

void Timers::FireDue(std::int64_t now, const std::function<void(Timer&)>& fire) {
  std::vector<Running> due;
  for (const Running& running : running_) {
    if (running.due <= now) due.push_back(running);
  }
  std::stable_sort(due.begin(), due.end(),
                   [](const auto& a, const auto& b) { return a.due < b.due; });
  for (const Running& candidate : due) {
    // A handler before it may have switched it off, restarted it, or fired it in a yield.
    Running* running = Find(candidate.activation);
    if (running == nullptr || running->due != candidate.due) continue;
    const std::int64_t interval = running->timer->interval();
    running->due += interval * ((now - running->due) / interval + 1);
    fire(*running->timer);
  }
}

}  // namespace orvik::forms::headless
