// Trees with very many nodes.
#include "base/numbers.h"
#include "tree_view_test.h"

namespace orvik::forms::win32 {
namespace {

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
