// A push button.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

class ButtonView : public ControlView {
 public:
  ButtonView(Button& button, FormWindow& form);
  void Refresh(Changes changes) override;
  void OnCommand(WORD code) override;
  void OnFocus(bool here) override;
  bool TakesFocus() const override { return true; }
  bool PressEnter() override;
  bool LetsArrowsGo() const override { return true; }

 private:
  const Button& button_;
};

}  // namespace orvik::forms::win32
