// A tree of nodes with a check box at each. Positions count from 1.
#pragma once

#include <cstdint>
#include <vector>

#include "base/key_index.h"
#include "forms/control.h"

namespace orvik::forms {

// Nodes stand in the order of their addition, whatever their parents, and positions follow it. Keys
// are unique and blind to letter case. Everything that names a node throws Failure when there is
// none.
class TreeView : public Control {
 public:
  struct Node {
    Text key;
    Text text;
    int parent = 0;  // its position, 0 for a root
    bool checked = false;
    bool expanded = false;
    // Stays when positions move; ascends with them.
    std::uint32_t id = 0;
  };

  TreeView(Form& form, const char* name, Bounds bounds)
      : Control(form, Kind::kTreeView, name, bounds) {}

  int count() const { return static_cast<int>(nodes_.size()); }
  const Node& At(int position) const;
  // The position of the node with a key, 0 when there is none.
  int Find(TextView key) const;
  // The position of the node with an id, 0 when it has gone.
  int PositionOf(std::uint32_t id) const;

  // Adds a node at the end, as the last child of `parent` (0: a root), and gives its position.
  // Throws Failure, and adds nothing, when the key exists.
  int Add(TextView text, TextView key, int parent = 0);
  void SetText(int position, TextView text);
  void SetChecked(int position, bool checked);
  void SetExpanded(int position, bool expanded);
  // Takes a node away with all that hangs on it; the nodes behind move up.
  void Remove(int position);
  void Clear();

  // The node that is selected, 0 for none.
  int selected() const { return selected_; }
  const Text& tooltip() const { return tooltip_; }
  void SetTooltip(TextView tooltip);

  using Control::UserClick;
  // The node becomes the selected one; mouse down, up and click follow.
  void UserClick(int position);
  // 0 for no node.
  void UserSelect(int position);
  void UserCheck(int position, bool checked) { SetChecked(position, checked); }
  // The space bar turns the box of the selected node over.
  void UserSpace();

 private:
  Node& Existing(int position);
  void RemoveOne(int position);

  std::vector<Node> nodes_;
  KeyIndex keys_;  // of ids
  std::uint32_t last_id_ = 0;
  int selected_ = 0;
  Text tooltip_;
};

}  // namespace orvik::forms
