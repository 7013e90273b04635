// A progress bar, shown on the task bar's button too.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

class ProgressBarView : public ControlView {
 public:
  ProgressBarView(ProgressBar& bar, FormWindow& form);
  void Refresh(Changes changes) override;

 private:
  void ShowValue();

  const ProgressBar& bar_;
};

}  // namespace orvik::forms::win32
