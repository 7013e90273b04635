#include "robot/icons.h"

#include <vector>

#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

// A picture to draw into, whose pixels can be read.
class Canvas {
 public:
  explicit Canvas(SIZE size) : size_(size), context_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = size.cx;
    format.bmiHeader.biHeight = -size.cy;  // the first row is the upper one
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    bitmap_ = CreateDIBSection(context_, &format, DIB_RGB_COLORS, &pixels_, nullptr, 0);
    before_ = SelectObject(context_, bitmap_);
  }
  ~Canvas() {
    SelectObject(context_, before_);
    DeleteObject(bitmap_);
    DeleteDC(context_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  HDC context() const { return context_; }
  // Colours alone, row by row.
  std::vector<DWORD> Pixels() const {
    GdiFlush();
    const auto* const first = static_cast<const DWORD*>(pixels_);
    std::vector<DWORD> pixels(first, first + size_.cx * size_.cy);
    for (DWORD& pixel : pixels) pixel &= 0xFFFFFFU;
    return pixels;
  }

 private:
  SIZE size_;
  HDC context_;
  void* pixels_ = nullptr;
  HBITMAP bitmap_;
  HGDIOBJ before_ = nullptr;
};

std::vector<DWORD> FromScreen(const RECT& area, SIZE size) {
  const Canvas canvas(size);
  const HDC screen = GetDC(nullptr);
  BitBlt(canvas.context(), 0, 0, size.cx, size.cy, screen, area.left, area.top, SRCCOPY);
  ReleaseDC(nullptr, screen);
  return canvas.Pixels();
}

// A system icon on a ground of one colour, given as a pixel.
std::vector<DWORD> Drawn(const wchar_t* icon, SIZE size, DWORD ground) {
  const Canvas canvas(size);
  const RECT all{0, 0, size.cx, size.cy};
  const HBRUSH brush =
      CreateSolidBrush(RGB(ground >> 16U & 0xFFU, ground >> 8U & 0xFFU, ground & 0xFFU));
  FillRect(canvas.context(), &all, brush);
  DeleteObject(brush);
  DrawIconEx(canvas.context(), 0, 0, LoadIconW(nullptr, icon), size.cx, size.cy, 0, nullptr,
             DI_NORMAL);
  return canvas.Pixels();
}

}  // namespace

std::optional<forms::Icon> IconOnScreen(HWND control) {
  const RECT area = AreaOf(control);
  const SIZE size{area.right - area.left, area.bottom - area.top};
  if (size.cx <= 0 || size.cy <= 0) return std::nullopt;
  const std::vector<DWORD> seen = FromScreen(area, size);
  // The corner lies outside of all of them.
  if (seen == Drawn(IDI_INFORMATION, size, seen[0])) return forms::Icon::kInformation;
  if (seen == Drawn(IDI_QUESTION, size, seen[0])) return forms::Icon::kQuestion;
  if (seen == Drawn(IDI_ERROR, size, seen[0])) return forms::Icon::kCritical;
  return std::nullopt;
}

}  // namespace orvik::robot
