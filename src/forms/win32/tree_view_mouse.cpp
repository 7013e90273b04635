// What the user does to a tree. The window's own handling of mouse buttons would wait for the
// release inside the press and keep it to itself, and select by the right button on some systems
// what the actions don't work on; so presses are handled here.
#include "forms/win32/check_images.h"
#include "forms/win32/form_window.h"
#include "forms/win32/mouse.h"
#include "forms/win32/tree_view_view.h"

namespace orvik::forms::win32 {

namespace {

POINT PointOf(LPARAM lparam) {
  return {static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam))};
}

bool IsOnBox(const TVHITTESTINFO& hit) { return (hit.flags & TVHT_ONITEMSTATEICON) != 0; }

bool Navigates(WPARAM key) {
  return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_ADD || key == VK_SUBTRACT ||
         key == VK_MULTIPLY;
}

}  // namespace

TVHITTESTINFO TreeViewView::HitTest(POINT at) const {
  TVHITTESTINFO hit{};
  hit.pt = at;
  Send(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  return hit;
}

void TreeViewView::Check(int position, bool checked) {
  if (position == 0) return;
  Deliver([&] { tree_.UserCheck(position, checked); });
  if (window() == nullptr) return;
  const HTREEITEM item = ItemOf(position <= tree_.count() ? position : 0);
  if (item == nullptr) return;
  // The number that aids to access know the item by.
  const auto number = Send(TVM_MAPHTREEITEMTOACCID, reinterpret_cast<WPARAM>(item));
  NotifyWinEvent(EVENT_OBJECT_STATECHANGE, window(), OBJID_CLIENT, static_cast<LONG>(number));
}

void TreeViewView::Toggle(HTREEITEM item, int position) {
  if (position == 0) return;
  const bool expanded = !tree_.At(position).expanded;
  if (Send(TVM_GETNEXTITEM, TVGN_CHILD, reinterpret_cast<LPARAM>(item)) == 0) return;
  Deliver([&] { tree_.SetExpanded(position, expanded); });
}

void TreeViewView::OnLeftPress(POINT at, bool second) {
  const TVHITTESTINFO hit = HitTest(at);
  const int position = PositionOf(hit.hItem);
  if (position == 0) return;
  if (IsOnBox(hit)) {
    Check(position, !tree_.At(position).checked);
  } else if ((hit.flags & TVHT_ONITEMBUTTON) != 0 || (second && (hit.flags & TVHT_ONITEM) != 0)) {
    Toggle(hit.hItem, position);
  } else if ((hit.flags & TVHT_ONITEM) != 0) {
    // The window says that it has another selection now, and scrolls it into sight.
    Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(hit.hItem));
  }
}

void TreeViewView::OnButton(UINT message, bool down, Mouse mouse, POINT at) {
  if (down) {
    SetFocus(window());
    SetCapture(window());
    if (message == WM_LBUTTONDOWN) OnLeftPress(at, false);
    Deliver([&] { tree_.UserMouse(true, mouse); });
    return;
  }
  if (GetCapture() == window()) ReleaseCapture();
  Deliver([&] { tree_.UserMouse(false, mouse); });
  if (message == WM_LBUTTONUP && window() != nullptr && PositionOf(HitTest(at).hItem) != 0) {
    Deliver([&] { tree_.UserClick(); });
  }
}

void TreeViewView::OnDoubleClick(POINT at) {
  SetCapture(window());
  OnLeftPress(at, true);
  Deliver([&] { control().UserDoubleClick(); });
}

bool TreeViewView::OnKey(WPARAM key) {
  if (key == VK_SPACE) {
    Check(tree_.selected(), tree_.selected() != 0 && !tree_.At(tree_.selected()).checked);
    return true;
  }
  if (tree_.selected() != 0 || !Navigates(key)) return false;
  // The first key finds a node to go on from.
  const LRESULT first = Send(TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE);
  if (first != 0) Send(TVM_SELECTITEM, TVGN_CARET, first);
  return true;
}

void TreeViewView::OpenMenuByKey() {
  RECT area{};
  if (const HTREEITEM selected = ItemOf(tree_.selected())) {
    Send(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(selected));
    area = TextArea(selected);
  }
  POINT at{area.left, area.bottom};
  ClientToScreen(window(), &at);
  const FormWindow::MenuPlace place(form(), at);
  Deliver([&] { tree_.UserMouse(false, {kRightButton, 0}); });
}

LRESULT TreeViewView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (const auto click = MouseClickOf(message, wparam)) {
    OnButton(message, click->down, click->mouse, PointOf(lparam));
    return 0;
  }
  switch (message) {
    case WM_LBUTTONDBLCLK:
      OnDoubleClick(PointOf(lparam));
      return 0;
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
      SetCapture(window());
      return 0;
    case WM_MOUSEMOVE: {
      const HTREEITEM item = HitTest(PointOf(lparam)).hItem;
      if (item != hovered_) {
        hovered_ = item;
        if (tree_.tooltip().empty()) ShowTooltip();
      }
      break;
    }
    case WM_CONTEXTMENU:
      OpenMenuByKey();
      return 0;
    case WM_SETFOCUS: {
      focusing_ = tree_.selected() == 0;
      const LRESULT result = ControlView::OnMessage(message, wparam, lparam);
      focusing_ = false;
      return result;
    }
    case WM_KEYDOWN:
      if (OnKey(wparam)) return 0;
      break;
    case WM_CHAR:
      // Nothing to search for.
      if (wparam <= L' ') return 0;
      break;
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(lparam);
      if (header.code != TTN_GETDISPINFOW) break;
      TellTooltip(reinterpret_cast<NMTTDISPINFOW&>(header));
      return 0;
    }
    case WM_PAINT:
      ShowInSight();
      break;
    case TVM_GETITEMW: {
      const LRESULT result = Default(message, wparam, lparam);
      auto& asked = *reinterpret_cast<TVITEMW*>(lparam);
      if (result != 0 && !showing()) Tell(asked);
      return result;
    }
    case TVM_GETITEMSTATE: {
      TVITEMW asked{};
      asked.mask = (lparam & TVIS_STATEIMAGEMASK) != 0 ? TVIF_STATE : 0;
      asked.hItem = reinterpret_cast<HTREEITEM>(wparam);
      asked.state = static_cast<UINT>(Default(message, wparam, lparam));
      Tell(asked);
      return static_cast<LRESULT>(asked.state);
    }
    case TVM_SETITEMW: {
      // A box set from outside, by an aid to access or by a test.
      const auto& item = *reinterpret_cast<const TVITEMW*>(lparam);
      if (showing() || (item.mask & TVIF_STATE) == 0) break;
      if ((item.stateMask & TVIS_STATEIMAGEMASK) == 0) break;
      Check(PositionOf(item.hItem), IsBoxOn(item.state));
      return TRUE;
    }
    default:
      break;
  }
  return ControlView::OnMessage(message, wparam, lparam);
}

}  // namespace orvik::forms::win32
