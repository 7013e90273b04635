// Trees with a check box at every node.
#include "forms/tree_view.h"

#include <cstring>
#include <vector>

#include "base/numbers.h"
#include "windows_test.h"

namespace orvik::forms::win32 {
namespace {

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

void PrintTo(const Release& release, std::ostream* out) {
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

TEST_F(Trees, ShowTheModelsNodes) {
  Fill();
  ASSERT_EQ(Items().size(), 5U);
  EXPECT_EQ(TextAt(1), u"C:\\один");
  EXPECT_EQ(TextAt(5), u"C:\\пять");
  EXPECT_EQ(Next(TVGN_PARENT, Item(2)), Item(1));
  EXPECT_EQ(Next(TVGN_NEXT, Item(2)), Item(4)) << "children stand in the order of addition";
  EXPECT_EQ(Next(TVGN_NEXT, Item(1)), Item(3));
  EXPECT_TRUE(IsChecked(2));
  EXPECT_FALSE(IsChecked(1));
  EXPECT_TRUE(IsExpanded(1));
  EXPECT_FALSE(IsExpanded(3));
}

TEST_F(Trees, AnExpandedNodeIsSoFromItsFirstChildOn) {
  const int node = form_.tree.Add(u"а", u"k1");
  form_.tree.SetExpanded(node, true);
  Pump();
  form_.tree.Add(u"б", u"k2", node);
  Pump();
  EXPECT_TRUE(IsExpanded(1));
  EXPECT_GT(Area(2).bottom, Area(1).bottom);
}

TEST_F(Trees, ChangesFollow) {
  Fill();
  form_.tree.SetText(2, u"Удален C:\\два");
  form_.tree.SetChecked(2, false);
  form_.tree.SetChecked(5, true);
  form_.tree.SetExpanded(1, false);
  form_.tree.SetExpanded(3, true);
  Pump();
  EXPECT_EQ(TextAt(2), u"Удален C:\\два");
  EXPECT_FALSE(IsChecked(2));
  EXPECT_TRUE(IsChecked(5));
  EXPECT_FALSE(IsExpanded(1));
  EXPECT_TRUE(IsExpanded(3));
}

TEST_F(Trees, ARemovedNodeLeavesTheOthersTheirPlaces) {
  form_.tree.Add(u"Обработка", u"Load");
  Fill();
  form_.tree.UserSelect(3);
  form_.tree.Remove(1);
  Pump();
  ASSERT_EQ(Items().size(), 5U);
  EXPECT_EQ(TextAt(1), u"C:\\один");
  EXPECT_TRUE(IsChecked(2));
  EXPECT_EQ(Shown(), 2);
  form_.tree.Add(u"C:\\шесть", u"k1 5", 1);
  form_.tree.Remove(4);
  Pump();
  EXPECT_EQ(Next(TVGN_NEXT, Item(2)), Item(5));
  EXPECT_EQ(TextAt(5), u"C:\\шесть");
}

TEST_F(Trees, NothingIsSelectedWhenTheSelectedNodeGoes) {
  Fill();
  form_.tree.UserSelect(3);
  Pump();
  EXPECT_EQ(Shown(), 3);
  form_.tree.Remove(3);
  Pump();
  EXPECT_EQ(Shown(), 0);
  EXPECT_EQ(form_.tree.selected(), 0);
}

TEST_F(Trees, AreFilledAnew) {
  Fill();
  form_.tree.Clear();
  form_.tree.Add(u"другой", u"k1");
  Pump();
  ASSERT_EQ(Items().size(), 1U);
  EXPECT_EQ(TextAt(1), u"другой");
}

TEST_F(Trees, TheKeyboardAloneSelectsNothing) {
  Fill();
  SetFocus(WindowOf(form_.tree));
  Pump();
  EXPECT_EQ(Shown(), 0);
  EXPECT_EQ(form_.tree.selected(), 0);
  Press(VK_SPACE);
  EXPECT_FALSE(form_.tree.At(1).checked) << "no node is selected";
  Press(VK_DOWN);
  EXPECT_EQ(form_.tree.selected(), 1);
  Press(VK_DOWN);
  EXPECT_EQ(form_.tree.selected(), 2);
  EXPECT_EQ(Shown(), 2);
}

TEST_F(Trees, SpaceTogglesTheSelectedNode) {
  Fill();
  SetFocus(WindowOf(form_.tree));
  form_.tree.UserSelect(2);
  Pump();
  Press(VK_SPACE);
  EXPECT_FALSE(form_.tree.At(2).checked);
  EXPECT_FALSE(IsChecked(2));
  Press(VK_SPACE);
  EXPECT_TRUE(form_.tree.At(2).checked);
  EXPECT_TRUE(IsChecked(2));
}

TEST_F(Trees, ThePressOnABoxTogglesAndSelectsNothing) {
  Fill();
  Press(WM_LBUTTONDOWN, Spot(4, TVHT_ONITEMSTATEICON));
  EXPECT_TRUE(form_.tree.At(4).checked);
  EXPECT_TRUE(IsChecked(4));
  EXPECT_EQ(Shown(), 0);
  EXPECT_EQ(releases_, (std::vector<Release>{{kLeftButton, 0, 0}}));
  // The second press of a double click is one more.
  Press(WM_LBUTTONDBLCLK, Spot(4, TVHT_ONITEMSTATEICON));
  EXPECT_FALSE(form_.tree.At(4).checked);
}

TEST_F(Trees, ABoxCanBeSetFromOutside) {
  Fill();
  TVITEMW item{};
  item.mask = TVIF_STATE | TVIF_HANDLE;
  item.hItem = Item(3);
  item.state = INDEXTOSTATEIMAGEMASK(2);
  item.stateMask = TVIS_STATEIMAGEMASK;
  Send(form_.tree, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  EXPECT_TRUE(form_.tree.At(3).checked);
  EXPECT_TRUE(IsChecked(3));
}

TEST_F(Trees, EveryReleaseIsToldOnceAfterTheSelectionHasMoved) {
  Fill();
  const POINT second = Spot(2, TVHT_ONITEMLABEL);
  Press(WM_LBUTTONDOWN, second);
  EXPECT_EQ(releases_, (std::vector<Release>{{kLeftButton, 0, 2}}));
  EXPECT_EQ(clicks_, 1);
  EXPECT_EQ(Shown(), 2);
  releases_.clear();
  Press(WM_LBUTTONDOWN, Spot(4, TVHT_ONITEMLABEL), MK_SHIFT);
  EXPECT_EQ(releases_, (std::vector<Release>{{kLeftButton, kShift, 4}}));
}

TEST_F(Trees, OtherButtonsLeaveTheSelection) {
  Fill();
  form_.tree.UserSelect(4);
  Pump();
  const POINT second = Spot(2, TVHT_ONITEMLABEL);
  Press(WM_RBUTTONDOWN, second, MK_SHIFT);
  Press(WM_RBUTTONDOWN, second);
  Press(WM_MBUTTONDOWN, second, MK_SHIFT | MK_CONTROL);
  EXPECT_EQ(releases_, (std::vector<Release>{{kRightButton, kShift, 4},
                                             {kRightButton, 0, 4},
                                             {kMiddleButton, kShift | kCtrl, 4}}));
  EXPECT_EQ(Shown(), 4);
  EXPECT_EQ(clicks_, 0);
}

TEST_F(Trees, ADoubleClickExpandsAndCollapses) {
  Fill();
  const POINT first = Spot(1, TVHT_ONITEMLABEL);
  Press(WM_LBUTTONDOWN, first);
  Press(WM_LBUTTONDBLCLK, first);
  EXPECT_FALSE(form_.tree.At(1).expanded);
  EXPECT_FALSE(IsExpanded(1));
  EXPECT_EQ(double_clicks_, 1);
  EXPECT_EQ(releases_.size(), 2U);
  Press(WM_LBUTTONDOWN, Spot(1, TVHT_ONITEMBUTTON));
  EXPECT_TRUE(form_.tree.At(1).expanded);
  EXPECT_TRUE(IsExpanded(1));
}

TEST_F(Trees, KeysExpandInTheModelToo) {
  Fill();
  SetFocus(WindowOf(form_.tree));
  form_.tree.UserSelect(1);
  Pump();
  Press(VK_LEFT);
  EXPECT_FALSE(form_.tree.At(1).expanded);
  Press(VK_RIGHT);
  EXPECT_TRUE(form_.tree.At(1).expanded);
}

TEST_F(Trees, KeysReachTheModelWithTheirShiftState) {
  Fill();
  std::vector<Key> keys;
  form_.tree.on_key_down = [&](Key& key) { keys.push_back(key); };
  SetFocus(WindowOf(form_.tree));
  Press(VK_DELETE);
  Press(VK_DELETE, kCtrl);
  ASSERT_EQ(keys.size(), 2U);
  EXPECT_EQ(keys[0].code, kKeyDelete);
  EXPECT_EQ(keys[0].shift, 0);
  EXPECT_EQ(keys[1].shift, kCtrl);
}

TEST_F(Trees, TheMenuKeyIsARelease) {
  Fill();
  SendMessageW(WindowOf(form_.tree), WM_CONTEXTMENU, 0, -1);
  EXPECT_EQ(releases_, (std::vector<Release>{{kRightButton, 0, 0}}));
}

TEST_F(Trees, TheToolTipIsTheModels) {
  Fill();
  form_.tree.SetTooltip(u" -123456");
  Pump();
  HWND tips = nullptr;
  Text shown;
  while ((tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
    wchar_t text[100] = L"";
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = WindowOf(form_.tree);
    tool.uId = reinterpret_cast<UINT_PTR>(WindowOf(form_.tree));
    tool.lpszText = text;
    SendMessageW(tips, TTM_GETTEXTW, 100, reinterpret_cast<LPARAM>(&tool));
    shown += FromWide(text, wcslen(text));
  }
  EXPECT_EQ(shown, u" -123456");
}

TEST_F(Trees, LieOnTheColorOfWindows) {
  Fill();
  UpdateWindow(WindowOf(form_.tree));
  const auto color = [&] {
    const HDC context = GetDC(WindowOf(form_.tree));
    const COLORREF at = GetPixel(context, 300, 300);
    ReleaseDC(WindowOf(form_.tree), context);
    return at;
  };
  EXPECT_EQ(color(), GetSysColor(COLOR_WINDOW));
  form_.tree.Clear();
  Pump();
  UpdateWindow(WindowOf(form_.tree));
  EXPECT_EQ(color(), GetSysColor(COLOR_WINDOW));
}

ULONGLONG Since(ULONGLONG start) { return GetTickCount64() - start; }

TEST_F(Trees, ThirtyThousandNodesStayUsable) {
  constexpr int kNodes = 30000;
  ULONGLONG start = GetTickCount64();
  for (int i = 1; i <= kNodes; ++i) form_.tree.Add(u"C:\\файл" + Decimal(i), u"k" + Decimal(i));
  Pump();
  UpdateWindow(WindowOf(form_.tree));
  RecordProperty("roots", static_cast<int>(Since(start)));
  EXPECT_EQ(Send(form_.tree, TVM_GETCOUNT), kNodes);
  EXPECT_LT(Since(start), 10000U);

  start = GetTickCount64();
  for (int i = 1; i <= kNodes; ++i) form_.tree.SetChecked(i, true);
  Pump();
  UpdateWindow(WindowOf(form_.tree));
  RecordProperty("marks", static_cast<int>(Since(start)));
  EXPECT_LT(Since(start), 500U);

  start = GetTickCount64();
  form_.tree.Remove(1);
  Pump();
  UpdateWindow(WindowOf(form_.tree));
  RecordProperty("removal", static_cast<int>(Since(start)));
  EXPECT_LT(Since(start), 500U);

  start = GetTickCount64();
  form_.tree.Clear();
  Pump();
  RecordProperty("clear", static_cast<int>(Since(start)));
  EXPECT_LT(Since(start), 5000U);

  // Groups, with children added later to any of them, shown as they come.
  start = GetTickCount64();
  for (int i = 0; i < kNodes / 3; ++i) {
    const int group = form_.tree.Add(u"C:\\файл" + Decimal(i), u"k" + Decimal(i));
    form_.tree.SetExpanded(group, true);
    form_.tree.Add(u"C:\\дважды" + Decimal(i), u"kk" + Decimal(i), group);
    form_.tree.SetChecked(form_.tree.count(), true);
    if (i % 50 == 0) Yield();
  }
  RecordProperty("groups", static_cast<int>(Since(start)));
  for (int i = 0; i < kNodes / 3; ++i) {
    form_.tree.Add(u"C:\\трижды" + Decimal(i), u"kkk" + Decimal(i),
                   form_.tree.Find(u"k" + Decimal(i)));
    if (i % 50 == 0) Yield();
  }
  Pump();
  RecordProperty("children", static_cast<int>(Since(start)));
  EXPECT_LT(Since(start), 30000U);

  // What it costs to show one more each time.
  constexpr int kTimes = 20;
  start = GetTickCount64();
  for (int i = 0; i < kTimes; ++i) {
    form_.tree.Add(u"ещё", u"more" + Decimal(i), 1);
    Pump();
    UpdateWindow(WindowOf(form_.tree));
  }
  RecordProperty("one more", static_cast<int>(Since(start) / kTimes));
  EXPECT_LT(Since(start) / kTimes, 300U);
}

}  // namespace
}  // namespace orvik::forms::win32
