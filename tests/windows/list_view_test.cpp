// Reports of rows with columns, and the status bar under them.
#include "forms/list_view.h"

#include "base/numbers.h"
#include "windows_test.h"

namespace orvik::forms::win32 {
namespace {

class ReportForm : public Form {
 public:
  ReportForm() : Form("frmReport", u"Форма", 6090, 4905, Place::kSystem) { MakeSizable(); }
  ListView list{*this, "lvMain", {0, 0, 5985, 4080}, {{u"Файл", 3000}, {u"CRC", 1500}}};
  StatusBar bar{*this, "sbMain", {0, 4080, 5985, 345}};

 protected:
  void OnResize() override {
    list.Move({0, 0, width() - 105, height() - 480 - 345});
    bar.Move({0, height() - 825, width() - 105, 345});
  }
};

class Reports : public WindowsTest {
 protected:
  Reports() { form_.Show(); }
  Text Cell(int item, int column) {
    wchar_t text[260] = L"";
    LVITEMW asked{};
    asked.iSubItem = column;
    asked.pszText = text;
    asked.cchTextMax = 260;
    Send(form_.list, LVM_GETITEMTEXTW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&asked));
    return FromWide(asked.pszText, wcslen(asked.pszText));
  }
  LVCOLUMNW Column(int number, wchar_t (&text)[64]) {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = text;
    column.cchTextMax = 64;
    Send(form_.list, LVM_GETCOLUMNW, static_cast<WPARAM>(number),
         reinterpret_cast<LPARAM>(&column));
    return column;
  }
  bool IsSelected(int item) {
    return Send(form_.list, LVM_GETITEMSTATE, static_cast<WPARAM>(item), LVIS_SELECTED) != 0;
  }
  void SetState(int item, UINT state, UINT mask) {
    LVITEMW asked{};
    asked.stateMask = mask;
    asked.state = state;
    Send(form_.list, LVM_SETITEMSTATE, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&asked));
  }
  // A press of the left button on a row, with a Shift state of the mouse message.
  void Click(int item, WPARAM keys = 0) {
    RECT area{LVIR_LABEL, 0, 0, 0};
    Send(form_.list, LVM_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&area));
    const LPARAM at = MAKELPARAM(area.left + 4, (area.top + area.bottom) / 2);
    PostMessageW(WindowOf(form_.list), WM_LBUTTONDOWN, MK_LBUTTON | keys, at);
    PostMessageW(WindowOf(form_.list), WM_LBUTTONUP, keys, at);
    Pump();
  }
  void Add(std::initializer_list<TextView> rows) {
    for (TextView row : rows) form_.list.Add(row);
    Pump();
  }
  // The color that a row's text is drawn with.
  COLORREF DrawnColor(int item) {
    NMLVCUSTOMDRAW draw{};
    draw.nmcd.hdr = {WindowOf(form_.list), 0, NM_CUSTOMDRAW};
    draw.nmcd.dwDrawStage = CDDS_PREPAINT;
    EXPECT_EQ(Notify(draw.nmcd.hdr), CDRF_NOTIFYITEMDRAW);
    draw.nmcd.dwDrawStage = CDDS_ITEMPREPAINT;
    draw.nmcd.dwItemSpec = static_cast<DWORD_PTR>(item);
    draw.clrText = 0x123456;
    Notify(draw.nmcd.hdr);
    return draw.clrText;
  }
  int Search(const wchar_t* typed, int start) {
    NMLVFINDITEMW wanted{};
    wanted.hdr = {WindowOf(form_.list), 0, LVN_ODFINDITEMW};
    wanted.iStart = start;
    wanted.lvfi.flags = LVFI_STRING | LVFI_PARTIAL | LVFI_WRAP;
    wanted.lvfi.psz = typed;
    return static_cast<int>(Notify(wanted.hdr));
  }
  LRESULT Notify(NMHDR& header) {
    return SendMessageW(WindowOf(form_), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header));
  }
  int Pixels(int twips) { return win32::WindowOf(form_).metrics().Pixels(twips); }
  ReportForm form_;
};

