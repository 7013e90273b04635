// A plain list box.
#pragma once

#include "forms/list_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

class ListBoxView : public ControlView {
 public:
  ListBoxView(ListBox& list, FormWindow& form);
  void Changed(Change change) override;
  void Refresh(Changes changes) override;
  void OnCommand(WORD code) override;
  bool TakesFocus() const override { return true; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  void ShowItems();
  void ShowSelection();
  std::vector<int> Selection() const;
  void OnSelection();

  ListBox& list_;
  // Entries that the window has as the model has them.
  int shown_ = 0;
  int widest_ = 0;
};

}  // namespace orvik::forms::win32
