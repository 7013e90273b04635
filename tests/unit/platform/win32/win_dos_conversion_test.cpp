// The conversions against the system's own calls, under the Russian code pages.
#include "platform/win_dos_conversion.h"

#include <string>

#include "forms/win32/windows_api.h"
#include "unit/support/program_test.h"

namespace orvik::WinDosConv2 {
namespace {

class SystemConversion : public test::ProgramTest {
 protected:
  // All bytes but zero, which would end the text.
  static std::string Bytes() {
    std::string bytes;
    for (int i = 1; i < 256; ++i) bytes.push_back(static_cast<char>(i));
    return bytes;
  }
  std::string Converted(void (*convert)(Text&)) {
    const CodePage& page = host.system.AnsiPage();
    Text text = page.Decode(Bytes());
    convert(text);
    return page.Encode(text);
  }
  void SetUp() override {
    if (GetACP() != 1251 || GetOEMCP() != 866) GTEST_SKIP() << "not a Russian system";
  }
};

TEST_F(SystemConversion, DosToWindows) {
  std::string expected = Bytes();
  OemToCharA(expected.c_str(), expected.data());
  EXPECT_EQ(Converted(ConvertOemToChar), expected);
}

TEST_F(SystemConversion, WindowsToDos) {
  std::string expected = Bytes();
  CharToOemA(expected.c_str(), expected.data());
  EXPECT_EQ(Converted(ConvertCharToOem), expected);
  EXPECT_EQ(Converted(ConvertWinToDos), expected);
}

}  // namespace
}  // namespace orvik::WinDosConv2
