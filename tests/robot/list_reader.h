// Reads the controls with entries. Positions count from 0, as in the windows themselves.
#pragma once

#include <vector>

#include "robot/windows_api.h"

namespace orvik::robot {

// What one list holds.
struct ListState {
  std::vector<Text> items;
  int index = -1;  // the current entry, -1 for none
  std::vector<int> selected;
  bool has_boxes = false;
  std::vector<int> checked;
};

// What a report of rows with columns holds.
struct ReportState {
  struct Column {
    Text text;
    int width;  // pixels
  };
  struct Row {
    Text text;
    std::vector<Text> sub;  // as far as the cells behind the first aren't all empty
    bool selected;
  };
  std::vector<Column> columns;
  std::vector<Row> rows;
};

// A list view with a head. `process` is the one that owns it.
ReportState ReadReport(HANDLE process, HWND list);

// A plain list box.
ListState ReadListBox(HWND list);
// A list view of one column in its place, with or without boxes. `process` is the one that owns it.
ListState ReadListView(HANDLE process, HWND list);

bool IsListView(HWND list);
bool HasBoxes(HWND list_view);
bool IsChecked(HWND list_view, int position);

// The entries in the list of a combo box.
std::vector<Text> ComboItems(HWND combo_box);

}  // namespace orvik::robot
