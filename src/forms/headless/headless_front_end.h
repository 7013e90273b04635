// The front end that opens no window: a script plays the user, a transcript shows what the user
// would have seen.
#pragma once

#include <vector>

#include "forms/front_end.h"
#include "forms/headless/answers.h"
#include "forms/headless/clock.h"
#include "forms/headless/script.h"
#include "forms/headless/timers.h"
#include "forms/headless/trace.h"
#include "forms/headless/transcript.h"

namespace orvik::forms::headless {

enum class Tracing { kOff, kOn };

// Ends a run by RunEnded, from wherever the program stands.
class HeadlessFrontEnd : public FrontEnd {
 public:
  // Takes the answers and the events for later yields that the script begins with, so that they
  // serve the program while it starts. The references outlive the front end.
  HeadlessFrontEnd(const Script& script, Answers& answers, Clock& clock, Transcript& transcript,
                   Tracing tracing);

  void Load(Form& form) override;
  void Show(Form& form) override;
  void ShowModal(Form& form) override;
  void PopUp(Menu& menu) override;
  void Draw(Form& form, const DrawnLine& line) override;
  void Unload(Form& form) override;
  void Unloaded(Form& form) override;
  void Changed(Form& form, Change change) override;
  void Changed(Control& control, Change change) override;
  void Repaint(Control&) override {}

  void Yield() override;
  bool WaitForInput(std::int32_t milliseconds) override;
  // Plays the script. Leaves by RunEnded at the latest when the script is over.
  void Run() override;
  [[noreturn]] void EndProcess(EndReason reason) override;

  Answer Message(const Text& text, const Text& title, Icon icon, Buttons buttons) override;
  Text AskText(const Text& prompt, const Text& title) override;
  std::optional<Text> AskFolder(const Text& title, Form* owner) override;
  std::optional<Text> AskFileName(FileDialog dialog, const Text& filter, Form* owner) override;
  void PutOnClipboard(const Text& text) override;
  // The mouse of a script stays where it is.
  void Drag(Form&) override {}
  TwipsPerPixel Scale() override { return {}; }

 private:
  void TakeAhead();
  void PlayInTurn(const ScriptLine& line);
  void Play(const ScriptLine& line);
  void FinishPending();
  void FireTimers();
  bool IsPending(int yield) const;
  void Refuse(int line, std::string_view why);

  // One event; the answer is why it couldn't be played, empty when it was.
  template <typename Doing>
  std::string Carry(const Doing& doing);
  std::string Carry(const Wait& wait);
  std::string Carry(const RunCommand& command);
  std::string Carry(const ShowRegistry& registry);
  std::string Carry(const Dump& dump);

  const Script& script_;
  std::size_t next_ = 0;  // the line to come
  Answers& answers_;
  Clock& clock_;
  Transcript& transcript_;
  Tracer tracer_;
  const Tracing tracing_;
  Timers timers_;
  int yields_ = 0;                          // of the line at hand
  std::vector<const ScriptLine*> pending_;  // for yields to come
};

}  // namespace orvik::forms::headless
