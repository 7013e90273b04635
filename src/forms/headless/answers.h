// What the script has said that the user will answer.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "forms/headless/script.h"

namespace orvik::forms::headless {

class Answers {
 public:
  // Takes a line that is an answer.
  void Queue(const ScriptLine& line);

  // The next answer to each kind of question, with what is taken where nothing is queued.
  // A queued answer without a button in the box isn't given: `refuse` hears of its line, and the
  // default answer stands.
  Answer ToMessage(Buttons buttons, const std::function<void(int line)>& refuse);
  // Nothing: cancel. For forms the default is to press the button on the text as it stands, which
  // `queued` tells apart.
  struct TextAnswer {
    bool queued = false;
    std::optional<Text> text;
  };
  TextAnswer ToText(Question question);
  bool ToRecycle();

 private:
  struct QueuedMessage {
    Answer answer;
    int line;
  };
  std::deque<QueuedMessage> messages_;
  std::deque<std::optional<Text>> texts_[4];  // by question
  std::deque<bool> recycle_;
};

}  // namespace orvik::forms::headless
