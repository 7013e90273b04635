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
    session_.answers().Queue(*line);
  }
  bool alive = session_.Settle();
  for (; alive && line != lines.end(); ++line) alive = PlayLine(*line);
  session_.record().Finish(alive ? Record::Reason::kScript : Record::Reason::kEnded);
}

bool Player::PlayLine(const script::ScriptLine& line) {
  if (IsAnswer(line.event)) {
    session_.answers().Queue(line);
    return true;
  }
  if (const auto* wait = std::get_if<script::Wait>(&line.event)) {
    return session_.Watch(static_cast<int>(wait->milliseconds)) && session_.Settle();
  }
  try {
    if (line.during != 0) throw Refused{"the robot can't reach into a job"};
    Do(line.event);
  } catch (const Refused& refused) {
    session_.record().Error(line.number, refused.reason);
  }
  return session_.Settle();
}

void Player::Do(const script::Event& event) {
  std::visit(Overloaded{
                 [&](const script::RunCommand& command) {
                   if (!session_.RunCommand(command.command)) {
                     throw Refused{"the command interpreter didn't start"};
                   }
                 },
                 [&](const script::ShowRegistry& shown) {
                   const auto key = script::ReadKeyPath(shown.key);
                   if (!key) throw Refused{"no such root of the registry"};
                   auto& json = session_.record().Begin("registry");
                   json.Name("key").String(TextView(shown.key));
                   WriteRegistryKey(json.Name("values"), *key);
                   session_.record().End();
                 },
                 [&](const script::Dump& dump) { Show(dump); },
                 [](const script::ChooseMenu&) { throw Refused{"no menus yet"}; },
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
  const std::vector<HWND> forms = session_.forms().Loaded();
  if (!name.empty() && std::none_of(forms.begin(), forms.end(),
                                    [&](HWND form) { return FormNameOf(form) == name; })) {
    throw Refused{"no form " + name};
  }
  for (HWND form : forms) {
    if (!name.empty() && FormNameOf(form) != name) continue;
    WriteForm(session_.record().Begin("dump"), session_.program().process(), form);
    session_.record().End();
  }
}

}  // namespace orvik::robot
