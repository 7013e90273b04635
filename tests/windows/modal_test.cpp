// Forms that are shown modally, and forms with an owner.
#include "windows_test.h"

namespace orvik::forms::win32 {
namespace {

class MainForm : public Form {
 public:
  MainForm() : Form("frmModalMain", u"Форма", 6090, 3000, Place::kSystem) {}
  TextBox text{*this, "txMain", {0, 0, 3000, 300}, u"главная"};
  TextBox other{*this, "txOther", {0, 400, 3000, 300}, u"вторая"};
};

class OtherForm : public Form {
 public:
  OtherForm() : Form("frmModalOther", u"Другая", 3000, 3000, Place::kSystem) {}
  TextBox text{*this, "txMain", {0, 0, 2000, 300}, u""};
};

// Shows itself from within its own load, as the question form does.
class QuestionForm : public Form {
 public:
  QuestionForm() : Form("frmQuestion", u"Вопрос", 4000, 1500) {}
  TextBox text{*this, "txAnswer", {0, 0, 2000, 300}, u""};
  Button ok{*this, "btAnswer", {0, 400, 900, 400}, u"Ok"};

 protected:
  void OnLoad() override {
    text.SetText(u"ответ");
    ShowModal();
  }
};

class Modal : public WindowsTest {
 protected:
  Modal() {
    main_.Show();
    other_.Show();
    SetForegroundWindow(WindowOf(main_));
    SetFocus(WindowOf(main_.other));
    Pump();
    question_.ok.on_click = [this] { question_.Unload(); };
  }
  // Runs `look` once, inside the loop of the modal form.
  void During(std::function<void()> look) {
    look_ = std::move(look);
    timer_ = SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR id, DWORD) {
      KillTimer(nullptr, id);
      look_();
    });
  }
  MainForm main_;
  OtherForm other_;
  QuestionForm question_;

 private:
  static inline std::function<void()> look_;
  UINT_PTR timer_ = 0;
};

TEST_F(Modal, OnlyTheModalFormAnswersUntilItHasGone) {
  bool looked = false;
  During([&] {
    looked = true;
    EXPECT_FALSE(IsWindowEnabled(WindowOf(main_)));
    EXPECT_FALSE(IsWindowEnabled(WindowOf(other_)));
    EXPECT_TRUE(IsWindowEnabled(WindowOf(question_)));
    EXPECT_TRUE(IsWindowVisible(WindowOf(question_)));
    EXPECT_EQ(GetWindow(WindowOf(question_), GW_OWNER), WindowOf(main_));
    EXPECT_EQ(GetFocus(), WindowOf(question_.text));
    DWORD from = 9, to = 9;
    SendMessageW(WindowOf(question_.text), EM_GETSEL, reinterpret_cast<WPARAM>(&from),
                 reinterpret_cast<LPARAM>(&to));
    EXPECT_EQ(from, 0U);
    EXPECT_EQ(to, 5U) << "the text comes up selected";
    PostMessageW(WindowOf(question_.ok), BM_CLICK, 0, 0);
  });
  question_.Load();
  EXPECT_TRUE(looked);
  EXPECT_TRUE(question_.unloaded());
  EXPECT_TRUE(IsWindowEnabled(WindowOf(main_)));
  EXPECT_TRUE(IsWindowEnabled(WindowOf(other_)));
  Pump();
  EXPECT_EQ(GetActiveWindow(), WindowOf(main_));
  EXPECT_EQ(GetFocus(), WindowOf(main_.other)) << "the keyboard is where it was";
}

TEST_F(Modal, TheTitleBarClosesItAndEscapeDoesNot) {
  During([&] {
    PostMessageW(WindowOf(question_.text), WM_KEYDOWN, VK_ESCAPE, 1);
    During([&] {
      EXPECT_TRUE(question_.visible());
      PostMessageW(WindowOf(question_), WM_SYSCOMMAND, SC_CLOSE, 0);
    });
  });
  question_.Load();
  EXPECT_TRUE(question_.unloaded());
  EXPECT_TRUE(IsWindowEnabled(WindowOf(main_)));
}

TEST_F(Modal, AnOwnedFormLeavesItsOwnerFree) {
  OtherForm owned;
  owned.SetOwner(main_);
  owned.Show();
  EXPECT_EQ(GetWindow(WindowOf(owned), GW_OWNER), WindowOf(main_));
  EXPECT_TRUE(IsWindowEnabled(WindowOf(main_)));
  EXPECT_EQ(GetWindowLongW(WindowOf(owned), GWL_STYLE) & WS_MINIMIZEBOX, 0);
  owned.Unload();
  EXPECT_TRUE(IsWindow(WindowOf(main_)));
}

TEST_F(Modal, AnOwnedFormOutlivesItsOwner) {
  OtherForm owned;
  owned.SetOwner(main_);
  owned.Show();
  main_.Unload();
  EXPECT_TRUE(IsWindow(WindowOf(owned)));
  owned.Unload();
  // The last form that goes ends the process.
  EXPECT_THROW(other_.Unload(), Ended);
}

}  // namespace
}  // namespace orvik::forms::win32
