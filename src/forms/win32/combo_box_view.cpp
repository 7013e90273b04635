#include "forms/win32/combo_box_view.h"

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

constexpr UINT_PTR kFieldSubclass = 2;
// Sent by the view to itself: the box has put an entry's text into the field behind a handler that
// wanted another one there.
constexpr UINT kShowText = WM_APP + 1;
constexpr Changes kItems =
    Bit(Property::kAdd) | Bit(Property::kRemove) | Bit(Property::kClear) | Bit(Property::kItem);
// The height of an open list in pixels at 96 dots to the inch, where the system doesn't choose it.
constexpr int kListHeight = 200;

}  // namespace

ComboBoxView::ComboBoxView(ComboBox& box, FormWindow& form) : ControlView(box, form), box_(box) {
  Create(WC_COMBOBOXW, {}, WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL);
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  GetComboBoxInfo(window(), &parts);
  field_ = parts.hwndItem;
  list_ = parts.hwndList;
  SetWindowSubclass(field_, &FieldProcedure, kFieldSubclass, reinterpret_cast<DWORD_PTR>(this));
  FitHeight();
  Refresh(kItems | Bit(Property::kIndex) | Bit(Property::kText) | Bit(Property::kLocked));
}

RECT ComboBoxView::Area() const {
  // The window's height is that of the open list.
  RECT area = ControlView::Area();
  area.bottom += form().metrics().Scaled(kListHeight);
  return area;
}

void ComboBoxView::FitHeight() {
  const RECT area = ControlView::Area();
  // The frame of the field takes three pixels above and below.
  Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), area.bottom - area.top - 6);
}

void ComboBoxView::Place() {
  ControlView::Place();
  // A box that is made wider marks its whole text.
  if (GetFocus() != field_) SendMessageW(field_, EM_SETSEL, 0, 0);
}

void ComboBoxView::Rescale() {
  ControlView::Rescale();
  FitHeight();
}

void ComboBoxView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  const Showing showing(*this);
  if ((changes & Bit(Property::kLocked)) != 0) {
    SendMessageW(field_, EM_SETREADONLY, box_.locked(), 0);
    if (box_.locked()) Send(CB_SHOWDROPDOWN, FALSE);
  }
  if ((changes & kItems) != 0) ShowItems((changes & kItems) == Bit(Property::kAdd));
  ShowIndex();
  ShowText();
}

void ComboBoxView::ShowItems(bool only_added) {
  if (!only_added || shown_ > box_.count()) {
    Send(CB_RESETCONTENT);
    shown_ = 0;
  }
  for (; shown_ < box_.count(); ++shown_) {
    Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(box_.Item(shown_))));
  }
}

void ComboBoxView::ShowIndex() {
  if (Send(CB_GETCURSEL) == box_.index()) return;
  // The list alone is told: the box itself would put the entry's text into the field.
  SendMessageW(list_, LB_SETCURSEL, static_cast<WPARAM>(box_.index()), 0);
}

void ComboBoxView::ShowText() {
  if (WindowText(field_) != box_.text()) SetWindowTextW(field_, Wide(box_.text()));
}

bool ComboBoxView::NeedsEnter() const {
  return SendMessageW(window(), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

void ComboBoxView::OnCommand(WORD code) {
  if (showing()) return;
  if (code == CBN_EDITCHANGE) {
    const bool taken = !box_.locked() && Deliver([&] { box_.UserType(WindowText(field_)); });
    if (!taken) Refresh(Bit(Property::kText));
  }
  if (code == CBN_SELCHANGE) {
    const auto chosen = static_cast<int>(Send(CB_GETCURSEL));
    if (chosen < 0) return;
    if (!box_.locked()) Deliver([&] { box_.UserSelect(chosen); });
    if (window() != nullptr) PostMessageW(window(), kShowText, 0, 0);
  }
}

bool ComboBoxView::RefusesInput(UINT message, WPARAM wparam) const {
  if (!box_.locked()) return false;
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEWHEEL:
    case CB_SHOWDROPDOWN:
      return message != CB_SHOWDROPDOWN || wparam != 0;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      return wparam == VK_UP || wparam == VK_DOWN || wparam == VK_PRIOR || wparam == VK_NEXT ||
             wparam == VK_F4;
    default:
      return false;
  }
}

LRESULT ComboBoxView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == kShowText) {
    Refresh(Bit(Property::kText) | Bit(Property::kIndex));
    return 0;
  }
  // A text set from outside is typed, as it is in the field itself.
  if (message == WM_SETTEXT && !showing()) {
    return SendMessageW(field_, WM_SETTEXT, wparam, lparam);
  }
  if (RefusesInput(message, wparam)) return 0;
  ++busy_;
  const LRESULT result = ControlView::OnMessage(message, wparam, lparam);
  --busy_;
  return result;
}

LRESULT CALLBACK ComboBoxView::FieldProcedure(HWND window, UINT message, WPARAM wparam,
                                              LPARAM lparam, UINT_PTR /*id*/,
                                              DWORD_PTR view) noexcept {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(window, &FieldProcedure, kFieldSubclass);
  auto& self = *reinterpret_cast<ComboBoxView*>(view);
  // The text of a locked field may still be marked and copied by mouse.
  const bool mouse = message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK;
  if (!mouse && self.RefusesInput(message, wparam)) return 0;
  const LRESULT result = DefSubclassProc(window, message, wparam, lparam);
  // The field of a box, unlike one alone, doesn't report a text that is set from outside. The box
  // itself sets one for each choice from the list.
  if (message == WM_SETTEXT && !self.showing() && self.busy_ == 0) self.OnCommand(CBN_EDITCHANGE);
  // The mark of a field without the keyboard would look like the keyboard.
  if (message == WM_KILLFOCUS) DefSubclassProc(window, EM_SETSEL, 0, 0);
  return result;
}

}  // namespace orvik::forms::win32
