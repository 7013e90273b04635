#include "robot/list_reader.h"

#include <algorithm>

#include "robot/remote.h"
#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

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

// Reads cells and heads of list views by way of one piece of the other process's memory.
class CellReader {
 public:
  explicit CellReader(HANDLE process)
      : remote_(process, std::max(sizeof(LVITEMW), sizeof(LVCOLUMNW)) + kRoom) {}

  ReportState::Column ReadColumn(HWND list_view, int number) const {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = reinterpret_cast<wchar_t*>(remote_.address(sizeof column));
    column.cchTextMax = kLongestCell;
    remote_.Write(&column, sizeof column);
    Ask(list_view, LVM_GETCOLUMNW, number, remote_.address());
    Text text(static_cast<std::size_t>(kLongestCell), u'\0');
    remote_.Read(text.data(), kRoom, sizeof column);
    remote_.Read(&column, sizeof column);
    text.resize(std::min(text.find(u'\0'), text.size()));
    return {text, column.cx};
  }

  Text Read(HWND list_view, int row, int column) const {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = reinterpret_cast<wchar_t*>(remote_.address(sizeof item));
    item.cchTextMax = kLongestCell;
    remote_.Write(&item, sizeof item);
    // The answer is the length of the text.
    const int length =
        std::clamp(Ask(list_view, LVM_GETITEMTEXTW, row, remote_.address()), 0, kLongestCell - 1);
    Text text(static_cast<std::size_t>(length), u'\0');
    if (length > 0) remote_.Read(text.data(), text.size() * sizeof(char16_t), sizeof item);
    return text;
  }

 private:
  static constexpr int kLongestCell = 4096;
  static constexpr std::size_t kRoom = kLongestCell * sizeof(char16_t);

  RemoteBytes remote_;
};

}  // namespace

ReportState ReadReport(HANDLE process, HWND list) {
  ReportState state;
  const CellReader cells(process);
  const auto head = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
  const int columns = Ask(head, HDM_GETITEMCOUNT);
  for (int i = 0; i < columns; ++i) state.columns.push_back(cells.ReadColumn(list, i));
  const int count = Ask(list, LVM_GETITEMCOUNT);
  for (int position = 0; position < count; ++position) {
    ReportState::Row row{cells.Read(list, position, 0), {}, false};
    for (int i = 1; i < columns; ++i) row.sub.push_back(cells.Read(list, position, i));
    while (!row.sub.empty() && row.sub.back().empty()) row.sub.pop_back();
    row.selected = Ask(list, LVM_GETITEMSTATE, position, LVIS_SELECTED) != 0;
    state.rows.push_back(std::move(row));
  }
  return state;
}

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

ListState ReadListView(HANDLE process, HWND list) {
  ListState state;
  const CellReader cells(process);
  state.has_boxes = HasBoxes(list);
  const int count = Ask(list, LVM_GETITEMCOUNT);
  for (int position = 0; position < count; ++position) {
    state.items.push_back(cells.Read(list, position, 0));
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
