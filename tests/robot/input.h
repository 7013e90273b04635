// The keyboard and the mouse as the system sees them.
#pragma once

#include <optional>

#include "forms/events.h"
#include "robot/windows_api.h"

namespace orvik::robot {

// Brings the form of a window to the front and gives the window the keyboard.
void GiveFocus(HWND window);
// Puts the form of a window in front of all others.
void BringToFront(HWND window);

// Presses and releases a key, with the keys of a Shift state around it.
void StrikeKey(forms::Key key);
// Types characters, whatever keys they lie on.
void TypeCharacters(TextView text);

// Mouse buttons at a point of the screen. With one click after the other at nearly the same place
// the system sees a double click; so a click waits until the time for that is over.
enum class Press { kDown, kUp, kClick, kDoubleClick };
void PressMouse(POINT at, Press press, forms::Mouse mouse = {});

}  // namespace orvik::robot
