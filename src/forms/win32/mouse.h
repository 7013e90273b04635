// Mouse messages as the models take them.
#pragma once

#include <optional>

#include "forms/events.h"
#include "forms/win32/windows_api.h"

namespace orvik::forms::win32 {

struct MouseClick {
  bool down;
  Mouse mouse;
};

// The button and the Shift state of a message of a mouse button; nothing for other messages.
std::optional<MouseClick> MouseClickOf(UINT message, WPARAM wparam);

}  // namespace orvik::forms::win32
