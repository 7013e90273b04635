#include "forms/win32/glyphs.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

namespace orvik::forms::win32 {

namespace {

// A stroke within a square of 16 units.
struct Stroke {
  double x1, y1, x2, y2;
};

constexpr Stroke kMore[] = {{4, 6, 8, 10}, {8, 10, 12, 6}};
constexpr Stroke kExit[] = {{4, 4, 12, 12}, {12, 4, 4, 12}};
constexpr Stroke kFolder[] = {{2, 13, 2, 3},   {2, 3, 6, 3},      {6, 3, 8, 5},
                              {8, 5, 13, 5},   {13, 5, 13, 7},    {2, 13, 4.5, 7},
                              {4.5, 7, 15, 7}, {15, 7, 12.5, 13}, {12.5, 13, 2, 13}};
constexpr Stroke kFile[] = {{4, 2, 9, 2},  {9, 2, 12, 5}, {12, 5, 12, 14}, {12, 14, 4, 14},
                            {4, 14, 4, 2}, {9, 2, 9, 5},  {9, 5, 12, 5}};

std::span<const Stroke> StrokesOf(Picture::Image image) {
  switch (image) {
    case Picture::Image::kFolder:
      return kFolder;
    case Picture::Image::kFile:
      return kFile;
    case Picture::Image::kMore:
      return kMore;
    case Picture::Image::kExit:
      return kExit;
  }
  return {};
}

double Distance(const Stroke& stroke, double x, double y) {
  const double dx = stroke.x2 - stroke.x1;
  const double dy = stroke.y2 - stroke.y1;
  const double along =
      std::clamp(((x - stroke.x1) * dx + (y - stroke.y1) * dy) / (dx * dx + dy * dy), 0.0, 1.0);
  return std::hypot(x - stroke.x1 - along * dx, y - stroke.y1 - along * dy);
}

// How much of a pixel the strokes cover, 0 to 255: its distance from them tells, with an edge that
// is one pixel soft.
int Coverage(std::span<const Stroke> strokes, double x, double y, double unit) {
  double nearest = 16;
  for (const Stroke& stroke : strokes) nearest = std::min(nearest, Distance(stroke, x, y));
  const double half_width = std::max(0.5, 0.65 * unit);
  return static_cast<int>(255 * std::clamp(half_width + 0.5 - nearest * unit, 0.0, 1.0));
}

// Blue, green, red and transparency of each pixel, colours multiplied by it.
std::vector<std::uint32_t> Draw(std::span<const Stroke> strokes, int size, COLORREF color) {
  std::vector<std::uint32_t> pixels;
  const double unit = size / 16.0;
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      const auto alpha =
          static_cast<std::uint32_t>(Coverage(strokes, (x + 0.5) / unit, (y + 0.5) / unit, unit));
      pixels.push_back(alpha << 24 | GetRValue(color) * alpha / 255 << 16 |
                       GetGValue(color) * alpha / 255 << 8 | GetBValue(color) * alpha / 255);
    }
  }
  return pixels;
}

HICON DrawnIcon(Picture::Image image, int size, COLORREF color) {
  const std::vector<std::uint32_t> pixels = Draw(StrokesOf(image), size, color);
  BITMAPINFO description{};
  description.bmiHeader = {.biSize = sizeof description.bmiHeader,
                           .biWidth = size,
                           .biHeight = -size,
                           .biPlanes = 1,
                           .biBitCount = 32,
                           .biCompression = BI_RGB,
                           .biSizeImage = 0,
                           .biXPelsPerMeter = 0,
                           .biYPelsPerMeter = 0,
                           .biClrUsed = 0,
                           .biClrImportant = 0};
  void* bits = nullptr;
  ICONINFO icon{};
  icon.fIcon = TRUE;
  icon.hbmColor = CreateDIBSection(nullptr, &description, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (icon.hbmColor == nullptr) return nullptr;
  std::memcpy(bits, pixels.data(), pixels.size() * sizeof pixels[0]);
  // Transparency tells everything; a mask must be there all the same.
  const std::vector<char> mask(static_cast<std::size_t>((size + 15) / 16 * 2 * size));
  icon.hbmMask = CreateBitmap(size, size, 1, 1, mask.data());
  const HICON made = CreateIconIndirect(&icon);
  DeleteObject(icon.hbmMask);
  DeleteObject(icon.hbmColor);
  return made;
}

// Pictures in the shell's library, under the numbers that they have had in every version of it.
constexpr WORD kShellDocument = 1;
constexpr WORD kShellOpenFolder = 5;

HICON ShellIcon(WORD number, int size) {
  const HMODULE shell = GetModuleHandleW(L"shell32.dll");
  return static_cast<HICON>(
      LoadImageW(shell, MAKEINTRESOURCEW(number), IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
}

}  // namespace

HICON MakeGlyph(Picture::Image image, int size, COLORREF color) {
  HICON icon = nullptr;
  if (image == Picture::Image::kFolder) icon = ShellIcon(kShellOpenFolder, size);
  if (image == Picture::Image::kFile) icon = ShellIcon(kShellDocument, size);
  return icon != nullptr ? icon : DrawnIcon(image, size, color);
}

}  // namespace orvik::forms::win32
