// What stands between a control's model and the system.
#pragma once

#include "forms/control.h"
#include "forms/win32/refresher.h"

namespace orvik::forms::win32 {

class FormWindow;

// The view of a control of any kind, with or without a window.
class Adapter : public View, public Shown {
 public:
  Adapter(Control& control, FormWindow& form) : control_(control), form_(form) {}
  ~Adapter() override;
  Adapter(const Adapter&) = delete;
  Adapter& operator=(const Adapter&) = delete;

  Control& control() const { return control_; }
  FormWindow& form() const { return form_; }

  // Takes note of a change; it is shown with the next flush.
  virtual void Changed(Change change);
  // True for what a user works at by keyboard.
  virtual bool TakesFocus() const { return false; }

 private:
  Control& control_;
  FormWindow& form_;
};

}  // namespace orvik::forms::win32
