// The controls of a form as the system's own windows.
#pragma once

#include <string>

#include "forms/control.h"
#include "robot/windows_api.h"

namespace orvik::robot {

// A line of the script that no user could play, with the reason.
struct Refused {
  std::string reason;
};

// What a control is, by the class and the style of its window.
forms::Kind KindOf(HWND control);

// The window of a form's control with this name; nullptr when there is none.
HWND FindControl(HWND form, std::string_view name);

// True when a user could get at the control: it and all that hold it are shown and enabled, and no
// frame lies over it. What lies beyond the edge of its form is reached by the Tab key.
bool Reachable(HWND control);

// The field of a combo box, and the list that it has dropped down; nullptr while it hasn't. The
// system tells both to the combo box's own process only, so they are looked for.
HWND FieldOf(HWND combo_box);
HWND OpenListOf(HWND combo_box);

}  // namespace orvik::robot
