#include "platform/win_dos_conversion.h"

#include "unit/support/program_test.h"

namespace orvik::WinDosConv2 {
namespace {

class WinDosConversion : public test::ProgramTest {
 protected:
  // The bytes of a content after a conversion.
  std::string Converted(void (*convert)(Text&), std::string_view bytes) {
    const CodePage& page = host.system.AnsiPage();
    Text text = page.Decode(bytes);
    convert(text);
    return page.Encode(text);
  }
};

TEST_F(WinDosConversion, LettersGoToTheirPlaces) {
  EXPECT_EQ(Converted(ConvertWinToDos, "\xC0\xFF\xA8\xAB"), "\x80\xEF\xF0<");
  EXPECT_EQ(Converted(ConvertCharToOem, "\xC0\xFF\xA8\xAB"), "\x80\xEF\xF0<");
  EXPECT_EQ(Converted(ConvertOemToChar, "\x80\xEF\xF0"), "\xC0\xFF\xA8");
}

TEST_F(WinDosConversion, AsciiStays) {
  std::string ascii;
  for (int i = 0; i < 128; ++i) ascii.push_back(static_cast<char>(i));
  EXPECT_EQ(Converted(ConvertWinToDos, ascii), ascii);
  EXPECT_EQ(Converted(ConvertOemToChar, ascii.substr(1)), ascii.substr(1));
}

TEST_F(WinDosConversion, TheSystemsConversionsStopAtAZeroAndTheTableDoesNot) {
  const std::string bytes("\x80\0\x80", 3);
  EXPECT_EQ(Converted(ConvertOemToChar, bytes), std::string("\xC0\0\x80", 3));
  const std::string back("\xC0\0\xC0", 3);
  EXPECT_EQ(Converted(ConvertCharToOem, back), std::string("\x80\0\xC0", 3));
  EXPECT_EQ(Converted(ConvertWinToDos, back), std::string("\x80\0\x80", 3));
  EXPECT_EQ(Converted(ConvertOemToChar, std::string("\0\x80", 2)), std::string("\0\x80", 2));
}

TEST_F(WinDosConversion, EmptyTextsStayEmpty) {
  for (const auto convert : {ConvertWinToDos, ConvertOemToChar, ConvertCharToOem}) {
    EXPECT_EQ(Converted(convert, ""), "");
  }
}

TEST_F(WinDosConversion, LinesOfDosBecomeLookAlikes) {
  EXPECT_EQ(Converted(ConvertOemToChar, "\xDA\xC4\xBF\xB3\xFB"), "--\xAC\xA6v");
}

TEST_F(WinDosConversion, OtherCodePagesHaveNoLookAlikes) {
  host.system.ansi_page = 1252;
  // The capital A and a line of code page 866: code page 1252 has neither.
  EXPECT_EQ(Converted(ConvertOemToChar, "a\x80\xC4"), "a??");
  EXPECT_EQ(Converted(ConvertCharToOem, "a\xB0\xC4"), "a\xF8?");
}

TEST_F(WinDosConversion, TheTableLooksAtCodesWhateverThePage) {
  host.system.ansi_page = 1252;
  EXPECT_EQ(Converted(ConvertWinToDos, "\xC0\xA8"), "\x80\xF0");
}

TEST_F(WinDosConversion, TheTablesAreFilledOnce) {
  CharTablesReady = kFalse;
  BuildCharTables();
  EXPECT_EQ(CharTablesReady, kTrue);
  EXPECT_EQ(WinToDosTable[0xC0], 0x80);
  WinToDosTable[0xC0] = 1;
  BuildCharTables();
  EXPECT_EQ(WinToDosTable[0xC0], 1);
  EXPECT_EQ(Converted(ConvertWinToDos, "\xC0"), "\x01");
  CharTablesReady = kFalse;
  BuildCharTables();
  EXPECT_EQ(WinToDosTable[0xC0], 0x80);
}

TEST_F(WinDosConversion, AConversionFillsThem) {
  CharTablesReady = kFalse;
  WinToDosTable.fill(0);
  EXPECT_EQ(Converted(ConvertWinToDos, "\xC0"), "\x80");
  EXPECT_EQ(CharTablesReady, kTrue);
}

}  // namespace
}  // namespace orvik::WinDosConv2
