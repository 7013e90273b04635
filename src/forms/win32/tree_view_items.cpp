// The items of a tree's window, kept the same as the model's nodes.
#include <algorithm>

#include "forms/win32/check_images.h"
#include "forms/win32/form_window.h"
#include "forms/win32/tree_view_view.h"

namespace orvik::forms::win32 {

namespace {

// A window that isn't drawn while it changes.
class Undrawn {
 public:
  explicit Undrawn(HWND window) : window_(window) { SendMessageW(window, WM_SETREDRAW, FALSE, 0); }
  ~Undrawn() {
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window_, nullptr, TRUE);
  }
  Undrawn(const Undrawn&) = delete;
  Undrawn& operator=(const Undrawn&) = delete;

 private:
  HWND window_;
};

constexpr UINT StateOf(const TreeView::Node& node) {
  return BoxState(node.checked) | (node.expanded ? TVIS_EXPANDED : 0U);
}

}  // namespace

int TreeViewView::PositionOf(HTREEITEM item) const {
  TVITEMW asked{};
  asked.mask = TVIF_PARAM | TVIF_HANDLE;
  asked.hItem = item;
  // The window itself, which answers others from the model.
  if (item == nullptr || Default(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked)) == 0) return 0;
  return tree_.PositionOf(static_cast<std::uint32_t>(asked.lParam));
}

TreeViewView::Item* TreeViewView::Find(std::uint32_t id) {
  const auto found =
      std::lower_bound(items_.begin(), items_.end(), id,
                       [](const Item& item, std::uint32_t wanted) { return item.id < wanted; });
  return found != items_.end() && found->id == id ? &*found : nullptr;
}

HTREEITEM TreeViewView::ItemOf(int position) {
  const Item* item = position == 0 ? nullptr : Find(tree_.At(position).id);
  return item == nullptr ? nullptr : item->handle;
}

void TreeViewView::Tell(TVITEMW& asked) const {
  const int position = PositionOf(asked.hItem);
  if (position == 0) return;
  const TreeView::Node& node = tree_.At(position);
  if ((asked.mask & TVIF_STATE) != 0) {
    asked.state &= ~static_cast<UINT>(TVIS_STATEIMAGEMASK);
    asked.state |= BoxState(node.checked);
  }
  if ((asked.mask & TVIF_TEXT) == 0 || asked.cchTextMax <= 0) return;
  const std::size_t length =
      std::min(node.text.size(), static_cast<std::size_t>(asked.cchTextMax) - 1);
  std::copy_n(node.text.begin(), length, asked.pszText);
  asked.pszText[length] = 0;
}

void TreeViewView::RemoveStale() {
  const auto stays = [&](const Item& item) { return tree_.PositionOf(item.id) != 0; };
  const auto first = std::find_if_not(items_.begin(), items_.end(), stays);
  if (first == items_.end()) return;
  hovered_ = nullptr;
  // What goes away one by one costs a look at its siblings each time.
  if (std::none_of(items_.begin(), items_.end(), stays)) {
    Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    items_.clear();
    last_root_ = nullptr;
    return;
  }
  // Children stand behind their parents, so none goes with its parent unawares.
  for (auto item = items_.end(); item != first;) {
    if (!stays(*--item)) Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item->handle));
  }
  std::erase_if(items_, [&](const Item& item) { return !stays(item); });
  last_root_ = nullptr;
  for (std::size_t i = 0; i < items_.size(); ++i) {
    items_[i].last_child = nullptr;
    const int parent = tree_.At(static_cast<int>(i) + 1).parent;
    HTREEITEM& last =
        parent == 0 ? last_root_ : items_[static_cast<std::size_t>(parent) - 1].last_child;
    last = items_[i].handle;
  }
}

void TreeViewView::AddMissing() {
  for (int position = static_cast<int>(items_.size()) + 1; position <= tree_.count(); ++position) {
    const TreeView::Node& node = tree_.At(position);
    Item* parent = node.parent == 0 ? nullptr : &items_[static_cast<std::size_t>(node.parent) - 1];
    HTREEITEM& last = parent == nullptr ? last_root_ : parent->last_child;
    TVINSERTSTRUCTW added{};
    added.hParent = parent == nullptr ? TVI_ROOT : parent->handle;
    // The last one by name would be looked for among all.
    added.hInsertAfter = last == nullptr ? TVI_FIRST : last;
    added.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_STATE;
    added.item.pszText = const_cast<wchar_t*>(Wide(node.text));  // only read
    added.item.lParam = static_cast<LPARAM>(node.id);
    added.item.state = StateOf(node);
    added.item.stateMask = TVIS_STATEIMAGEMASK | TVIS_EXPANDED;
    last = reinterpret_cast<HTREEITEM>(Send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&added)));
    items_.push_back({node.id, last, nullptr, node.checked, node.expanded, false});
  }
}

void TreeViewView::ShowExpanded() {
  for (std::size_t i = 0; i < items_.size(); ++i) {
    Item& item = items_[i];
    const bool expanded = tree_.At(static_cast<int>(i) + 1).expanded;
    if (item.expanded == expanded) continue;
    item.expanded = expanded;
    const auto handle = reinterpret_cast<LPARAM>(item.handle);
    if (item.last_child != nullptr) {
      Send(TVM_EXPAND, expanded ? TVE_EXPAND : TVE_COLLAPSE, handle);
      continue;
    }
    // The window expands only what has children.
    TVITEMW changed{};
    changed.mask = TVIF_STATE | TVIF_HANDLE;
    changed.hItem = item.handle;
    changed.stateMask = TVIS_EXPANDED;
    changed.state = expanded ? TVIS_EXPANDED : 0;
    Send(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changed));
  }
}

void TreeViewView::ShowInSight() {
  const Showing showing(*this);
  LRESULT handle = Send(TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE);
  // One more is cut by the lower edge.
  for (LRESULT left = Send(TVM_GETVISIBLECOUNT) + 1; handle != 0 && left > 0; --left) {
    const int position = PositionOf(reinterpret_cast<HTREEITEM>(handle));
    Item* item = position == 0 ? nullptr : Find(tree_.At(position).id);
    if (item != nullptr && (item->other_text || item->checked != tree_.At(position).checked)) {
      TVITEMW changed{};
      changed.mask = TVIF_STATE | TVIF_TEXT | TVIF_HANDLE;
      changed.hItem = item->handle;
      changed.state = BoxState(tree_.At(position).checked);
      changed.stateMask = TVIS_STATEIMAGEMASK;
      changed.pszText = const_cast<wchar_t*>(Wide(tree_.At(position).text));  // only read
      Send(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changed));
      item->checked = tree_.At(position).checked;
      item->other_text = false;
    }
    handle = Send(TVM_GETNEXTITEM, TVGN_NEXTVISIBLE, handle);
  }
}

void TreeViewView::ShowSelection() {
  const HTREEITEM wanted = ItemOf(tree_.selected());
  if (reinterpret_cast<HTREEITEM>(Send(TVM_GETNEXTITEM, TVGN_CARET)) == wanted) return;
  Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(wanted));
}

void TreeViewView::Synchronize() {
  // The selection that the window makes up when its selected item goes is none of the user's.
  const Showing showing(*this);
  const Undrawn undrawn(window());
  RemoveStale();
  AddMissing();
  ShowExpanded();
  ShowSelection();
}

}  // namespace orvik::forms::win32
