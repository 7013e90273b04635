// Trees with a check box at every node.
#include "tree_view_test.h"

namespace orvik::forms::win32 {
namespace {

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
}  // namespace
}  // namespace orvik::forms::win32
