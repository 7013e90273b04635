// A list box with a check box at each entry.
#pragma once

#include "forms/win32/list_box_view.h"

namespace orvik::forms::win32 {

class CheckListView : public ListBoxView {
 public:
  CheckListView(ListBox& list, FormWindow& form);
  std::optional<LRESULT> OnNotify(NMHDR& header) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void Tell(LVITEMW& item) const override;
  int EntryAt(const LVHITTESTINFO& hit) const override;

 private:
  void OnSpace();
  void Check(int position, bool checked);
};

}  // namespace orvik::forms::win32
