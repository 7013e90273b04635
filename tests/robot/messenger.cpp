#include "robot/messenger.h"

namespace orvik::robot {

void Messenger::Send(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (SendMessageCallbackW(window, message, wparam, lparam, &Answered,
                           reinterpret_cast<ULONG_PTR>(this)) != 0) {
    ++pending_;
  }
}

void CALLBACK Messenger::Answered(HWND /*window*/, UINT /*message*/, ULONG_PTR self,
                                  LRESULT /*result*/) {
  auto& messenger = *reinterpret_cast<Messenger*>(self);
  if (messenger.pending_ > 0) --messenger.pending_;
}

void Messenger::Listen(int milliseconds) {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
  for (;;) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageW(&message);
    const ULONGLONG now = GetTickCount64();
    if (now >= end) return;
    MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(end - now), QS_ALLINPUT,
                                MWMO_INPUTAVAILABLE);
  }
}

}  // namespace orvik::robot
