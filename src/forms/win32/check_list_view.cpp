#include "forms/win32/check_list_view.h"

#include <algorithm>

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

constexpr Changes kSelection = Bit(Property::kSelected) | Bit(Property::kIndex);
constexpr Changes kFewer = Bit(Property::kRemove) | Bit(Property::kClear);
constexpr Changes kCount = Bit(Property::kAdd) | kFewer;
// State images of check boxes count from 1: off, on.
constexpr UINT BoxImage(bool checked) { return INDEXTOSTATEIMAGEMASK(checked ? 2U : 1U); }
// The box and the margins of an entry, in pixels at 96 dots to the inch.
constexpr int kBeside = 32;

}  // namespace

CheckListView::CheckListView(ListBox& list, FormWindow& form)
    : ControlView(list, form), list_(list) {
  Create(WC_LISTVIEWW, {},
         WS_TABSTOP | LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_OWNERDATA | LVS_SHOWSELALWAYS |
             (list.is_extended() ? 0 : LVS_SINGLESEL),
         WS_EX_CLIENTEDGE);
  constexpr DWORD kStyles =
      LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kStyles, kStyles);
  Send(LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
  LVCOLUMNW column{};
  column.mask = LVCF_WIDTH;
  Send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  for (int i = 0; i < list.count(); ++i) NoteLength(list.Item(i));
  ShowCount();
  ShowSelection();
}

void CheckListView::Changed(Change change) {
  if (change.property == Property::kAdd || change.property == Property::kItem) {
    NoteLength(list_.Item(change.position));
  }
  if (change.property == Property::kClear) longest_.clear();
  ControlView::Changed(change);
}

void CheckListView::NoteLength(const Text& item) {
  if (item.size() > longest_.size()) longest_ = item;
}

void CheckListView::Place() {
  ControlView::Place();
  FitColumn();
}

void CheckListView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & kCount) != 0) ShowCount();
  if ((changes & (kFewer | kSelection)) != 0) ShowSelection();
  if ((changes & (Bit(Property::kChecked) | Bit(Property::kItem) | kCount)) != 0) {
    InvalidateRect(window(), nullptr, FALSE);
  }
}

void CheckListView::ShowCount() {
  const Showing showing(*this);
  Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(list_.count()),
       LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
  FitColumn();
}

void CheckListView::FitColumn() {
  RECT area;
  GetClientRect(window(), &area);
  // The text with the most characters stands for the widest one, with something to spare: to
  // measure 100,000 texts would take longer than all else.
  const int widest = form().metrics().TextWidth(longest_) * 11 / 10;
  const auto width = std::max<LONG>(area.right, form().metrics().Scaled(kBeside) + widest);
  if (Send(LVM_GETCOLUMNWIDTH, 0) != width) Send(LVM_SETCOLUMNWIDTH, 0, width);
}

std::vector<int> CheckListView::Selection() const {
  std::vector<int> selection;
  const auto current =
      static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
  bool with_current = false;
  for (WPARAM from = static_cast<WPARAM>(-1);;) {
    const auto next = static_cast<int>(Send(LVM_GETNEXTITEM, from, LVNI_SELECTED));
    if (next < 0) break;
    if (next == current) {
      with_current = true;
    } else {
      selection.push_back(next);
    }
    from = static_cast<WPARAM>(next);
  }
  if (with_current) selection.push_back(current);
  return selection;
}

void CheckListView::ShowSelection() {
  const Showing showing(*this);
  LVITEMW state{};
  state.stateMask = LVIS_SELECTED;
  const std::vector<int> shown = Selection();
  for (int position : shown) {
    if (position < list_.count() && list_.Selected(position)) continue;
    Send(LVM_SETITEMSTATE, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&state));
  }
  state.state = LVIS_SELECTED;
  for (int position = 0; position < list_.count(); ++position) {
    if (!list_.Selected(position)) continue;
    if (std::find(shown.begin(), shown.end(), position) != shown.end()) continue;
    Send(LVM_SETITEMSTATE, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&state));
  }
}

