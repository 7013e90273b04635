// What the program puts on the clipboard.
#pragma once

#include "robot/record.h"
#include "robot/windows_api.h"

namespace orvik::robot {

class ClipboardWatch {
 public:
  explicit ClipboardWatch(Record& record)
      : record_(record), number_(GetClipboardSequenceNumber()) {}

  // Writes the text that has come on the clipboard since the last look. True when one has.
  bool Look();

 private:
  Record& record_;
  DWORD number_;
};

}  // namespace orvik::robot
