#include "forms/headless/dump.h"

#include <gmock/gmock.h>

#include "forms/instance.h"
#include "unit/forms/headless/demo.h"
#include "unit/support/test_front_end.h"

namespace orvik::forms::headless {
namespace {

using testing::HasSubstr;

class DumpTest : public testing::Test {
 protected:
  std::string Form() {
    std::string out;
    JsonWriter json(out);
    json.BeginObject();
    WriteForm(json, form);
    json.EndObject();
    return out;
  }
  std::string Dumped(const char* name) {
    const std::string out = Form();
    // The piece of one control, up to the next.
    const std::string key = "\"" + std::string(name) + "\":{";
    const std::size_t at = out.find(key);
    if (at == std::string::npos) return "no " + key + " in " + out;
    const std::size_t begin = at + key.size() - 1;
    return out.substr(begin, out.find('}', begin) - begin + 1);
  }
  test::TestFrontEnd front;
  frmDemo form;
};

TEST_F(DumpTest, AFormHasItsMembersInOrder) {
  class frmBare : public forms::Form {
   public:
    frmBare() : Form("frmBare", u"Голая \"форма\"", 1200, 3400) {}
    Line lnOne{*this, "lnOne", {}};
  } bare;
  std::string out;
  JsonWriter json(out);
  json.BeginObject();
  WriteForm(json, bare);
  json.EndObject();
  EXPECT_EQ(out,
            "{\"form\":\"frmBare\",\"caption\":\"Голая \\\"форма\\\"\",\"visible\":false,"
            "\"width\":1200,\"height\":3400,\"topmost\":false,"
            "\"controls\":{\"lnOne\":{\"kind\":\"Line\",\"visible\":true}}}");
}

TEST_F(DumpTest, CaptionedKinds) {
  EXPECT_EQ(Dumped("frCRC(1)"),
            R"({"kind":"Label","visible":true,"enabled":true,"caption":"one"})");
  form.btStart.SetEnabled(false);
  EXPECT_EQ(Dumped("btStart"),
            R"({"kind":"Button","visible":true,"enabled":false,"caption":"Начать"})");
  form.frLog.SetVisible(false);
  EXPECT_EQ(Dumped("frLog"), R"({"kind":"Frame","visible":false,"enabled":true,"caption":"Log"})");
  EXPECT_EQ(Dumped("mnItem(0)"),
            R"({"kind":"Menu","visible":true,"enabled":true,"caption":"Item"})");
  form.cxReport.SetValue(1);
  EXPECT_EQ(Dumped("cxReport"),
            R"({"kind":"CheckBox","visible":true,"enabled":true,"caption":"Report","value":1})");
}

TEST_F(DumpTest, Texts) {
  EXPECT_EQ(Dumped("txAnswer"),
            R"({"kind":"TextBox","visible":true,"enabled":true,"text":"text"})");
  form.sbMain.SetText(u"42");
  EXPECT_EQ(Dumped("sbMain"), R"({"kind":"StatusBar","visible":true,"enabled":true,"text":"42"})");
}

TEST_F(DumpTest, AComboBox) {
  form.cbOut.Add(u"a");
  form.cbOut.Add(u"b");
  EXPECT_EQ(Dumped("cbOut"), R"({"kind":"ComboBox","visible":true,"enabled":true,"text":"out",)"
                             R"("items":["a","b"],"index":-1,"locked":false})");
  form.cbOut.UserSelect(1);
  form.cbOut.SetLocked(true);
  EXPECT_EQ(Dumped("cbOut"), R"({"kind":"ComboBox","visible":true,"enabled":true,"text":"b",)"
                             R"("items":["a","b"],"index":1,"locked":true})");
}

TEST_F(DumpTest, AListBoxHasMarksWhereItHasBoxes) {
  EXPECT_EQ(Dumped("lbPlain"),
            R"({"kind":"ListBox","visible":true,"enabled":true,"items":[],"index":-1,)"
            R"("selected":[]})");
  for (TextView item : {u"a", u"b", u"c"}) form.lbBoxes.Add(item);
  form.lbBoxes.SetChecked(1, true);
  form.lbBoxes.UserSelect({2, 0});
  EXPECT_EQ(Dumped("lbBoxes"),
            R"({"kind":"ListBox","visible":true,"enabled":true,"items":["a","b","c"],)"
            R"("index":0,"selected":[0,2],"checked":[1]})");
}

TEST_F(DumpTest, AListViewHasColumnsAndRows) {
  const std::string head =
      R"({"kind":"ListView","visible":true,"enabled":true,)"
      R"("columns":[{"text":"Файл","width":4500},{"text":"CRC","width":2300}],)";
  EXPECT_THAT(Form(), HasSubstr(R"("lvMain":)" + head + R"("rows":[]})"));
  form.lvMain.Add(u"C:\\а.txt", u"kа.txt");
  form.lvMain.Add(u"b");
  form.lvMain.AddSub(1, u"x1/0kb", u"s");
  form.lvMain.AddSub(1, u"");
  form.lvMain.SetColor(1, 255);
  form.lvMain.SetSelected(2, true);
  EXPECT_THAT(
      Form(),
      HasSubstr(R"("lvMain":)" + head +
                R"("rows":[{"text":"C:\\а.txt","key":"kа.txt","color":255,"sub":["x1/0kb",""],)"
                R"("selected":false},{"text":"b","key":"","color":2147483656,"sub":[],)"
                R"("selected":true}]})"));
}

TEST_F(DumpTest, ACommonDialogHasItsFilterAndTheNameThatWasChosen) {
  EXPECT_EQ(Dumped("cdMain"), R"({"kind":"CommonDialog","filter":"","filename":""})");
  form.cdMain.SetFilter(u"Списки *.qlx|*.qlx");
  front.file_answers.push_back(u"T:\\а.qlx");
  form.cdMain.ShowSave();
  EXPECT_EQ(Dumped("cdMain"),
            R"({"kind":"CommonDialog","filter":"Списки *.qlx|*.qlx","filename":"T:\\а.qlx"})");
}

TEST_F(DumpTest, Numbers) {
  form.pbMain.SetMax(7);
  form.pbMain.SetValue(3);
  EXPECT_EQ(Dumped("pbMain"),
            R"({"kind":"ProgressBar","visible":true,"enabled":true,"max":7,"value":3})");
  form.clExit.SetActive(true);
  EXPECT_EQ(Dumped("clExit"), R"({"kind":"Timer","interval":1000,"active":true})");
}

TEST_F(DumpTest, KindsWithNothingMore) {
  EXPECT_EQ(Dumped("pbDest"), R"({"kind":"Picture","visible":true,"enabled":true})");
  EXPECT_EQ(Dumped("lnOne(0)"), R"({"kind":"Line","visible":true})");
}

TEST_F(DumpTest, OneMemberAlone) {
  std::string out;
  JsonWriter json(out);
  EXPECT_TRUE(WriteMember(json, form.clExit, "interval"));
  EXPECT_EQ(out, "1000");
  EXPECT_FALSE(WriteMember(json, form.clExit, "visible"));
  EXPECT_FALSE(WriteMember(json, form.lbPlain, "checked"));
  EXPECT_EQ(out, "1000");
}

}  // namespace
}  // namespace orvik::forms::headless
