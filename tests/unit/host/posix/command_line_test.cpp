#include "host/posix/command_line.h"

#include <gmock/gmock.h>

namespace orvik::host::posix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Words(TextView line) {
  std::vector<std::string> words;
  for (const Text& word : WordsOf(line)) words.push_back(ToUtf8(word));
  return words;
}

std::vector<std::string> Programs(TextView line) {
  std::vector<std::string> programs;
  for (const ProgramReading& reading : ProgramReadings(line)) {
    programs.push_back(ToUtf8(reading.program) + "|" + ToUtf8(reading.rest));
  }
  return programs;
}

TEST(CommandLineTest, BlanksSeparateAndQuotesHoldTogether) {
  EXPECT_THAT(Words(u"a  b\tc"), ElementsAre("a", "b", "c"));
  EXPECT_THAT(Words(u"\"a b\" \"\" c\"d e\"f"), ElementsAre("a b", "", "cd ef"));
  EXPECT_THAT(Words(u"  "), IsEmpty());
  EXPECT_THAT(Words(u"\"never closed"), ElementsAre("never closed"));
}

TEST(CommandLineTest, BackslashesBelongToPaths) {
  EXPECT_THAT(Words(u"C:\\a\\b \"C:\\x y\\\" z"), ElementsAre("C:\\a\\b", "C:\\x y\\", "z"));
  EXPECT_THAT(Words(u"a\\\"b"), ElementsAre("a\"b"));
}

TEST(CommandLineTest, AQuotedProgramHasOneReading) {
  EXPECT_THAT(Programs(u"\"C:\\a b\" c"), ElementsAre("C:\\a b| c"));
  EXPECT_THAT(Programs(u"\"C:\\a b"), ElementsAre("C:\\a b|"));
}

TEST(CommandLineTest, AnUnquotedProgramMayHoldBlanks) {
  EXPECT_THAT(Programs(u"C:\\a b  c"), ElementsAre("C:\\a| b  c", "C:\\a b|  c", "C:\\a b  c|"));
  EXPECT_THAT(Programs(u""), IsEmpty());
  EXPECT_THAT(Programs(u" x"), ElementsAre("x|"));
}

}  // namespace
}  // namespace orvik::host::posix
