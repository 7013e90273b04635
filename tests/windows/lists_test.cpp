// List boxes, plain and with check boxes.
#include "base/numbers.h"
#include "windows_test.h"

namespace orvik::forms::win32 {
namespace {

class ListForm : public Form {
 public:
  ListForm() : Form("frmLists", u"Форма", 6090, 4905) {}
  ListBox plain{*this, "lbPlain", {120, 120, 2500, 2000}};
  ListBox many{*this,
               "lbMany",
               {120, 2300, 2500, 1500},
               ListBox::Boxes::kNone,
               ListBox::Selection::kExtended};
  ListBox checks{*this, "lbLog", {2800, 120, 2500, 2000}, ListBox::Boxes::kCheck};
};

class Lists : public WindowsTest {
 protected:
  Lists() { form_.Show(); }
  Text PlainItem(int position) {
    wchar_t text[64] = L"";
    LVITEMW item{};
    item.pszText = text;
    item.cchTextMax = 64;
    Send(form_.plain, LVM_GETITEMTEXTW, static_cast<WPARAM>(position),
         reinterpret_cast<LPARAM>(&item));
    return FromWide(text, wcslen(text));
  }
  using WindowsTest::Press;
  // A button of the mouse goes down and up on an entry.
  void Press(ListBox& list, int position, UINT message, WPARAM keys) {
    RECT row{LVIR_LABEL, 0, 0, 0};
    Send(list, LVM_GETITEMRECT, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&row));
    const LPARAM at = MAKELPARAM(row.left + 6, (row.top + row.bottom) / 2);
    const UINT up = message == WM_LBUTTONDBLCLK ? WM_LBUTTONUP : message + 1;
    PostMessageW(WindowOf(list), message, keys, at);
    PostMessageW(WindowOf(list), up, 0, at);
    Pump();
  }
  UINT Box(int position) {
    return static_cast<UINT>(Send(form_.checks, LVM_GETITEMSTATE, static_cast<WPARAM>(position),
                                  LVIS_STATEIMAGEMASK)) >>
           12;
  }
  void SetBox(int position, bool checked) {
    LVITEMW state{};
    state.stateMask = LVIS_STATEIMAGEMASK;
    state.state = INDEXTOSTATEIMAGEMASK(checked ? 2U : 1U);
    Send(form_.checks, LVM_SETITEMSTATE, static_cast<WPARAM>(position),
         reinterpret_cast<LPARAM>(&state));
  }
  void Select(int position) { SelectIn(form_.checks, position); }
  void SelectIn(ListBox& list, int position) {
    LVITEMW state{};
    state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    state.state = LVIS_SELECTED | LVIS_FOCUSED;
    Send(list, LVM_SETITEMSTATE, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&state));
  }
  ListForm form_;
};

TEST_F(Lists, PlainFollowsTheModel) {
  for (TextView item : {u"а", u"б", u"в", u"г"}) form_.plain.Add(item);
  Pump();
  EXPECT_EQ(Send(form_.plain, LVM_GETITEMCOUNT), 4);
  form_.plain.Remove(1);
  form_.plain.SetItem(0, u"А");
  form_.plain.Add(u"д");
  Pump();
  ASSERT_EQ(Send(form_.plain, LVM_GETITEMCOUNT), 4);
  EXPECT_EQ(PlainItem(0), u"А");
  EXPECT_EQ(PlainItem(1), u"в");
  EXPECT_EQ(PlainItem(3), u"д");
  form_.plain.Clear();
  Pump();
  EXPECT_EQ(Send(form_.plain, LVM_GETITEMCOUNT), 0);
}

TEST_F(Lists, PlainReportsAChoice) {
  for (TextView item : {u"а", u"б", u"в"}) form_.plain.Add(item);
  form_.plain.UserSelect({0});
  Pump();
  int clicks = 0;
  form_.plain.on_click = [&] { ++clicks; };
  SendMessageW(WindowOf(form_.plain), WM_KEYDOWN, VK_DOWN, 1);
  EXPECT_EQ(form_.plain.index(), 1);
  EXPECT_TRUE(form_.plain.Selected(1));
  EXPECT_FALSE(form_.plain.Selected(0));
  EXPECT_GE(clicks, 1);
}