void CheckListView::Tell(NMLVDISPINFOW& asked) const {
  LVITEMW& item = asked.item;
  if (item.iItem < 0 || item.iItem >= list_.count()) return;
  if ((item.mask & LVIF_TEXT) != 0) {
    // Only read by the window.
    item.pszText = const_cast<wchar_t*>(Wide(list_.Item(item.iItem)));
  }
  if ((item.mask & LVIF_STATE) != 0) {
    item.state &= ~static_cast<UINT>(LVIS_STATEIMAGEMASK);
    item.state |= BoxImage(list_.Checked(item.iItem));
  }
}

void CheckListView::Check(int position, bool checked) {
  if (!Deliver([&] { list_.UserCheck(position, checked); })) return;
  if (window() != nullptr) {
    NotifyWinEvent(EVENT_OBJECT_STATECHANGE, window(), OBJID_CLIENT, position + 1);
  }
}

void CheckListView::OnClick(const NMITEMACTIVATE& click) {
  LVHITTESTINFO hit{};
  hit.pt = click.ptAction;
  Send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  const int position = hit.iItem;
  if (position < 0 || position >= list_.count()) return;
  if ((hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON) {
    Check(position, !list_.Checked(position));
    return;
  }
  if (click.hdr.code == NM_DBLCLK) {
    Deliver([&] { control().UserDoubleClick(); });
    return;
  }
  const Mouse mouse{click.hdr.code == NM_RCLICK ? kRightButton : kLeftButton, ShiftState()};
  Deliver([&] {
    list_.UserSelect(Selection(), ListBox::Follow::kNothing);
    list_.UserMouse(true, mouse);
    list_.UserMouse(false, mouse);
    if (click.hdr.code == NM_CLICK) list_.UserClick();
  });
}

void CheckListView::OnSelection() {
  // The mouse brings a click of its own.
  const bool by_mouse = GetKeyState(VK_LBUTTON) < 0 || GetKeyState(VK_RBUTTON) < 0;
  const auto follow = by_mouse ? ListBox::Follow::kNothing : ListBox::Follow::kClick;
  const std::vector<int> selection = Selection();
  Deliver([&] { list_.UserSelect(selection, follow); });
}

std::optional<LRESULT> CheckListView::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW:
      Tell(reinterpret_cast<NMLVDISPINFOW&>(header));
      return 0;
    case NM_CLICK:
    case NM_RCLICK:
    case NM_DBLCLK:
      OnClick(reinterpret_cast<const NMITEMACTIVATE&>(header));
      return 0;
    case LVN_ITEMCHANGED: {
      const auto& item = reinterpret_cast<const NMLISTVIEW&>(header);
      const bool selection = ((item.uOldState ^ item.uNewState) & LVIS_SELECTED) != 0;
      if (!showing() && selection) OnSelection();
      return 0;
    }
    case LVN_ODSTATECHANGED:
      if (!showing()) OnSelection();
      return 0;
    default:
      return std::nullopt;
  }
}

void CheckListView::OnSpace() {
  if (list_.count() == 0) return;
  auto position = static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
  if (position < 0) {
    // The first key already finds a row to work on.
    position = 0;
    LVITEMW state{};
    state.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    state.state = state.stateMask;
    Send(LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&state));
  }
  if (position < list_.count()) Check(position, !list_.Checked(position));
}

LRESULT CheckListView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_KEYDOWN && wparam == VK_SPACE) {
    OnSpace();
    return 0;
  }
  // The box of an entry set from outside, by an aid to access or by a test.
  if (message == LVM_SETITEMSTATE && !showing()) {
    const auto& state = *reinterpret_cast<const LVITEMW*>(lparam);
    const auto position = static_cast<int>(wparam);
    if ((state.stateMask & LVIS_STATEIMAGEMASK) != 0 && position < list_.count()) {
      const bool checked = (state.state & LVIS_STATEIMAGEMASK) == BoxImage(true);
      // The position -1 stands for all entries.
      const int last = position < 0 ? list_.count() - 1 : position;
      for (int i = std::max(position, 0); i <= last; ++i) Check(i, checked);
      return TRUE;
    }
  }
  return ControlView::OnMessage(message, wparam, lparam);
}

}  // namespace orvik::forms::win32
