#include "forms/win32/list_box_view.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "forms/win32/form_window.h"
#include "forms/win32/mouse.h"

namespace orvik::forms::win32 {

namespace {

constexpr Changes kSelection = Bit(Property::kSelected) | Bit(Property::kIndex);
constexpr Changes kFewer = Bit(Property::kRemove) | Bit(Property::kClear);
constexpr Changes kCount = Bit(Property::kAdd) | kFewer;
constexpr int kMargins = 12;
constexpr int kEveryRow = -1;
constexpr WPARAM kBeforeFirst = static_cast<WPARAM>(-1);

}  // namespace

ListBoxView::ListBoxView(ListBox& list, FormWindow& form) : ListBoxView(list, form, 0, kMargins) {}

ListBoxView::ListBoxView(ListBox& list, FormWindow& form, DWORD extended_styles, int beside)
    : ControlView(list, form), list_(list), beside_(beside) {
  Create(WC_LISTVIEWW, {},
         WS_TABSTOP | LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_OWNERDATA | LVS_SHOWSELALWAYS |
             (list.is_extended() ? 0 : LVS_SINGLESEL),
         WS_EX_CLIENTEDGE);
  const DWORD styles =
      LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP | extended_styles;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, styles, static_cast<LPARAM>(styles));
  LVCOLUMNW column{};
  column.mask = LVCF_WIDTH;
  Send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  for (int i = 0; i < list.count(); ++i) NoteLength(list.Item(i));
  ShowCount();
  ShowSelection();
}

void ListBoxView::Changed(Change change) {
  if (change.property == Property::kAdd || change.property == Property::kItem) {
    NoteLength(list_.Item(change.position));
  }
  if (change.property == Property::kClear) longest_.clear();
  ControlView::Changed(change);
}

void ListBoxView::NoteLength(const Text& item) {
  if (item.size() > longest_.size()) longest_ = item;
}

void ListBoxView::Place() {
  ControlView::Place();
  FitColumn();
}

void ListBoxView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & kCount) != 0) ShowCount();
  if ((changes & (kFewer | kSelection)) != 0) ShowSelection();
  if ((changes & (Bit(Property::kChecked) | Bit(Property::kItem) | kCount)) != 0) {
    FitColumn();
    InvalidateRect(window(), nullptr, FALSE);
  }
}

void ListBoxView::ShowCount() {
  const Showing showing(*this);
  Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(list_.count()),
       LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
  FitColumn();
}

void ListBoxView::FitColumn() {
  RECT area;
  GetClientRect(window(), &area);
  // The text with the most characters stands for the widest one, with something to spare: to
  // measure 100,000 texts would take longer than all else.
  const int widest = form().metrics().TextWidth(longest_) * 11 / 10;
  const auto width = std::max<LONG>(area.right, form().metrics().Scaled(beside_) + widest);
  if (Send(LVM_GETCOLUMNWIDTH, 0) != width) Send(LVM_SETCOLUMNWIDTH, 0, width);
}

int ListBoxView::FocusedRow() const {
  return static_cast<int>(Send(LVM_GETNEXTITEM, kBeforeFirst, LVNI_FOCUSED));
}

std::vector<int> ListBoxView::Selection() const {
  std::vector<int> selection;
  for (WPARAM from = kBeforeFirst;;) {
    const auto next = static_cast<int>(Send(LVM_GETNEXTITEM, from, LVNI_SELECTED));
    if (next < 0) return selection;
    selection.push_back(next);
    from = static_cast<WPARAM>(next);
  }
}

