#include "host/posix/registry_text.h"

#include <gmock/gmock.h>

#include "host/posix/registry_data.h"

namespace orvik::host::posix {
namespace {

const Text kHead = u"Windows Registry Editor Version 5.00\r\n";

std::string Rewritten(const Text& text) { return ToUtf8(WriteRegistry(ParseRegistry(text))); }

TEST(RegistryTextTest, WhatTheEditorWritesComesBackAsItWas) {
  const Text text = kHead +
                    u"\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\x]\r\n"
                    u"@=\"unnamed\"\r\n"
                    u"\"path\"=\"C:\\\\a \\\"b\\\"\"\r\n"
                    u"\"number\"=dword:0000002a\r\n"
                    u"\"bytes\"=hex:01,02,\\\r\n  03\r\n"
                    u"\"e\"=hex(2):41,00,00,00\r\n"
                    u"\r\n[HKEY_CLASSES_ROOT\\.txt]\r\n";
  EXPECT_EQ(Rewritten(text), ToUtf8(text));
  const RegistryDocument document = ParseRegistry(text);
  const Text key = u"hkey_local_machine\\software\\X";
  EXPECT_EQ(TextOfRegistryData(document.ValueAt(key, 0)->data), u"unnamed");
  EXPECT_EQ(TextOfRegistryData(document.ValueAt(key, 1)->data), u"C:\\a \"b\"");
  EXPECT_EQ(TextOfRegistryData(document.ValueAt(key, 2)->data), u"");
  EXPECT_EQ(TextOfRegistryData(document.ValueAt(key, 3)->data), u"");
  EXPECT_EQ(TextOfRegistryData(document.ValueAt(key, 4)->data), u"A");
  EXPECT_EQ(document.ValueAt(key, 5), nullptr);
}

TEST(RegistryTextTest, LinesThatCantBeReadStayInTheirPlace) {
  const Text text = kHead +
                    u"; a remark in front\r\n"
                    u"\r\n[HKEY_LOCAL_MACHINE\\x]\r\n"
                    u"; a remark\r\n"
                    u"\"broken\"=\"never closed\r\n"
                    u"\"good\"=\"1\"\r\n"
                    u"garbage\r\n"
                    u"\"odd\"=dword:xyz\r\n"
                    u"\r\n[-HKEY_LOCAL_MACHINE\\gone]\r\n"
                    u"\"not\"=\"ours\"\r\n";
  EXPECT_EQ(Rewritten(text), ToUtf8(text));
}

TEST(RegistryTextTest, AFileThatIsCutOffKeepsItsEnd) {
  const Text whole =
      kHead + u"\r\n[HKEY_LOCAL_MACHINE\\x]\r\n\"a\"=\"1\"\r\n\"b\"=hex:01,\\\r\n  02\r\n";
  for (std::size_t length = kHead.size(); length < whole.size(); ++length) {
    const Text cut = whole.substr(0, length);
    const RegistryDocument document = ParseRegistry(cut);
    const Text written = WriteRegistry(document);
    EXPECT_TRUE(ParseRegistry(written) == document) << ToUtf8(cut);
    const TextView last = Trim(TextView(cut).substr(cut.rfind(u'\n') + 1));
    EXPECT_NE(written.find(last), Text::npos) << ToUtf8(cut);
  }
}

TEST(RegistryTextTest, OfTwoValuesOfOneNameTheLastCountsInTheFirstPlace) {
  const RegistryDocument document =
      ParseRegistry(u"[HKEY_LOCAL_MACHINE\\x]\n\"A\"=\"1\"\n\"b\"=\"2\"\n\"a\"=\"3\"\n");
  EXPECT_EQ(document.ValueAt(u"HKEY_LOCAL_MACHINE\\x", 0)->name, u"A");
  EXPECT_EQ(document.ValueAt(u"HKEY_LOCAL_MACHINE\\x", 0)->data, u"\"3\"");
  EXPECT_EQ(document.ValueAt(u"HKEY_LOCAL_MACHINE\\x", 1)->name, u"b");
}

TEST(RegistryTextTest, KeysStandWithTheirRelatives) {
  RegistryDocument document = ParseRegistry(u"[HKEY_LOCAL_MACHINE\\a]\n[HKEY_LOCAL_MACHINE\\z]\n");
  document.Create(u"HKEY_LOCAL_MACHINE\\a\\b\\c");
  EXPECT_EQ(ToUtf8(WriteRegistry(document)),
            "Windows Registry Editor Version 5.00\r\n"
            "\r\n[HKEY_LOCAL_MACHINE\\a]\r\n"
            "\r\n[HKEY_LOCAL_MACHINE\\a\\b]\r\n"
            "\r\n[HKEY_LOCAL_MACHINE\\a\\b\\c]\r\n"
            "\r\n[HKEY_LOCAL_MACHINE\\z]\r\n");
}

TEST(RegistryTextTest, RemovedKeysLeaveWhatCouldntBeRead) {
  RegistryDocument document = ParseRegistry(u"[HKEY_LOCAL_MACHINE\\a]\n; remark\n\"v\"=\"1\"\n");
  EXPECT_TRUE(document.Remove(u"HKEY_LOCAL_MACHINE\\a"));
  EXPECT_EQ(ToUtf8(WriteRegistry(document)),
            "Windows Registry Editor Version 5.00\r\n; remark\r\n");
}

TEST(RegistryTextTest, EncodingsAreKept) {
  for (const char* const bytes : {"\xEF\xBB\xBFж\r\n", "ж\r\n"}) {
    const RegistryFileText file = DecodeRegistryFile(bytes);
    EXPECT_EQ(file.text, u"ж\r\n");
    EXPECT_TRUE(file.faithful);
    EXPECT_EQ(EncodeRegistryFile(file.text, file.encoding), bytes);
  }
  const std::string wide("\xFF\xFE\x36\x04\r\0", 6);
  EXPECT_EQ(DecodeRegistryFile(wide).text, u"ж\r");
  EXPECT_TRUE(DecodeRegistryFile(wide).faithful);
  EXPECT_FALSE(DecodeRegistryFile(wide + "x").faithful);
  EXPECT_FALSE(DecodeRegistryFile("\xE6").faithful);
  EXPECT_EQ(DecodeRegistryFile("").encoding, RegistryEncoding::kUtf16);
}

TEST(RegistryDataTest, TextsThatALineCantHoldAreBytes) {
  EXPECT_EQ(RegistryData(1, u"a\\\"b", ""), u"\"a\\\\\\\"b\"");
  EXPECT_EQ(RegistryData(1, u"a\n", ""), u"hex(1):61,00,0a,00,00,00");
  EXPECT_EQ(RegistryData(2, u"a", ""), u"hex(2):61,00,00,00");
  EXPECT_EQ(RegistryData(3, u"a", "a"), u"hex(3):61");
  for (const Text& text :
       {Text(u"a\r\nb"), Text(u"\0x", 2), Text(u"\xD800"), Text(u"\\n"), Text()}) {
    EXPECT_EQ(TextOfRegistryData(RegistryData(1, text, "")), text);
    EXPECT_EQ(TextOfRegistryData(RegistryData(2, text, "")), text);
  }
}

TEST(RegistryDataTest, OddBytesAreReadAsFarAsTheyGo) {
  EXPECT_EQ(TextOfRegistryData(u"hex(1):41,00,\\\r\n  42,00"), u"AB");
  EXPECT_EQ(TextOfRegistryData(u"hex(1):"), u"");
  EXPECT_EQ(TextOfRegistryData(u"hex(2):41"), u"");
  EXPECT_EQ(TextOfRegistryData(u"hex(7):41,00"), u"");
  EXPECT_EQ(TextOfRegistryData(u"dword:1"), u"");
}

}  // namespace
}  // namespace orvik::host::posix
