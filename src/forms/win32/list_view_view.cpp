#include "forms/win32/list_view_view.h"

#include <algorithm>

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

constexpr Changes kSelection = Bit(Property::kSelected);
constexpr Changes kRows = Bit(Property::kAdd) | Bit(Property::kSub) | Bit(Property::kColor);
constexpr Changes kCount = Bit(Property::kAdd) | Bit(Property::kClear);
// A list that ends this near the edge, in pixels at 96 dots to the inch, is meant to fill the form.
constexpr int kNearEdge = 8;
constexpr int kNoItem = -1;

// A colour as the system's drawing takes it; those of the system are marked by the highest bit.
COLORREF ColorOf(std::uint32_t color) {
  constexpr std::uint32_t kSystemColor = 0x80000000;
  if ((color & kSystemColor) == 0) return color;
  return GetSysColor(static_cast<int>(color & ~kSystemColor));
}

bool BeginsWith(TextView text, TextView start) {
  return text.size() >= start.size() && EqualNoCase(text.substr(0, start.size()), start);
}

// Rows that are paths are found by the names of their files too.
bool IsFoundBy(TextView row, TextView typed) {
  const std::size_t name = row.rfind(u'\\') + 1;
  return BeginsWith(row, typed) || BeginsWith(row.substr(name), typed);
}

}  // namespace

ListViewView::ListViewView(ListView& list, FormWindow& form)
    : ControlView(list, form), list_(list) {
  Create(WC_LISTVIEWW, {},
         WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
         WS_EX_CLIENTEDGE);
  constexpr DWORD kStyles = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kStyles, kStyles);
  ShowColumns();
  ShowCount();
  ShowSelection();
}

void ListViewView::Changed(Change change) {
  if ((Bit(change.property) & kRows) != 0) {
    stale_.first = stale_.first == 0 ? change.position : std::min(stale_.first, change.position);
    stale_.last = std::max(stale_.last, change.position);
  }
  ControlView::Changed(change);
}

void ListViewView::Rescale() {
  shown_widths_.clear();
  ControlView::Rescale();
  ShowColumns();
}

void ListViewView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & Bit(Property::kColumns)) != 0) ShowColumns();
  if ((changes & kCount) != 0) ShowCount();
  if ((changes & (kSelection | Bit(Property::kClear))) != 0) ShowSelection();
  if ((changes & Bit(Property::kClear)) != 0) InvalidateRect(window(), nullptr, FALSE);
  if ((changes & kRows) != 0) Redraw();
}

RECT ListViewView::Area() const {
  RECT area = ControlView::Area();
  if (control().container() != nullptr) return area;
  // The system's frame is another than the form reckons with, so the last few pixels are the
  // list's.
  RECT room;
  GetClientRect(form().window(), &room);
  for (const Control* other : control().form().controls()) {
    if (other->kind() == Kind::kStatusBar)
      room.bottom -= form().AreaOf(*other).bottom - form().AreaOf(*other).top;
  }
  const int near_edge = form().metrics().Scaled(kNearEdge);
  if (std::abs(room.right - area.right) <= near_edge) area.right = room.right;
  if (std::abs(room.bottom - area.bottom) <= near_edge) area.bottom = room.bottom;
  return area;
}

