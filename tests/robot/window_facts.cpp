#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

constexpr int kLongestName = 256;

struct TopLevelVisit {
  DWORD process;
  const std::function<bool(HWND)>& visit;
};

}  // namespace

Text ClassOf(HWND window) {
  wchar_t name[kLongestName];
  const int length = GetClassNameW(window, name, kLongestName);
  return FromWide(name, static_cast<std::size_t>(length));
}

Text TextOf(HWND window) {
  const auto length = static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
  Text text(length + 1, u'\0');
  const LRESULT copied =
      SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(copied));
  return text;
}

std::string NameOf(HWND window, const wchar_t* property) {
  const auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(GetPropW(window, property)));
  wchar_t name[kLongestName];
  if (atom == 0) return {};
  const UINT length = GlobalGetAtomNameW(atom, name, kLongestName);
  return ToUtf8(FromWide(name, length));
}

DWORD StyleOf(HWND window) { return static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)); }

DWORD ExtendedStyleOf(HWND window) {
  return static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
}

bool IsShown(HWND window) { return (StyleOf(window) & WS_VISIBLE) != 0; }

RECT AreaOf(HWND window) {
  RECT area{};
  GetWindowRect(window, &area);
  return area;
}

void ForEachTopLevel(DWORD process, const std::function<bool(HWND)>& visit) {
  const TopLevelVisit wanted{process, visit};
  EnumWindows(
      [](HWND window, LPARAM parameter) -> BOOL {
        const auto& wants = *reinterpret_cast<const TopLevelVisit*>(parameter);
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        return owner != wants.process || wants.visit(window) ? TRUE : FALSE;
      },
      reinterpret_cast<LPARAM>(&wanted));
}

void ForEachBelow(HWND parent, const std::function<bool(HWND)>& visit) {
  EnumChildWindows(
      parent,
      [](HWND window, LPARAM parameter) -> BOOL {
        const auto& each = *reinterpret_cast<const std::function<bool(HWND)>*>(parameter);
        return each(window) ? TRUE : FALSE;
      },
      reinterpret_cast<LPARAM>(&visit));
}

}  // namespace orvik::robot
