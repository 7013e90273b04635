#include "monitors/frm_search_text.h"

#include "forms/instance.h"
#include "unit/support/program_test.h"

namespace orvik {
namespace {

// Bytes of code page 1251.
constexpr const char* kPrivetSmall = "\xEF\xF0\xE8\xE2\xE5\xF2";
constexpr const char* kPrivetOf866 = "\xAF\xE0\xA8\xA2\xA5\xE2";

class SearchText : public test::ProgramTest {
 protected:
  frmSearchText& form() { return forms::The<frmSearchText>(); }
  using Texts = std::vector<Text>;
  void Open(const Text& folder = u"T:\\d") { ASSERT_EQ(Run(u"/SRT " + folder), std::nullopt); }
  Texts Listed() {
    Texts listed;
    for (int i = 0; i < form().lbMain.count(); ++i) listed.push_back(form().lbMain.Item(i));
    return listed;
  }
  Texts Found(const Text& text) {
    form().txMain.UserType(text);
    form().btFind.UserClick();
    return Listed();
  }
  // The search with the file system that a test puts before the real one.
  void Through(host::FileSystem& files) {
    auto services = host.services();
    services.files = &files;
    host::Install(services);
  }
};

TEST_F(SearchText, OpensWithThePatternsOfTheDuplicateSearch) {
  const Text key = u"SOFTWARE\\Ib Tarn\\Orvik\\Doubles Pattern List";
  host.registry.Write(host::kLocalMachine, key, u"*.jpg", u"*.jpg");
  host.files.AddFile(u"T:\\d\\1", "text");
  Open();
  EXPECT_EQ(form().caption(), Text(mdlMain::ProgramTitle) + u" -  Поиск текста T:\\...\\d");
  EXPECT_EQ(form().cbPattern.text(), u"*.*");
  EXPECT_EQ(form().cbPattern.items(), (Texts{u"*.jpg"}));
  EXPECT_TRUE(Listed().empty());
  form().cbPattern.UserType(u"*.txt");
  Found(u"text");
  // Only read: never saved.
  EXPECT_EQ(host.registry.Values(host::kLocalMachine, key)->size(), 1U);
  EXPECT_EQ(mdlMain::CommandArgs, u"T:\\d");
}

TEST_F(SearchText, AnEmptyArgumentKeepsTheCaptionAndFindsNothing) {
  Open(u"");
  EXPECT_EQ(form().caption(), u"Поиск текста");
  EXPECT_TRUE(Found(u"a").empty());
}

TEST_F(SearchText, FindsInTheOrderOfTheWalk) {
  host.files.AddFile(u"T:\\d\\b\\1.txt", "has a Word in it");
  host.files.AddFile(u"T:\\d\\2.txt", "word");
  host.files.AddFile(u"T:\\d\\3.txt", "wor d");
  Open();
  EXPECT_EQ(Found(u"WORD"), (Texts{u"T:\\d\\2.txt", u"T:\\d\\b\\1.txt"}));
  EXPECT_EQ(Found(u"absent"), Texts{});
}

TEST_F(SearchText, RussianLettersCountWithoutCaseInTheAnsiPageAlone) {
  host.files.AddFile(u"T:\\d\\ansi", std::string("--") + kPrivetSmall);
  host.files.AddFile(u"T:\\d\\oem", kPrivetOf866);
  host.files.AddFile(u"T:\\d\\utf8", "Привет");
  host.files.AddFile(u"T:\\d\\yo", "\xB8\xE6");
  Open();
  EXPECT_EQ(Found(u"ПРИВЕТ"), (Texts{u"T:\\d\\ansi"}));
  EXPECT_EQ(Found(u"ЁЖ"), (Texts{u"T:\\d\\yo"}));
}

TEST_F(SearchText, TheLimitIsAMebibyte) {
  std::string content(0xFFFFF, 'x');
  content.replace(content.size() - 4, 4, "word");
  host.files.AddFile(u"T:\\d\\under", content);
  host.files.AddFile(u"T:\\d\\at", content + "x");
  host.files.AddLargeFile(u"T:\\d\\film", 0x80000001);
  Open();
  EXPECT_EQ(Found(u"word"), (Texts{u"T:\\d\\under"}));
  EXPECT_EQ(Found(u""), (Texts{u"T:\\d\\under"}));
}

TEST_F(SearchText, TheEmptyTextIsInWhateverIsNotEmpty) {
  host.files.AddFile(u"T:\\d\\1", "x");
  host.files.AddFile(u"T:\\d\\2");
  Open();
  EXPECT_EQ(Found(u""), (Texts{u"T:\\d\\1"}));
}

TEST_F(SearchText, ATextLongerThanTheFileIsNotThere) {
  host.files.AddFile(u"T:\\d\\1", "wor");
  Open();
  EXPECT_EQ(Found(u"word"), Texts{});
}

TEST_F(SearchText, ABlankPatternBecomesAll) {
  host.files.AddFile(u"T:\\d\\1.txt", "x");
  Open();
  form().cbPattern.UserType(u"  ");
  EXPECT_EQ(Found(u"x"), (Texts{u"T:\\d\\1.txt"}));
  EXPECT_EQ(form().cbPattern.text(), u"*.*");
}

TEST_F(SearchText, AMaskListWorksAndAFileComesOnce) {
  host.files.AddFile(u"T:\\d\\1.txt", "x");
  host.files.AddFile(u"T:\\d\\2.jpg", "x");
  host.files.AddFile(u"T:\\d\\3.doc", "x");
  Open();
  form().cbPattern.UserType(u"*.jpg;*.txt;*.t*");
  EXPECT_EQ(Found(u"x"), (Texts{u"T:\\d\\2.jpg", u"T:\\d\\1.txt"}));
}

TEST_F(SearchText, EnterInTheTextSearchesAndIsTakenAway) {
  host.files.AddFile(u"T:\\d\\1", "x");
  Open();
  form().txMain.UserType(u"x");
  EXPECT_FALSE(form().txMain.UserKeyDown({forms::kKeyEnter, 0}));
  EXPECT_EQ(Listed(), (Texts{u"T:\\d\\1"}));
  EXPECT_TRUE(form().txMain.UserKeyDown({forms::kKeyA, 0}));
}

TEST_F(SearchText, TheListShowsTheWork) {
  host.files.AddFile(u"T:\\d\\1", "x");
  Open();
  front.changes.clear();
  Found(u"x");
  EXPECT_EQ(front.changes, (std::vector<std::string>{
                               "frmSearchText.txMain.text x", "frmSearchText.lbMain.add Обработка",
                               "frmSearchText.lbMain.clear", "frmSearchText.lbMain.add T:\\d\\1"}));
}

// A file that can be seen and not be opened.
class Held : public host::ForwardingFileSystem {
 public:
  Held(host::FileSystem& inner, Text path) : ForwardingFileSystem(inner), path_(std::move(path)) {}
  std::unique_ptr<host::File> Open(const Text& path, host::OpenMode mode) override {
    return path == path_ ? nullptr : inner_.Open(path, mode);
  }

