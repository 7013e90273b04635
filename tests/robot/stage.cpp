#include "robot/stage.h"

namespace orvik::robot {

namespace {

// How long nothing may happen until the program counts as being at rest, and the time between two
// looks, in milliseconds. A job shows as processor time, which is counted in steps of ten.
constexpr ULONGLONG kQuiet = 60;
constexpr int kLook = 5;

}  // namespace

bool Stage::Look() {
  bool news = forms_.Look();
  news = modal_forms_.Look(forms_.all()) || news;
  news = menus_.Look(forms_.all()) || news;
  news = dialogs_.Look() || news;
  return clipboard_.Look() || news;
}

// The window procedure of a form answers as soon as its thread looks for messages.
bool Stage::Answers() {
  for (HWND form : forms_.all()) {
    DWORD_PTR result = 0;
    if (SendMessageTimeoutW(form, WM_NULL, 0, 0, SMTO_NORMAL, kLook, &result) == 0) return false;
  }
  return forms_.any();
}

bool Stage::Settle() {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(patience_);
  ULONGLONG busy = 0;
  ULONGLONG quiet_since = GetTickCount64();
  for (;;) {
    Messenger::Listen(kLook);
    const bool alive = program_.Alive();
    const bool news = Look();
    if (!alive) return false;
    const ULONGLONG now = GetTickCount64();
    const ULONGLONG used = program_.BusyTime();
    if (news || messenger_.pending() || used != busy || !Answers()) {
      if (now >= end) {
        throw Hung(forms_.any() ? "the program doesn't come to rest"
                                : "no form appears, and the program goes on");
      }
      busy = used;
      quiet_since = now;
    } else if (now - quiet_since >= kQuiet) {
      return true;
    }
  }
}

bool Stage::Watch(int milliseconds) {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
  while (GetTickCount64() < end) {
    Messenger::Listen(kLook);
    const bool alive = program_.Alive();
    Look();
    if (!alive) return false;
  }
  return true;
}

bool Stage::RunCommand(const Text& command) {
  Text line = u"cmd.exe /d /s /c \"" + command + u"\"";
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(nullptr, reinterpret_cast<wchar_t*>(line.data()), nullptr, nullptr, FALSE,
                     CREATE_NO_WINDOW, nullptr, nullptr, &startup, &started) == 0) {
    return false;
  }
  while (WaitForSingleObject(started.hProcess, 0) == WAIT_TIMEOUT) {
    Messenger::Listen(kLook);
    if (program_.Alive()) Look();
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return true;
}

}  // namespace orvik::robot
