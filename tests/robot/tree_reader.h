// Reads trees.
#pragma once

#include <cstdint>
#include <vector>

#include "robot/windows_api.h"

namespace orvik::robot {

// What a tree holds. The window knows its nodes in the order of the screen only; but each carries a
// number that ascends with the order of addition, which is that of scripts. Positions count from 1.
struct TreeState {
  struct Node {
    HTREEITEM item;
    std::uint32_t id;
    HTREEITEM parent_item;
    int parent;  // 0 for a root
    Text text;
    bool checked;
    bool expanded;
  };
  std::vector<Node> nodes;
  int selected = 0;
  Text tooltip;
};

// `process` is the one that owns the tree.
TreeState ReadTree(HANDLE process, HWND tree);

}  // namespace orvik::robot
