#include "robot/input.h"

#include <vector>

#include "robot/messenger.h"

namespace orvik::robot {

namespace {

// How long the system may take to bring a window to the front or to move the focus.
constexpr int kFocusTries = 100;
constexpr int kFocusPause = 5;

INPUT KeyInput(WORD code, bool down) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = code;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(code, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
  // The keys between the main and the number block.
  const bool extended =
      (code >= VK_PRIOR && code <= VK_DOWN) || code == VK_INSERT || code == VK_DELETE;
  if (extended) input.ki.dwFlags |= KEYEVENTF_EXTENDEDKEY;
  return input;
}

INPUT CharacterInput(char16_t character, bool down) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wScan = character;
  input.ki.dwFlags = KEYEVENTF_UNICODE | (down ? 0U : KEYEVENTF_KEYUP);
  return input;
}

INPUT MouseInput(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  return input;
}

DWORD ButtonFlag(int button, bool down) {
  switch (button) {
    case forms::kRightButton:
      return down ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_RIGHTUP;
    case forms::kMiddleButton:
      return down ? MOUSEEVENTF_MIDDLEDOWN : MOUSEEVENTF_MIDDLEUP;
    default:
      return down ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP;
  }
}

void AddShift(std::vector<INPUT>& inputs, int shift, bool down) {
  if ((shift & forms::kShift) != 0) inputs.push_back(KeyInput(VK_SHIFT, down));
  if ((shift & forms::kCtrl) != 0) inputs.push_back(KeyInput(VK_CONTROL, down));
  if ((shift & forms::kAlt) != 0) inputs.push_back(KeyInput(VK_MENU, down));
}

void Send(std::vector<INPUT>& inputs) {
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

HWND FocusOf(DWORD thread) {
  GUITHREADINFO facts{};
  facts.cbSize = sizeof facts;
  GetGUIThreadInfo(thread, &facts);
  return facts.hwndFocus;
}

}  // namespace

void BringToFront(HWND window) {
  const HWND root = GetAncestor(window, GA_ROOT);
  for (int tries = 0; tries < kFocusTries && GetForegroundWindow() != root; ++tries) {
    SetForegroundWindow(root);
    Messenger::Listen(kFocusPause);
  }
}

void GiveFocus(HWND window) {
  BringToFront(window);
  const DWORD thread = GetWindowThreadProcessId(window, nullptr);
  if (FocusOf(thread) == window) return;
  const DWORD own = GetCurrentThreadId();
  AttachThreadInput(own, thread, TRUE);
  SetFocus(window);
  AttachThreadInput(own, thread, FALSE);
  for (int tries = 0; tries < kFocusTries && FocusOf(thread) != window; ++tries) {
    Messenger::Listen(kFocusPause);
  }
}

void StrikeKey(forms::Key key) {
  std::vector<INPUT> inputs;
  AddShift(inputs, key.shift, true);
  inputs.push_back(KeyInput(static_cast<WORD>(key.code), true));
  inputs.push_back(KeyInput(static_cast<WORD>(key.code), false));
  AddShift(inputs, key.shift, false);
  Send(inputs);
}

void TypeCharacters(TextView text) {
  std::vector<INPUT> inputs;
  for (char16_t character : text) {
    inputs.push_back(CharacterInput(character, true));
    inputs.push_back(CharacterInput(character, false));
  }
  Send(inputs);
}

void PressMouse(POINT at, Press press, forms::Mouse mouse) {
  static ULONGLONG last_down = 0;
  const ULONGLONG free_at = last_down + GetDoubleClickTime() + 1;
  const ULONGLONG now = GetTickCount64();
  if (press != Press::kUp && now < free_at) Messenger::Listen(static_cast<int>(free_at - now));
  SetCursorPos(at.x, at.y);
  std::vector<INPUT> inputs;
  AddShift(inputs, mouse.shift, true);
  const int downs = press == Press::kUp ? 0 : press == Press::kDoubleClick ? 2 : 1;
  for (int i = 0; i < downs; ++i) {
    inputs.push_back(MouseInput(ButtonFlag(mouse.button, true)));
    if (press != Press::kDown) inputs.push_back(MouseInput(ButtonFlag(mouse.button, false)));
  }
  if (press == Press::kUp) inputs.push_back(MouseInput(ButtonFlag(mouse.button, false)));
  AddShift(inputs, mouse.shift, false);
  Send(inputs);
  if (press != Press::kUp) last_down = GetTickCount64();
}

}  // namespace orvik::robot