void ListViewView::ShowColumns() {
  const auto count = static_cast<std::size_t>(list_.column_count());
  for (std::size_t i = 0; i < count; ++i) {
    const ListView::Column& wanted = list_.columns()[i];
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.iSubItem = static_cast<int>(i);
    column.pszText = const_cast<wchar_t*>(Wide(wanted.text));  // only read
    column.cx = std::max(0, form().metrics().Pixels(wanted.width));
    const bool fresh = i >= shown_widths_.size() || shown_widths_[i] != wanted.width;
    if (fresh) column.mask |= LVCF_WIDTH;
    const HWND head = reinterpret_cast<HWND>(Send(LVM_GETHEADER));
    const bool there = static_cast<LRESULT>(i) < SendMessageW(head, HDM_GETITEMCOUNT, 0, 0);
    Send(there ? LVM_SETCOLUMNW : LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
  shown_widths_.resize(count);
  for (std::size_t i = 0; i < count; ++i) shown_widths_[i] = list_.columns()[i].width;
}

void ListViewView::ShowCount() {
  const Showing showing(*this);
  Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(list_.count()),
       LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
}

void ListViewView::Redraw() {
  const auto top = static_cast<int>(Send(LVM_GETTOPINDEX));
  const int bottom = top + static_cast<int>(Send(LVM_GETCOUNTPERPAGE));
  const int first = std::max(top, stale_.first - 1);
  const int last = std::min({bottom, stale_.last - 1, list_.count() - 1});
  stale_ = {};
  if (first <= last) Send(LVM_REDRAWITEMS, static_cast<WPARAM>(first), last);
}

void ListViewView::Tell(NMLVDISPINFOW& asked) const {
  LVITEMW& item = asked.item;
  if ((item.mask & LVIF_TEXT) == 0 || item.iItem < 0 || item.iItem >= list_.count()) return;
  const ListView::Row& row = list_.At(item.iItem + 1);
  static const Text none;
  const auto number = static_cast<std::size_t>(item.iSubItem);
  const Text& text = number == 0                ? row.text
                     : number <= row.sub.size() ? row.sub[number - 1].text
                                                : none;
  item.pszText = const_cast<wchar_t*>(Wide(text));  // only read
}

LRESULT ListViewView::Color(NMLVCUSTOMDRAW& draw) const {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  const auto item = static_cast<int>(draw.nmcd.dwItemSpec);
  if (draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT && item >= 0 && item < list_.count()) {
    draw.clrText = ColorOf(list_.At(item + 1).color);
  }
  return CDRF_DODEFAULT;
}

LRESULT ListViewView::Search(const NMLVFINDITEMW& wanted) const {
  if ((wanted.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0) return kNoItem;
  const Text typed = FromWide(wanted.lvfi.psz, wcslen(wanted.lvfi.psz));
  const int count = list_.count();
  for (int step = 0; step < count; ++step) {
    const int item = (std::max(wanted.iStart, 0) + step) % count;
    if (IsFoundBy(list_.At(item + 1).text, typed)) return item;
  }
  return kNoItem;
}

std::optional<LRESULT> ListViewView::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW:
      Tell(reinterpret_cast<NMLVDISPINFOW&>(header));
      return 0;
    case NM_CUSTOMDRAW:
      return Color(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
    case LVN_ODFINDITEMW:
      return Search(reinterpret_cast<const NMLVFINDITEMW&>(header));
    case NM_CLICK:
    case NM_RCLICK:
    case NM_DBLCLK:
      OnClick(reinterpret_cast<const NMITEMACTIVATE&>(header));
      return 0;
    case LVN_ITEMCHANGED: {
      const auto& item = reinterpret_cast<const NMLISTVIEW&>(header);
      const bool selection = ((item.uOldState ^ item.uNewState) & LVIS_SELECTED) != 0;
      if (!showing() && selection) OnSelection();
      return 0;
    }
    case LVN_ODSTATECHANGED:
      if (!showing()) OnSelection();
      return 0;
    default:
      return std::nullopt;
  }
}

LRESULT ListViewView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
      // Told to the model when the window says which row was meant.
      return Default(message, wparam, lparam);
    case WM_KEYDOWN:
      // To select all rows is up to the form.
      if (wparam == 'A' && ShiftState() == kCtrl) return 0;
      break;
    case WM_CHAR:
      // Nothing to search for.
      if (wparam < L' ') return 0;
      break;
    default:
      break;
  }
  return ControlView::OnMessage(message, wparam, lparam);
}

}  // namespace orvik::forms::win32
