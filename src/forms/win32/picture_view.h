// A picture that is pressed like a button.
#pragma once

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

// A real button with an icon: it takes the keyboard, and screen readers speak its hint.
class PictureView : public ControlView {
 public:
  PictureView(Picture& picture, FormWindow& form);
  ~PictureView() override;
  void Rescale() override;
  void OnCommand(WORD code) override;
  void OnDraw(const DRAWITEMSTRUCT& draw) override;
  bool TakesFocus() const override { return true; }
  bool PressEnter() override;
  bool LetsArrowsGo() const override { return true; }

 private:
  void ShowIcon();

  const Picture& picture_;
  HICON icon_ = nullptr;
};

}  // namespace orvik::forms::win32
