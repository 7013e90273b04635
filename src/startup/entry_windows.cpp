// The entry of Orvik.exe.
#include "forms/win32/windows_api.h"
#include "forms/win32/windows_front_end.h"
#include "host/host.h"
#include "host/win32/win32_host.h"
#include "startup/command_line.h"
#include "startup/main.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
  // The system's own cut of the line loses letters of a path that isn't quoted.
  const wchar_t* whole = GetCommandLineW();
  const orvik::Text line = orvik::forms::win32::FromWide(whole, wcslen(whole));

  orvik::host::win32::Win32Host host;
  orvik::host::Install(host.services());
  orvik::forms::win32::WindowsFrontEnd front_end;
  orvik::forms::Install(front_end);

  orvik::mdlMain::Main(orvik::Text(orvik::BehindProgramName(line)));
  front_end.Run();
  return 0;
}
