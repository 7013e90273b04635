// The small form that asks for a text.
#pragma once

#include "forms/form.h"
#include "forms/simple_controls.h"

namespace orvik {

// Shows itself modally from within its own load, so that whoever loads it goes on when it has gone.
class frmInputBox : public forms::Form {
 public:
  frmInputBox();

  forms::TextBox txAnswer{*this, "txAnswer", {120, 150, 5190, 345}, u""};
  // Not the form's default button: Enter in the text doesn't press it.
  forms::Button btAnswer{*this, "btAnswer", {5430, 120, 900, 405}, u"Ok"};

 protected:
  void OnLoad() override;
};

}  // namespace orvik

namespace orvik::mdlMain {

// What goes to the form and comes back from it: its caption, the first text, the last text taken.
extern Text InputQuestion;
extern Text InputDefault;
extern Text InputAnswer;

// Asks by the form. There is no cancel: a form that is closed leaves the answer as the last one of
// this process was, empty before any.
Text AskInput(const Text& question, const Text& initial);

}  // namespace orvik::mdlMain
