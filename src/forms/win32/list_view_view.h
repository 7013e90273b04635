// A report of rows with columns.
#pragma once

#include <vector>

#include "forms/list_view.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

// The window holds no rows: it asks for those in sight, so 300,000 of them are there at once and
// cost nothing to scroll.
class ListViewView : public ControlView {
 public:
  ListViewView(ListView& list, FormWindow& form);
  void Changed(Change change) override;
  void Rescale() override;
  void Refresh(Changes changes) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;
  bool TakesFocus() const override { return true; }

 protected:
  RECT Area() const override;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  // A span of rows, positions from 1.
  struct Rows {
    int first = 0;
    int last = 0;
  };

  void ShowColumns();
  void ShowCount();
  void ShowSelection();
  void SetRowState(int item, bool selected) const;
  void Redraw();
  void Tell(NMLVDISPINFOW& asked) const;
  LRESULT Color(NMLVCUSTOMDRAW& draw) const;
  LRESULT Search(const NMLVFINDITEMW& wanted) const;
  void OnClick(const NMITEMACTIVATE& click);
  void OnSelection();
  std::vector<int> Selection() const;

  ListView& list_;
  // The columns as they were last laid out, so that only a change by the program undoes a width
  // that the user has dragged.
  std::vector<int> shown_widths_;
  // The rows that look other than they did.
  Rows stale_;
};

}  // namespace orvik::forms::win32
