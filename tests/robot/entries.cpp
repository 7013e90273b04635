#include "robot/entries.h"

#include <cstring>

#include "robot/controls.h"
#include "robot/input.h"
#include "robot/list_reader.h"
#include "robot/messenger.h"
#include "robot/remote.h"
#include "robot/tree_reader.h"
#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

int Ask(HWND window, UINT message, int wparam = 0, LPARAM lparam = 0) {
  return static_cast<int>(SendMessageW(window, message, static_cast<WPARAM>(wparam), lparam));
}

POINT OnScreen(HWND window, POINT point) {
  ClientToScreen(window, &point);
  return point;
}

// Near the left edge, where the entry's text is.
POINT AtText(const RECT& area) {
  constexpr LONG kInside = 4;
  return {std::min(area.left + kInside, area.right - 1), (area.top + area.bottom) / 2};
}

POINT PointInListBox(HWND list, int position) {
  RECT area{};
  RECT client{};
  GetClientRect(list, &client);
  Ask(list, LB_GETITEMRECT, position, reinterpret_cast<LPARAM>(&area));
  if (area.top < 0 || area.bottom > client.bottom) {
    Ask(list, LB_SETTOPINDEX, position);
    Ask(list, LB_GETITEMRECT, position, reinterpret_cast<LPARAM>(&area));
  }
  return OnScreen(list, AtText(area));
}

RECT PartOfRow(const Found& list, int position, LONG part) {
  RECT area{};
  area.left = part;
  SendStructure(list.process, list.window, LVM_GETITEMRECT, static_cast<WPARAM>(position), area);
  return area;
}

