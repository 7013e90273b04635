#include "forms/win32/metrics.h"

#include "forms/win32/handles.h"

namespace orvik::forms::win32 {

namespace {

// A routine that older systems lack; nullptr there.
template <typename Routine>
Routine* Find(const wchar_t* library, const char* name) {
  const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (module == nullptr) return nullptr;
  return reinterpret_cast<Routine*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

int SystemDpi() {
  static const int dpi = [] {
    const ScreenContext screen;
    return GetDeviceCaps(screen.get(), LOGPIXELSY);
  }();
  return dpi;
}

LOGFONTW MessageFont(int dpi) {
  static auto* const for_dpi =
      Find<BOOL WINAPI(UINT, UINT, PVOID, UINT, UINT)>(L"user32.dll", "SystemParametersInfoForDpi");
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  if (for_dpi != nullptr &&
      for_dpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(dpi)) != 0) {
    return metrics.lfMessageFont;
  }
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, SystemDpi());
  return metrics.lfMessageFont;
}

}  // namespace

Metrics::Metrics(int dpi) : dpi_(dpi) {
  const LOGFONTW description = MessageFont(dpi);
  font_ = CreateFontIndirectW(&description);
  const ScreenContext screen;
  const Selected selected(screen.get(), font_);
  TEXTMETRICW metrics{};
  GetTextMetricsW(screen.get(), &metrics);
  line_height_ = metrics.tmHeight;
}

Metrics::~Metrics() { DeleteObject(font_); }

HFONT Metrics::MakeFont(bool bold, bool serif, int lower) const {
  LOGFONTW description = MessageFont(dpi_);
  // Negative, as it is the height of the letters.
  description.lfHeight += lower;
  if (bold) description.lfWeight = FW_BOLD;
  if (serif) {
    description.lfPitchAndFamily = FF_ROMAN | VARIABLE_PITCH;
    wcscpy(description.lfFaceName, L"Times New Roman");
  }
  return CreateFontIndirectW(&description);
}

SIZE Metrics::TextSize(const Text& text, HFONT font) {
  const ScreenContext screen;
  const Selected selected(screen.get(), font);
  SIZE size{};
  GetTextExtentPoint32W(screen.get(), Wide(text), static_cast<int>(text.size()), &size);
  return size;
}

int DpiOf(HWND window) {
  static auto* const of_window = Find<UINT WINAPI(HWND)>(L"user32.dll", "GetDpiForWindow");
  const UINT dpi = of_window != nullptr ? of_window(window) : 0;
  return dpi != 0 ? static_cast<int>(dpi) : SystemDpi();
}

int DpiOf(HMONITOR monitor) {
  static auto* const of_monitor =
      Find<HRESULT WINAPI(HMONITOR, int, UINT*, UINT*)>(L"shcore.dll", "GetDpiForMonitor");
  UINT across = 0;
  UINT down = 0;
  if (of_monitor != nullptr && SUCCEEDED(of_monitor(monitor, 0, &across, &down)) && down != 0) {
    return static_cast<int>(down);
  }
  return SystemDpi();
}

SIZE OuterSize(SIZE client, DWORD style, DWORD extended_style, int dpi) {
  static auto* const for_dpi =
      Find<BOOL WINAPI(RECT*, DWORD, BOOL, DWORD, UINT)>(L"user32.dll", "AdjustWindowRectExForDpi");
  RECT outer{0, 0, client.cx, client.cy};
  if (for_dpi == nullptr ||
      for_dpi(&outer, style, FALSE, extended_style, static_cast<UINT>(dpi)) == 0) {
    AdjustWindowRectEx(&outer, style, FALSE, extended_style);
  }
  return {outer.right - outer.left, outer.bottom - outer.top};
}

int SmallIconSize(int dpi) { return MulDiv(16, dpi, 96); }

}  // namespace orvik::forms::win32
