// Drawing handles that close themselves.
#pragma once

#include "forms/win32/windows_api.h"

namespace orvik::forms::win32 {

// A device context of the whole screen, for measuring.
class ScreenContext {
 public:
  ScreenContext() : context_(GetDC(nullptr)) {}
  ~ScreenContext() { ReleaseDC(nullptr, context_); }
  ScreenContext(const ScreenContext&) = delete;
  ScreenContext& operator=(const ScreenContext&) = delete;
  HDC get() const { return context_; }

 private:
  HDC context_;
};

// An object selected into a device context as long as this lives.
class Selected {
 public:
  Selected(HDC context, HGDIOBJ object)
      : context_(context), before_(SelectObject(context, object)) {}
  ~Selected() { SelectObject(context_, before_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC context_;
  HGDIOBJ before_;
};

}  // namespace orvik::forms::win32
