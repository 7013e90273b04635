#include "fileengine/frm_file_crc.h"

#include "forms/instance.h"
#include "unit/support/program_test.h"

namespace orvik {
namespace {

class FileCrcForm : public test::ProgramTest {
 protected:
  frmFileCRC& form() { return forms::The<frmFileCRC>(); }
};

TEST_F(FileCrcForm, ShowsTheThreeValues) {
  host.files.AddFile(u"T:\\dir\\f", "123456789");
  EXPECT_EQ(Run(u"/FCR T:\\dir\\f"), std::nullopt);
  EXPECT_EQ(form().caption(), u"zKelmar's Orvik  v 0.9.8.3 FN - CRC файла");
  EXPECT_EQ(form().frFile.caption(), u"T:\\...\\f");
  EXPECT_EQ(form().frCRC[2].caption(), u"9 Байт");
  EXPECT_EQ(form().frCRC[1].caption(), u"x-1567561609");
  EXPECT_EQ(form().frCRC[0].caption(), u"x-1567561609");
}

TEST_F(FileCrcForm, ValuesComeInTheOrderSizeFastFull) {
  host.files.AddFile(u"T:\\f", "A");
  std::vector<Text> at_yield;
  front.on_yield = [&](int) {
    for (const auto& value : form().frCRC) at_yield.push_back(value.caption());
    EXPECT_TRUE(form().visible());
  };
  Run(u"/FCR T:\\f");
  EXPECT_EQ(at_yield, (std::vector<Text>{u"accounting ...", u"x-1464111941", u"1 Байт"}));
}

TEST_F(FileCrcForm, AMissingAndAnEmptyFileReadAlike) {
  host.files.AddFile(u"T:\\empty");
  for (const char16_t* path : {u"T:\\missing", u"T:\\empty"}) {
    Run(u"/FCR " + Text(path));
    EXPECT_EQ(form().frCRC[2].caption(), u"0 Байт");
    EXPECT_EQ(form().frCRC[1].caption(), u"x0");
    EXPECT_EQ(form().frCRC[0].caption(), u"x0");
    forms::ForgetForms();
  }
}

TEST_F(FileCrcForm, APathWithoutBackslashKeepsTheLabel) {
  Run(u"/FCR file.txt");
  EXPECT_EQ(form().frFile.caption(), u"File");
}

TEST_F(FileCrcForm, AClickPutsTheCaptionOnTheClipboard) {
  host.files.AddFile(u"T:\\f", "123456789");
  Run(u"/FCR T:\\f");
  front.events.clear();
  form().frCRC[0].UserClick();
  form().frCRC[2].UserClick();
  form().frFile.UserClick();
  EXPECT_EQ(front.events, (std::vector<std::string>{"clipboard x-1567561609", "clipboard 9 Байт"}));
}

TEST_F(FileCrcForm, AClickBeforeItsTurnCopiesThePlaceholder) {
  front.on_yield = [&](int) { form().frCRC[0].UserClick(); };
  Run(u"/FCR T:\\f");
  EXPECT_EQ(front.events.back(), "clipboard accounting ...");
}

TEST_F(FileCrcForm, EscapeAndCloseEndTheProcess) {
  Run(u"/FCR T:\\f");
  EXPECT_EQ(test::Ending([&] { form().UserKeyPress(forms::kKeyEscape); }),
            forms::EndReason::kShutdown);
  EXPECT_EQ(test::Ending([&] { form().UserKeyPress(forms::kKeyEnter); }), std::nullopt);
  EXPECT_EQ(test::Ending([&] { form().UserClose(); }), forms::EndReason::kShutdown);
}

}  // namespace
}  // namespace orvik
