// A check box. The model alone decides about the check mark.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

class CheckBoxView : public ControlView {
 public:
  CheckBoxView(CheckBox& box, FormWindow& form);
  void Refresh(Changes changes) override;
  void OnCommand(WORD code) override;
  bool TakesFocus() const override { return true; }
  bool LetsArrowsGo() const override { return true; }

 private:
  const CheckBox& box_;
};

}  // namespace orvik::forms::win32
