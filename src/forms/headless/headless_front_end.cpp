#include "forms/headless/headless_front_end.h"

#include <algorithm>

#include "base/failure.h"
#include "forms/form.h"
#include "forms/headless/dump.h"
#include "forms/headless/native.h"
#include "forms/headless/run_end.h"
#include "forms/headless/surface.h"
#include "forms/headless/user.h"
#include "forms/headless/values.h"
#include "host/host.h"

namespace orvik::forms::headless {

HeadlessFrontEnd::HeadlessFrontEnd(const Script& script, Answers& answers, Clock& clock,
                                   Transcript& transcript, Tracing tracing)
    : script_(script),
      answers_(answers),
      clock_(clock),
      transcript_(transcript),
      tracer_(transcript),
      tracing_(tracing) {
  TakeAhead();
}

// Forms.

void HeadlessFrontEnd::Load(Form& form) {
  tracer_.Load(form);
  for (Control* control : form.controls()) {
    if (control->kind() == Kind::kTimer)
      timers_.Follow(static_cast<Timer&>(*control), clock_.Now());
  }
}

void HeadlessFrontEnd::Show(Form& form) {
  transcript_.Begin("show").Name("form").String(form.name());
  transcript_.End();
}

void HeadlessFrontEnd::Draw(Form& form, const DrawnLine& line) { Surface::Draw(form, line); }

void HeadlessFrontEnd::Unload(Form& form) {
  if (!form.visible()) return;
  transcript_.Begin("unload").Name("form").String(form.name());
  transcript_.End();
}

void HeadlessFrontEnd::Unloaded(Form& form) {
  timers_.Forget(form);
  if (LoadedForms().empty()) EndProcess(EndReason::kClosed);
}

void HeadlessFrontEnd::Changed(Form& form, Change change) {
  if (tracing_ == Tracing::kOn) tracer_.Changed(form, change);
}

void HeadlessFrontEnd::Changed(Control& control, Change change) {
  if (change.property == Property::kActive || change.property == Property::kInterval) {
    timers_.Follow(static_cast<Timer&>(control), clock_.Now());
  }
  if (tracing_ == Tracing::kOn) tracer_.Changed(control, change);
}

// The message loop.

bool HeadlessFrontEnd::IsPending(int yield) const {
  return std::any_of(pending_.begin(), pending_.end(),
                     [&](const ScriptLine* line) { return line->during == yield; });
}

void HeadlessFrontEnd::FireTimers() {
  timers_.FireDue(clock_.Now(), [](Timer& timer) { Attempt([&] { timer.Fire(); }); });
}

void HeadlessFrontEnd::Yield() {
  clock_.Check();
  const int yield = ++yields_;
  while (IsPending(yield)) {
    const auto due = std::find_if(pending_.begin(), pending_.end(),
                                  [&](const ScriptLine* line) { return line->during == yield; });
    const ScriptLine& line = **due;
    pending_.erase(due);
    Play(line);
  }
  FireTimers();
}

bool HeadlessFrontEnd::WaitForInput(std::int32_t milliseconds) {
  transcript_.Flush();
  clock_.Check();
  // What the next yield will play is input that is there already.
  if (IsPending(yields_ + 1)) return true;
  const auto timer = timers_.NextDue();
  if (milliseconds < 0 && !timer) {
    // Nothing will ever come: the user is done.
    clock_.AdvanceToLimit();
    throw RunEnded{RunEnd::kScript};
  }
  const std::int64_t end = milliseconds < 0 ? *timer : clock_.Now() + milliseconds;
  clock_.AdvanceTo(timer ? std::min(end, *timer) : end);
  return timer && *timer <= clock_.Now();
}

void HeadlessFrontEnd::EndProcess(EndReason reason) {
  throw RunEnded{reason == EndReason::kClosed ? RunEnd::kClosed : RunEnd::kShutdown};
}

// The script.

void HeadlessFrontEnd::TakeAhead() {
  for (; next_ < script_.size(); ++next_) {
    const ScriptLine& line = script_[next_];
    if (line.during > 0) {
      pending_.push_back(&line);
    } else if (IsAnswer(line.event)) {
      answers_.Queue(line);
    } else {
      return;
    }
  }
}

void HeadlessFrontEnd::Run() {
  if (LoadedForms().empty()) {
    FinishPending();
    throw RunEnded{RunEnd::kReturned};
  }
  // What waits for a yield that the start of the program didn't have is left for the first line.
  FireTimers();
  while (next_ < script_.size()) {
    // Answers need no yield: events for later yields wait for the line behind them.
    TakeAhead();
    if (next_ < script_.size()) PlayInTurn(script_[next_++]);
  }
  FinishPending();
  throw RunEnded{RunEnd::kScript};
}

void HeadlessFrontEnd::PlayInTurn(const ScriptLine& line) {
  clock_.Check();
  yields_ = 0;
  Play(line);
  FinishPending();
  FireTimers();
  transcript_.Flush();
}

void HeadlessFrontEnd::Play(const ScriptLine& line) {
  std::string why;
  // A statement of a handler that fails ends the handler and nothing else.
  Attempt([&] { why = std::visit([&](const auto& event) { return Carry(event); }, line.event); });
  if (IsAnswer(line.event)) answers_.Queue(line);
  if (!why.empty()) Refuse(line.number, why);
}

void HeadlessFrontEnd::FinishPending() {
  for (const ScriptLine* line : std::exchange(pending_, {})) {
    Refuse(line->number, "yield " + std::to_string(line->during) + " never came");
  }
}

void HeadlessFrontEnd::Refuse(int line, std::string_view why) {
  JsonWriter& json = transcript_.Begin("error");
  json.Name("line").Number(line);
  json.Name("text").String(why);
  transcript_.End();
}

template <typename Doing>
std::string HeadlessFrontEnd::Carry(const Doing& doing) {
  if constexpr (std::is_same_v<Doing, AnswerMessage> || std::is_same_v<Doing, AnswerText> ||
                std::is_same_v<Doing, AnswerRecycle>) {
    return {};
  } else {
    return Do(doing);
  }
}

std::string HeadlessFrontEnd::Carry(const Wait& wait) {
  const std::int64_t end = clock_.Now() + wait.milliseconds;
  for (bool input = true; input;) {
    constexpr std::int64_t kLongest = 0x7FFFFFFF;
    const std::int64_t left = std::max<std::int64_t>(end - clock_.Now(), 0);
    input = WaitForInput(static_cast<std::int32_t>(std::min(left, kLongest))) || left > kLongest;
    Yield();
  }
  return {};
}

std::string HeadlessFrontEnd::Carry(const RunCommand& command) {
  transcript_.Flush();
  return RunInterpreter(command.command) ? "" : "the command interpreter didn't start";
}

std::string HeadlessFrontEnd::Carry(const ShowRegistry& registry) {
  const auto path = ReadKeyPath(registry.key);
  if (!path) return "no such root of the registry";
  const host::Registry::Handle key = host::Keys().OpenKey(path->root, path->path);
  JsonWriter& json = transcript_.Begin("registry");
  json.Name("key").String(TextView(registry.key)).Name("values");
  if (key == 0) {
    json.Null();
  } else {
    json.BeginArray();
    for (std::uint32_t i = 0;; ++i) {
      const auto value = host::Keys().ValueAt(key, i);
      if (!value) break;
      json.BeginArray().String(TextView(value->name)).String(TextView(value->data)).EndArray();
    }
    json.EndArray();
    host::Keys().CloseKey(key);
  }
  transcript_.End();
  return {};
}

std::string HeadlessFrontEnd::Carry(const Dump& dump) {
  const Form* const one = FindForm(dump.target.form);
  if (one == nullptr && !dump.target.form.empty()) return "no form " + dump.target.form;
  for (const Form* form : LoadedForms()) {
    if (one != nullptr && form != one) continue;
    WriteForm(transcript_.Begin("dump"), *form);
    transcript_.End();
  }
  return {};
}

}  // namespace orvik::forms::headless
