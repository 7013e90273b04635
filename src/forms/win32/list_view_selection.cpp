// The selection of a report, kept the same in its window and its model.
#include <algorithm>

#include "forms/win32/form_window.h"
#include "forms/win32/list_view_view.h"

namespace orvik::forms::win32 {

namespace {

constexpr int kNoItem = -1;  // in a question for the first item; as a target all items

}  // namespace

std::vector<int> ListViewView::Selection() const {
  std::vector<int> selection;
  for (int at = kNoItem;;) {
    at = static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(at), LVNI_SELECTED));
    if (at < 0 || at >= list_.count()) return selection;
    selection.push_back(at + 1);
  }
}

void ListViewView::SetRowState(int item, bool selected) const {
  LVITEMW state{};
  state.stateMask = LVIS_SELECTED;
  state.state = selected ? LVIS_SELECTED : 0;
  Send(LVM_SETITEMSTATE, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&state));
}

void ListViewView::ShowSelection() {
  const Showing showing(*this);
  const auto count = static_cast<std::size_t>(list_.count());
  std::vector<bool> shown(count + 1);
  for (int position : Selection()) shown[static_cast<std::size_t>(position)] = true;
  std::size_t chosen = 0;
  for (int position = 1; position <= list_.count(); ++position) {
    chosen += list_.At(position).selected ? 1 : 0;
  }
  // Row by row only as far as the rows differ from all or none, whichever is nearer: the window
  // takes these in one step.
  const auto differing = [&] {
    std::size_t differ = 0;
    for (std::size_t i = 1; i <= count; ++i) {
      differ += shown[i] != list_.At(static_cast<int>(i)).selected ? 1 : 0;
    }
    return differ;
  };
  if (differing() > std::min(chosen, count - chosen)) {
    const bool most = chosen > count - chosen;
    SetRowState(kNoItem, most);
    shown.assign(count + 1, most);
  }
  for (std::size_t i = 1; i <= count; ++i) {
    const bool selected = list_.At(static_cast<int>(i)).selected;
    if (shown[i] != selected) SetRowState(static_cast<int>(i) - 1, selected);
  }
}

void ListViewView::OnClick(const NMITEMACTIVATE& click) {
  LVHITTESTINFO hit{};
  hit.pt = click.ptAction;
  Send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  const int position = hit.iItem + 1;
  if (position < 1 || position > list_.count()) return;
  if (click.hdr.code == NM_DBLCLK) {
    Deliver([&] { control().UserDoubleClick(); });
    return;
  }
  const Mouse mouse{click.hdr.code == NM_RCLICK ? kRightButton : kLeftButton, ShiftState()};
  Deliver([&] {
    list_.UserSelect(Selection(), position);
    list_.UserMouse(true, mouse);
    list_.UserMouse(false, mouse);
    if (click.hdr.code == NM_CLICK) list_.UserClick();
  });
}

void ListViewView::OnSelection() {
  const auto focused = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(kNoItem), LVNI_FOCUSED);
  const std::vector<int> selection = Selection();
  const bool among = std::binary_search(selection.begin(), selection.end(), focused + 1);
  const int current =
      among ? static_cast<int>(focused) + 1 : (selection.empty() ? 0 : selection.back());
  Deliver([&] { list_.UserSelect(selection, current); });
}

}  // namespace orvik::forms::win32