void ListBoxView::SetState(int row, UINT state, UINT mask) const {
  LVITEMW item{};
  item.state = state;
  item.stateMask = mask;
  Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void ListBoxView::ShowSelection() {
  const Showing showing(*this);
  std::vector<int> wanted;
  for (int row = 0; row < list_.count(); ++row) {
    if (list_.Selected(row)) wanted.push_back(row);
  }
  const std::vector<int> shown = Selection();
  if (shown != wanted) {
    std::vector<int> extra;
    std::set_difference(shown.begin(), shown.end(), wanted.begin(), wanted.end(),
                        std::back_inserter(extra));
    for (int row : extra) SetState(row, 0, LVIS_SELECTED);
    std::vector<int> missing;
    std::set_difference(wanted.begin(), wanted.end(), shown.begin(), shown.end(),
                        std::back_inserter(missing));
    if (list_.is_extended() && static_cast<int>(wanted.size()) == list_.count()) {
      SetState(kEveryRow, LVIS_SELECTED, LVIS_SELECTED);
    } else {
      for (int row : missing) SetState(row, LVIS_SELECTED, LVIS_SELECTED);
    }
  }
  if (list_.index() < 0 || list_.index() == FocusedRow()) return;
  SetState(list_.index(), LVIS_FOCUSED, LVIS_FOCUSED);
  Send(LVM_SETSELECTIONMARK, 0, list_.index());
}

void ListBoxView::Tell(LVITEMW& item) const {
  // The text is only read by the window.
  if ((item.mask & LVIF_TEXT) != 0)
    item.pszText = const_cast<wchar_t*>(Wide(list_.Item(item.iItem)));
}

void ListBoxView::OnSelection() {
  // The mouse brings a click of its own.
  const bool by_mouse = GetKeyState(VK_LBUTTON) < 0 || GetKeyState(VK_RBUTTON) < 0;
  std::vector<int> selection = Selection();
  // The current entry goes last.
  const auto current = std::find(selection.begin(), selection.end(), FocusedRow());
  if (current != selection.end()) std::rotate(current, current + 1, selection.end());
  const auto follow = by_mouse ? ListBox::Follow::kNothing : ListBox::Follow::kClick;
  if (!Deliver([&] { list_.UserSelect(selection, follow); })) ShowSelection();
}

LVHITTESTINFO ListBoxView::HitTest(POINT at) const {
  LVHITTESTINFO hit{};
  hit.pt = at;
  Send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  return hit;
}

int ListBoxView::EntryAt(const LVHITTESTINFO& hit) const {
  return hit.iItem >= 0 && hit.iItem < list_.count() ? hit.iItem : -1;
}

void ListBoxView::OnPress(int entry, Mouse mouse) {
  std::vector<int> selection{entry};
  if (mouse.button != kLeftButton && list_.Selected(entry)) {
    // The other buttons leave a selection of several as it is.
    selection = Selection();
    std::erase(selection, entry);
    selection.push_back(entry);
  }
  Deliver([&] {
    list_.UserSelect(selection, ListBox::Follow::kNothing);
    list_.UserMouse(true, mouse);
  });
  told_ = Told::kDown;
}

void ListBoxView::OnButton(bool down, Mouse mouse, POINT at) {
  if (!down) {
    if (told_ != Told::kDown) return;
    told_ = Told::kUp;
    Deliver([&] { list_.UserMouse(false, mouse); });
    return;
  }
  told_ = Told::kNothing;
  const int entry = EntryAt(HitTest(at));
  // What Shift and Ctrl make of the selection is known only when the system has handled the press.
  const bool extends =
      list_.is_extended() && mouse.button == kLeftButton && (mouse.shift & (kShift | kCtrl)) != 0;
  if (entry >= 0 && !extends) OnPress(entry, mouse);
}

void ListBoxView::OnClick(const NMITEMACTIVATE& click) {
  if (EntryAt(HitTest(click.ptAction)) < 0) return;
  if (click.hdr.code == NM_DBLCLK) {
    Deliver([&] { control().UserDoubleClick(); });
    return;
  }
  // The system keeps the release of a button to itself while it looks whether something is dragged.
  const Mouse mouse{click.hdr.code == NM_RCLICK ? kRightButton : kLeftButton, ShiftState()};
  const Told told = std::exchange(told_, Told::kUp);
  if (told == Told::kNothing) OnSelection();
  Deliver([&] {
    if (told == Told::kNothing) list_.UserMouse(true, mouse);
    if (told != Told::kUp) list_.UserMouse(false, mouse);
    if (click.hdr.code == NM_CLICK) list_.UserClick();
  });
}

std::optional<LRESULT> ListBoxView::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW: {
      LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(header).item;
      if (item.iItem >= 0 && item.iItem < list_.count()) Tell(item);
      return 0;
    }
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

LRESULT ListBoxView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  const auto click = MouseClickOf(message, wparam);
  if (!click) return ControlView::OnMessage(message, wparam, lparam);
  OnButton(click->down, click->mouse,
           {static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam))});
  return window() != nullptr ? Default(message, wparam, lparam) : 0;
}

}  // namespace orvik::forms::win32
