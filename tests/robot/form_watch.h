// Which forms of the program are on the screen.
#pragma once

#include <string>
#include <vector>

#include "robot/record.h"
#include "robot/windows_api.h"

namespace orvik::robot {

class FormWatch {
 public:
  FormWatch(DWORD process, Record& record) : process_(process), record_(record) {}

  // Looks at the windows of the process and writes which forms have come and gone since the last
  // look. True when there was something to write.
  bool Look();
  bool any() const { return !forms_.empty(); }
  // The window of a form on the screen; nullptr when it isn't there.
  HWND Find(const std::string& form) const;
  // All of them, in the order in which they came.
  std::vector<HWND> all() const;
  // The same, and then those that are loaded without having been shown.
  std::vector<HWND> Loaded() const;

 private:
  struct Seen {
    std::string name;
    HWND window;
  };

  DWORD process_;
  Record& record_;
  std::vector<Seen> forms_;
};

}  // namespace orvik::robot