TEST_F(Reports, ShowRowsAndSubItems) {
  form_.list.Add(u"C:\\а.txt");
  form_.list.AddSub(1, u"x1/0kb");
  form_.list.Add(u"б");
  form_.list.AddSub(1, u"за последним столбцом");
  Pump();
  EXPECT_EQ(Send(form_.list, LVM_GETITEMCOUNT), 2);
  EXPECT_EQ(Cell(0, 0), u"C:\\а.txt");
  EXPECT_EQ(Cell(0, 1), u"x1/0kb");
  EXPECT_EQ(Cell(1, 1), u"") << "a row without its sub-item";
  form_.list.Clear();
  Pump();
  EXPECT_EQ(Send(form_.list, LVM_GETITEMCOUNT), 0);
}

TEST_F(Reports, ColumnsFollowTheModel) {
  wchar_t text[64];
  EXPECT_EQ(Column(0, text).cx, Pixels(3000));
  EXPECT_STREQ(text, L"Файл");
  form_.list.AddColumn(u"Третий", 2000);
  form_.list.SetColumnText(1, u"Другой");
  form_.list.SetColumnWidth(2, -50);
  Pump();
  EXPECT_EQ(Column(2, text).cx, Pixels(2000));
  EXPECT_STREQ(text, L"Третий");
  EXPECT_EQ(Column(1, text).cx, 0);
  Column(0, text);
  EXPECT_STREQ(text, L"Другой");
}

TEST_F(Reports, AWidthThatTheUserHasDraggedStaysUntilTheProgramSetsAnother) {
  wchar_t text[64];
  Send(form_.list, LVM_SETCOLUMNWIDTH, 0, 77);
  form_.list.SetColumnText(1, u"Другой");
  Pump();
  EXPECT_EQ(Column(0, text).cx, 77);
  form_.list.SetColumnWidth(1, 1500);
  Pump();
  EXPECT_EQ(Column(0, text).cx, Pixels(1500));
}

TEST_F(Reports, RowsHaveTheirColors) {
  Add({u"а", u"б", u"в"});
  form_.list.SetColor(1, 32768);
  form_.list.SetColor(3, 255);
  EXPECT_EQ(DrawnColor(0), RGB(0, 128, 0));
  EXPECT_EQ(DrawnColor(1), GetSysColor(COLOR_WINDOWTEXT));
  EXPECT_EQ(DrawnColor(2), RGB(255, 0, 0));
  EXPECT_EQ(DrawnColor(3), 0x123456U) << "a row that isn't there";
}

TEST_F(Reports, ThreeHundredThousandRowsAreThereAtOnce) {
  const ULONGLONG start = GetTickCount64();
  for (int i = 1; i <= 300000; ++i) {
    const Text name = u"файл" + Decimal(i);
    form_.list.Add(u"C:\\Папка\\" + name, u"k" + name);
    form_.list.AddSub(i, u"x1/0kb");
    form_.list.SetColor(i, 32768);
    form_.list.Repaint();
  }
  Pump();
  EXPECT_EQ(Send(form_.list, LVM_GETITEMCOUNT), 300000);
  EXPECT_LT(GetTickCount64() - start, 8000U);
  EXPECT_EQ(Cell(299999, 0), u"C:\\Папка\\файл300000");
  const ULONGLONG scrolled = GetTickCount64();
  for (int item = 0; item < 300000; item += 10000) {
    Send(form_.list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(item), FALSE);
    UpdateWindow(WindowOf(form_.list));
  }
  EXPECT_LT(GetTickCount64() - scrolled, 2000U);
}

TEST_F(Reports, MostOfManyRowsAreSelectedInOneStep) {
  for (int i = 1; i <= 100000; ++i) form_.list.Add(u"файл" + Decimal(i));
  Pump();
  const ULONGLONG start = GetTickCount64();
  for (int i = 1; i < 100000; ++i) form_.list.SetSelected(i, true);
  Pump();
  EXPECT_EQ(Send(form_.list, LVM_GETSELECTEDCOUNT), 99999);
  EXPECT_FALSE(IsSelected(99999));
  // Wine reports each row by itself; what costs the square of their number takes minutes.
  EXPECT_LT(GetTickCount64() - start, 10000U);
  EXPECT_TRUE(form_.list.At(99999).selected) << "no echo from the window";
  EXPECT_FALSE(form_.list.At(100000).selected);
}

