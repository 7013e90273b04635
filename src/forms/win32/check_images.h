// The state images of a tree's check boxes.
#pragma once

#include "forms/win32/windows_api.h"

namespace orvik::forms::win32 {

// Boxes as the system draws them at this resolution, at the places that check boxes have among
// state images: 1 is off, 2 is on. The caller destroys the list.
HIMAGELIST MakeCheckImages(HWND window, int dpi);

// The state bits of an entry whose box is off or on, and the way back.
constexpr UINT BoxState(bool checked) { return INDEXTOSTATEIMAGEMASK(checked ? 2U : 1U); }
constexpr bool IsBoxOn(UINT state) { return (state & 0xF000U) == BoxState(true); }

}  // namespace orvik::forms::win32
