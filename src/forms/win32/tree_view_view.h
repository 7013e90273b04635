// A tree with a check box at every node.
#pragma once

#include <vector>

#include "forms/tree_view.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

// The system's tree view. Its items hold nothing but the id of their node and the state of the box:
// texts are asked for when they come into sight. The items are brought up to the model in batches,
// whatever has happened since the last one.
class TreeViewView : public ControlView {
 public:
  TreeViewView(TreeView& tree, FormWindow& form);
  ~TreeViewView() override;
  void Changed(Change change) override;
  void Rescale() override;
  void Refresh(Changes changes) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;
  bool TakesFocus() const override { return true; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  // What the window shows of a node.
  struct Item {
    std::uint32_t id;
    HTREEITEM handle;
    HTREEITEM last_child;
    bool checked;
    bool expanded;
  };

  // The items of the window and the model's nodes, brought together.
  // `many` says that the window isn't worth drawing on the way.
  void Synchronize(bool many);
  void RemoveStale();
  void AddMissing();
  void ShowStates();
  void ShowTexts();
  void ShowSelection();
  void SetState(HTREEITEM item, UINT state, UINT mask) const;
  // The position of the node that an item shows, 0 for none.
  int PositionOf(HTREEITEM item) const;
  HTREEITEM ItemOf(int position);
  Item* Find(std::uint32_t id);

  // Where the text of an item in sight is; empty for others.
  RECT TextArea(HTREEITEM item) const;
  void ShowBoxes();
  void ShowTooltip();
  void TellTooltip(NMTTDISPINFOW& asked);

  TVHITTESTINFO HitTest(POINT at) const;
  void OnButton(UINT message, bool down, Mouse mouse, POINT at);
  void OnLeftPress(POINT at, bool second);
  void OnDoubleClick(POINT at);
  void Toggle(HTREEITEM item, int position);
  void Check(int position, bool checked);
  bool OnKey(WPARAM key);
  void OpenMenuByKey();

  TreeView& tree_;
  std::vector<Item> items_;  // in the order of ids
  HTREEITEM last_root_ = nullptr;
  std::vector<std::uint32_t> stale_texts_;  // ids
  HIMAGELIST boxes_ = nullptr;
  bool focusing_ = false;
  // The node whose cut text the tool tip may show.
  HTREEITEM hovered_ = nullptr;
  Text told_;
};

}  // namespace orvik::forms::win32