TEST_F(Reports, SelectionOfTheProgramIsShown) {
  Add({u"а", u"б", u"в", u"г", u"д"});
  form_.list.SetSelected(2, true);
  form_.list.SetSelected(4, true);
  Pump();
  EXPECT_FALSE(IsSelected(0));
  EXPECT_TRUE(IsSelected(1));
  EXPECT_TRUE(IsSelected(3));
  form_.list.SetSelected(2, false);
  Pump();
  EXPECT_FALSE(IsSelected(1));
  EXPECT_TRUE(IsSelected(3));
}

TEST_F(Reports, SelectionOfTheUserReachesTheModel) {
  Add({u"а", u"б", u"в"});
  SetState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  EXPECT_TRUE(form_.list.At(2).selected);
  EXPECT_EQ(form_.list.current(), 2);
  SetState(-1, LVIS_SELECTED, LVIS_SELECTED);
  EXPECT_TRUE(form_.list.At(1).selected);
  EXPECT_TRUE(form_.list.At(3).selected);
  SetState(-1, 0, LVIS_SELECTED);
  EXPECT_FALSE(form_.list.At(2).selected);
  EXPECT_EQ(form_.list.current(), 0);
}

TEST_F(Reports, ClickTellsTheRow) {
  Add({u"аааа", u"бббб", u"вввв"});
  std::vector<int> clicked;
  std::vector<bool> pressed;
  form_.list.on_click = [&] { clicked.push_back(form_.list.current()); };
  form_.list.on_mouse_down = [&](Mouse) { pressed.push_back(true); };
  form_.list.on_mouse_up = [&](Mouse) { pressed.push_back(false); };
  Click(1);
  EXPECT_EQ(clicked, std::vector<int>{2});
  EXPECT_EQ(pressed, (std::vector<bool>{true, false}));
  EXPECT_TRUE(form_.list.At(2).selected);
  Click(2);
  EXPECT_EQ(clicked, (std::vector<int>{2, 3}));
  EXPECT_FALSE(form_.list.At(2).selected);
}

TEST_F(Reports, ClickBesideTheRowsIsNone) {
  Add({u"аааа"});
  Click(0);
  int clicks = 0;
  form_.list.on_click = [&] { ++clicks; };
  const LPARAM at = MAKELPARAM(10, 200);
  PostMessageW(WindowOf(form_.list), WM_LBUTTONDOWN, MK_LBUTTON, at);
  PostMessageW(WindowOf(form_.list), WM_LBUTTONUP, 0, at);
  Pump();
  EXPECT_EQ(clicks, 0);
  EXPECT_FALSE(form_.list.At(1).selected);
}

TEST_F(Reports, CtrlAIsTheForms) {
  Add({u"а", u"б", u"в"});
  std::vector<Key> keys;
  form_.list.on_key_down = [&](Key& key) {
    keys.push_back(key);
    form_.list.SetSelected(1, true);
  };
  SetFocus(WindowOf(form_.list));
  Press('A', kCtrl);
  ASSERT_EQ(keys.size(), 1U);
  EXPECT_EQ(keys[0].code, 65);
  EXPECT_EQ(keys[0].shift, 2);
  EXPECT_TRUE(IsSelected(0));
  EXPECT_FALSE(IsSelected(1));
  EXPECT_FALSE(IsSelected(2));
}

