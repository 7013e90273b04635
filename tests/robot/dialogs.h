// Answers the dialogs that the program puts up.
#pragma once

#include <vector>

#include "forms/headless/answers.h"
#include "robot/messenger.h"
#include "robot/program.h"
#include "robot/record.h"

namespace orvik::robot {

class Dialogs {
 public:
  Dialogs(const Program& program, Messenger& messenger, Record& record)
      : program_(program), messenger_(messenger), record_(record) {}

  forms::headless::Answers& answers() { return answers_; }

  // Reads each new dialog on the screen, writes it and presses the answer that is queued for it.
  // True when one is there.
  bool Look();

 private:
  // These are false when the dialog isn't fully drawn yet.
  bool Answer(HWND dialog);
  bool AnswerMessage(HWND box);
  void AnswerRecycling(HWND box);
  bool AnswerInput(HWND dialog);
  bool AnswerFolder(HWND dialog);
  bool AnswerFile(HWND dialog);
  void GoToFolder(HWND dialog, const Text& folder) const;
  void Press(HWND dialog, int button);

  const Program& program_;
  Messenger& messenger_;
  Record& record_;
  forms::headless::Answers answers_;
  // Those that have their answer and will go.
  std::vector<HWND> answered_;
};

}  // namespace orvik::robot