// The box has no rectangle of its own: it is found by probing.
POINT BoxOfRow(const Found& list, int position) {
  const RECT row = PartOfRow(list, position, LVIR_BOUNDS);
  const LONG middle = (row.top + row.bottom) / 2;
  for (LONG x = std::max(row.left, 0L); x < row.right; x += 2) {
    LVHITTESTINFO hit{};
    hit.pt = {x, middle};
    SendStructure(list.process, list.window, LVM_HITTEST, 0, hit);
    // One step further in, off the edge.
    if (hit.iItem == position && (hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON) {
      return {x + 2, middle};
    }
  }
  throw Refused{list.name + " has no boxes"};
}

POINT PointInListView(const Found& list, int position, Spot spot) {
  Ask(list.window, LVM_ENSUREVISIBLE, position, FALSE);
  const POINT point =
      spot == Spot::kBox ? BoxOfRow(list, position) : AtText(PartOfRow(list, position, LVIR_LABEL));
  return OnScreen(list.window, point);
}

void SetRowState(const Found& list, int position, UINT state, UINT mask) {
  LVITEMW item{};
  item.state = state;
  item.stateMask = mask;
  SendStructure(list.process, list.window, LVM_SETITEMSTATE, static_cast<WPARAM>(position), item);
}

// The position that a script gives to the first entry.
int FirstPosition(const Found& control) {
  const bool from_one =
      control.kind == forms::Kind::kListView || control.kind == forms::Kind::kTreeView;
  return from_one ? 1 : 0;
}

TreeState::Node NodeAt(const Found& tree, int position) {
  return ReadTree(tree.process, tree.window).nodes.at(static_cast<std::size_t>(position) - 1);
}

// The box has no rectangle of its own: it is found by probing.
POINT BoxOfNode(const Found& tree, HTREEITEM item, const RECT& text) {
  const LONG middle = (text.top + text.bottom) / 2;
  for (LONG x = 0; x < text.right; x += 2) {
    TVHITTESTINFO hit{};
    hit.pt = {x, middle};
    SendStructure(tree.process, tree.window, TVM_HITTEST, 0, hit);
    if (hit.hItem == item && (hit.flags & TVHT_ONITEMSTATEICON) != 0) return {x + 2, middle};
  }
  throw Refused{tree.name + " has no boxes"};
}

POINT PointInTree(const Found& tree, int position, Spot spot) {
  const HTREEITEM item = NodeAt(tree, position).item;
  SendMessageW(tree.window, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
  RECT text{};
  std::memcpy(&text, &item, sizeof item);
  SendStructure(tree.process, tree.window, TVM_GETITEMRECT, TRUE, text);
  return OnScreen(tree.window, spot == Spot::kBox ? BoxOfNode(tree, item, text) : AtText(text));
}

void SelectRows(const Found& list, const std::vector<int>& positions) {
  constexpr UINT kBoth = LVIS_SELECTED | LVIS_FOCUSED;
  SetRowState(list, -1, 0, LVIS_SELECTED);
  for (int position : positions) SetRowState(list, position - FirstPosition(list), kBoth, kBoth);
}

void SelectInListBox(const Found& list, const std::vector<int>& positions) {
  const HWND window = list.window;
  const bool several = (StyleOf(window) & (LBS_EXTENDEDSEL | LBS_MULTIPLESEL)) != 0;
  if (!several) {
    Ask(window, LB_SETCURSEL, positions.empty() ? -1 : positions.back());
  } else {
    Ask(window, LB_SETSEL, FALSE, -1);
    for (int position : positions) {
      Ask(window, LB_SETSEL, TRUE, position);
      Ask(window, LB_SETCARETINDEX, position, FALSE);
    }
  }
  // A list box is silent about what it is told.
  const auto id = static_cast<WORD>(GetDlgCtrlID(window));
  SendMessageW(GetParent(window), WM_COMMAND, MAKEWPARAM(id, LBN_SELCHANGE),
               reinterpret_cast<LPARAM>(window));
}

}  // namespace

std::optional<int> EntryCount(const Found& control) {
  switch (control.kind) {
    case forms::Kind::kListView:
    case forms::Kind::kListBox:
      return Ask(control.window, IsListView(control.window) ? LVM_GETITEMCOUNT : LB_GETCOUNT);
    case forms::Kind::kTreeView:
      return Ask(control.window, TVM_GETCOUNT);
    case forms::Kind::kComboBox:
      return Ask(control.window, CB_GETCOUNT);
    default:
      return std::nullopt;
  }
}

void Require(const Found& control, int position) {
  const auto count = EntryCount(control);
  if (!count) throw Refused{control.name + " has no entries"};
  const int first = FirstPosition(control);
  if (position >= first && position - first < *count) return;
  throw Refused{control.name + " has no entry " + std::to_string(position)};
}

POINT PointOfEntry(const Found& list, int position, Spot spot) {
  Require(list, position);
  if (list.kind == forms::Kind::kTreeView) return PointInTree(list, position, spot);
  return IsListView(list.window) ? PointInListView(list, position - FirstPosition(list), spot)
                                 : PointInListBox(list.window, position);
}

bool IsChecked(const Found& list, int position) {
  if (list.kind == forms::Kind::kTreeView) return NodeAt(list, position).checked;
  return IsChecked(list.window, position);
}

void SelectEntries(const Found& list, const std::vector<int>& positions) {
  if (list.kind == forms::Kind::kTreeView) {
    const HTREEITEM item = positions.empty() ? nullptr : NodeAt(list, positions[0]).item;
    SendMessageW(list.window, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
    return;
  }
  if (IsListView(list.window)) {
    SelectRows(list, positions);
  } else {
    SelectInListBox(list, positions);
  }
}

void ChooseInComboBox(const Found& combo_box, int position) {
  Require(combo_box, position);
  if ((StyleOf(FieldOf(combo_box.window)) & ES_READONLY) != 0) {
    throw Refused{combo_box.name + " is locked"};
  }
  GiveFocus(FieldOf(combo_box.window));
  // A list that has just opened may scroll once more, to the entry that fits the text, between the
  // look at it and the press. As a user would, the robot looks whether it got what it wanted.
  constexpr int kTries = 3;
  constexpr int kOpening = 100;
  for (int tries = 0; tries < kTries; ++tries) {
    Ask(combo_box.window, CB_SHOWDROPDOWN, TRUE);
    const HWND list = OpenListOf(combo_box.window);
    if (list == nullptr) throw Refused{combo_box.name + " doesn't open its list"};
    Messenger::Listen(kOpening);
    PressMouse(PointInListBox(list, position), Press::kClick);
    Messenger::Listen(kOpening);
    if (Ask(combo_box.window, CB_GETCURSEL) == position) return;
  }
}

}  // namespace orvik::robot
