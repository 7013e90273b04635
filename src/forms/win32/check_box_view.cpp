#include "forms/win32/check_box_view.h"

namespace orvik::forms::win32 {

CheckBoxView::CheckBoxView(CheckBox& box, FormWindow& form) : ControlView(box, form), box_(box) {
  // Not the automatic kind: a click handler may change the mark once more.
  Create(WC_BUTTONW, box.caption(), WS_TABSTOP | BS_CHECKBOX | BS_MULTILINE);
  Refresh(Bit(Property::kValue));
}

void CheckBoxView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & Bit(Property::kCaption)) != 0) SetWindowTextW(window(), Wide(box_.caption()));
  if ((changes & Bit(Property::kValue)) != 0) {
    Send(BM_SETCHECK, box_.checked() ? BST_CHECKED : BST_UNCHECKED);
  }
}

void CheckBoxView::OnCommand(WORD code) {
  if (code == BN_CLICKED) Deliver([&] { control().UserClick(); });
}

}  // namespace orvik::forms::win32
