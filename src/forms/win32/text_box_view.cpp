#include "forms/win32/text_box_view.h"

namespace orvik::forms::win32 {

TextBoxView::TextBoxView(TextBox& box, FormWindow& form) : ControlView(box, form), box_(box) {
  Create(WC_EDITW, box.text(), WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE);
}

void TextBoxView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & Bit(Property::kText)) == 0 || WindowText(window()) == box_.text()) return;
  const Showing showing(*this);
  SetWindowTextW(window(), Wide(box_.text()));
}

void TextBoxView::OnCommand(WORD code) {
  if (code != EN_CHANGE || showing()) return;
  if (!Deliver([&] { box_.UserType(WindowText(window())); })) Refresh(Bit(Property::kText));
}

void TextBoxView::OnFocus(bool here) {
  if (here) Send(EM_SETSEL, 0, -1);
}

}  // namespace orvik::forms::win32
