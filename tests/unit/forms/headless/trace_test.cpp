#include "forms/headless/trace.h"

#include <gmock/gmock.h>

#include "unit/forms/headless/demo.h"

namespace orvik::forms::headless {
namespace {

using testing::Contains;
using testing::ElementsAre;

// The changes that a preparation of the demo form writes, less what they share.
std::vector<std::string> Changes(const std::function<void(frmDemo&)>& prepare) {
  Demo demo;
  demo.prepare = prepare;
  std::vector<std::string> changes;
  const std::string prefix = R"({"event":"change","form":"frmDemo","control":)";
  for (const std::string& line : demo.Run("", {"--trace"}).lines) {
    if (line.rfind(prefix, 0) == 0) changes.push_back(line.substr(prefix.size()));
  }
  // The demo form hides its frame by itself.
  EXPECT_FALSE(changes.empty());
  if (!changes.empty()) {
    EXPECT_EQ(changes[0], R"("frLog","property":"visible","value":false})");
    changes.erase(changes.begin());
  }
  return changes;
}

TEST(Trace, IsOffUnlessAskedFor) {
  Demo demo;
  demo.prepare = [](frmDemo& form) { form.SetCaption(u"other"); };
  for (const std::string& line : demo.Run("").lines) {
    EXPECT_EQ(line.find("\"change\""), std::string::npos);
  }
}

TEST(Trace, TheFormItselfHasNoControlsName) {
  EXPECT_THAT(
      Changes([](frmDemo& form) {
        form.SetCaption(u"other");
        form.SetTopmost(true);
        form.SetSize(6000, 5000);
        form.SetSize(7000, 5000);
        form.SetSize(1, 2);
      }),
      ElementsAre(
          R"("","property":"caption","value":"other"})", R"("","property":"topmost","value":true})",
          R"("","property":"height","value":5000})", R"("","property":"width","value":7000})",
          R"("","property":"width","value":1})", R"("","property":"height","value":2})"));
}

TEST(Trace, ValuesAreThoseOfADump) {
  EXPECT_THAT(Changes([](frmDemo& form) {
                form.frCRC_1.SetCaption(u"x1");
                form.btStart.SetEnabled(false);
                form.cxReport.SetValue(1);
                form.txAnswer.SetText(u"t");
                form.cbOut.SetLocked(true);
                form.pbMain.SetMax(9);
                form.pbMain.SetValue(4);
                form.clExit.SetInterval(5);
                form.clExit.SetActive(true);
                form.sbMain.SetText(u"s");
              }),
              ElementsAre(R"-("frCRC(1)","property":"caption","value":"x1"})-",
                          R"-("btStart","property":"enabled","value":false})-",
                          R"-("cxReport","property":"value","value":1})-",
                          R"-("txAnswer","property":"text","value":"t"})-",
                          R"-("cbOut","property":"locked","value":true})-",
                          R"-("pbMain","property":"max","value":9})-",
                          R"-("pbMain","property":"value","value":4})-",
                          R"-("clExit","property":"interval","value":5})-",
                          R"-("clExit","property":"active","value":true})-",
                          R"-("sbMain","property":"text","value":"s"})-"));
}

TEST(Trace, EntriesNameTheirPosition) {
  EXPECT_THAT(Changes([](frmDemo& form) {
                form.cbOut.Add(u"c");
                form.lbBoxes.Add(u"a");
                form.lbBoxes.Add(u"b");
                form.lbBoxes.SetItem(1, u"B");
                form.lbBoxes.SetChecked(1, true);
                form.lbBoxes.SetSelected(1, true);
                form.lbBoxes.Remove(0);
                form.lbBoxes.Clear();
                form.cbOut.UserSelect(0);
              }),
              ElementsAre(R"-("cbOut","property":"add","value":"c"})-",
                          R"-("lbBoxes","property":"add","value":"a"})-",
                          R"-("lbBoxes","property":"add","value":"b"})-",
                          R"-("lbBoxes","property":"item(1)","value":"B"})-",
                          R"-("lbBoxes","property":"checked(1)","value":true})-",
                          R"-("lbBoxes","property":"selected","value":[1]})-",
                          R"-("lbBoxes","property":"remove(0)","value":null})-",
                          R"-("lbBoxes","property":"clear","value":null})-",
                          R"-("cbOut","property":"text","value":"c"})-",
                          R"-("cbOut","property":"index","value":0})-"));
}

TEST(Trace, RowsNameTheirPosition) {
  EXPECT_THAT(Changes([](frmDemo& form) {
                form.lvMain.Add(u"a", u"ka");
                form.lvMain.Add(u"b");
                form.lvMain.AddSub(2, u"1");
                form.lvMain.AddSub(2, u"2", u"d");
                form.lvMain.SetColor(2, 32768);
                form.lvMain.SetColor(2, 32768);
                form.lvMain.UserSelect({2});
                form.lvMain.SetColumnWidth(2, 10);
                form.lvMain.Clear();
              }),
              ElementsAre(R"-("lvMain","property":"add","value":"a"})-",
                          R"-("lvMain","property":"add","value":"b"})-",
                          R"-("lvMain","property":"sub(2)","value":["1"]})-",
                          R"-("lvMain","property":"sub(2)","value":["1","2"]})-",
                          R"-("lvMain","property":"color(2)","value":32768})-",
                          R"-("lvMain","property":"selected","value":[2]})-",
                          R"-("lvMain","property":"columns","value":)-"
                          R"-([{"text":"Файл","width":4500},{"text":"CRC","width":10}]})-",
                          R"-("lvMain","property":"clear","value":null})-"));
}

TEST(Trace, ACommonDialogTellsItsFilterAndItsName) {
  Demo demo;
  demo.prepare = [](frmDemo& form) {
    form.cdMain.SetFilter(u"a|b");
    form.cdMain.ShowOpen();
  };
  const auto lines = demo.Run("answer file \"T:\\\\x.qlx\"", {"--trace"}).lines;
  const std::string change = R"({"event":"change","form":"frmDemo","control":"cdMain",)";
  EXPECT_THAT(lines, Contains(change + R"("property":"filter","value":"a|b"})"));
  EXPECT_THAT(lines, Contains(R"({"event":"open","filter":"a|b","answer":"T:\\x.qlx"})"));
  EXPECT_THAT(lines, Contains(change + R"("property":"filename","value":"T:\\x.qlx"})"));
}

TEST(Trace, WhatNoDumpShowsIsNotWritten) {
  EXPECT_TRUE(Changes([](frmDemo& form) { form.frLog.Move({0, 0, 1, 1}); }).empty());
}

TEST(Trace, StandsBetweenTheOtherEventsInOrder) {
  Demo demo;
  demo.prepare = [](frmDemo& form) {
    form.SetCaption(u"before");
    Demo::Note("between");
    form.SetCaption(u"after");
  };
  const auto lines = demo.Run("", {"--trace"}).lines;
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_NE(lines[1].find("before"), std::string::npos);
  EXPECT_NE(lines[2].find("between"), std::string::npos);
  EXPECT_NE(lines[3].find("after"), std::string::npos);
}

}  // namespace
}  // namespace orvik::forms::headless
