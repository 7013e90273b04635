// Pop-up menus.
#include "forms/menu.h"

#include "windows_test.h"

namespace orvik::forms::win32 {
namespace {

class MenuForm : public Form {
 public:
  MenuForm() : Form("frmMenu", u"Форма", 3000, 3000, Place::kSystem) {}
  Menu main{*this, "mnMain", u"HideMenu"};
  Menu first{main, "mnItem", u"Первый", 0};
  Menu second{main, "mnItem", u"Второй", 1};
  Menu off{main, "mnOff", u"Недоступен"};
};

class Menus : public WindowsTest {
 protected:
  Menus() {
    form_.off.SetEnabled(false);
    form_.Show();
    for (Menu* item : {&form_.first, &form_.second, &form_.off}) {
      item->on_click = [this, item] {
        open_at_click_ = IsOpen();
        chosen_.push_back(item->name());
      };
    }
  }
  ~Menus() override { KillTimer(nullptr, timer_); }

  static HWND Popup() { return FindWindowW(L"#32768", nullptr); }
  static bool IsOpen() { return Popup() != nullptr && IsWindowVisible(Popup()); }

  // Opens the menu, presses these keys in it one after the other, and comes back when it has
  // closed and its choice was told.
  void OpenAndPress(std::vector<int> keys) {
    keys_ = std::move(keys);
    keys_next_ = 0;
    timer_ = SetTimer(nullptr, 0, 50, &PressNext);
    form_.PopUp(form_.main);
    KillTimer(nullptr, timer_);
    Pump();
  }
  UINT_PTR IdOf(const char* item) {
    const Text property = u"Orvik.Item." + FromUtf8(item);
    return LOWORD(reinterpret_cast<UINT_PTR>(GetPropW(WindowOf(form_), Wide(property))));
  }

  MenuForm form_;
  std::vector<std::string> chosen_;
  bool open_at_click_ = false;
  // What was seen of the open menu.
  static inline std::wstring seen_;
  static inline RECT place_{};

 private:
  static void CALLBACK PressNext(HWND, UINT, UINT_PTR, DWORD) {
    if (!IsOpen()) return;
    const auto menu = reinterpret_cast<HMENU>(SendMessageW(Popup(), MN_GETHMENU, 0, 0));
    seen_.clear();
    GetWindowRect(Popup(), &place_);
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
      wchar_t text[100] = L"";
      GetMenuStringW(menu, static_cast<UINT>(i), text, 100, MF_BYPOSITION);
      seen_ += text;
      seen_ +=
          (GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & MF_GRAYED) != 0 ? L"-|" : L"|";
    }
    const int key = keys_next_ < keys_.size() ? keys_[keys_next_++] : VK_ESCAPE;
    PostMessageW(GetForegroundWindow(), WM_KEYDOWN, static_cast<WPARAM>(key), 1);
  }
  static inline std::vector<int> keys_;
  static inline std::size_t keys_next_ = 0;
  UINT_PTR timer_ = 0;
};

TEST_F(Menus, ShowTheirItemsAndTakeAChoiceWhenClosed) {
  OpenAndPress({VK_DOWN, VK_DOWN, VK_RETURN});
  EXPECT_EQ(seen_, L"Первый|Второй|Недоступен-|");
  EXPECT_EQ(chosen_, std::vector<std::string>{"mnItem(1)"});
  EXPECT_FALSE(open_at_click_);
  EXPECT_EQ(GetPropW(WindowOf(form_), L"Orvik.Menu"), nullptr);
}

TEST_F(Menus, EscapeChoosesNothing) {
  OpenAndPress({VK_DOWN, VK_ESCAPE});
  EXPECT_TRUE(chosen_.empty());
}

TEST_F(Menus, ItemsCanBeChosenFromOutside) {
  ASSERT_NE(IdOf("mnItem(0)"), 0U);
  SendMessageW(WindowOf(form_), WM_COMMAND, IdOf("mnItem(0)"), 0);
  SendMessageW(WindowOf(form_), WM_COMMAND, IdOf("mnOff"), 0);
  EXPECT_EQ(IdOf("mnMain"), 0U);
  EXPECT_EQ(chosen_, std::vector<std::string>{"mnItem(0)"});
}

TEST_F(Menus, OpenWhereTheyAreToldTo) {
  const win32::FormWindow::MenuPlace place(win32::WindowOf(form_), {200, 150});
  OpenAndPress({});
  EXPECT_EQ(place_.left, 200);
  EXPECT_EQ(place_.top, 150);
}

}  // namespace
}  // namespace orvik::forms::win32
