#include "robot/list_reader.h"

#include "robot/remote.h"
#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

constexpr int kLongestCell = 4096;

int Ask(HWND window, UINT message, int wparam = 0, LPARAM lparam = 0) {
  return static_cast<int>(SendMessageW(window, message, static_cast<WPARAM>(wparam), lparam));
}

// The text of an entry by the two messages that a kind of list has for it.
Text EntryText(HWND window, int position, UINT length_message, UINT text_message) {
  const int length = Ask(window, length_message, position);
  if (length < 0) return {};
  Text text(static_cast<std::size_t>(length) + 1, u'\0');
  const int copied = Ask(window, text_message, position, reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(std::max(copied, 0)));
  return text;
}

}  // namespace

ListState ReadListBox(HWND list) {
  ListState state;
  const int count = Ask(list, LB_GETCOUNT);
  for (int position = 0; position < count; ++position) {
    state.items.push_back(EntryText(list, position, LB_GETTEXTLEN, LB_GETTEXT));
    if (Ask(list, LB_GETSEL, position) > 0) state.selected.push_back(position);
  }
  const bool several = (StyleOf(list) & (LBS_EXTENDEDSEL | LBS_MULTIPLESEL)) != 0;
  // With several to select the caret stands at some entry even when none has been taken.
  if (!several || !state.selected.empty()) {
    state.index = Ask(list, several ? LB_GETCARETINDEX : LB_GETCURSEL);
  }
  return state;
}

bool IsListView(HWND list) { return ClassOf(list) == u"SysListView32"; }

bool HasBoxes(HWND list_view) {
  return (Ask(list_view, LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_CHECKBOXES) != 0;
}

bool IsChecked(HWND list_view, int position) {
  // State images of boxes count from 1: off, on.
  constexpr int kOn = INDEXTOSTATEIMAGEMASK(2);
  return Ask(list_view, LVM_GETITEMSTATE, position, LVIS_STATEIMAGEMASK) == kOn;
}

Text CellText(HANDLE process, HWND list_view, int row, int column) {
  LVITEMW item{};
  item.iSubItem = column;
  return SendForText(process, list_view, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), item,
                     &LVITEMW::pszText, &LVITEMW::cchTextMax, kLongestCell);
}

ListState ReadListView(HANDLE process, HWND list) {
  ListState state;
  state.has_boxes = HasBoxes(list);
  const int count = Ask(list, LVM_GETITEMCOUNT);
  for (int position = 0; position < count; ++position) {
    state.items.push_back(CellText(process, list, position, 0));
    if (state.has_boxes && IsChecked(list, position)) state.checked.push_back(position);
  }
  for (int at = -1; (at = Ask(list, LVM_GETNEXTITEM, at, LVNI_SELECTED)) >= 0;) {
    state.selected.push_back(at);
  }
  // A list that has the keyboard has a focused row even when none has been taken.
  if (!state.selected.empty()) state.index = Ask(list, LVM_GETNEXTITEM, -1, LVNI_FOCUSED);
  return state;
}

std::vector<Text> ComboItems(HWND combo_box) {
  std::vector<Text> items;
  const int count = Ask(combo_box, CB_GETCOUNT);
  for (int position = 0; position < count; ++position) {
    items.push_back(EntryText(combo_box, position, CB_GETLBTEXTLEN, CB_GETLBTEXT));
  }
  return items;
}

}  // namespace orvik::robot
