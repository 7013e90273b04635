// Plays the user's doings on the real windows.
#pragma once

#include "forms/headless/script.h"
#include "robot/entries.h"
#include "robot/stage.h"

namespace orvik::robot {

// Each doing is only begun here; Stage::Settle waits for what comes of it. What no user could do
// throws Refused, in the words of the headless program.
class Hands {
 public:
  explicit Hands(Stage& stage) : stage_(stage) {}

  void Do(const forms::headless::Click& event);
  void Do(const forms::headless::DoubleClick& event);
  void Do(const forms::headless::Check& event);
  void Do(const forms::headless::Type& event);
  void Do(const forms::headless::Select& event);
  void Do(const forms::headless::MouseButton& event);
  void Do(const forms::headless::KeyStroke& event);
  void Do(const forms::headless::Arrow& event);
  void Do(const forms::headless::ChooseMenu& event);
  void Do(const forms::headless::Resize& event);
  void Do(const forms::headless::Close& event);

 private:
  HWND Form(const forms::headless::Target& target) const;
  Found Control(const forms::headless::Target& target) const;
  // One click of the left button on a control without entries.
  void ClickControl(const Found& control);
  void ClickEntry(const Found& control, int position);

  Stage& stage_;
};

}  // namespace orvik::robot