 private:
  Text path_;
};

TEST_F(SearchText, AFileThatCantBeOpenedReadsAsBlanks) {
  host.files.AddFile(u"T:\\d\\held", "word");
  host.files.AddFile(u"T:\\d\\open", "word");
  Held held(host.files, u"T:\\d\\held");
  Through(held);
  Open();
  EXPECT_EQ(Found(u"word"), (Texts{u"T:\\d\\open"}));
  EXPECT_EQ(Found(u"    "), (Texts{u"T:\\d\\held"}));
  EXPECT_EQ(Found(u"     "), Texts{}) << "longer than the file";
  EXPECT_EQ(Found(u""), (Texts{u"T:\\d\\held", u"T:\\d\\open"}));
}

TEST_F(SearchText, AFileThatVanishedIsMadeAnewEmpty) {
  host.files.AddFile(u"T:\\d\\1", "word");
  host.files.AddFile(u"T:\\d\\2", "word");
  struct Vanishing : host::ForwardingFileSystem {
    using ForwardingFileSystem::ForwardingFileSystem;
    bool gone = false;
    std::unique_ptr<host::File> Open(const Text& path, host::OpenMode mode) override {
      if (!std::exchange(gone, true)) inner_.DeleteFile(u"T:\\d\\2");
      return inner_.Open(path, mode);
    }
  } vanishing(host.files);
  Through(vanishing);
  Open();
  EXPECT_EQ(Found(u"word"), (Texts{u"T:\\d\\1"}));
  EXPECT_TRUE(host.files.Exists(u"T:\\d\\2"));
  EXPECT_EQ(host.files.Content(u"T:\\d\\2"), "");
}

TEST_F(SearchText, WithoutALengthAFileIsLookedAtWhateverItsSize) {
  std::string content(0x100001, 'x');
  content.replace(content.size() - 4, 4, "    ");
  host.files.AddFile(u"T:\\d\\1", content);
  // Can't be opened for reading alone, and tells its length only to the second who asks.
  struct Odd : host::ForwardingFileSystem {
    using ForwardingFileSystem::ForwardingFileSystem;
    int asked = 0;
    std::unique_ptr<host::File> Open(const Text& path, host::OpenMode mode) override {
      return mode == host::OpenMode::kRead ? nullptr : inner_.Open(path, mode);
    }
    std::optional<std::int64_t> FileLength(const Text& path) override {
      return ++asked == 1 ? std::nullopt : inner_.FileLength(path);
    }
  } odd(host.files);
  Through(odd);
  Open();
  EXPECT_EQ(Found(u"x    "), (Texts{u"T:\\d\\1"}));
}

TEST_F(SearchText, ASecondClickSearchesInsideTheFirst) {
  host.files.AddFile(u"T:\\d\\1", "x");
  host.files.AddFile(u"T:\\d\\2", "y");
  Open();
  form().txMain.UserType(u"x");
  front.on_yield = [&](int) {
    front.on_yield = nullptr;
    EXPECT_EQ(Found(u"y"), (Texts{u"T:\\d\\2"}));
  };
  form().btFind.UserClick();
  // The text was taken when the first search began.
  EXPECT_EQ(Listed(), (Texts{u"T:\\d\\1"}));
}

TEST_F(SearchText, ADoubleClickOpensNothing) {
  host.files.AddFile(u"T:\\d\\1", "x");
  Open();
  Found(u"x");
  form().lbMain.UserClick(0);
  form().lbMain.UserDoubleClick();
  EXPECT_TRUE(host.shell.started.empty());
}

TEST_F(SearchText, ClosingTheLastFormEndsTheProcess) {
  Open();
  EXPECT_EQ(test::Ending([&] { form().UserClose(); }), forms::EndReason::kClosed);
}

}  // namespace
}  // namespace orvik
