// A pair of arrows.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

// By keyboard the arrow keys press the arrows.
class UpDownView : public ControlView {
 public:
  UpDownView(UpDown& arrows, FormWindow& form);
  std::optional<LRESULT> OnNotify(NMHDR& header) override;
  void OnFocus(bool here) override;
  bool TakesFocus() const override { return true; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  void Press(bool up);

  UpDown& arrows_;
};

}  // namespace orvik::forms::win32
