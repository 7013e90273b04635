#include "forms/win32/list_box_view.h"

#include <algorithm>

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

constexpr Changes kRedone = Bit(Property::kRemove) | Bit(Property::kClear) | Bit(Property::kItem);
constexpr Changes kItems = Bit(Property::kAdd) | kRedone;
constexpr Changes kSelection = Bit(Property::kSelected) | Bit(Property::kIndex);

}  // namespace

ListBoxView::ListBoxView(ListBox& list, FormWindow& form) : ControlView(list, form), list_(list) {
  Create(WC_LISTBOXW, {},
         WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT |
             (list.is_extended() ? LBS_EXTENDEDSEL : 0),
         WS_EX_CLIENTEDGE);
  ShowItems();
  ShowSelection();
}

void ListBoxView::Changed(Change change) {
  // What stands ahead of a changed entry is kept; an entry at the end costs only itself.
  if ((Bit(change.property) & kItems) != 0) {
    const bool whole = change.property == Property::kClear || change.position < 0;
    shown_ = std::min(shown_, whole ? 0 : change.position);
  }
  ControlView::Changed(change);
}

void ListBoxView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & kItems) != 0) ShowItems();
  if ((changes & (kRedone | kSelection)) != 0) ShowSelection();
}

void ListBoxView::ShowItems() {
  const Showing showing(*this);
  Send(WM_SETREDRAW, FALSE);
  if (shown_ == 0) {
    Send(LB_RESETCONTENT);
    widest_ = 0;
  }
  while (Send(LB_GETCOUNT) > shown_) Send(LB_DELETESTRING, static_cast<WPARAM>(shown_));
  for (; shown_ < list_.count(); ++shown_) {
    const Text& item = list_.Item(shown_);
    Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(item)));
    widest_ = std::max(widest_, form().metrics().TextWidth(item));
  }
  Send(LB_SETHORIZONTALEXTENT,
       static_cast<WPARAM>(widest_) + static_cast<WPARAM>(form().metrics().Scaled(8)));
  Send(WM_SETREDRAW, TRUE);
  InvalidateRect(window(), nullptr, TRUE);
}

void ListBoxView::ShowSelection() {
  const Showing showing(*this);
  if (!list_.is_extended()) {
    if (Send(LB_GETCURSEL) != list_.index()) {
      Send(LB_SETCURSEL, static_cast<WPARAM>(list_.index()));
    }
    return;
  }
  for (int position = 0; position < list_.count(); ++position) {
    const bool shown = Send(LB_GETSEL, static_cast<WPARAM>(position)) > 0;
    if (shown != list_.Selected(position)) Send(LB_SETSEL, !shown, position);
  }
}

std::vector<int> ListBoxView::Selection() const {
  if (!list_.is_extended()) {
    const auto current = static_cast<int>(Send(LB_GETCURSEL));
    return current < 0 ? std::vector<int>{} : std::vector<int>{current};
  }
  std::vector<int> selection(static_cast<std::size_t>(std::max<LRESULT>(0, Send(LB_GETSELCOUNT))));
  Send(LB_GETSELITEMS, selection.size(), reinterpret_cast<LPARAM>(selection.data()));
  // The current entry goes last.
  const auto current =
      std::find(selection.begin(), selection.end(), static_cast<int>(Send(LB_GETCARETINDEX)));
  if (current != selection.end()) std::rotate(current, current + 1, selection.end());
  return selection;
}

void ListBoxView::OnSelection() {
  const std::vector<int> selection = Selection();
  const bool taken = Deliver([&] { list_.UserSelect(selection); });
  if (!taken) ShowSelection();
}

void ListBoxView::OnCommand(WORD code) {
  if (showing()) return;
  if (code == LBN_SELCHANGE) OnSelection();
  if (code == LBN_DBLCLK) Deliver([&] { control().UserDoubleClick(); });
}

LRESULT ListBoxView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_RBUTTONDOWN) {
    // The right button too makes the entry under it the current one.
    const LRESULT hit = Send(LB_ITEMFROMPOINT, 0, lparam);
    const int position = LOWORD(hit);
    if (HIWORD(hit) == 0 && position < list_.count() && !list_.Selected(position)) {
      Deliver([&] { list_.UserSelect({position}, ListBox::Follow::kNothing); });
    }
  }
  return ControlView::OnMessage(message, wparam, lparam);
}

}  // namespace orvik::forms::win32
