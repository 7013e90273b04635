#include "forms/win32/message_loop.h"

#include "forms/win32/keyboard.h"

namespace orvik::forms::win32 {

void MessageLoop::Handle(const MSG& message) {
  if (HandleKey(desk_, message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

void MessageLoop::HandlePending() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) {
      // Kept for the outermost loop.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    Handle(message);
  }
}

void MessageLoop::ShowNow() {
  if (pictures_.Due()) desk_.refresher().Flush();
}

void MessageLoop::Yield() {
  if (!passes_.Due()) return;
  // What the user can press must be true before a press is handled.
  if (desk_.refresher().urgent()) desk_.refresher().Flush();
  ShowNow();
  HandlePending();
}

bool MessageLoop::WaitForInput(std::int32_t milliseconds) {
  desk_.refresher().Flush();
  passes_.Reset();
  const DWORD limit = milliseconds < 0 ? INFINITE : static_cast<DWORD>(milliseconds);
  return MsgWaitForMultipleObjectsEx(0, nullptr, limit, QS_ALLINPUT, MWMO_INPUTAVAILABLE) ==
         WAIT_OBJECT_0;
}

void MessageLoop::Run() {
  MSG message;
  while (!desk_.windows().empty()) {
    desk_.refresher().Flush();
    if (GetMessageW(&message, nullptr, 0, 0) <= 0) return;
    Handle(message);
    desk_.FreeRetired();
  }
}

}  // namespace orvik::forms::win32
