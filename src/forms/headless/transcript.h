// What the user would have seen, one JSON object a line.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/headless/json.h"

namespace orvik::forms::headless {

// Lines go out at once, so that what has happened is there when a run is killed; only the frequent
// ones are held back, until the next other line, a wait, or a fair amount of them.
class Transcript {
 public:
  using Output = std::function<void(std::string_view)>;
  explicit Transcript(Output output) : output_(std::move(output)) {}
  ~Transcript() { Flush(); }
  Transcript(const Transcript&) = delete;
  Transcript& operator=(const Transcript&) = delete;

  // Begins a line; the caller adds the other members and ends it.
  JsonWriter& Begin(std::string_view event);
  void End();
  // Ends a line of the frequent kind.
  void EndHeldBack();
  void Flush();

 private:
  Output output_;
  std::string buffer_;
  JsonWriter json_{buffer_};
};

}  // namespace orvik::forms::headless
