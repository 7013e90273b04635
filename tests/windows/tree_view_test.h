// What the tests of trees start from: a form with a tree, and its window as the outside sees it.
#pragma once

#include <cstring>
#include <vector>

#include "forms/tree_view.h"
#include "windows_test.h"

namespace orvik::forms::win32 {

class TreeForm : public Form {
 public:
  TreeForm() : Form("frmTree", u"Форма", 6090, 6405, Place::kSystem) {}
  TextBox text{*this, "txMain", {0, 0, 3000, 300}, u""};
  TreeView tree{*this, "tvMain", {0, 400, 5985, 5500}};
};

struct Release {
  int button, shift, selected;
  bool operator==(const Release&) const = default;
};

inline void PrintTo(const Release& release, std::ostream* out) {
  *out << "button " << release.button << " shift " << release.shift << " at " << release.selected;
}

class Trees : public WindowsTest {
 protected:
  Trees() {
    form_.Show();
    form_.tree.on_mouse_up = [this](Mouse mouse) {
      releases_.push_back({mouse.button, mouse.shift, form_.tree.selected()});
    };
    form_.tree.on_click = [this] { ++clicks_; };
    form_.tree.on_double_click = [this] { ++double_clicks_; };
  }

  // The item of a node, found by the node's id as it is from outside.
  HTREEITEM Item(int position) {
    for (HTREEITEM item : Items()) {
      if (Asked(item).lParam == static_cast<LPARAM>(form_.tree.At(position).id)) return item;
    }
    return nullptr;
  }
  std::vector<HTREEITEM> Items() {
    std::vector<HTREEITEM> all;
    Visit(Next(TVGN_ROOT, nullptr), all);
    return all;
  }
  HTREEITEM Next(WPARAM which, HTREEITEM from) {
    return reinterpret_cast<HTREEITEM>(
        Send(form_.tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(from)));
  }
  TVITEMW Asked(HTREEITEM item) {
    TVITEMW asked{};
    asked.mask = TVIF_PARAM | TVIF_STATE | TVIF_HANDLE | TVIF_TEXT;
    asked.hItem = item;
    asked.stateMask = TVIS_STATEIMAGEMASK | TVIS_EXPANDED | TVIS_SELECTED;
    asked.pszText = text_;
    asked.cchTextMax = 260;
    Send(form_.tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    return asked;
  }
  Text TextAt(int position) {
    const TVITEMW asked = Asked(Item(position));
    return FromWide(asked.pszText, wcslen(asked.pszText));
  }
  bool IsChecked(int position) {
    return (Asked(Item(position)).state & TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2);
  }
  bool IsExpanded(int position) { return (Asked(Item(position)).state & TVIS_EXPANDED) != 0; }
  // The position of the node whose item the window has selected; 0 for none.
  int Shown() {
    const HTREEITEM caret = Next(TVGN_CARET, nullptr);
    return caret == nullptr
               ? 0
               : form_.tree.PositionOf(static_cast<std::uint32_t>(Asked(caret).lParam));
  }
  RECT Area(int position) {
    RECT area{};
    const HTREEITEM item = Item(position);
    std::memcpy(&area, &item, sizeof item);
    Send(form_.tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&area));
    return area;
  }
  // A point where a node has something, such as its box.
  POINT Spot(int position, UINT what) {
    const RECT text = Area(position);
    for (LONG x = 0; x < text.right; ++x) {
      TVHITTESTINFO hit{};
      hit.pt = {x, (text.top + text.bottom) / 2};
      Send(form_.tree, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
      if ((hit.flags & what) != 0) return {x + 2, hit.pt.y};
    }
    ADD_FAILURE() << "nothing of the kind at node " << position;
    return {};
  }
  void Press(UINT down, POINT at, WPARAM keys = 0) {
    PostMessageW(WindowOf(form_.tree), down, keys, MAKELPARAM(at.x, at.y));
    PostMessageW(WindowOf(form_.tree), down == WM_LBUTTONDBLCLK ? WM_LBUTTONUP : down + 1, keys,
                 MAKELPARAM(at.x, at.y));
    Pump();
  }
  using WindowsTest::Press;
  // Groups as a search leaves them: 1 with 2 and 4 below, 3 with 5.
  void Fill() {
    const int first = form_.tree.Add(u"C:\\один", u"k1");
    form_.tree.SetExpanded(first, true);
    form_.tree.SetChecked(form_.tree.Add(u"C:\\два", u"k1 1", first), true);
    const int third = form_.tree.Add(u"C:\\три", u"k3");
    form_.tree.Add(u"C:\\четыре", u"k1 3", first);
    form_.tree.Add(u"C:\\пять", u"k3 4", third);
    Pump();
  }

  TreeForm form_;
  std::vector<Release> releases_;
  int clicks_ = 0;
  int double_clicks_ = 0;

 private:
  void Visit(HTREEITEM item, std::vector<HTREEITEM>& all) {
    for (; item != nullptr; item = Next(TVGN_NEXT, item)) {
      all.push_back(item);
      Visit(Next(TVGN_CHILD, item), all);
    }
  }
  wchar_t text_[260] = L"";
};

}  // namespace orvik::forms::win32
