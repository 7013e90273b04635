// What can be asked of any window of another process.
#pragma once

#include <functional>
#include <string>

#include "robot/windows_api.h"

namespace orvik::robot {

// The window class, such as u"SysListView32".
Text ClassOf(HWND window);
// The text of the window or control, asked of itself.
Text TextOf(HWND window);
// The name that the program's form or control has in its code, from the property that its window
// carries; "" where there is none.
std::string NameOf(HWND window, const wchar_t* property = L"Orvik.Name");
DWORD StyleOf(HWND window);
DWORD ExtendedStyleOf(HWND window);
// The window's own state, whatever holds it.
bool IsShown(HWND window);
// Where it is on the screen.
RECT AreaOf(HWND window);

// Visits windows from front to back until the visitor answers false: the top-level ones of one
// process, or all below a parent.
void ForEachTopLevel(DWORD process, const std::function<bool(HWND)>& visit);
void ForEachBelow(HWND parent, const std::function<bool(HWND)>& visit);

}  // namespace orvik::robot
