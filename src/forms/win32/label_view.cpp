#include "forms/win32/label_view.h"

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

// How much lower a font may become for its caption's sake, in pixels at 96 dots to the inch.
constexpr int kLowestBy = 3;

// Room for two lines, by the line height of the layouts.
constexpr int kTwoLines = 2 * 195;

// A label of one line says by dots that it is cut; a higher one breaks its lines.
DWORD CutStyle(const Label& label) {
  if (label.bounds().height >= kTwoLines) return 0;
  return label.cut() == Label::Cut::kPath ? SS_PATHELLIPSIS : SS_ENDELLIPSIS;
}

}  // namespace

LabelView::LabelView(Label& label, FormWindow& form) : ControlView(label, form), label_(label) {
  // A path may hold an ampersand, which is no underlining here.
  Create(L"STATIC", label.caption(), SS_LEFT | SS_NOTIFY | SS_NOPREFIX | CutStyle(label));
  ShowFont();
}

LabelView::~LabelView() {
  if (font_ != nullptr) DeleteObject(font_);
}

void LabelView::Rescale() {
  ControlView::Rescale();
  ShowFont();
}

void LabelView::ShowFont() {
  const auto& style = label_.style();
  if (!style) return;
  const Metrics& metrics = form().metrics();
  const RECT area = Area();
  HFONT font = nullptr;
  for (int lower = 0; lower <= metrics.Scaled(kLowestBy); ++lower) {
    if (font != nullptr) DeleteObject(font);
    font = metrics.MakeFont(style->bold, style->serif, lower);
    const SIZE text = Metrics::TextSize(label_.caption(), font);
    if (text.cx <= area.right - area.left && text.cy <= area.bottom - area.top) break;
  }
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  if (font_ != nullptr) DeleteObject(font_);
  font_ = font;
}

HBRUSH LabelView::OnColor(HDC context) {
  const bool skinned = control().form().skinned();
  if (!skinned && !label_.style()) return nullptr;
  if (label_.style()) {
    SetTextColor(context, label_.style()->color);
  } else {
    SetTextColor(context, RGB(255, 255, 255));
  }
  SetBkMode(context, TRANSPARENT);
  return skinned ? static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH))
                 : GetSysColorBrush(COLOR_BTNFACE);
}

RECT LabelView::Area() const {
  RECT area = ControlView::Area();
  // What a skin draws stands close by, and a label's ground would cover it.
  if (control().form().skinned()) return area;
  // Elsewhere a low label keeps its middle and gets the height that the font needs.
  const int missing = form().metrics().line_height() - (area.bottom - area.top);
  if (missing > 0) {
    area.top -= missing / 2;
    area.bottom += missing - missing / 2;
  }
  return area;
}

void LabelView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & Bit(Property::kCaption)) == 0) return;
  ShowFont();
  SetWindowTextW(window(), Wide(label_.caption()));
}

void LabelView::OnCommand(WORD code) {
  if (code == STN_CLICKED) Deliver([&] { control().UserClick(); });
  if (code == STN_DBLCLK) {
    // The system sends this in place of the second click.
    Deliver([&] { control().UserClick(); });
    Deliver([&] { control().UserDoubleClick(); });
  }
}

bool LabelView::TakesFocus() const {
  // On a form without a title bar such labels are there to drag it by.
  return label_.on_click && !control().form().skinned();
}

bool LabelView::PressEnter() {
  return Deliver([&] { control().UserClick(); });
}

void LabelView::OnFocus(bool /*here*/) { InvalidateRect(window(), nullptr, TRUE); }

LRESULT LabelView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_KEYDOWN && wparam == VK_SPACE && PressEnter()) return 0;
  const LRESULT result = ControlView::OnMessage(message, wparam, lparam);
  if (window() == nullptr) return result;
  if (message == WM_PAINT) DrawFocus();
  if (message == WM_UPDATEUISTATE) InvalidateRect(window(), nullptr, TRUE);
  return result;
}

}  // namespace orvik::forms::win32
