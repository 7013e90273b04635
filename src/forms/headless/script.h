// The events that a script plays.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/text.h"
#include "forms/events.h"
#include "forms/front_end.h"

namespace orvik::forms::headless {

// A control of a form by its name; the form itself where the control's name is empty.
struct Target {
  std::string form;
  std::string control;
};

// Answers that wait for their question.
enum class Question { kInput, kFolder, kFile, kForm };
struct AnswerMessage {
  Answer answer;
};
struct AnswerText {
  Question question;
  std::optional<Text> text;  // nothing: cancel
};
struct AnswerRecycle {
  bool yes;
};

// The user's doings. Positions are the control's own.
struct Click {
  Target target;
  std::optional<int> position;
};
struct DoubleClick {
  Target target;
  std::optional<int> position;
};
struct Check {
  Target target;
  std::optional<int> position;
  bool on;
};
struct Type {
  Target target;
  Text text;
};
struct Select {
  Target target;
  std::vector<int> positions;
};
struct MouseButton {
  Target target;
  bool down;
  Mouse mouse;
  std::optional<int> position;
};
struct KeyStroke {
  Target target;
  Key key;
};
struct Arrow {
  Target target;
  bool up;
};
struct ChooseMenu {
  Target target;
};
struct Resize {
  Target target;
  int width, height;
};
struct Close {
  Target target;
};

// What happens beside the forms.
struct Wait {
  std::int64_t milliseconds;
};
struct RunCommand {
  Text command;
};
struct ShowRegistry {
  Text key;
};
struct Dump {
  Target target;  // with an empty name: all forms
};

using Event = std::variant<AnswerMessage, AnswerText, AnswerRecycle, Click, DoubleClick, Check,
                           Type, Select, MouseButton, KeyStroke, Arrow, ChooseMenu, Resize, Close,
                           Wait, RunCommand, ShowRegistry, Dump>;

bool IsAnswer(const Event& event);

struct ScriptLine {
  int number = 0;  // in the file, from 1
  int during = 0;  // in which yield of the line to come; 0: in its turn
  Event event;
};
using Script = std::vector<ScriptLine>;

// Reads a script. Nothing when a line is bad; `reason` then says which and why.
std::optional<Script> ParseScript(std::string_view utf8, std::string& reason);

}  // namespace orvik::forms::headless
