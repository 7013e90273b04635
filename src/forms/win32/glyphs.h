// The pictures of picture buttons.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/windows_api.h"

namespace orvik::forms::win32 {

// An icon of this size in pixels, which the caller destroys: the system's own picture where it has
// one, else a drawn one in this colour.
HICON MakeGlyph(Picture::Image image, int size, COLORREF color);

}  // namespace orvik::forms::win32
