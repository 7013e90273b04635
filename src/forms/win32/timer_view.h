// A timer of the system behind a timer of a form.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/adapter.h"

namespace orvik::forms::win32 {

// The form's window gets the messages under the control's id.
class TimerView : public Adapter {
 public:
  TimerView(Timer& timer, FormWindow& form);
  void Refresh(Changes changes) override;

 private:
  const Timer& timer_;
};

}  // namespace orvik::forms::win32
