// A list box, with or without several entries to select.
#pragma once

#include <vector>

#include "forms/list_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

// Shown by a list view of one column that asks the model for the rows in sight, so that any number
// of entries is there at once.
class ListBoxView : public ControlView {
 public:
  ListBoxView(ListBox& list, FormWindow& form);
  void Changed(Change change) override;
  void Place() override;
  void Refresh(Changes changes) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;
  bool TakesFocus() const override { return true; }

 protected:
  // `extended_styles` come on top of those of every list; `beside` is the width that a row needs
  // beside its text, in pixels at 96 dots to the inch.
  ListBoxView(ListBox& list, FormWindow& form, DWORD extended_styles, int beside);
  ListBox& list() const { return list_; }
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  // Fills in what the window asks for about a row that there is.
  virtual void Tell(LVITEMW& item) const;
  // What lies at a point of the window.
  LVHITTESTINFO HitTest(POINT at) const;
  // The entry that takes a press at this place; -1 for none.
  virtual int EntryAt(const LVHITTESTINFO& hit) const;
  // The row that keys work on, -1 for none.
  int FocusedRow() const;

 private:
  void NoteLength(const Text& item);
  void ShowCount();
  void FitColumn();
  std::vector<int> Selection() const;
  void SetState(int row, UINT state, UINT mask) const;
  void ShowSelection();
  void OnSelection();
  void OnClick(const NMITEMACTIVATE& click);
  void OnButton(bool down, Mouse mouse, POINT at);
  void OnPress(int entry, Mouse mouse);

  // How much of the present press of a mouse button the model knows.
  enum class Told { kNothing, kDown, kUp };

  ListBox& list_;
  const int beside_;
  Text longest_;
  Told told_ = Told::kNothing;
};

}  // namespace orvik::forms::win32
