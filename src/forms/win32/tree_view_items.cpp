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
    InvalidateRect(window_, nullptr, FALSE);
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
  if (item == nullptr || Send(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked)) == 0) return 0;
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

void TreeViewView::SetState(HTREEITEM item, UINT state, UINT mask) const {
  TVITEMW changed{};
  changed.mask = TVIF_STATE | TVIF_HANDLE;
  changed.hItem = item;
  changed.state = state;
  changed.stateMask = mask;
  Send(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changed));
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
    added.item.pszText = LPSTR_TEXTCALLBACKW;
    added.item.lParam = static_cast<LPARAM>(node.id);
    added.item.state = StateOf(node);
    added.item.stateMask = TVIS_STATEIMAGEMASK | TVIS_EXPANDED;
    last = reinterpret_cast<HTREEITEM>(Send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&added)));
    items_.push_back({node.id, last, nullptr, node.checked, node.expanded});
  }
}

void TreeViewView::ShowStates() {
  for (std::size_t i = 0; i < items_.size(); ++i) {
    const TreeView::Node& node = tree_.At(static_cast<int>(i) + 1);
    Item& item = items_[i];
    if (item.checked != node.checked) {
      item.checked = node.checked;
      SetState(item.handle, BoxState(node.checked), TVIS_STATEIMAGEMASK);
    }
    if (item.expanded == node.expanded) continue;
    item.expanded = node.expanded;
    if (item.last_child != nullptr) {
      Send(TVM_EXPAND, node.expanded ? TVE_EXPAND : TVE_COLLAPSE,
           reinterpret_cast<LPARAM>(item.handle));
    } else {
      SetState(item.handle, node.expanded ? TVIS_EXPANDED : 0, TVIS_EXPANDED);
    }
  }
}

void TreeViewView::ShowTexts() {
  std::sort(stale_texts_.begin(), stale_texts_.end());
  const auto end = std::unique(stale_texts_.begin(), stale_texts_.end());
  for (auto id = stale_texts_.begin(); id != end; ++id) {
    TVITEMW changed{};
    changed.mask = TVIF_TEXT | TVIF_HANDLE;
    changed.hItem = ItemOf(tree_.PositionOf(*id));
    // The window forgets how wide the old one was.
    changed.pszText = LPSTR_TEXTCALLBACKW;
    if (changed.hItem != nullptr) Send(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changed));
  }
  stale_texts_.clear();
}

void TreeViewView::ShowSelection() {
  const HTREEITEM wanted = ItemOf(tree_.selected());
  if (reinterpret_cast<HTREEITEM>(Send(TVM_GETNEXTITEM, TVGN_CARET)) == wanted) return;
  Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(wanted));
}

void TreeViewView::Synchronize(bool many) {
  // The selection that the window makes up when its selected item goes is none of the user's.
  const Showing showing(*this);
  std::optional<Undrawn> undrawn;
  if (many) undrawn.emplace(window());
  RemoveStale();
  AddMissing();
  ShowStates();
  ShowTexts();
  ShowSelection();
}

}  // namespace orvik::forms::win32