TEST_F(Lists, ExtendedSelectionGoesBothWays) {
  for (TextView item : {u"а", u"б", u"в", u"г"}) form_.many.Add(item);
  form_.many.SetSelected(1, true);
  form_.many.SetSelected(3, true);
  Pump();
  EXPECT_EQ(Send(form_.many, LVM_GETSELECTEDCOUNT), 2);
  SelectIn(form_.many, 0);
  EXPECT_TRUE(form_.many.Selected(0));
  EXPECT_TRUE(form_.many.Selected(1));
  EXPECT_FALSE(form_.many.Selected(2));
  EXPECT_TRUE(form_.many.Selected(3));
  EXPECT_EQ(form_.many.index(), 0);
}

TEST_F(Lists, AllOfManyAreSelectedAtOnce) {
  for (int i = 0; i < 30000; ++i) form_.many.Add(u"D:\\папка");
  Pump();
  const ULONGLONG start = GetTickCount64();
  for (int i = 0; i < 30000; ++i) form_.many.SetSelected(i, true);
  Pump();
  EXPECT_EQ(Send(form_.many, LVM_GETSELECTEDCOUNT), 30000);
  form_.many.SetSelected(12345, false);
  Pump();
  EXPECT_EQ(Send(form_.many, LVM_GETSELECTEDCOUNT), 29999);
  EXPECT_LT(GetTickCount64() - start, 2000U);
}

TEST_F(Lists, EveryButtonMakesItsEntryCurrentBeforeTheHandler) {
  for (TextView item : {u"а", u"б", u"в"}) form_.many.Add(item);
  Pump();
  std::vector<std::pair<int, int>> downs;
  int ups = 0;
  form_.many.on_mouse_down = [&](Mouse mouse) {
    downs.emplace_back(mouse.button, form_.many.index());
  };
  form_.many.on_mouse_up = [&](Mouse) { ++ups; };
  Press(form_.many, 1, WM_LBUTTONDOWN, MK_LBUTTON);
  Press(form_.many, 2, WM_RBUTTONDOWN, MK_RBUTTON);
  Press(form_.many, 0, WM_MBUTTONDOWN, MK_MBUTTON);
  const std::vector<std::pair<int, int>> expected{
      {kLeftButton, 1}, {kRightButton, 2}, {kMiddleButton, 0}};
  EXPECT_EQ(downs, expected);
  EXPECT_EQ(ups, 3);
  EXPECT_TRUE(form_.many.Selected(0));
  EXPECT_FALSE(form_.many.Selected(2));
}

TEST_F(Lists, ShiftTakesARangeAndStillTellsThePress) {
  for (TextView item : {u"а", u"б", u"в", u"г"}) form_.many.Add(item);
  Pump();
  Press(form_.many, 0, WM_LBUTTONDOWN, MK_LBUTTON);
  std::vector<int> at;
  form_.many.on_mouse_down = [&](Mouse) { at.push_back(form_.many.index()); };
  BYTE keys[256] = {};
  GetKeyboardState(keys);
  keys[VK_SHIFT] = 0x80;
  SetKeyboardState(keys);
  Press(form_.many, 2, WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT);
  keys[VK_SHIFT] = 0;
  SetKeyboardState(keys);
  EXPECT_TRUE(form_.many.Selected(0));
  EXPECT_TRUE(form_.many.Selected(1));
  EXPECT_TRUE(form_.many.Selected(2));
  EXPECT_FALSE(form_.many.Selected(3));
  EXPECT_EQ(at, std::vector<int>{2});
}

TEST_F(Lists, ADoubleClickIsOne) {
  for (TextView item : {u"а", u"б"}) form_.many.Add(item);
  Pump();
  int doubles = 0;
  form_.many.on_double_click = [&] { ++doubles; };
  Press(form_.many, 1, WM_LBUTTONDOWN, MK_LBUTTON);
  Press(form_.many, 1, WM_LBUTTONDBLCLK, MK_LBUTTON);
  EXPECT_EQ(doubles, 1);
  EXPECT_EQ(form_.many.index(), 1);
}

TEST_F(Lists, KeysReachTheModel) {
  std::vector<std::pair<int, int>> keys;
  form_.many.on_key_up = [&](Key& key) { keys.emplace_back(key.code, key.shift); };
  SetFocus(WindowOf(form_.many));
  Press(VK_DELETE);
  Press(VK_F5);
  const std::vector<std::pair<int, int>> expected{{kKeyDelete, 0}, {kKeyF5, 0}};
  EXPECT_EQ(keys, expected);
}

