#include "forms/win32/tree_view_view.h"

#include <cstring>

#include "forms/win32/check_images.h"
#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

constexpr Changes kItems =
    Bit(Property::kAdd) | Bit(Property::kRemove) | Bit(Property::kClear) | Bit(Property::kExpanded);
constexpr Changes kLooks = Bit(Property::kItem) | Bit(Property::kChecked);

}  // namespace

TreeViewView::TreeViewView(TreeView& tree, FormWindow& form)
    : ControlView(tree, form), tree_(tree) {
  // The tool tip is the form's, since it tells more than cut texts.
  Create(WC_TREEVIEWW, {},
         WS_TABSTOP | TVS_HASLINES | TVS_LINESATROOT | TVS_HASBUTTONS | TVS_SHOWSELALWAYS |
             TVS_NOTOOLTIPS,
         WS_EX_CLIENTEDGE);
  // The system wants this one of an empty tree that is there.
  SetWindowLongW(window(), GWL_STYLE, GetWindowLongW(window(), GWL_STYLE) | TVS_CHECKBOXES);
  Send(TVM_SETEXTENDEDSTYLE, TVS_EX_DOUBLEBUFFER, TVS_EX_DOUBLEBUFFER);
  ShowBoxes();
  ShowTooltip();
  Synchronize();
}

TreeViewView::~TreeViewView() {
  if (boxes_ != nullptr) ImageList_Destroy(boxes_);
}

void TreeViewView::ShowBoxes() {
  const HIMAGELIST boxes = MakeCheckImages(window(), form().metrics().dpi());
  const LRESULT before = Send(TVM_SETIMAGELIST, TVSIL_STATE, reinterpret_cast<LPARAM>(boxes));
  // The first time it is the one that the window has made for itself.
  if (before != 0) ImageList_Destroy(reinterpret_cast<HIMAGELIST>(before));
  boxes_ = boxes;
}

void TreeViewView::Changed(Change change) {
  if (change.property == Property::kItem) {
    if (Item* item = Find(tree_.At(change.position).id)) item->other_text = true;
  }
  ControlView::Changed(change);
}

void TreeViewView::Rescale() {
  ControlView::Rescale();
  ShowBoxes();
}

void TreeViewView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & kItems) != 0) {
    Synchronize();
  } else if ((changes & Bit(Property::kSelected)) != 0) {
    const Showing showing(*this);
    ShowSelection();
  }
  if ((changes & kLooks) != 0) InvalidateRect(window(), nullptr, TRUE);
  if ((changes & Bit(Property::kTooltip)) != 0) ShowTooltip();
}

void TreeViewView::ShowTooltip() { form().SetTooltip(*this, tree_.tooltip()); }

RECT TreeViewView::TextArea(HTREEITEM item) const {
  RECT area{};
  // The way in, the rectangle holds the item.
  const auto handle = reinterpret_cast<std::uintptr_t>(item);
  static_assert(sizeof area >= sizeof handle);
  std::memcpy(&area, &handle, sizeof handle);
  const bool in_sight = Send(TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&area)) != 0;
  return in_sight ? area : RECT{};
}

void TreeViewView::TellTooltip(NMTTDISPINFOW& asked) {
  // The whole of a text that is cut at the edge.
  told_.clear();
  if (const int position = PositionOf(hovered_)) {
    const RECT text = TextArea(hovered_);
    RECT room;
    GetClientRect(window(), &room);
    if (text.right > room.right || text.left < 0) {
      told_ = tree_.At(position).text;
    }
  }
  asked.lpszText = const_cast<wchar_t*>(Wide(told_));  // only read
}

std::optional<LRESULT> TreeViewView::OnNotify(NMHDR& header) {
  switch (header.code) {
    case TVN_SELCHANGINGW:
      // The window takes its first item when it gets the keyboard; the user has chosen none.
      return focusing_ && !showing() ? 1 : 0;
    case TVN_SELCHANGEDW: {
      if (showing()) return 0;
      const int position = PositionOf(reinterpret_cast<const NMTREEVIEWW&>(header).itemNew.hItem);
      if (!Deliver([&] { tree_.UserSelect(position); })) {
        const Showing back(*this);
        ShowSelection();
      }
      return 0;
    }
    case TVN_ITEMEXPANDEDW: {
      if (showing()) return 0;
      const TVITEMW& item = reinterpret_cast<const NMTREEVIEWW&>(header).itemNew;
      const int position = PositionOf(item.hItem);
      const bool expanded = (item.state & TVIS_EXPANDED) != 0;
      if (position == 0) return 0;
      if (Item* shown = Find(tree_.At(position).id)) shown->expanded = expanded;
      Deliver([&] { tree_.SetExpanded(position, expanded); });
      return 0;
    }
    default:
      return std::nullopt;
  }
}

}  // namespace orvik::forms::win32
