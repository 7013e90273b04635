// Keys on their way from the message loop to the forms.
#pragma once

#include "forms/win32/desk.h"

namespace orvik::forms::win32 {

// Handles a key message before its window gets it: the handlers of the focused control and of its
// form see it first, then the keys that move the focus and press the default button do their work.
// True when the window must not get the message any more.
bool HandleKey(Desk& desk, const MSG& message);

}  // namespace orvik::forms::win32
