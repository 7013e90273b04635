// A label as a static text. One that does something when clicked does so by keyboard too.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

class LabelView : public ControlView {
 public:
  LabelView(Label& label, FormWindow& form);
  ~LabelView() override;
  void Rescale() override;
  HBRUSH OnColor(HDC context) override;
  void Refresh(Changes changes) override;
  void OnCommand(WORD code) override;
  void OnFocus(bool here) override;
  bool TakesFocus() const override;
  bool PressEnter() override;
  bool LetsArrowsGo() const override { return true; }

 protected:
  RECT Area() const override;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  // Sets the font of a label in a style of its own, smaller where the caption needs it.
  void ShowFont();

  const Label& label_;
  HFONT font_ = nullptr;
};

}  // namespace orvik::forms::win32
