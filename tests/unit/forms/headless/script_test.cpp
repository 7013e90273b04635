#include "forms/headless/script.h"

#include <gtest/gtest.h>

namespace orvik::forms::headless {
namespace {

Script Good(const std::string& text) {
  std::string reason;
  auto script = ParseScript(text, reason);
  EXPECT_TRUE(script) << reason;
  return script.value_or(Script());
}

template <typename EventClass>
EventClass One(const std::string& line) {
  const Script script = Good(line);
  if (script.size() != 1 || !std::holds_alternative<EventClass>(script[0].event)) {
    ADD_FAILURE() << line;
    return {};
  }
  return std::get<EventClass>(script[0].event);
}

TEST(Script, BlankLinesAndCommentsArePassedOver) {
  const Script script =
      Good("\xEF\xBB\xBF# begin\r\n\r\n  \t\r\n  # more\nclose frmA\r\nclose frmB");
  ASSERT_EQ(script.size(), 2U);
  EXPECT_EQ(script[0].number, 5);
  EXPECT_EQ(script[1].number, 6);
  EXPECT_EQ(std::get<Close>(script[1].event).target.form, "frmB");
  EXPECT_TRUE(Good("").empty());
}

TEST(Script, Answers) {
  EXPECT_EQ(One<AnswerMessage>("answer message yes").answer, Answer::kYes);
  EXPECT_EQ(One<AnswerMessage>("answer message no").answer, Answer::kNo);
  EXPECT_EQ(One<AnswerMessage>("answer message ok").answer, Answer::kOk);
  EXPECT_EQ(One<AnswerMessage>("answer message cancel").answer, Answer::kCancel);
  EXPECT_EQ(One<AnswerText>("answer input \"text\"").text, u"text");
  EXPECT_EQ(One<AnswerText>("answer input \"text\"").question, Question::kInput);
  EXPECT_EQ(One<AnswerText>("answer input cancel").text, std::nullopt);
  EXPECT_EQ(One<AnswerText>("answer browse \"T:\\x\"").question, Question::kFolder);
  EXPECT_EQ(One<AnswerText>("answer browse \"T:\\x\"").text, u"T:\\x");
  EXPECT_EQ(One<AnswerText>("answer file cancel").question, Question::kFile);
  EXPECT_EQ(One<AnswerText>("answer form \"\"").question, Question::kForm);
  EXPECT_EQ(One<AnswerText>("answer form \"\"").text, u"");
  EXPECT_TRUE(One<AnswerRecycle>("answer recycle yes").yes);
  EXPECT_FALSE(One<AnswerRecycle>("answer recycle no").yes);
}

TEST(Script, ClicksAndSelections) {
  const Click click = One<Click>("click frmFileCRC.frCRC(0)");
  EXPECT_EQ(click.target.form, "frmFileCRC");
  EXPECT_EQ(click.target.control, "frCRC(0)");
  EXPECT_EQ(click.position, std::nullopt);
  EXPECT_EQ(One<Click>("click F.Метка1 3").position, 3);
  EXPECT_EQ(One<Click>("click F.Метка1 3").target.control, "Метка1");
  EXPECT_EQ(One<DoubleClick>("dblclick F.C").position, std::nullopt);
  EXPECT_EQ(One<DoubleClick>("dblclick F.C 0").position, 0);
  EXPECT_TRUE(One<Select>("select F.C").positions.empty());
  EXPECT_EQ(One<Select>("select F.C 2 0 5").positions, (std::vector<int>{2, 0, 5}));
  EXPECT_TRUE(One<Check>("check F.C on").on);
  EXPECT_EQ(One<Check>("check F.C on").position, std::nullopt);
  EXPECT_FALSE(One<Check>("check F.C 4 off").on);
  EXPECT_EQ(One<Check>("check F.C 4 off").position, 4);
  EXPECT_EQ(One<Type>("type F.C \"a b\"").text, u"a b");
}

TEST(Script, MouseAndKeys) {
  const MouseButton form = One<MouseButton>("mouse F down 2");
  EXPECT_EQ(form.target.control, "");
  EXPECT_TRUE(form.down);
  EXPECT_EQ(form.mouse.button, kRightButton);
  EXPECT_EQ(form.mouse.shift, 0);
  const MouseButton entry = One<MouseButton>("mouse F.C up 4 7 12");
  EXPECT_FALSE(entry.down);
  EXPECT_EQ(entry.mouse.button, kMiddleButton);
  EXPECT_EQ(entry.mouse.shift, 7);
  EXPECT_EQ(entry.position, 12);
  EXPECT_EQ(One<KeyStroke>("key F 27").key.code, 27);
  EXPECT_EQ(One<KeyStroke>("key F.C 8 1").key.shift, 1);
  EXPECT_TRUE(One<Arrow>("up F.C").up);
  EXPECT_FALSE(One<Arrow>("down F.C").up);
  EXPECT_EQ(One<ChooseMenu>("menu F.mnSel(1)").target.control, "mnSel(1)");
}

TEST(Script, TheRest) {
  const Resize resize = One<Resize>("resize F 100 0");
  EXPECT_EQ(resize.width, 100);
  EXPECT_EQ(resize.height, 0);
  EXPECT_EQ(One<Close>("close F").target.form, "F");
  EXPECT_EQ(One<Wait>("wait 10000000000").milliseconds, 10000000000);
  EXPECT_EQ(One<RunCommand>("system \"rm -f 'a b'\"").command, u"rm -f 'a b'");
  EXPECT_EQ(One<ShowRegistry>("registry \"HKEY_LOCAL_MACHINE\\\\X\"").key,
            u"HKEY_LOCAL_MACHINE\\X");
  EXPECT_EQ(One<Dump>("dump").target.form, "");
  EXPECT_EQ(One<Dump>("dump F").target.form, "F");
}

TEST(Script, DuringTakesAnyOtherEvent) {
  const Script script = Good("during 3 answer message no\nduring 1 wait 5");
  ASSERT_EQ(script.size(), 2U);
  EXPECT_EQ(script[0].during, 3);
  EXPECT_TRUE(IsAnswer(script[0].event));
  EXPECT_EQ(script[1].during, 1);
  EXPECT_FALSE(IsAnswer(script[1].event));
}

TEST(Script, ABadLineIsNamed) {
  std::string reason;
  EXPECT_FALSE(ParseScript("# x\nwait 5\n\nfrobnicate F\nwait x\n", reason));
  EXPECT_EQ(reason.rfind("script line 4: ", 0), 0U) << reason;
  EXPECT_NE(reason.find("frobnicate"), std::string::npos);
}

class BadLine : public testing::TestWithParam<const char*> {};

TEST_P(BadLine, IsRefused) {
  std::string reason;
  EXPECT_FALSE(ParseScript(GetParam(), reason));
  EXPECT_EQ(reason.rfind("script line 1: ", 0), 0U) << reason;
}

INSTANTIATE_TEST_SUITE_P(
    Script, BadLine,
    testing::Values("answer", "answer message", "answer message maybe", "answer message yes no",
                    "answer input", "answer input text", "answer input \"a\" \"b\"",
                    "answer browse no", "answer recycle cancel", "answer recycle \"yes\"",
                    "answer what \"x\"", "Click F.C", "\"click\" F.C", "click", "click F",
                    "click F.", "click .C", "click F.C x", "click F.C -1", "click F.C 1 2",
                    "click \"F.C\"", "click F.C 99999999999", "check F.C", "check F.C yes",
                    "check F.C 1", "check F.C x on", "check F.C 1 on 2", "check F.C on 1",
                    "type F.C", "type F.C text", "type F \"x\"", "type F.C \"a\" b", "type F.C \"a",
                    "select F", "select F.C x", "select F.C 1 \"2\"", "dblclick F.C 1 2", "mouse F",
                    "mouse F left 1", "mouse F down", "mouse F down 0", "mouse F down 3",
                    "mouse F.C down 1 8", "mouse F down 1 0 2", "mouse F.C down 1 0 2 3", "key F",
                    "key F x", "key F 0", "key F 256", "key F 27 8", "key F 27 0 1", "up F", "down",
                    "menu F", "resize F", "resize F 1", "resize F 1 x", "resize F.C 1 2", "close",
                    "close F.C", "close F G", "wait", "wait x", "wait -1", "wait 1.5",
                    "wait 99999999999999999999", "system", "system ls", "registry", "registry X",
                    "dump F G", "dump F.C", "dump \"F\"", "during", "during 1", "during 0 close F",
                    "during x close F", "during 1 during 2 close F", "during \"1\" close F",
                    "during close F", "during 1 # x"));

}  // namespace
}  // namespace orvik::forms::headless
