// Plays a script.
#pragma once

#include "forms/headless/script.h"
#include "robot/hands.h"
#include "robot/stage.h"

namespace orvik::robot {

class Player {
 public:
  explicit Player(Stage& stage) : stage_(stage), hands_(stage) {}

  // Plays the lines one by one, from the time when the program waits for its user, and writes the
  // end. Throws Hung.
  void Play(const forms::headless::Script& script);

 private:
  // False when the program has ended.
  bool PlayLine(const forms::headless::ScriptLine& line);
  void Do(const forms::headless::Event& event);
  void Show(const forms::headless::Dump& event);

  Stage& stage_;
  Hands hands_;
};

}  // namespace orvik::robot
