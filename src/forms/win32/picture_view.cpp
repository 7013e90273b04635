#include "forms/win32/picture_view.h"

#include "forms/win32/form_window.h"
#include "forms/win32/glyphs.h"

namespace orvik::forms::win32 {

PictureView::PictureView(Picture& picture, FormWindow& form)
    : ControlView(picture, form), picture_(picture) {
  Create(WC_BUTTONW, picture.hint(), WS_TABSTOP | BS_PUSHBUTTON | BS_ICON);
  ShowIcon();
}

PictureView::~PictureView() {
  if (icon_ != nullptr) DestroyIcon(icon_);
}

void PictureView::Rescale() {
  ControlView::Rescale();
  ShowIcon();
}

void PictureView::ShowIcon() {
  const HICON icon = MakeGlyph(picture_.image(), SmallIconSize(form().metrics().dpi()),
                               GetSysColor(COLOR_BTNTEXT));
  Send(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
  if (icon_ != nullptr) DestroyIcon(icon_);
  icon_ = icon;
}

void PictureView::OnCommand(WORD code) {
  if (code == BN_CLICKED) Deliver([&] { control().UserClick(); });
}

bool PictureView::PressEnter() {
  Deliver([&] { control().UserClick(); });
  return true;
}

}  // namespace orvik::forms::win32
