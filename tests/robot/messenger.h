// Messages to another process without waiting for their answers.
#pragma once

#include "robot/windows_api.h"

namespace orvik::robot {

// A press can start a job of minutes, with dialogs in it that the robot itself has to answer. So
// messages that press something are sent, and their answers come in while the robot looks around.
class Messenger {
 public:
  Messenger() = default;
  Messenger(const Messenger&) = delete;
  Messenger& operator=(const Messenger&) = delete;

  // Sends a message that carries no pointer.
  void Send(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0);
  // True while a message sent hasn't been handled to its end.
  bool pending() const { return pending_ > 0; }
  // Gives up on the answers that aren't there: whoever was to give them has ended.
  void Forget() { pending_ = 0; }
  // Lets answers in for so long.
  static void Listen(int milliseconds);

 private:
  static void CALLBACK Answered(HWND window, UINT message, ULONG_PTR self, LRESULT result);

  int pending_ = 0;
};

}  // namespace orvik::robot
