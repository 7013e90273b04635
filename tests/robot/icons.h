// Which of the system's icons a window shows.
#pragma once

#include "forms/front_end.h"
#include "robot/windows_api.h"

namespace orvik::robot {

// The icon of a message box, given the static control that shows it. Handles of icons mean nothing
// in another process, so the picture on the screen is compared. Nothing as long as the picture is
// none of the system's: it may not be drawn yet.
std::optional<forms::Icon> IconOnScreen(HWND control);

}  // namespace orvik::robot
