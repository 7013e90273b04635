#include "windows_test.h"

namespace orvik::forms::win32 {
namespace {

class ComboForm : public Form {
 public:
  ComboForm() : Form("frmCombo", u"Форма", 6090, 4905) {
    for (TextView item : {u"один", u"два", u"три"}) box.Add(item);
  }
  ComboBox box{*this, "cbOut", {120, 120, 3000, 315}, u"начало"};
};

class ComboBoxViewTest : public WindowsTest {
 protected:
  ComboBoxViewTest() { form_.Show(); }
  // As the list reports a choice of the user's.
  void Choose(int position) {
    Send(form_.box, CB_SETCURSEL, static_cast<WPARAM>(position));
    const WPARAM code = MAKEWPARAM(GetDlgCtrlID(WindowOf(form_.box)), CBN_SELCHANGE);
    SendMessageW(WindowOf(form_), WM_COMMAND, code, reinterpret_cast<LPARAM>(WindowOf(form_.box)));
  }
  Text Field() { return WindowText(FieldOf(form_.box)); }
  ComboForm form_;
};

TEST_F(ComboBoxViewTest, ComesUpAsTheModelHasIt) {
  EXPECT_EQ(Send(form_.box, CB_GETCOUNT), 3);
  EXPECT_EQ(Send(form_.box, CB_GETCURSEL), CB_ERR);
  EXPECT_EQ(Field(), u"начало");
}

TEST_F(ComboBoxViewTest, TypingIsTheModelsText) {
  TypeInto(FieldOf(form_.box), L"C:\\Папка");
  EXPECT_EQ(form_.box.text(), u"C:\\Папка");
  TypeInto(WindowOf(form_.box), L"D:\\");
  EXPECT_EQ(form_.box.text(), u"D:\\");
}

TEST_F(ComboBoxViewTest, SingleCharactersAreTyped) {
  SendMessageW(FieldOf(form_.box), EM_SETSEL, 0, -1);
  SendMessageW(FieldOf(form_.box), WM_CHAR, L'я', 1);
  EXPECT_EQ(form_.box.text(), u"я");
}

TEST_F(ComboBoxViewTest, ChoiceIsTheModelsEntryAndText) {
  Choose(1);
  EXPECT_EQ(form_.box.index(), 1);
  EXPECT_EQ(form_.box.text(), u"два");
  Pump();
  EXPECT_EQ(Field(), u"два");
  EXPECT_EQ(Send(form_.box, CB_GETCURSEL), 1);
}

TEST_F(ComboBoxViewTest, TypingLeavesNoEntryCurrent) {
  Choose(1);
  TypeInto(FieldOf(form_.box), L"другое");
  Pump();
  EXPECT_EQ(form_.box.index(), -1);
  EXPECT_EQ(Send(form_.box, CB_GETCURSEL), CB_ERR);
  EXPECT_EQ(Field(), u"другое");
}

TEST_F(ComboBoxViewTest, HandlerOfAChoiceHasTheLastWord) {
  form_.box.on_click = [this] { form_.box.SetText(u"иначе"); };
  Choose(2);
  Pump();
  EXPECT_EQ(Field(), u"иначе");
  EXPECT_EQ(form_.box.text(), u"иначе");
}

TEST_F(ComboBoxViewTest, ListChangesKeepTheText) {
  form_.box.Remove(0);
  form_.box.Add(u"четыре");
  Pump();
  EXPECT_EQ(Send(form_.box, CB_GETCOUNT), 3);
  EXPECT_EQ(Send(form_.box, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                 reinterpret_cast<LPARAM>(L"один")),
            CB_ERR);
  EXPECT_EQ(Field(), u"начало");
  form_.box.Clear();
  Pump();
  EXPECT_EQ(Send(form_.box, CB_GETCOUNT), 0);
  EXPECT_EQ(Field(), u"начало");
  EXPECT_EQ(form_.box.text(), u"начало");
}

TEST_F(ComboBoxViewTest, EntriesAddedOneByOneArriveInOrder) {
  for (TextView item : {u"четыре", u"пять"}) {
    form_.box.Add(item);
    Pump();
  }
  EXPECT_EQ(Send(form_.box, CB_GETCOUNT), 5);
  wchar_t last[16];
  Send(form_.box, CB_GETLBTEXT, 4, reinterpret_cast<LPARAM>(last));
  EXPECT_STREQ(last, L"пять");
}

TEST_F(ComboBoxViewTest, LockedTakesNeitherTypingNorChoice) {
  form_.box.SetLocked(true);
  Pump();
  TypeInto(FieldOf(form_.box), L"чужое");
  EXPECT_EQ(form_.box.text(), u"начало");
  EXPECT_EQ(Field(), u"начало");
  Choose(1);
  Pump();
  EXPECT_EQ(form_.box.index(), -1);
  EXPECT_EQ(Field(), u"начало");
  EXPECT_EQ(Send(form_.box, CB_GETCURSEL), CB_ERR);
  Send(form_.box, CB_SHOWDROPDOWN, TRUE);
  EXPECT_FALSE(Send(form_.box, CB_GETDROPPEDSTATE));
  SendMessageW(FieldOf(form_.box), WM_KEYDOWN, VK_DOWN, 1);
  EXPECT_EQ(form_.box.text(), u"начало");
}

TEST_F(ComboBoxViewTest, UnlockedAgainItTakesTyping) {
  form_.box.SetLocked(true);
  Pump();
  form_.box.SetLocked(false);
  Pump();
  TypeInto(FieldOf(form_.box), L"можно");
  EXPECT_EQ(form_.box.text(), u"можно");
}

TEST_F(ComboBoxViewTest, ArrowKeyChooses) {
  form_.box.SetText(u"один");
  Pump();
  SendMessageW(FieldOf(form_.box), WM_KEYDOWN, VK_DOWN, 1);
  EXPECT_GE(form_.box.index(), 0);
}

}  // namespace
}  // namespace orvik::forms::win32
