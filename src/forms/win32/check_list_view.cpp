#include "forms/win32/check_list_view.h"

#include <algorithm>

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

// State images of check boxes count from 1: off, on.
constexpr UINT BoxImage(bool checked) { return INDEXTOSTATEIMAGEMASK(checked ? 2U : 1U); }
constexpr int kBoxAndMargins = 32;

bool IsOnBox(const LVHITTESTINFO& hit) { return (hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON; }

}  // namespace

CheckListView::CheckListView(ListBox& list, FormWindow& form)
    : ListBoxView(list, form, LVS_EX_CHECKBOXES, kBoxAndMargins) {
  Send(LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
}

void CheckListView::Tell(LVITEMW& item) const {
  ListBoxView::Tell(item);
  if ((item.mask & LVIF_STATE) == 0) return;
  item.state &= ~static_cast<UINT>(LVIS_STATEIMAGEMASK);
  item.state |= BoxImage(list().Checked(item.iItem));
}

int CheckListView::EntryAt(const LVHITTESTINFO& hit) const {
  return IsOnBox(hit) ? -1 : ListBoxView::EntryAt(hit);
}

void CheckListView::Check(int position, bool checked) {
  if (!Deliver([&] { list().UserCheck(position, checked); })) return;
  if (window() != nullptr) {
    NotifyWinEvent(EVENT_OBJECT_STATECHANGE, window(), OBJID_CLIENT, position + 1);
  }
}

std::optional<LRESULT> CheckListView::OnNotify(NMHDR& header) {
  if (header.code == NM_CLICK || header.code == NM_DBLCLK) {
    const LVHITTESTINFO hit = HitTest(reinterpret_cast<const NMITEMACTIVATE&>(header).ptAction);
    if (IsOnBox(hit) && hit.iItem >= 0 && hit.iItem < list().count()) {
      Check(hit.iItem, !list().Checked(hit.iItem));
      return 0;
    }
  }
  return ListBoxView::OnNotify(header);
}

void CheckListView::OnSpace() {
  if (list().count() == 0) return;
  int position = FocusedRow();
  if (position < 0) {
    // The first key already finds a row to work on.
    position = 0;
    LVITEMW state{};
    state.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    state.state = state.stateMask;
    Send(LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&state));
  }
  if (position < list().count()) Check(position, !list().Checked(position));
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
    if ((state.stateMask & LVIS_STATEIMAGEMASK) != 0 && position < list().count()) {
      const bool checked = (state.state & LVIS_STATEIMAGEMASK) == BoxImage(true);
      // The position -1 stands for all entries.
      const int last = position < 0 ? list().count() - 1 : position;
      for (int i = std::max(position, 0); i <= last; ++i) Check(i, checked);
      return TRUE;
    }
  }
  return ListBoxView::OnMessage(message, wparam, lparam);
}

}  // namespace orvik::forms::win32