TEST_F(Reports, TypingFindsPathsAndNames) {
  Add({u"C:\\а\\один.txt", u"C:\\б\\два.txt", u"C:\\в\\Одиннадцать.txt", u"один"});
  EXPECT_EQ(Search(L"од", 0), 0);
  EXPECT_EQ(Search(L"од", 1), 2) << "blind to letter case";
  EXPECT_EQ(Search(L"дв", 2), 1) << "round the end";
  EXPECT_EQ(Search(L"c:\\в", 0), 2);
  EXPECT_EQ(Search(L"три", 0), -1);
  SetFocus(WindowOf(form_.list));
  PostMessageW(WindowOf(form_.list), WM_CHAR, L'д', 1);
  Pump();
  EXPECT_EQ(Send(form_.list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 1);
  EXPECT_EQ(form_.list.current(), 2);
}

TEST_F(Reports, ListAndBarFillTheForm) {
  Pump();
  RECT client;
  GetClientRect(WindowOf(form_), &client);
  EXPECT_EQ(Area(form_.list).right, client.right);
  EXPECT_EQ(Area(form_.list).bottom, Area(form_.bar).top);
  EXPECT_EQ(Area(form_.bar).bottom, client.bottom);
  EXPECT_EQ(Area(form_.bar).right, client.right);
  EXPECT_EQ(Area(form_.bar).bottom - Area(form_.bar).top, Pixels(345));
}

TEST_F(Reports, UserMakesTheFormWiderAndHigher) {
  RECT outer;
  GetWindowRect(WindowOf(form_), &outer);
  SetWindowPos(WindowOf(form_), nullptr, 0, 0, outer.right - outer.left + 40,
               outer.bottom - outer.top + 20, SWP_NOZORDER | SWP_NOMOVE);
  Pump();
  const int per_pixel = 1440 / win32::WindowOf(form_).metrics().dpi();
  EXPECT_EQ(form_.width(), 6090 + 40 * per_pixel);
  EXPECT_EQ(form_.height(), 4905 + 20 * per_pixel);
  RECT client;
  GetClientRect(WindowOf(form_), &client);
  EXPECT_EQ(Area(form_.list).right, client.right);
  EXPECT_EQ(Area(form_.list).bottom, Area(form_.bar).top);
  EXPECT_EQ(Area(form_.bar).bottom, client.bottom);
  EXPECT_EQ(SendMessageW(WindowOf(form_), WM_NCHITTEST, 0, MAKELPARAM(outer.left + 50, 0)),
            DefWindowProcW(WindowOf(form_), WM_NCHITTEST, 0, MAKELPARAM(outer.left + 50, 0)));
}

TEST_F(Reports, ASizableFormHasASmallestSizeAndNoLargest) {
  RECT outer;
  GetWindowRect(WindowOf(form_), &outer);
  MINMAXINFO limits{};
  limits.ptMaxTrackSize = {5000, 5000};
  SendMessageW(WindowOf(form_), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  EXPECT_EQ(limits.ptMinTrackSize.x, outer.right - outer.left - Pixels(6090) + Pixels(4060));
  EXPECT_EQ(limits.ptMinTrackSize.y, outer.bottom - outer.top - Pixels(4905) + Pixels(3270));
  EXPECT_EQ(limits.ptMaxTrackSize.y, 5000);
  EXPECT_TRUE(GetWindowLongPtrW(WindowOf(form_), GWL_STYLE) & WS_MAXIMIZEBOX);
}

TEST_F(Reports, NewResolutionScalesColumns) {
  RECT suggested;
  GetWindowRect(WindowOf(form_), &suggested);
  SendMessageW(WindowOf(form_), WM_DPICHANGED, MAKEWPARAM(144, 144),
               reinterpret_cast<LPARAM>(&suggested));
  Pump();
  wchar_t text[64];
  EXPECT_EQ(Column(0, text).cx, 300);
  RECT client;
  GetClientRect(WindowOf(form_), &client);
  EXPECT_EQ(Area(form_.bar).bottom, client.bottom);
}

TEST_F(Reports, StatusBarShowsItsText) {
  form_.bar.SetText(u"Обработано 25 файлов");
  Pump();
  EXPECT_EQ(WindowText(WindowOf(form_.bar)), u"Обработано 25 файлов");
}

}  // namespace
}  // namespace orvik::forms::win32
