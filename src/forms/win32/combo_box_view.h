// A field with a list to drop down.
#pragma once

#include "forms/list_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

class ComboBoxView : public ControlView {
 public:
  ComboBoxView(ComboBox& box, FormWindow& form);
  void Place() override;
  void Rescale() override;
  void Refresh(Changes changes) override;
  void OnCommand(WORD code) override;
  bool TakesFocus() const override { return true; }
  bool NeedsEnter() const override;

 protected:
  RECT Area() const override;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  void FitHeight();
  void ShowItems(bool only_added);
  void ShowIndex();
  void ShowText();
  bool RefusesInput(UINT message, WPARAM wparam) const;
  static LRESULT CALLBACK FieldProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam,
                                         UINT_PTR id, DWORD_PTR view) noexcept;

  ComboBox& box_;
  HWND field_ = nullptr;
  HWND list_ = nullptr;
  // Entries in the window.
  int shown_ = 0;
  // Messages that the box is at work on.
  int busy_ = 0;
};

}  // namespace orvik::forms::win32
