#include "fileengine/checksums.h"

#include "fileengine/text_crc.h"
#include "unit/support/program_test.h"

namespace orvik::mdlSupport {
namespace {

class Checksums : public test::ProgramTest {
 protected:
  std::int32_t Fast(const std::string& content, std::int32_t block = 0) {
    host.files.AddFile(u"T:\\f", content);
    return GetFastCRC(u"T:\\f", block);
  }
  std::int32_t Full(const std::string& content) {
    host.files.AddFile(u"T:\\f", content);
    return GetFileCRC(u"T:\\f");
  }
};

// A content in which no two places look alike.
std::string Noise(std::size_t length, unsigned seed = 1) {
  std::string bytes(length, '\0');
  for (char& byte : bytes) byte = static_cast<char>((seed = seed * 1103515245 + 12345) >> 16);
  return bytes;
}

TEST_F(Checksums, TableIsThePublishedOne) {
  EXPECT_EQ(CRCTable[1], 0x77073096U);
  EXPECT_EQ(CRCTable[128], 0xEDB88320U);
  EXPECT_EQ(CRCTable[255], 0x2D02EF8DU);
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t value = byte;
    for (int bit = 0; bit < 8; ++bit) value = (value >> 1) ^ ((value & 1) != 0 ? 0xEDB88320U : 0);
    EXPECT_EQ(CRCTable[byte], value);
  }
}

TEST_F(Checksums, KnownTexts) {
  EXPECT_EQ(ComputeCRC(u"123456789"), -1567561609);
  EXPECT_EQ(ComputeCRC(u"A"), -1464111941);
  EXPECT_EQ(ComputeCRC(u""), 0);
}

TEST_F(Checksums, KnownFiles) {
  EXPECT_EQ(Full("123456789"), -1567561609);
  EXPECT_EQ(Full("A"), -1464111941);
  EXPECT_EQ(Full("\xC0\x41"), -1623826917);
  EXPECT_EQ(Fast(std::string(2000, 'a')), 537835939);
}

TEST_F(Checksums, BlocksOfBytesGiveWhatTheTextGives) {
  for (int number : {1251, 866, 1252}) {
    const CodePage& page = CodePage::Numbered(number);
    for (std::size_t length : {0U, 1U, 15U, 16U, 17U, 31U, 32U, 33U, 100U, 4099U}) {
      const std::string bytes = Noise(length);
      TextCRC crc(page);
      crc.Add(std::span<const char>(bytes).first(length / 3));
      crc.Add(std::span<const char>(bytes).subspan(length / 3));
      EXPECT_EQ(crc.Result(), ComputeCRC(page.Decode(bytes))) << number << " " << length;
    }
  }
}

TEST_F(Checksums, LongFilesAreReadInPieces) {
  const std::string bytes = Noise(1000003);
  EXPECT_EQ(Full(bytes), ComputeCRC(CodePage::Numbered(1251).Decode(bytes)));
}

TEST_F(Checksums, TheCodePageDecides) {
  const std::int32_t russian = Full("\xC0\x41");
  host.system.ansi_page = 1252;
  EXPECT_NE(Full("\xC0\x41"), russian);
  EXPECT_EQ(Full("A"), -1464111941);
}

TEST_F(Checksums, MissingUnreadableEmptyAndFolderAreAllZero) {
  host.files.AddFile(u"T:\\empty");
  host.files.AddFolder(u"T:\\folder");
  for (const char16_t* path : {u"T:\\missing", u"T:\\empty", u"T:\\folder", u""}) {
    EXPECT_EQ(GetFileCRC(path), 0) << ToUtf8(Text(path));
    EXPECT_EQ(GetFastCRC(path, 0), 0) << ToUtf8(Text(path));
  }
}

TEST_F(Checksums, EveryFailingStepGivesZero) {
  host.files.AddFile(u"T:\\f", std::string(5000, 'x'));
  for (const char* operation : {"Open", "Length", "ReadAt"}) {
    test::FaultyFileSystem faulty(host.files);
    faulty.fail_operation = operation;
    auto services = host.services();
    services.files = &faulty;
    host::Install(services);
    EXPECT_EQ(GetFileCRC(u"T:\\f"), 0) << operation;
    EXPECT_EQ(GetFastCRC(u"T:\\f", 0), 0) << operation;
  }
}

TEST_F(Checksums, UpToABlockFastIsFull) {
  for (std::size_t length : {1U, 511U, 512U}) EXPECT_EQ(Fast(Noise(length)), Full(Noise(length)));
  EXPECT_NE(Fast(Noise(513)), Full(Noise(513)));
}

TEST_F(Checksums, JustAboveABlockTheTailEqualsTheHead) {
  const std::string bytes = Noise(513);
  const Text head = CodePage::Numbered(1251).Decode(bytes.substr(0, 512));
  EXPECT_EQ(Fast(bytes), ComputeCRC(head + head + u" 513"));
}

TEST_F(Checksums, HeadTailAndLengthGoIn) {
  const CodePage& page = CodePage::Numbered(1251);
  for (std::size_t length : {514U, 1023U, 1024U, 1025U, 1026U, 5000U}) {
    const std::string bytes = Noise(length);
    const Text input = page.Decode(bytes.substr(0, 512)) +
                       page.Decode(bytes.substr(length - 513, 512)) + u" " +
                       FromUtf8(std::to_string(length));
    EXPECT_EQ(Fast(bytes), ComputeCRC(input)) << length;
  }
}

TEST_F(Checksums, TheLastByteOfALongFileIsNeverRead) {
  std::string bytes = Noise(2000);
  const std::int32_t before = Fast(bytes);
  bytes.back() = static_cast<char>(bytes.back() + 1);
  EXPECT_EQ(Fast(bytes), before);
  bytes[1998] = static_cast<char>(bytes[1998] + 1);
  EXPECT_NE(Fast(bytes), before);
}

TEST_F(Checksums, TheMiddleOfALongFileIsNeverRead) {
  std::string bytes = Noise(2000);
  const std::int32_t before = Fast(bytes);
  bytes[1000] = static_cast<char>(bytes[1000] + 1);
  EXPECT_EQ(Fast(bytes), before);
}

TEST_F(Checksums, LengthTellsRepeatedContentsApart) {
  EXPECT_NE(Fast(std::string(2000, 'a')), Fast(std::string(2001, 'a')));
}

TEST_F(Checksums, BlockSizes) {
  const std::string bytes = Noise(100000);
  EXPECT_EQ(Fast(bytes, 0), Fast(bytes, 512));
  EXPECT_EQ(Fast(bytes, -7), Fast(bytes, 512));
  EXPECT_NE(Fast(bytes, 32768), Fast(bytes, 512));
  const CodePage& page = CodePage::Numbered(1251);
  EXPECT_EQ(Fast(bytes, 32768),
            ComputeCRC(page.Decode(bytes.substr(0, 32768)) +
                       page.Decode(bytes.substr(100000 - 32769, 32768)) + u" 100000"));
}

TEST_F(Checksums, TwoGibibytesAndMoreAreZero) {
  host.files.AddLargeFile(u"T:\\big", 0x80000000);
  host.files.AddLargeFile(u"T:\\bigger", 0x100000064);
  for (const char16_t* path : {u"T:\\big", u"T:\\bigger"}) {
    EXPECT_EQ(GetFastCRC(path, 0), 0);
    EXPECT_EQ(GetFileCRC(path), 0);
  }
  host.files.AddLargeFile(u"T:\\fits", 0x7FFFFFFF);
  EXPECT_NE(GetFastCRC(u"T:\\fits", 0), 0);
}

TEST_F(Checksums, LengthsFrom2GiBOnAreNegative) {
  EXPECT_EQ(ReportedLength(0x7FFFFFFF), 0x7FFFFFFF);
  EXPECT_EQ(ReportedLength(0x80000000), -2147483647 - 1);
  EXPECT_EQ(ReportedLength(0xFFFFFFFF), -1);
  EXPECT_LT(ReportedLength(0x100000064), 0);
  EXPECT_THROW(FileLength(u"T:\\missing"), Failure);
  host.files.AddFolder(u"T:\\folder");
  EXPECT_THROW(FileLength(u"T:\\folder"), Failure);
}

TEST_F(Checksums, AFastChecksumReadsAtMostTwoBlocks) {
  host.files.AddFile(u"T:\\f", Noise(100000));
  host.files.calls.clear();
  GetFastCRC(u"T:\\f", 0);
  EXPECT_LE(host.files.calls.size(), 4U);
}

TEST_F(Checksums, SameFilesByLengthAndChecksum) {
  host.files.AddFile(u"T:\\a", Noise(3000));
  host.files.AddFile(u"T:\\b", Noise(3000));
  host.files.AddFile(u"T:\\c", Noise(3000, 2));
  host.files.AddFile(u"T:\\d", Noise(3001));
  EXPECT_EQ(SameFastCRC(u"T:\\a", u"T:\\b"), kTrue);
  EXPECT_EQ(SameFastCRC(u"T:\\a", u"T:\\a"), kTrue);
  EXPECT_EQ(SameFastCRC(u"T:\\a", u"T:\\c"), kFalse);
  EXPECT_EQ(SameFastCRC(u"T:\\a", u"T:\\d"), kFalse);
}

TEST_F(Checksums, MissingAndEmptyAreTheSame) {
  host.files.AddFile(u"T:\\empty");
  host.files.AddFile(u"T:\\full", "x");
  EXPECT_EQ(SameFastCRC(u"T:\\m1", u"T:\\m2"), kTrue);
  EXPECT_EQ(SameFastCRC(u"T:\\m1", u"T:\\empty"), kTrue);
  EXPECT_EQ(SameFastCRC(u"T:\\m1", u"T:\\full"), kFalse);
}

TEST_F(Checksums, AFileThatCannotBeOpenedStillHasItsLength) {
  host.files.AddFile(u"T:\\locked", "abc");
  host.files.AddFile(u"T:\\copy", "abc");
  test::FaultyFileSystem faulty(host.files);
  faulty.fail_operation = "Open";
  auto services = host.services();
  services.files = &faulty;
  host::Install(services);
  EXPECT_EQ(SameFastCRC(u"T:\\locked", u"T:\\missing"), kFalse);
  // Both checksums are 0 now: only the lengths speak.
  EXPECT_EQ(SameFastCRC(u"T:\\locked", u"T:\\copy"), kTrue);
}

}  // namespace
}  // namespace orvik::mdlSupport
