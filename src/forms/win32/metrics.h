// Lengths and fonts at one resolution.
#pragma once

#include "forms/win32/windows_api.h"

namespace orvik::forms::win32 {

// Everything that depends on the dots per inch of the monitor that a form is on.
class Metrics {
 public:
  explicit Metrics(int dpi);
  ~Metrics();
  Metrics(const Metrics&) = delete;
  Metrics& operator=(const Metrics&) = delete;

  int dpi() const { return dpi_; }
  // The system's message font.
  HFONT font() const { return font_; }
  // A font like it, bold or with serifs, lower by so many pixels; the caller deletes it.
  HFONT MakeFont(bool bold, bool serif, int lower) const;
  // The height of a line of text in pixels.
  int line_height() const { return line_height_; }

  int Pixels(int twips) const { return MulDiv(twips, dpi_, 1440); }
  int Twips(int pixels) const { return MulDiv(pixels, 1440, dpi_); }
  // Pixels at 96 dots to the inch, in those of this resolution.
  int Scaled(int pixels) const { return MulDiv(pixels, dpi_, 96); }
  // The width of a text in the font.
  int TextWidth(const Text& text) const { return TextSize(text, font_).cx; }
  // The width of a text in another font, and the height of its lines.
  static SIZE TextSize(const Text& text, HFONT font);

 private:
  const int dpi_;
  HFONT font_;
  int line_height_;
};

// The resolution at a window, and that of the monitor that holds a point of the screen.
int DpiOf(HWND window);
int DpiOf(HMONITOR monitor);

// The outer size of a window of these styles around a client area.
SIZE OuterSize(SIZE client, DWORD style, DWORD extended_style, int dpi);

// The size of a small icon.
int SmallIconSize(int dpi);

}  // namespace orvik::forms::win32
