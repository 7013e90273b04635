#include "duplicates/frm_input_box.h"

#include "forms/instance.h"

namespace orvik {

frmInputBox::frmInputBox() : Form("frmInputBox", u"Вопрос", 6540, 1065) {
  btAnswer.on_click = [this] {
    mdlMain::InputAnswer = txAnswer.text();
    Unload();
  };
}

void frmInputBox::OnLoad() {
  SetCaption(mdlMain::InputQuestion);
  txAnswer.SetText(mdlMain::InputDefault);
  ShowModal();
}

namespace mdlMain {

Text InputQuestion;
Text InputDefault;
Text InputAnswer;

Text AskInput(const Text& question, const Text& initial) {
  InputQuestion = question;
  InputDefault = initial;
  forms::The<frmInputBox>().Load();
  return InputAnswer;
}

}  // namespace mdlMain

}  // namespace orvik
