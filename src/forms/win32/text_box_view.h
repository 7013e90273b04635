// A field of one line.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

class TextBoxView : public ControlView {
 public:
  TextBoxView(TextBox& box, FormWindow& form);
  void Refresh(Changes changes) override;
  void OnCommand(WORD code) override;
  void OnFocus(bool here) override;
  bool TakesFocus() const override { return true; }

 private:
  TextBox& box_;
};

}  // namespace orvik::forms::win32
