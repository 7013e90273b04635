// Answers the forms that the program shows modally.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/headless/answers.h"
#include "robot/messenger.h"
#include "robot/record.h"

namespace orvik::robot {

class ModalForms {
 public:
  ModalForms(Messenger& messenger, Record& record, forms::headless::Answers& answers)
      : messenger_(messenger), record_(record), answers_(answers) {}

  // Looks at the forms on the screen: types the answer that is queued into a new modal one and
  // presses its button; writes what became of it when it has gone. True while one is there.
  bool Look(const std::vector<HWND>& forms);

 private:
  struct Answered {
    HWND window;
    std::string form;
    Text caption;
    Text text;
    std::optional<Text> answer;
  };

  void Answer(HWND form);
  void Write(const Answered& form);

  Messenger& messenger_;
  Record& record_;
  forms::headless::Answers& answers_;
  std::vector<HWND> seen_;
  std::vector<Answered> answered_;
};

}  // namespace orvik::robot
