// Where the entries of a control are, and how to get at them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "robot/windows_api.h"

namespace orvik::robot {

// A control that a script line names, found on the screen.
struct Found {
  HANDLE process;
  HWND window;
  forms::Kind kind;
  std::string name;  // without its form
};

// How many entries the control has; nothing for a control without entries. Positions here are those
// of scripts: in a list view and a tree they count from 1, in a tree in the order of addition.
std::optional<int> EntryCount(const Found& control);
// Throws Refused when the control has no entry at a position.
void Require(const Found& control, int position);

// The point of the screen at an entry of a list, scrolled into sight: on its text or on its box.
// Throws Refused when there is none.
enum class Spot { kText, kBox };
POINT PointOfEntry(const Found& list, int position, Spot spot = Spot::kText);

// Whether the box of an entry or node is on.
bool IsChecked(const Found& list, int position);

// The state of entries as the keyboard changes it: these are selected, the last one current.
void SelectEntries(const Found& list, const std::vector<int>& positions);

// Opens the list of a combo box and clicks an entry in it.
void ChooseInComboBox(const Found& combo_box, int position);

}  // namespace orvik::robot
