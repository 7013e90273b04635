#include "forms/tree_view.h"

#include <algorithm>

#include "base/failure.h"

namespace orvik::forms {

TreeView::Node& TreeView::Existing(int position) {
  if (position < 1 || position > count()) throw Failure{};
  return nodes_[static_cast<std::size_t>(position) - 1];
}

const TreeView::Node& TreeView::At(int position) const {
  return const_cast<TreeView&>(*this).Existing(position);
}

int TreeView::Find(TextView key) const {
  const auto key_of = [this](std::uint32_t id) -> TextView { return At(PositionOf(id)).key; };
  const std::uint32_t found = keys_.Find(key, key_of);
  return found == KeyIndex::kNone ? 0 : PositionOf(found);
}

int TreeView::PositionOf(std::uint32_t id) const {
  const auto found =
      std::lower_bound(nodes_.begin(), nodes_.end(), id,
                       [](const Node& node, std::uint32_t wanted) { return node.id < wanted; });
  if (found == nodes_.end() || found->id != id) return 0;
  return static_cast<int>(found - nodes_.begin()) + 1;
}

int TreeView::Add(TextView text, TextView key, int parent) {
  if (parent != 0) Existing(parent);
  if (!key.empty()) {
    if (Find(key) != 0) throw Failure{};
    keys_.Add(key, last_id_ + 1);
  }
  nodes_.push_back({.key = Text(key), .text = Text(text), .parent = parent, .id = ++last_id_});
  Changed(Property::kAdd, count());
  return count();
}

void TreeView::SetText(int position, TextView text) {
  Node& node = Existing(position);
  if (node.text == text) return;
  node.text = text;
  Changed(Property::kItem, position);
}

void TreeView::SetChecked(int position, bool checked) {
  Node& node = Existing(position);
  if (node.checked == checked) return;
  node.checked = checked;
  Changed(Property::kChecked, position);
}

void TreeView::SetExpanded(int position, bool expanded) {
  Node& node = Existing(position);
  if (node.expanded == expanded) return;
  node.expanded = expanded;
  Changed(Property::kExpanded, position);
}

void TreeView::Remove(int position) {
  Existing(position);
  // A child stands behind its parent, so from the end on no node goes before what hangs on it.
  std::vector<bool> goes(nodes_.size() + 1);
  goes[static_cast<std::size_t>(position)] = true;
  for (int child = position + 1; child <= count(); ++child) {
    const int parent = At(child).parent;
    goes[static_cast<std::size_t>(child)] = goes[static_cast<std::size_t>(parent)];
  }
  for (int last = count(); last >= position; --last) {
    if (goes[static_cast<std::size_t>(last)]) RemoveOne(last);
  }
}

void TreeView::RemoveOne(int position) {
  const Node& node = Existing(position);
  if (!node.key.empty()) keys_.Erase(node.key, node.id);
  nodes_.erase(nodes_.begin() + position - 1);
  for (int later = position; later <= count(); ++later) {
    int& parent = Existing(later).parent;
    if (parent > position) --parent;
  }
  if (selected_ == position) {
    selected_ = 0;
  } else if (selected_ > position) {
    --selected_;
  }
  Changed(Property::kRemove, position);
}

void TreeView::Clear() {
  if (nodes_.empty()) return;
  nodes_.clear();
  keys_.Clear();
  selected_ = 0;
  Changed(Property::kClear);
}

void TreeView::SetTooltip(TextView tooltip) {
  if (tooltip_ == tooltip) return;
  tooltip_ = tooltip;
  Changed(Property::kTooltip);
}

void TreeView::UserClick(int position) {
  UserSelect(position);
  UserMouse(true, {});
  UserMouse(false, {});
  if (on_click) on_click();
}

void TreeView::UserSelect(int position) {
  if (position != 0) Existing(position);
  if (selected_ == position) return;
  selected_ = position;
  Changed(Property::kSelected, position);
}

void TreeView::UserSpace() {
  if (selected_ != 0) UserCheck(selected_, !At(selected_).checked);
}

}  // namespace orvik::forms
