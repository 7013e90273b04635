// The pop-up menus of a form.
#include "forms/menu.h"
#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

bool IsItem(const Control& control) {
  return control.kind() == Kind::kMenu && static_cast<const Menu&>(control).parent() != nullptr;
}

// For programs that test the windows from outside, as an item has no window to carry its name: a
// property of the form's window holds the number of the item, and in the upper half its place in
// the menu, from 1.
Text PropertyOf(const Control& item) { return u"Orvik.Item." + FromUtf8(item.name()); }

int PlaceOf(const Menu& item) {
  int place = 0;
  for (const Control* control : item.form().controls()) {
    if (!IsItem(*control) || static_cast<const Menu*>(control)->parent() != item.parent()) continue;
    ++place;
    if (control == &item) break;
  }
  return place;
}

}  // namespace

FormWindow::MenuPlace::MenuPlace(FormWindow& form, POINT at) : form_(form) {
  form.menu_place_ = at;
}

FormWindow::MenuPlace::~MenuPlace() { form_.menu_place_.reset(); }

void FormWindow::TagItems() {
  for (const Control* control : form_.controls()) {
    if (!IsItem(*control)) continue;
    const auto id = reinterpret_cast<UINT_PTR>(IdOf(*control));
    const int place = PlaceOf(static_cast<const Menu&>(*control));
    SetPropW(window_, Wide(PropertyOf(*control)),
             reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(MAKELONG(id, place))));
  }
}

void FormWindow::UntagItems() {
  for (const Control* control : form_.controls()) {
    if (IsItem(*control)) RemovePropW(window_, Wide(PropertyOf(*control)));
  }
}

void FormWindow::PopUp(Menu& menu) {
  desk_.refresher().Flush();
  const HMENU popup = CreatePopupMenu();
  for (const Control* control : form_.controls()) {
    if (!IsItem(*control) || static_cast<const Menu*>(control)->parent() != &menu) continue;
    AppendMenuW(popup, MF_STRING | (control->enabled() ? 0U : MF_GRAYED),
                reinterpret_cast<UINT_PTR>(IdOf(*control)),
                Wide(static_cast<const Menu*>(control)->caption()));
  }
  POINT at{};
  GetCursorPos(&at);
  if (menu_place_) at = *menu_place_;
  // A menu of a window in the background wouldn't close by a click elsewhere.
  SetForegroundWindow(window_);
  menu_tag_.Put(window_, menu.name());
  // The window is told of the choice when the menu has closed.
  TrackPopupMenu(popup, TPM_LEFTALIGN | TPM_RIGHTBUTTON, at.x, at.y, 0, window_, nullptr);
  menu_tag_.Remove();
  DestroyMenu(popup);
}

void FormWindow::OnMenu(UINT_PTR id) const {
  if (id == 0 || id > form_.controls().size()) return;
  Control* item = form_.controls()[id - 1];
  if (IsItem(*item) && item->enabled()) desk_.Deliver([&] { item->UserClick(); });
}

}  // namespace orvik::forms::win32
