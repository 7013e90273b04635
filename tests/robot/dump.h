// The state of a form, read back from its windows.
#pragma once

#include "forms/headless/json.h"
#include "robot/windows_api.h"

namespace orvik::robot {

// Writes the members of a dump: the form's own and those of every control that has a window.
// `process` is the one that owns the windows. Throws Failure when it ends meanwhile.
void WriteForm(forms::headless::JsonWriter& json, HANDLE process, HWND form);

// The form's name, from its window class; "" for other windows.
std::string FormNameOf(HWND window);

}  // namespace orvik::robot
