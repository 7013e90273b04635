// The message loop of the one user-interface thread.
#pragma once

#include <cstdint>

#include "forms/win32/desk.h"
#include "forms/win32/throttle.h"

namespace orvik::forms::win32 {

class MessageLoop {
 public:
  explicit MessageLoop(Desk& desk) : desk_(desk) {}

  // One pass, for a job that asks several times for each file: it looks at the messages only when
  // a few milliseconds have gone since it last did, and at the screen more rarely still.
  void Yield();
  // Shows what has changed, unless that was done a moment ago.
  void ShowNow();
  // Shows what has changed and waits for a message, for so many milliseconds at most, -1 for no
  // limit. True when there is one; the next pass handles it.
  bool WaitForInput(std::int32_t milliseconds);
  // Handles messages until no form is open.
  void Run();

 private:
  void HandlePending();
  void Handle(const MSG& message);

  Desk& desk_;
  Throttle passes_{8, 2};
  Throttle pictures_{33, 4};
};

}  // namespace orvik::forms::win32
