// What shows the forms and asks the user: real windows, or a script.
#pragma once

#include <cstdint>
#include <optional>

#include "base/text.h"
#include "forms/change.h"

namespace orvik::forms {

class Control;
class Form;
class Menu;
struct DrawnLine;

enum class Icon { kNone, kInformation, kQuestion, kCritical };
enum class Buttons { kOk, kOkCancel, kYesNo };
enum class Answer { kOk, kCancel, kYes, kNo };
enum class FileDialog { kOpen, kSave };

// How many twips a pixel of the screen has, in each direction.
struct TwipsPerPixel {
  double horizontal = 15;
  double vertical = 15;
};

// Why the process ends.
enum class EndReason {
  kShutdown,  // the program ended itself
  kClosed,    // the last form is gone
};

// Forms and controls call the upper half by themselves; the program's logic calls the lower half.
class FrontEnd {
 public:
  virtual ~FrontEnd() = default;

  // A form comes to be, invisible, with all its controls, before its load routine runs.
  virtual void Load(Form& form) = 0;
  // The form is to be seen from now on.
  virtual void Show(Form& form) = 0;
  // The same, and the form alone answers until it has gone.
  virtual void ShowModal(Form& form) = 0;
  // Opens a menu at the mouse. The item that the user chooses is clicked, before this returns or
  // afterwards.
  virtual void PopUp(Menu& menu) = 0;
  // Draws on a form's own surface, where it stays across repaints. Of loaded forms only.
  virtual void Draw(Form& form, const DrawnLine& line) = 0;
  // The form goes, before its unload routine runs. Its views must not outlive Unloaded.
  virtual void Unload(Form& form) = 0;
  // The unload routine has run. When no form is left the process ends, whatever is running.
  virtual void Unloaded(Form& form) = 0;
  // Something of a form, or of its control, is another than before. Only of loaded forms.
  virtual void Changed(Form& form, Change change) = 0;
  virtual void Changed(Control& control, Change change) = 0;
  // The control's present state must be on the screen when this returns.
  virtual void Repaint(Control& control) = 0;

  // One pass of the message loop: timers and what the user did meanwhile run inside it.
  virtual void Yield() = 0;
  // Waits until there is input or the time is over (-1: no end). True when there is input.
  virtual bool WaitForInput(std::int32_t milliseconds) = 0;
  // Runs the message loop until no form is open.
  virtual void Run() = 0;
  // Ends the process at once, also with forms open. Never returns; a front end of tests leaves by
  // an exception that isn't a Failure.
  [[noreturn]] virtual void EndProcess(EndReason reason) = 0;

  virtual Answer Message(const Text& text, const Text& title, Icon icon, Buttons buttons) = 0;
  // Empty on cancel.
  virtual Text AskText(const Text& prompt, const Text& title) = 0;
  // Nothing on cancel.
  virtual std::optional<Text> AskFolder(const Text& title, Form* owner) = 0;
  // `filter` as "description|mask|description|mask". Nothing on cancel.
  virtual std::optional<Text> AskFileName(FileDialog dialog, const Text& filter, Form* owner) = 0;
  virtual void PutOnClipboard(const Text& text) = 0;

  // Hands a mouse button that was pressed on a form over to the system, as if it had hit a title
  // bar: the form follows the mouse until the button is released.
  virtual void Drag(Form& form) = 0;
  virtual TwipsPerPixel Scale() = 0;
};

// The front end in place. One is installed at the start of a program and for each test.
FrontEnd& Front();
void Install(FrontEnd& front_end);

// One pass of the message loop.
inline void Yield() { Front().Yield(); }

}  // namespace orvik::forms
