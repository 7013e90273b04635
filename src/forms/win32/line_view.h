// A decorative line.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

// Level and upright lines only: no form has others.
class LineView : public ControlView {
 public:
  LineView(Line& line, FormWindow& form);

 protected:
  RECT Area() const override;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  void Paint() const;

  const Line& line_;
};

}  // namespace orvik::forms::win32
