#include "forms/win32/check_images.h"

#include <uxtheme.h>
#include <vsstyle.h>

#include "forms/win32/handles.h"
#include "forms/win32/metrics.h"

namespace orvik::forms::win32 {

namespace {

// The box within its image, in pixels at 96 dots to the inch.
constexpr int kBox = 13;

void DrawBox(HWND window, HDC context, RECT area, bool checked) {
  if (const HTHEME theme = OpenThemeData(window, L"BUTTON")) {
    DrawThemeBackground(theme, context, BP_CHECKBOX,
                        checked ? CBS_CHECKEDNORMAL : CBS_UNCHECKEDNORMAL, &area, nullptr);
    CloseThemeData(theme);
  } else {
    DrawFrameControl(context, &area, DFC_BUTTON,
                     DFCS_BUTTONCHECK | DFCS_FLAT | (checked ? DFCS_CHECKED : 0U));
  }
}

}  // namespace

HIMAGELIST MakeCheckImages(HWND window, int dpi) {
  // None, off and on, side by side.
  constexpr int kImages = 3;
  const int size = SmallIconSize(dpi);
  const int box = MulDiv(kBox, dpi, 96);
  const HIMAGELIST images = ImageList_Create(size, size, ILC_COLOR24, kImages, 0);
  const ScreenContext screen;
  const HDC context = CreateCompatibleDC(screen.get());
  const HBITMAP picture = CreateCompatibleBitmap(screen.get(), kImages * size, size);
  {
    const Selected selected(context, picture);
    const RECT all{0, 0, kImages * size, size};
    FillRect(context, &all, GetSysColorBrush(COLOR_WINDOW));
    for (int image = 1; image < kImages; ++image) {
      const int left = image * size + (size - box) / 2;
      const int top = (size - box) / 2;
      DrawBox(window, context, {left, top, left + box, top + box}, image == 2);
    }
  }
  ImageList_Add(images, picture, nullptr);
  DeleteObject(picture);
  DeleteDC(context);
  return images;
}

}  // namespace orvik::forms::win32
