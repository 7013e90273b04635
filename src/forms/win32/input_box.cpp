// The program's own dialog for one text.
#include <cstdint>
#include <vector>

#include "forms/win32/dialogs.h"
#include "forms/win32/metrics.h"

namespace orvik::forms::win32 {

namespace {

constexpr WORD kPrompt = 100;
constexpr WORD kField = 101;
// Classes of controls in a dialog template.
constexpr WORD kButtonClass = 0x80;
constexpr WORD kEditClass = 0x81;
constexpr WORD kStaticClass = 0x82;

// A rectangle in dialog units, which grow with the font and the resolution.
struct Place {
  short left, top, width, height;
};

// A dialog template in memory: words, each control beginning at an even one.
class Template {
 public:
  Template(const Text& title, Place place, int controls) {
    const LOGFONTW font = Font();
    Add32(DS_SETFONT | DS_MODALFRAME | DS_CENTER | DS_SETFOREGROUND | WS_POPUP | WS_CAPTION |
          WS_SYSMENU);
    Add32(0);
    Add(static_cast<WORD>(controls));
    AddPlace(place);
    Add(0);
    Add(0);
    AddText(title);
    Add(PointSize(font));
    AddText(FromWide(font.lfFaceName, wcslen(font.lfFaceName)));
  }

  void AddControl(WORD control_class, WORD id, DWORD style, DWORD extended_style, Place place,
                  const Text& text) {
    if (words_.size() % 2 != 0) Add(0);
    Add32(style | WS_CHILD | WS_VISIBLE);
    Add32(extended_style);
    AddPlace(place);
    Add(id);
    Add(0xFFFF);
    Add(control_class);
    AddText(text);
    Add(0);
  }

  const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

 private:
  static LOGFONTW Font() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return metrics.lfMessageFont;
  }
  // The system gives the font for its own resolution.
  static WORD PointSize(const LOGFONTW& font) {
    const int dpi = DpiOf(MonitorFromPoint({}, MONITOR_DEFAULTTOPRIMARY));
    return static_cast<WORD>(MulDiv(-font.lfHeight, 72, dpi));
  }

  void Add(WORD word) { words_.push_back(word); }
  void Add32(DWORD value) {
    Add(LOWORD(value));
    Add(HIWORD(value));
  }
  void AddPlace(Place place) {
    for (short value : {place.left, place.top, place.width, place.height}) {
      Add(static_cast<WORD>(value));
    }
  }
  void AddText(const Text& text) {
    for (char16_t c : text) Add(c);
    Add(0);
  }

  std::vector<WORD> words_;
};

INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(dialog, GWLP_USERDATA, lparam);
    return TRUE;
  }
  if (message != WM_COMMAND) return FALSE;
  const WORD id = LOWORD(wparam);
  if (id != IDOK && id != IDCANCEL) return FALSE;
  auto& answer = *reinterpret_cast<Text*>(GetWindowLongPtrW(dialog, GWLP_USERDATA));
  if (id == IDOK) answer = WindowText(GetDlgItem(dialog, kField));
  EndDialog(dialog, id);
  return TRUE;
}

}  // namespace

Text ShowInputBox(HWND owner, const Text& prompt, const Text& title) {
  Template dialog(title, {0, 0, 260, 84}, 4);
  dialog.AddControl(kStaticClass, kPrompt, SS_LEFT | SS_NOPREFIX, 0, {7, 7, 246, 32}, prompt);
  dialog.AddControl(kEditClass, kField, WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE,
                    {7, 42, 246, 14}, {});
  dialog.AddControl(kButtonClass, IDOK, WS_TABSTOP | BS_DEFPUSHBUTTON, 0, {147, 63, 50, 14}, u"ОК");
  dialog.AddControl(kButtonClass, IDCANCEL, WS_TABSTOP | BS_PUSHBUTTON, 0, {203, 63, 50, 14},
                    u"Отмена");
  Text answer;
  DialogBoxIndirectParamW(GetModuleHandleW(nullptr), dialog.get(), owner, &Procedure,
                          reinterpret_cast<LPARAM>(&answer));
  return answer;
}

}  // namespace orvik::forms::win32
