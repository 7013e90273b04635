// A frame: a container that hides what lies behind it.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

// A frame with a caption is drawn as a group box, one without as a plain surface.
class FrameView : public ControlView {
 public:
  FrameView(Frame& frame, FormWindow& form);
  void Refresh(Changes changes) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  void Paint() const;

  const Frame& frame_;
};

}  // namespace orvik::forms::win32
