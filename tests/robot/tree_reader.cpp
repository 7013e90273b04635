#include "robot/tree_reader.h"

#include <algorithm>

#include "robot/remote.h"
#include "robot/window_facts.h"

namespace orvik::robot {

namespace {

constexpr int kLongestText = 4096;
constexpr std::size_t kRoom = kLongestText * sizeof(char16_t);

HTREEITEM Next(HWND tree, WPARAM which, HTREEITEM from = nullptr) {
  return reinterpret_cast<HTREEITEM>(
      SendMessageW(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(from)));
}

// Reads one item by way of one piece of the other process's memory.
class NodeReader {
 public:
  NodeReader(HANDLE process, HWND tree) : tree_(tree), remote_(process, sizeof(TVITEMW) + kRoom) {}

  TreeState::Node Read(HTREEITEM item, HTREEITEM parent) const {
    TVITEMW asked{};
    asked.mask = TVIF_TEXT | TVIF_PARAM | TVIF_STATE | TVIF_HANDLE;
    asked.hItem = item;
    asked.stateMask = TVIS_STATEIMAGEMASK | TVIS_EXPANDED;
    asked.pszText = reinterpret_cast<wchar_t*>(remote_.address(sizeof asked));
    asked.cchTextMax = kLongestText;
    remote_.Write(&asked, sizeof asked);
    SendMessageW(tree_, TVM_GETITEMW, 0, remote_.address());
    remote_.Read(&asked, sizeof asked);
    Text text(static_cast<std::size_t>(kLongestText), u'\0');
    remote_.Read(text.data(), kRoom, sizeof asked);
    text.resize(std::min(text.find(u'\0'), text.size()));
    // State images of boxes count from 1: off, on.
    const bool checked = (asked.state & TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2);
    return {item,    static_cast<std::uint32_t>(asked.lParam), parent, 0, text,
            checked, (asked.state & TVIS_EXPANDED) != 0};
  }

  void ReadAll(HTREEITEM first, HTREEITEM parent, std::vector<TreeState::Node>& nodes) const {
    for (HTREEITEM item = first; item != nullptr; item = Next(tree_, TVGN_NEXT, item)) {
      nodes.push_back(Read(item, parent));
      ReadAll(Next(tree_, TVGN_CHILD, item), item, nodes);
    }
  }

 private:
  HWND tree_;
  RemoteBytes remote_;
};

int PositionOf(const std::vector<TreeState::Node>& nodes, HTREEITEM item) {
  const auto found =
      std::find_if(nodes.begin(), nodes.end(), [&](const auto& node) { return node.item == item; });
  return found == nodes.end() ? 0 : static_cast<int>(found - nodes.begin()) + 1;
}

// The text of a tool tip for the window, of those that have a text of their own.
Text TooltipOf(HANDLE process, HWND window) {
  DWORD owner = 0;
  GetWindowThreadProcessId(window, &owner);
  const RemoteBytes remote(process, sizeof(TTTOOLINFOW) + kRoom);
  Text found;
  ForEachTopLevel(owner, [&](HWND tips) {
    if (!EqualNoCase(ClassOf(tips), u"tooltips_class32")) return true;
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = window;
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    remote.Write(&tool, sizeof tool);
    if (SendMessageW(tips, TTM_GETTOOLINFOW, 0, remote.address()) == 0) return true;
    remote.Read(&tool, sizeof tool);
    if (tool.lpszText == LPSTR_TEXTCALLBACKW) return true;
    tool.lpszText = reinterpret_cast<wchar_t*>(remote.address(sizeof tool));
    remote.Write(&tool, sizeof tool);
    SendMessageW(tips, TTM_GETTEXTW, kLongestText, remote.address());
    found.resize(kLongestText);
    remote.Read(found.data(), kRoom, sizeof tool);
    found.resize(std::min(found.find(u'\0'), found.size()));
    return false;
  });
  return found;
}

}  // namespace

TreeState ReadTree(HANDLE process, HWND tree) {
  TreeState state;
  const NodeReader reader(process, tree);
  reader.ReadAll(Next(tree, TVGN_ROOT), nullptr, state.nodes);
  std::sort(state.nodes.begin(), state.nodes.end(),
            [](const auto& one, const auto& other) { return one.id < other.id; });
  for (TreeState::Node& node : state.nodes) {
    node.parent = PositionOf(state.nodes, node.parent_item);
  }
  state.selected = PositionOf(state.nodes, Next(tree, TVGN_CARET));
  state.tooltip = TooltipOf(process, tree);
  return state;
}

}  // namespace orvik::robot
