#include "base/numbers.h"
#include "windows_test.h"

namespace orvik::forms::win32 {
namespace {

class JobForm : public Form {
 public:
  JobForm() : Form("frmJob", u"Форма", 6090, 3405) {}
  Label status{*this, "mtFile", {150, 150, 5700, 210}, u"-"};
  ProgressBar bar{*this, "pbMain", {150, 600, 5700, 255}};
  Button stop{*this, "btStop", {150, 1200, 1500, 375}, u"Стоп"};
};

// Counts how often the label's window is given a text.
int texts = 0;
LRESULT CALLBACK CountTexts(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                            DWORD_PTR) {
  if (message == WM_SETTEXT) ++texts;
  return DefSubclassProc(window, message, wparam, lparam);
}

class MessageLoopTest : public WindowsTest {
 protected:
  MessageLoopTest() {
    form_.Show();
    Pump();
    texts = 0;
    SetWindowSubclass(WindowOf(form_.status), &CountTexts, 9, 0);
  }
  JobForm form_;
};

TEST_F(MessageLoopTest, SingleYieldPutsTheStateOnTheScreen) {
  form_.status.SetCaption(u"512 Байт");
  front_.Yield();
  EXPECT_EQ(WindowText(WindowOf(form_.status)), u"512 Байт");
}

TEST_F(MessageLoopTest, SingleRepaintPutsTheStateOnTheScreen) {
  form_.status.SetCaption(u"512 Байт");
  form_.status.Repaint();
  EXPECT_EQ(WindowText(WindowOf(form_.status)), u"512 Байт");
}

TEST_F(MessageLoopTest, LongJobIsDrawnAtABoundedRate) {
  const ULONGLONG start = GetTickCount64();
  int files = 0;
  while (GetTickCount64() - start < 500) {
    form_.status.SetCaption(u"файл" + SpacedDecimal(++files));
    form_.status.Repaint();
    front_.Yield();
  }
  EXPECT_GT(files, 1000);
  EXPECT_LE(texts, 25) << "in half a second";
  EXPECT_GE(texts, 5);
}

TEST_F(MessageLoopTest, ClickDuringAJobComesSoon) {
  bool stopped = false;
  form_.stop.on_click = [&] { stopped = true; };
  front_.Yield();
  front_.Yield();
  PostMessageW(WindowOf(form_.stop), BM_CLICK, 0, 0);
  const ULONGLONG start = GetTickCount64();
  while (!stopped && GetTickCount64() - start < 1000) front_.Yield();
  EXPECT_TRUE(stopped);
  EXPECT_LE(GetTickCount64() - start, 60U);
}

TEST_F(MessageLoopTest, YieldIsCheap) {
  LARGE_INTEGER frequency;
  LARGE_INTEGER start;
  LARGE_INTEGER end;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&start);
  constexpr int kYields = 1000000;
  for (int i = 0; i < kYields; ++i) front_.Yield();
  QueryPerformanceCounter(&end);
  const double nanoseconds = 1e9 * static_cast<double>(end.QuadPart - start.QuadPart) /
                             static_cast<double>(frequency.QuadPart) / kYields;
  RecordProperty("nanoseconds", std::to_string(nanoseconds));
  std::printf("a yield takes %.0f ns\n", nanoseconds);
  EXPECT_LT(nanoseconds, 2000);
}

TEST_F(MessageLoopTest, WaitEndsWithInputOrWithItsTime) {
  Pump();
  const ULONGLONG start = GetTickCount64();
  EXPECT_FALSE(front_.WaitForInput(50));
  EXPECT_GE(GetTickCount64() - start, 40U);
  PostMessageW(WindowOf(form_), WM_NULL, 0, 0);
  EXPECT_TRUE(front_.WaitForInput(5000));
  front_.Yield();
  EXPECT_FALSE(front_.WaitForInput(0)) << "the pass after a wait handles the input";
}

}  // namespace
}  // namespace orvik::forms::win32
