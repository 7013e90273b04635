// Forms that draw themselves.
#include "windows_test.h"
// Needs the above.
#include <psapi.h>

namespace orvik::forms::win32 {
namespace {

constexpr std::uint32_t kOrange = 33023;
constexpr std::uint32_t kCream = 0xC0E0FF;

class Strip : public Form {
 public:
  Strip() : Form("frmStrip", u"Полоска", 4440, 690) {
    MakeSkinned();
    title.SetStyle({.color = 0x0040C0, .bold = true, .serif = true});
    value.SetStyle({.color = 0x0080FF});
    line.SetColor(0x0040C0);
  }
  Label title{*this, "frRights", {120, 15, 3960, 225}, u"Заголовок"};
  Label value{*this, "frSizeMB", {3300, 270, 1020, 225}, u"..."};
  Line line{*this, "lnOne", {120, 250, 4200, 0}};
  Picture exit{*this, "pbExit", {4155, 30, 195, 195}, Picture::Image::kExit};
  Timer timer{*this, "clMain", 5, false};
};

class Skins : public WindowsTest {
 protected:
  void Show() {
    strip_.Load();
    strip_.SetTransparency(150);
    for (int x = 120; x <= 4365; x += 60) strip_.Draw({x, 525, x, 555, kOrange});
    const int dpi = win32::WindowOf(strip_).metrics().dpi();
    strip_.SetRegion({0, 0, 4440 * dpi / 1440, 690 * dpi / 1440, 5, 5});
    strip_.Show();
    Pump();
    UpdateWindow(WindowOf(strip_));
  }
  int Pixels(int twips) { return win32::WindowOf(strip_).metrics().Pixels(twips); }
  COLORREF At(int x, int y) {
    const HDC context = GetDC(WindowOf(strip_));
    const COLORREF color = GetPixel(context, Pixels(x), Pixels(y));
    ReleaseDC(WindowOf(strip_), context);
    return color;
  }
  void Repaint() {
    RedrawWindow(WindowOf(strip_), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  }
  Strip strip_;
};

TEST_F(Skins, AFormWithoutBorderHasTheSizeOfItsSurface) {
  Show();
  RECT outer, inner;
  GetWindowRect(WindowOf(strip_), &outer);
  GetClientRect(WindowOf(strip_), &inner);
  EXPECT_EQ(outer.right - outer.left, Pixels(4440));
  EXPECT_EQ(inner.right, Pixels(4440));
  EXPECT_EQ(inner.bottom, Pixels(690));
  const LONG style = GetWindowLongW(WindowOf(strip_), GWL_STYLE);
  EXPECT_EQ(style & WS_CAPTION, 0);
  EXPECT_NE(GetWindowLongW(WindowOf(strip_), GWL_EXSTYLE) & WS_EX_APPWINDOW, 0)
      << "it has a button in the task bar";
}

TEST_F(Skins, TransparencyAndRegionAreTheWindows) {
  Show();
  BYTE level = 0;
  DWORD flags = 0;
  ASSERT_TRUE(GetLayeredWindowAttributes(WindowOf(strip_), nullptr, &level, &flags));
  EXPECT_EQ(level, 150);
  EXPECT_EQ(flags, static_cast<DWORD>(LWA_ALPHA));
  const HRGN region = CreateRectRgn(0, 0, 0, 0);
  EXPECT_NE(GetWindowRgn(WindowOf(strip_), region), ERROR);
  EXPECT_FALSE(PtInRegion(region, 0, 0)) << "a corner is cut off";
  EXPECT_TRUE(PtInRegion(region, 3, 3));
  DeleteObject(region);
}

TEST_F(Skins, DrawnLinesStay) {
  Show();
  EXPECT_EQ(At(120, 540), kOrange);
  EXPECT_EQ(At(4320, 540), kOrange);
  EXPECT_EQ(At(120, 555), 0U) << "the end isn't part of a line";
  EXPECT_EQ(At(150, 540), 0U) << "black";
  strip_.Draw({180, 495, 180, 645, kCream});
  Pump();
  UpdateWindow(WindowOf(strip_));
  EXPECT_EQ(At(180, 600), kCream);
  EXPECT_EQ(At(180, 540), kCream) << "the later line lies on top";
  // The pointer is wiped out, and the mark under it comes back.
  strip_.Draw({180, 495, 180, 645, 0});
  strip_.Draw({180, 525, 180, 555, kOrange});
  Pump();
  Repaint();
  EXPECT_EQ(At(180, 600), 0U);
  EXPECT_EQ(At(180, 540), kOrange);
}

TEST_F(Skins, LinesOfTheSamePlaceReplaceOneAnother) {
  Surface surface;
  for (int i = 0; i < 1000; ++i) {
    const int x = i % 70 * 60;
    surface.Add({x, 495, x, 645, static_cast<std::uint32_t>(i)});
  }
  EXPECT_EQ(surface.lines().size(), 70U);
  EXPECT_EQ(surface.lines().back().color, 999U);
}

TEST_F(Skins, LabelsHaveTheirColorsOnBlack) {
  Show();
  const HDC context = CreateCompatibleDC(nullptr);
  const LRESULT brush =
      SendMessageW(WindowOf(strip_), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(context),
                   reinterpret_cast<LPARAM>(WindowOf(strip_.title)));
  EXPECT_EQ(reinterpret_cast<HGDIOBJ>(brush), GetStockObject(BLACK_BRUSH));
  EXPECT_EQ(GetTextColor(context), 0x0040C0U);
  EXPECT_EQ(GetBkMode(context), TRANSPARENT);
  DeleteDC(context);
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HGDIOBJ>(Send(strip_.title, WM_GETFONT)), sizeof font, &font);
  EXPECT_STREQ(font.lfFaceName, L"Times New Roman");
  EXPECT_GE(font.lfWeight, FW_BOLD);
  EXPECT_EQ(At(200, 255), 0x0040C0U) << "the line";
}

TEST_F(Skins, ALongCaptionGetsASmallerFont) {
  Show();
  const auto height = [&] {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HGDIOBJ>(Send(strip_.value, WM_GETFONT)), sizeof font, &font);
    return std::abs(font.lfHeight);
  };
  const LONG usual = height();
  strip_.value.SetCaption(u" 1234567890 Mb");
  Pump();
  EXPECT_LT(height(), usual);
  EXPECT_GE(height(), usual * 3 / 4);
  strip_.value.SetCaption(u" 5 Mb");
  Pump();
  EXPECT_EQ(height(), usual);
}

// The separator above and the scale below would go under the ground of a label that grows with its
// font. Here the label is lower than the system's font is.
TEST_F(Skins, LabelsKeepTheirPlaceAndTakeALowerFont) {
  strip_.value.Move({3300, 270, 1020, 180});
  Show();
  for (const int dpi : {96, 120, 144, 168, 192, 240}) {
    RECT where{0, 0, 0, 0};
    SendMessageW(WindowOf(strip_), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                 reinterpret_cast<LPARAM>(&where));
    Pump();
    const RECT value = Area(strip_.value);
    const LONG height = value.bottom - value.top;
    ASSERT_GT(win32::WindowOf(strip_).metrics().line_height(), height) << dpi;
    const auto font = reinterpret_cast<HFONT>(Send(strip_.value, WM_GETFONT));
    EXPECT_LE(Metrics::TextSize(u"...", font).cy, height) << dpi;
    EXPECT_EQ(value.bottom, Pixels(450)) << dpi;
    EXPECT_LE(Area(strip_.title).bottom, Area(strip_.line).top) << dpi;
    EXPECT_LE(Area(strip_.line).bottom, value.top) << dpi;
  }
}

TEST_F(Skins, PressesAndClicksAreTold) {
  Show();
  std::string told;
  strip_.on_mouse_down = [&](Mouse) { told += "form down;"; };
  strip_.title.on_mouse_down = [&](Mouse) { told += "title down;"; };
  strip_.value.on_click = [&] { told += "value click;"; };
  strip_.exit.on_click = [&] { told += "exit;"; };
  SendMessageW(WindowOf(strip_), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 1));
  SendMessageW(WindowOf(strip_), WM_LBUTTONUP, 0, MAKELPARAM(1, 1));
  Send(strip_.title, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
  told += "|";
  Send(strip_.title, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
  Send(strip_.value, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
  Send(strip_.value, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
  Pump();
  Send(strip_.exit, BM_CLICK);
  EXPECT_EQ(told, "form down;title down;|value click;exit;");
}

TEST_F(Skins, ADragWithoutAButtonDownEndsAtOnce) {
  Show();
  RECT before, after;
  GetWindowRect(WindowOf(strip_), &before);
  strip_.value.on_click = [&] { front_.Drag(strip_); };
  Send(strip_.value, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
  Send(strip_.value, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
  Pump();
  GetWindowRect(WindowOf(strip_), &after);
  EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(Skins, ARealPressDragsTheForm) {
  Show();
  strip_.title.on_mouse_down = [&](Mouse) { front_.Drag(strip_); };
  RECT before, after;
  GetWindowRect(WindowOf(strip_), &before);
  SetCursorPos(before.left + 30, before.top + 8);
  mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
  // The rest of the doing happens while the system drags.
  const UINT_PTR timer = SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR, DWORD) {
    static int step = 0;
    mouse_event(step < 4 ? MOUSEEVENTF_MOVE : MOUSEEVENTF_LEFTUP, 15, 10, 0, 0);
    ++step;
  });
  PumpFor(500);
  KillTimer(nullptr, timer);
  GetWindowRect(WindowOf(strip_), &after);
  EXPECT_GT(after.left, before.left + 20);
  EXPECT_GT(after.top, before.top + 10);
}

TEST_F(Skins, EscapeReachesTheFormAndEnterPressesNothing) {
  Show();
  int escapes = 0;
  int exits = 0;
  strip_.on_key_press = [&](int character) { escapes += character == kKeyEscape ? 1 : 0; };
  strip_.exit.on_click = [&] { ++exits; };
  EXPECT_EQ(GetFocus(), WindowOf(strip_));
  Press(VK_RETURN);
  Press(VK_ESCAPE);
  EXPECT_EQ(escapes, 1);
  EXPECT_EQ(exits, 0);
  Press(VK_TAB);
  EXPECT_EQ(GetFocus(), WindowOf(strip_.exit)) << "the keyboard gets at the exit too";
  Press(VK_ESCAPE);
  EXPECT_EQ(escapes, 2);
}

TEST_F(Skins, ScaleIsThatOfTheScreen) {
  Show();
  const double twips = 1440.0 / win32::WindowOf(strip_).metrics().dpi();
  EXPECT_DOUBLE_EQ(front_.Scale().horizontal, twips);
  EXPECT_DOUBLE_EQ(front_.Scale().vertical, twips);
}

TEST_F(Skins, AnotherResolutionScalesLinesAndRegion) {
  Show();
  const int dpi = win32::WindowOf(strip_).metrics().dpi() * 3 / 2;
  const RECT where{100, 100, 700, 300};
  SendMessageW(WindowOf(strip_), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
               reinterpret_cast<LPARAM>(&where));
  Repaint();
  EXPECT_EQ(At(120, 540), kOrange);
  RECT cut;
  const HRGN region = CreateRectRgn(0, 0, 0, 0);
  GetWindowRgn(WindowOf(strip_), region);
  GetRgnBox(region, &cut);
  DeleteObject(region);
  EXPECT_GE(cut.right, Pixels(4440) - 2);
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HGDIOBJ>(Send(strip_.title, WM_GETFONT)), sizeof font, &font);
  EXPECT_STREQ(font.lfFaceName, L"Times New Roman");
}

struct Resources {
  DWORD drawing = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  SIZE_T memory = [] {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof counters;
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
  }();
};

TEST_F(Skins, RunForDays) {
  Show();
  int tick = 0;
  int last = 120;
  strip_.timer.on_timer = [&] {
    ++tick;
    strip_.SetTopmost(true);
    strip_.value.SetCaption(u" " + FromUtf8(std::to_string(tick)) + u" Mb");
    strip_.Draw({last, 495, last, 645, 0});
    strip_.Draw({last, 525, last, 555, kOrange});
    last = 120 + tick % 71 * 60;
    strip_.Draw({last, 495, last, 645, kCream});
  };
  strip_.timer.SetActive(true);
  Pump();
  const UINT_PTR id = 5;  // the timer's place among the controls
  const auto run = [&](int ticks) {
    for (int i = 0; i < ticks; ++i) {
      SendMessageW(WindowOf(strip_), WM_TIMER, id, 0);
      UpdateWindow(WindowOf(strip_));
    }
  };
  run(500);
  const Resources before;
  run(10000);
  const Resources after;
  EXPECT_GE(tick, 10500);
  EXPECT_LE(after.drawing, before.drawing);
  EXPECT_LE(after.user, before.user);
  EXPECT_LE(after.memory, before.memory + 256 * 1024);
  RecordProperty("memory growth", static_cast<int>(after.memory - before.memory));
}

TEST_F(Skins, NothingIsDrawnWhenNothingChanges) {
  Show();
  strip_.SetTopmost(true);
  strip_.value.SetCaption(u" 5 Mb");
  Pump();
  UpdateWindow(WindowOf(strip_));
  strip_.SetTopmost(true);
  strip_.value.SetCaption(u" 5 Mb");
  Pump();
  EXPECT_FALSE(GetUpdateRect(WindowOf(strip_), nullptr, FALSE));
  EXPECT_FALSE(GetUpdateRect(WindowOf(strip_.value), nullptr, FALSE));
}

}  // namespace
}  // namespace orvik::forms::win32
