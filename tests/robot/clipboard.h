// What the program puts on the clipboard.
#pragma once

#include "robot/record.h"
#include "robot/windows_api.h"

namespace orvik::robot {

class ClipboardWatch {
 public:
  // `process` is the program's.
  ClipboardWatch(DWORD process, Record& record)
      : process_(process), record_(record), number_(GetClipboardSequenceNumber()) {}

  // Writes the text that the program has put on the clipboard since the last look. True when it
  // has. What others put there is passed over.
  bool Look();

 private:
  DWORD process_;
  Record& record_;
  DWORD number_;
};

}  // namespace orvik::robot
