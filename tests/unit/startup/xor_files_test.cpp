#include "unit/support/program_test.h"

namespace orvik::mdlMain {
namespace {

const std::string kTitle = "|zKelmar's Orvik  v 0.9.8.3 FN";

class XorFiles : public test::ProgramTest {
 protected:
  // Scrambles one file under a key.
  void Xor(const Text& path, const Text& key) {
    front.events.clear();
    front.input_answers = {key};
    EXPECT_EQ(Run(u"/XOR " + path), std::nullopt);
    EXPECT_EQ(front.events, asked_and_done);
  }
  void XorAll(const Text& folder, const Text& key) {
    front.events.clear();
    front.input_answers = {key};
    EXPECT_EQ(Run(u"/DXR " + folder), forms::EndReason::kShutdown);
    EXPECT_EQ(front.events, asked_and_done_all);
  }
  const std::vector<std::string> asked_and_done = {"input Key please" + kTitle,
                                                   "message Complete" + kTitle + "|information|ok"};
  const std::vector<std::string> asked_and_done_all = {
      "input PassKey" + kTitle, "message Work Complete!" + kTitle + "|none|ok"};
};

TEST_F(XorFiles, AFileScrambledTwiceIsTheFileAgain) {
  std::string all;
  for (int i = 0; i < 256; ++i) all.push_back(static_cast<char>(i));
  host.files.AddFile(u"T:\\a b.bin", all);
  Xor(u"T:\\a b.bin", u"ключ");
  EXPECT_NE(host.files.Content(u"T:\\a b.bin"), all);
  Xor(u"T:\\a b.bin", u"ключ");
  EXPECT_EQ(host.files.Content(u"T:\\a b.bin"), all);
}

TEST_F(XorFiles, TheKeyBeginsWithItsSecondCharacter) {
  host.files.AddFile(u"T:\\a", std::string(4, '\0'));
  Xor(u"T:\\a", u"abc");
  EXPECT_EQ(host.files.Content(u"T:\\a"), "bcab");
}

TEST_F(XorFiles, KeysThatDifferBehindTheLengthOfTheFileAreOne) {
  host.files.AddFile(u"T:\\a", "abc");
  Xor(u"T:\\a", u"xyz-one");
  Xor(u"T:\\a", u"xyz-two");
  EXPECT_EQ(host.files.Content(u"T:\\a"), "abc");
}

TEST_F(XorFiles, WithoutAKeyTheFileIsWrittenAsItWas) {
  host.files.AddFile(u"T:\\a", "abc", host::attribute::kReadOnly);
  Xor(u"T:\\a", u"");
  EXPECT_EQ(host.files.Content(u"T:\\a"), "abc");
  // Written it was: that takes the attributes off.
  EXPECT_EQ(*host.files.Attributes(u"T:\\a") & host::attribute::kReadOnly, 0U);
}

TEST_F(XorFiles, EmptyAndMissingFilesAreEmpty) {
  host.files.AddFile(u"T:\\empty");
  Xor(u"T:\\empty", u"key");
  Xor(u"T:\\none", u"key");
  EXPECT_EQ(host.files.Content(u"T:\\empty"), "");
  EXPECT_TRUE(host.files.Exists(u"T:\\none"));
}

TEST_F(XorFiles, AFileThatAnotherHoldsIsCompleteAllTheSame) {
  host.files.AddFile(u"T:\\held", "abc");
  const auto held = host.files.Open(u"T:\\held", host::OpenMode::kHold);
  Xor(u"T:\\held", u"key");
  EXPECT_EQ(host.files.Content(u"T:\\held"), "abc");
}

// Its length leaves 32 bits, so nothing of it is read, and nothing is what comes back.
TEST_F(XorFiles, AFileOfTwoGigabytesComesBackEmpty) {
  host.files.AddLargeFile(u"T:\\large", std::int64_t{1} << 31);
  Xor(u"T:\\large", u"key");
  EXPECT_EQ(host.files.FileLength(u"T:\\large"), 0);
}

// A front end that looks, when it asks for the key, at what has happened to the files by then.
class AskingFrontEnd : public test::TestFrontEnd {
 public:
  explicit AskingFrontEnd(test::FakeFileSystem& files) : files_(files) {}
  Text AskText(const Text& prompt, const Text& title) override {
    calls_before = files_.calls.size();
    return TestFrontEnd::AskText(prompt, title);
  }
  std::size_t calls_before = 0;

 private:
  test::FakeFileSystem& files_;
};

TEST_F(XorFiles, AFileIsReadBeforeTheKeyIsAskedForATreeBehindIt) {
  AskingFrontEnd asking(host.files);
  host.files.AddFile(u"T:\\d\\a", "aaa");
  host.files.calls.clear();
  Run(u"/XOR T:\\d\\a");
  EXPECT_GT(asking.calls_before, 0U);
  host.files.calls.clear();
  Run(u"/DXR T:\\d");
  EXPECT_EQ(asking.calls_before, 0U);
  EXPECT_GT(host.files.calls.size(), 0U);
}

TEST_F(XorFiles, EveryFileOfATree) {
  host.files.AddFile(u"T:\\d\\a.txt", "aaa");
  host.files.AddFile(u"T:\\d\\deeper\\noextension", "bbb");
  host.files.AddFile(u"T:\\d\\read only", "ccc", host::attribute::kReadOnly);
  host.files.AddFile(u"T:\\other", "ddd");
  XorAll(u"T:\\d", u"\u0001");
  EXPECT_EQ(host.files.Content(u"T:\\d\\a.txt"), "```");
  EXPECT_EQ(host.files.Content(u"T:\\d\\deeper\\noextension"), "ccc");
  EXPECT_EQ(host.files.Content(u"T:\\d\\read only"), "bbb");
  EXPECT_EQ(host.files.Content(u"T:\\other"), "ddd");
}

TEST_F(XorFiles, FoldersWithoutFilesAndMissingOnes) {
  host.files.AddFolder(u"T:\\empty\\deeper");
  const auto tree = host.files.Tree(u"T:\\");
  for (const char16_t* folder : {u"T:\\empty", u"T:\\none", u""}) XorAll(folder, u"key");
  EXPECT_EQ(host.files.Tree(u"T:\\"), tree);
}

TEST_F(XorFiles, AFileOfATreeThatAnotherHoldsIsPassedOver) {
  host.files.AddFile(u"T:\\d\\a", "aaa");
  host.files.AddFile(u"T:\\d\\held", "abc");
  host.files.AddFile(u"T:\\d\\z", "aaa");
  const auto held = host.files.Open(u"T:\\d\\held", host::OpenMode::kHold);
  XorAll(u"T:\\d", u"\u0001");
  EXPECT_EQ(host.files.Content(u"T:\\d\\held"), "abc");
  EXPECT_EQ(host.files.Content(u"T:\\d\\z"), "```");
}

TEST_F(XorFiles, NothingYieldsBetweenTheFiles) {
  for (char16_t c = u'a'; c < u'f'; ++c) host.files.AddFile(Text(u"T:\\d\\") + c, "x");
  std::size_t changes_at_last_yield = 0;
  front.on_yield = [&](int) { changes_at_last_yield = host.files.changes.size(); };
  const std::size_t before = host.files.changes.size();
  XorAll(u"T:\\d", u"key");
  EXPECT_GT(front.yields, 0);
  EXPECT_EQ(changes_at_last_yield, before);
  EXPECT_GT(host.files.changes.size(), before);
}

}  // namespace
}  // namespace orvik::mdlMain