TEST_F(Lists, HundredThousandRowsAreThereAtOnce) {
  const ULONGLONG start = GetTickCount64();
  for (int i = 0; i < 100000; ++i) {
    form_.checks.Add(u"C:\\Папка\\файл" + SpacedDecimal(i));
    front_.Yield();
  }
  Pump();
  EXPECT_EQ(Send(form_.checks, LVM_GETITEMCOUNT), 100000);
  EXPECT_LT(GetTickCount64() - start, 2000U);
  wchar_t text[64];
  LVITEMW item{};
  item.pszText = text;
  item.cchTextMax = 64;
  Send(form_.checks, LVM_GETITEMTEXTW, 99999, reinterpret_cast<LPARAM>(&item));
  EXPECT_STREQ(item.pszText, L"C:\\Папка\\файл 99999");
}

TEST_F(Lists, BoxesShowTheModelAndSetIt) {
  for (TextView item : {u"а", u"б", u"в"}) form_.checks.Add(item);
  form_.checks.SetChecked(1, true);
  Pump();
  EXPECT_EQ(Box(0), 1U);
  EXPECT_EQ(Box(1), 2U);
  SetBox(0, true);
  SetBox(1, false);
  EXPECT_TRUE(form_.checks.Checked(0));
  EXPECT_FALSE(form_.checks.Checked(1));
  EXPECT_EQ(Box(0), 2U);
}

TEST_F(Lists, SpaceTogglesTheCurrentRow) {
  for (TextView item : {u"а", u"б"}) form_.checks.Add(item);
  Pump();
  Select(1);
  EXPECT_EQ(form_.checks.index(), 1);
  SendMessageW(WindowOf(form_.checks), WM_KEYDOWN, VK_SPACE, 1);
  EXPECT_TRUE(form_.checks.Checked(1));
  EXPECT_FALSE(form_.checks.Checked(0));
  SendMessageW(WindowOf(form_.checks), WM_KEYDOWN, VK_SPACE, 1);
  EXPECT_FALSE(form_.checks.Checked(1));
}

TEST_F(Lists, FirstKeyFindsARow) {
  for (TextView item : {u"а", u"б"}) form_.checks.Add(item);
  Pump();
  SetFocus(WindowOf(form_.checks));
  EXPECT_EQ(Send(form_.checks, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED), -1)
      << "the keyboard alone chooses none";
  Press(VK_SPACE);
  EXPECT_TRUE(form_.checks.Checked(0));
  EXPECT_EQ(form_.checks.index(), 0);
}

TEST_F(Lists, MouseTogglesOnTheBoxAndSelectsBesideIt) {
  for (TextView item : {u"аааа", u"бббб"}) form_.checks.Add(item);
  Pump();
  RECT icon{LVIR_BOUNDS, 0, 0, 0};
  Send(form_.checks, LVM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&icon));
  const int middle = (icon.top + icon.bottom) / 2;
  const auto click = [&](int x) {
    PostMessageW(WindowOf(form_.checks), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, middle));
    PostMessageW(WindowOf(form_.checks), WM_LBUTTONUP, 0, MAKELPARAM(x, middle));
    Pump();
  };
  click(icon.left + 8);
  EXPECT_TRUE(form_.checks.Checked(1));
  int clicks = 0;
  form_.checks.on_click = [&] { ++clicks; };
  click(icon.left + 40);
  EXPECT_TRUE(form_.checks.Checked(1));
  EXPECT_EQ(form_.checks.index(), 1);
  EXPECT_GE(clicks, 1);
}

TEST_F(Lists, RemovedRowsTakeTheirSelectionAlong) {
  for (TextView item : {u"а", u"б", u"в"}) form_.checks.Add(item);
  Pump();
  Select(2);
  form_.checks.Remove(2);
  Pump();
  EXPECT_EQ(Send(form_.checks, LVM_GETITEMCOUNT), 2);
  form_.checks.Clear();
  Pump();
  EXPECT_EQ(Send(form_.checks, LVM_GETITEMCOUNT), 0);
  EXPECT_EQ(form_.checks.index(), -1);
}

}  // namespace
}  // namespace orvik::forms::win32
