// The bar with one text at the lower edge of a form.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

class StatusBarView : public ControlView {
 public:
  StatusBarView(StatusBar& bar, FormWindow& form);
  void Refresh(Changes changes) override;

 protected:
  RECT Area() const override;

 private:
  void ShowText();

  const StatusBar& bar_;
};

}  // namespace orvik::forms::win32
