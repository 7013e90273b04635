// A tree with a check box at every node.
#pragma once

#include <vector>

#include "forms/tree_view.h"
#include "forms/win32/control_view.h"

namespace orvik::forms::win32 {

// The system's tree view. Its items are brought up to the model in batches, whatever has happened
// since the last one. Changed boxes and texts of items are given to the window when they come into
// sight, so that a change of all 30,000 costs as much as one of those in sight; whoever asks the
// window for others is answered from the model. Texts aren't left for the window to ask for, as it
// would ask for all of them at every change to know its width.
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
    bool other_text;  // than the window knows
  };

  // The items of the window and the model's nodes, brought together.
  void Synchronize();
  void RemoveStale();
  void AddMissing();
  void ShowExpanded();
  void ShowInSight();
  void ShowSelection();
  // The position of the node that an item shows, 0 for none.
  int PositionOf(HTREEITEM item) const;
  // Puts the node's true text and box into what the window has answered.
  void Tell(TVITEMW& asked) const;
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
  HIMAGELIST boxes_ = nullptr;
  bool focusing_ = false;
  // The node whose cut text the tool tip may show.
  HTREEITEM hovered_ = nullptr;
  Text told_;
};

}  // namespace orvik::forms::win32
