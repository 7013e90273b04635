// A front end for unit tests: it records what the user would have seen and answers from queues.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/front_end.h"
#include "unit/support/fake_host.h"

namespace orvik::test {

// How EndProcess leaves: a test calls its program through Ending.
struct ProcessEnded {
  forms::EndReason reason;
};

// Installs itself; forgets all forms when it goes.
class TestFrontEnd : public forms::FrontEnd {
 public:
  // With a system given, waits move its ticks.
  explicit TestFrontEnd(FakeSystem* system = nullptr);
  ~TestFrontEnd() override;

  // What happened, in order: "show frmX", "unload frmX", "message T|title|icon|buttons",
  // "input prompt|title", "browse title", "open filter", "save filter", "clipboard text",
  // "wait 1000", "modal frmX", "popup mnX", "drag frmX".
  std::vector<std::string> events;
  // Changes of the forms and controls of loaded forms: "frmX.caption text", "frmX.cb.add text".
  // Only those that a test is likely to ask for; see Describe.
  std::vector<std::string> changes;
  int yields = 0;
  int repaints = 0;

  // Answers; the default is ok, or no, and cancel for all the rest.
  std::deque<forms::Answer> message_answers;
  std::deque<Text> input_answers;
  std::deque<std::optional<Text>> folder_answers;
  std::deque<std::optional<Text>> file_answers;
  // What the user does to a form that is shown modally; the form is closed behind it.
  std::function<void(forms::Form&)> on_modal;
  std::vector<forms::DrawnLine> drawn;
  forms::TwipsPerPixel scale;
  // Runs inside each yield, with its number from 1.
  std::function<void(int)> on_yield;

  void Load(forms::Form& form) override;
  void Show(forms::Form& form) override;
  void ShowModal(forms::Form& form) override;
  void PopUp(forms::Menu& menu) override;
  void Draw(forms::Form& form, const forms::DrawnLine& line) override;
  void Unload(forms::Form& form) override;
  void Unloaded(forms::Form& form) override;
  void Changed(forms::Form& form, forms::Change change) override;
  void Changed(forms::Control& control, forms::Change change) override;
  void Repaint(forms::Control& control) override;
  void Yield() override;
  bool WaitForInput(std::int32_t milliseconds) override;
  void Run() override {}
  [[noreturn]] void EndProcess(forms::EndReason reason) override;
  forms::Answer Message(const Text& text, const Text& title, forms::Icon icon,
                        forms::Buttons buttons) override;
  Text AskText(const Text& prompt, const Text& title) override;
  std::optional<Text> AskFolder(const Text& title, forms::Form* owner) override;
  std::optional<Text> AskFileName(forms::FileDialog dialog, const Text& filter,
                                  forms::Form* owner) override;
  void PutOnClipboard(const Text& text) override;
  void Drag(forms::Form& form) override;
  forms::TwipsPerPixel Scale() override { return scale; }

 private:
  FakeSystem* system_;
};

// Runs a program to its end: the reason when it ended the process, nothing when it returned.
std::optional<forms::EndReason> Ending(const std::function<void()>& program);

}  // namespace orvik::test
