#include "forms/win32/button_view.h"

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

void ShowAsDefault(HWND window, bool is_default) {
  SendMessageW(window, BM_SETSTYLE, is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
}

}  // namespace

ButtonView::ButtonView(Button& button, FormWindow& form)
    : ControlView(button, form), button_(button) {
  Create(WC_BUTTONW, button.caption(),
         WS_TABSTOP | (button.is_default() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON));
}

void ButtonView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & Bit(Property::kCaption)) != 0) SetWindowTextW(window(), Wide(button_.caption()));
}

void ButtonView::OnCommand(WORD code) {
  if (code == BN_CLICKED) Deliver([&] { control().UserClick(); });
}

bool ButtonView::PressEnter() {
  Deliver([&] { control().UserClick(); });
  return true;
}

void ButtonView::OnFocus(bool here) {
  // Enter presses the button with the focus, so that is the one that must look so.
  ShowAsDefault(window(), here || button_.is_default());
  Control* other = form().DefaultButton();
  if (other == nullptr || other == &control() || other->view() == nullptr) return;
  ShowAsDefault(static_cast<const ControlView&>(*other->view()).window(), !here);
}

}  // namespace orvik::forms::win32
