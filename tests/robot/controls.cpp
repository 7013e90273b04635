#include "robot/controls.h"

#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

using forms::Kind;

Kind KindOfStatic(DWORD style) {
  const DWORD type = style & SS_TYPEMASK;
  // A line in a colour of its own draws itself.
  const bool line = type == SS_ETCHEDHORZ || type == SS_ETCHEDVERT || type == SS_OWNERDRAW;
  return line ? Kind::kLine : Kind::kLabel;
}

Kind KindOfButton(DWORD style) {
  switch (style & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
      return Kind::kCheckBox;
    case BS_GROUPBOX:
      return Kind::kFrame;
    default:
      return (style & (BS_ICON | BS_BITMAP)) != 0 ? Kind::kPicture : Kind::kButton;
  }
}

bool Covers(const RECT& over, const RECT& under) {
  return over.left <= under.left && over.top <= under.top && over.right >= under.right &&
         over.bottom >= under.bottom;
}

// A frame beside the control, in front of it.
bool LiesUnderFrame(HWND control) {
  const RECT area = AreaOf(control);
  for (HWND other = GetWindow(control, GW_HWNDPREV); other != nullptr;
       other = GetWindow(other, GW_HWNDPREV)) {
    if (IsShown(other) && KindOf(other) == Kind::kFrame && Covers(AreaOf(other), area)) return true;
  }
  return false;
}

}  // namespace

Kind KindOf(HWND control) {
  const Text name = ClassOf(control);
  const auto is = [&](const wchar_t* other) {
    return EqualNoCase(name, FromWide(other, std::char_traits<wchar_t>::length(other)));
  };
  if (is(WC_STATICW)) return KindOfStatic(StyleOf(control));
  if (is(WC_BUTTONW)) return KindOfButton(StyleOf(control));
  if (is(WC_EDITW)) return Kind::kTextBox;
  if (is(WC_COMBOBOXW)) return Kind::kComboBox;
  if (is(WC_LISTBOXW)) return Kind::kListBox;
  if (is(WC_TREEVIEWW)) return Kind::kTreeView;
  if (is(PROGRESS_CLASSW)) return Kind::kProgressBar;
  if (is(STATUSCLASSNAMEW)) return Kind::kStatusBar;
  if (is(UPDOWN_CLASSW)) return Kind::kUpDown;
  if (is(L"Orvik.Frame")) return Kind::kFrame;
  if (is(WC_LISTVIEWW)) {
    // A list box with boxes is a list view of one column without a head.
    return (StyleOf(control) & LVS_NOCOLUMNHEADER) != 0 ? Kind::kListBox : Kind::kListView;
  }
  throw Refused{"a control of the unknown class " + ToUtf8(name)};
}

HWND FindControl(HWND form, std::string_view name) {
  HWND found = nullptr;
  ForEachBelow(form, [&](HWND window) {
    if (NameOf(window) == name) found = window;
    return found == nullptr;
  });
  return found;
}

bool Reachable(HWND control) {
  for (HWND window = control; window != nullptr; window = GetAncestor(window, GA_PARENT)) {
    if (window == GetDesktopWindow()) break;
    if (!IsShown(window) || IsWindowEnabled(window) == 0) return false;
    if (GetAncestor(window, GA_ROOT) != window && LiesUnderFrame(window)) return false;
  }
  return true;
}

HWND FieldOf(HWND combo_box) { return FindWindowExW(combo_box, nullptr, WC_EDITW, nullptr); }

HWND OpenListOf(HWND combo_box) {
  DWORD process = 0;
  GetWindowThreadProcessId(combo_box, &process);
  HWND open = nullptr;
  ForEachTopLevel(process, [&](HWND window) {
    if (IsShown(window) && ClassOf(window) == u"ComboLBox") open = window;
    return open == nullptr;
  });
  return open;
}

}  // namespace orvik::robot
