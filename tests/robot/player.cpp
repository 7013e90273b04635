#include "robot/player.h"

#include <algorithm>

#include "robot/controls.h"
#include "robot/dump.h"
#include "robot/registry.h"

namespace orvik::robot {

namespace {

namespace script = forms::headless;

template <typename... Handlers>
struct Overloaded : Handlers... {
  using Handlers::operator()...;
};

}  // namespace

void Player::Play(const script::Script& lines) {
  auto line = lines.begin();
  for (; line != lines.end() && line->during == 0 && IsAnswer(line->event); ++line) {
    stage_.answers().Queue(*line);
  }
  bool alive = stage_.Settle();
  for (; alive && line != lines.end(); ++line) alive = PlayLine(*line);
  stage_.record().Finish(alive ? Record::Reason::kScript : Record::Reason::kEnded);
}

bool Player::PlayLine(const script::ScriptLine& line) {
  if (IsAnswer(line.event)) {
    stage_.answers().Queue(line);
    return true;
  }
  if (const auto* wait = std::get_if<script::Wait>(&line.event)) {
    return stage_.Watch(static_cast<int>(wait->milliseconds)) && stage_.Settle();
  }
  // Whoever does anything but choose closes the menu first.
  const bool chooses = std::holds_alternative<script::ChooseMenu>(line.event);
  if (!chooses && stage_.menus().Dismiss() && !stage_.Settle()) return false;
  try {
    if (line.during != 0) throw Refused{"the robot can't reach into a job"};
    Do(line.event);
  } catch (const Refused& refused) {
    stage_.record().Error(line.number, refused.reason);
  }
  return stage_.Settle();
}

void Player::Do(const script::Event& event) {
  std::visit(Overloaded{
                 [&](const script::RunCommand& command) {
                   if (!stage_.RunCommand(command.command)) {
                     throw Refused{"the command interpreter didn't start"};
                   }
                 },
                 [&](const script::ShowRegistry& shown) {
                   const auto key = script::ReadKeyPath(shown.key);
                   if (!key) throw Refused{"no such root of the registry"};
                   auto& json = stage_.record().Begin("registry");
                   json.Name("key").String(TextView(shown.key));
                   WriteRegistryKey(json.Name("values"), *key);
                   stage_.record().End();
                 },
                 [&](const script::Dump& dump) { Show(dump); },
                 // Taken before it comes here.
                 [](const script::Wait&) {},
                 [](const script::AnswerMessage&) {},
                 [](const script::AnswerText&) {},
                 [](const script::AnswerRecycle&) {},
                 [&](const auto& doing) { hands_.Do(doing); },
             },
             event);
}

void Player::Show(const script::Dump& event) {
  const std::string& name = event.target.form;
  const std::vector<HWND> forms = stage_.forms().Loaded();
  if (!name.empty() && std::none_of(forms.begin(), forms.end(),
                                    [&](HWND form) { return FormNameOf(form) == name; })) {
    throw Refused{"no form " + name};
  }
  for (HWND form : forms) {
    if (!name.empty() && FormNameOf(form) != name) continue;
    WriteForm(stage_.record().Begin("dump"), stage_.program().process(), form);
    stage_.record().End();
  }
}

}  // namespace orvik::robot
