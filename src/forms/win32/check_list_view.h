// A list with a check box at each entry.
#pragma once

#include "forms/list_controls.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

// The window holds no entries: it asks for those in sight, so a list of 100,000 is there at once.
class CheckListView : public ControlView {
 public:
  CheckListView(ListBox& list, FormWindow& form);
  void Changed(Change change) override;
  void Place() override;
  void Refresh(Changes changes) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;
  bool TakesFocus() const override { return true; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  void ShowCount();
  void ShowSelection();
  void NoteLength(const Text& item);
  void FitColumn();
  void Tell(NMLVDISPINFOW& asked) const;
  void Check(int position, bool checked);
  void OnSpace();
  void OnClick(const NMITEMACTIVATE& click);
  void OnSelection();
  std::vector<int> Selection() const;

  ListBox& list_;
  Text longest_;
};

}  // namespace orvik::forms::win32
