// A decorative line.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

// Level and upright lines only: no form has others.
class LineView : public ControlView {
 public:
  LineView(Line& line, FormWindow& form);

  void OnDraw(const DRAWITEMSTRUCT& draw) override;

 protected:
  RECT Area() const override;

 private:
  const Line& line_;
};

}  // namespace orvik::forms::win32
