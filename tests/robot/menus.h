// Pop-up menus of the program.
#pragma once

#include <string>
#include <vector>

#include "robot/messenger.h"
#include "robot/record.h"

namespace orvik::robot {

class Menus {
 public:
  Menus(Messenger& messenger, Record& record) : messenger_(messenger), record_(record) {}

  // Writes a menu that has opened since the last look. True when one has.
  bool Look(const std::vector<HWND>& forms);
  // The user wants nothing of the menu that is open. False when none is.
  bool Dismiss() const;
  // Chooses an item by the keyboard where its menu is open, else as if it were. Throws Refused when
  // the form has no such item.
  void Choose(HWND form, const std::string& item);

 private:
  Messenger& messenger_;
  Record& record_;
  HWND open_on_ = nullptr;
};

}  // namespace orvik::robot
