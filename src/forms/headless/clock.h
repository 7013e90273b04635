// The time of a run.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace orvik::forms::headless {

// Milliseconds since the start. Virtual time stands still but for AdvanceTo, which jumps; real time
// goes by itself, and AdvanceTo sleeps.
class Clock {
 public:
  enum class Pace { kVirtual, kReal };
  // At `limit` the run ends.
  explicit Clock(Pace pace, std::optional<std::int64_t> limit = std::nullopt)
      : pace_(pace), limit_(limit), start_(std::chrono::steady_clock::now()) {}

  std::int64_t Now() const;
  // Returns when it is `time`, at once when it is later; throws RunEnded at the limit.
  void AdvanceTo(std::int64_t time);
  // Throws RunEnded when the limit has come.
  void Check() const;
  // Without a time to wait for: until the limit, where there is one.
  void AdvanceToLimit();

 private:
  const Pace pace_;
  const std::optional<std::int64_t> limit_;
  const std::chrono::steady_clock::time_point start_;
  std::int64_t virtual_ = 0;
};

}  // namespace orvik::forms::headless
