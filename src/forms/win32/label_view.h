// A label as a static text.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

class LabelView : public ControlView {
 public:
  LabelView(Label& label, FormWindow& form);
  void Refresh(Changes changes) override;
  void OnCommand(WORD code) override;

 protected:
  RECT Area() const override;

 private:
  const Label& label_;
};

}  // namespace orvik::forms::win32
