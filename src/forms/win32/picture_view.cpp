#include "forms/win32/picture_view.h"

#include "forms/win32/form_window.h"
#include "forms/win32/glyphs.h"

namespace orvik::forms::win32 {

namespace {

// On a black form, what the pictures are drawn in; light while pressed.
constexpr COLORREF kOnBlack = RGB(0xC0, 0x40, 0);
constexpr COLORREF kPressed = RGB(0xFF, 0xE0, 0xC0);

}  // namespace

PictureView::PictureView(Picture& picture, FormWindow& form)
    : ControlView(picture, form), picture_(picture) {
  const DWORD style = control().form().skinned() ? BS_OWNERDRAW : BS_PUSHBUTTON;
  Create(WC_BUTTONW, picture.hint(), WS_TABSTOP | BS_ICON | style);
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
  const bool skinned = control().form().skinned();
  const HICON icon = MakeGlyph(picture_.image(), SmallIconSize(form().metrics().dpi()),
                               skinned ? kOnBlack : GetSysColor(COLOR_BTNTEXT));
  // What draws itself needs none.
  if (!skinned) Send(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
  if (icon_ != nullptr) DestroyIcon(icon_);
  icon_ = icon;
}

void PictureView::OnDraw(const DRAWITEMSTRUCT& draw) {
  const RECT& area = draw.rcItem;
  FillRect(draw.hDC, &area, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
  const int size = SmallIconSize(form().metrics().dpi());
  const bool pressed = (draw.itemState & ODS_SELECTED) != 0;
  const HICON lit = pressed ? MakeGlyph(picture_.image(), size, kPressed) : nullptr;
  DrawIconEx(draw.hDC, (area.left + area.right - size) / 2, (area.top + area.bottom - size) / 2,
             lit != nullptr ? lit : icon_, size, size, 0, nullptr, DI_NORMAL);
  if (lit != nullptr) DestroyIcon(lit);
  const bool marked = (draw.itemState & ODS_FOCUS) != 0 && (draw.itemState & ODS_NOFOCUSRECT) == 0;
  if (!marked) return;
  SetTextColor(draw.hDC, RGB(255, 255, 255));
  SetBkColor(draw.hDC, 0);
  DrawFocusRect(draw.hDC, &area);
}

void PictureView::OnCommand(WORD code) {
  if (code == BN_CLICKED) Deliver([&] { control().UserClick(); });
}

bool PictureView::PressEnter() {
  Deliver([&] { control().UserClick(); });
  return true;
}

}  // namespace orvik::forms::win32
