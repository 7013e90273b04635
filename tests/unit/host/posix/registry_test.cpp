// The registry's file between processes, and when it is damaged or can't be written.
#include "host/posix/registry.h"

#include <sys/wait.h>

#include "host/posix/registry_text.h"
#include "unit/host/posix/posix_test.h"

namespace orvik::host::posix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class PosixRegistryTest : public PosixTest {
 protected:
  std::string File() const { return folder_ + "/registry.reg"; }
  std::string Content() const { return ToUtf8(DecodeRegistryFile(ReadNative(File())).text); }
  void Put(std::string_view bytes) const { std::ofstream(File(), std::ios::binary) << bytes; }

  bool Set(Registry& registry, const Text& name, const Text& data) {
    const Registry::Handle key = registry.CreateKey(kLocalMachine, u"SOFTWARE\\x");
    const bool set = registry.SetValue(key, name, kTextValue, data);
    registry.CloseKey(key);
    return set;
  }

  std::vector<std::string> Values(Registry& registry) {
    std::vector<std::string> values;
    const Registry::Handle key = registry.OpenKey(kLocalMachine, u"SOFTWARE\\x");
    for (std::uint32_t i = 0; const auto value = registry.ValueAt(key, i); ++i) {
      values.push_back(ToUtf8(value->name) + "=" + ToUtf8(value->data));
    }
    registry.CloseKey(key);
    return values;
  }
};

TEST_F(PosixRegistryTest, TheFileIsWhatTheEditorOfWindowsExports) {
  EXPECT_TRUE(Set(keys(), u"имя", u"C:\\x"));
  EXPECT_EQ(ReadNative(File()).substr(0, 4), std::string("\xFF\xFEW\0", 4));
  EXPECT_EQ(Content(),
            "Windows Registry Editor Version 5.00\r\n"
            "\r\n[HKEY_LOCAL_MACHINE]\r\n"
            "\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE]\r\n"
            "\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\x]\r\n"
            "\"имя\"=\"C:\\\\x\"\r\n");
}

TEST_F(PosixRegistryTest, TheFolderOfTheFileIsMade) {
  Options options = OptionsFor(folder_);
  options.registry_file = folder_ + "/new/deep/r.reg";
  PosixHost host(options);
  EXPECT_TRUE(Set(*host.services().registry, u"a", u"1"));
  EXPECT_NE(ReadNative(options.registry_file), "");
}

TEST_F(PosixRegistryTest, AnotherProcesssChangesAreSeenAndKept) {
  PosixHost other(OptionsFor(folder_));
  EXPECT_TRUE(Set(keys(), u"a", u"1"));
  EXPECT_TRUE(Set(*other.services().registry, u"b", u"2"));
  EXPECT_TRUE(Set(keys(), u"c", u"3"));
  EXPECT_THAT(Values(*other.services().registry), ElementsAre("a=1", "b=2", "c=3"));
}

TEST_F(PosixRegistryTest, ProcessesAtTheSameTimeLoseNothing) {
  constexpr int kProcesses = 4;
  constexpr int kValues = 50;
  std::vector<pid_t> children;
  for (int process = 0; process < kProcesses; ++process) {
    const pid_t child = ::fork();
    if (child == 0) {
      PosixHost host(OptionsFor(folder_));
      bool all = true;
      for (int i = 0; i < kValues; ++i) {
        const std::string name = std::to_string(process) + "-" + std::to_string(i);
        all &= Set(*host.services().registry, FromUtf8(name), u"x");
      }
      ::_exit(all ? 0 : 1);
    }
    children.push_back(child);
  }
  for (const pid_t child : children) {
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  EXPECT_EQ(Values(keys()).size(), static_cast<std::size_t>(kProcesses * kValues));
}

TEST_F(PosixRegistryTest, ADamagedFileLosesNothing) {
  Put("\xFF\xFE");
  EXPECT_TRUE(Set(keys(), u"a", u"1"));
  Put("Windows Registry Editor Version 5.00\n\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\x]\n"
      "\"a\"=\"1\"\n\"cut\"=\"off");
  EXPECT_THAT(Values(keys()), ElementsAre("a=1"));
  EXPECT_TRUE(Set(keys(), u"b", u"2"));
  EXPECT_THAT(Values(keys()), ElementsAre("a=1", "b=2"));
  EXPECT_THAT(ReadNative(File()), HasSubstr("\"cut\"=\"off\r\n"));
}

TEST_F(PosixRegistryTest, AFileThatIsNoTextIsPutAside) {
  const std::string garbage("\x01\xFF\xC3\x28 garbage \0 more", 18);
  Put(garbage);
  EXPECT_TRUE(Set(keys(), u"a", u"1"));
  EXPECT_THAT(Values(keys()), ElementsAre("a=1"));
  EXPECT_EQ(ReadNative(File() + ".saved"), garbage);
  EXPECT_TRUE(Set(keys(), u"b", u"2"));
  EXPECT_EQ(ReadNative(File() + ".saved1"), "");
}

TEST_F(PosixRegistryTest, AFileCutInTheMiddleOfACharacterIsPutAside) {
  EXPECT_TRUE(Set(keys(), u"a", u"1"));
  const std::string whole = ReadNative(File());
  Put(whole.substr(0, whole.size() - 1));
  EXPECT_TRUE(Set(keys(), u"b", u"2"));
  EXPECT_EQ(ReadNative(File() + ".saved"), whole.substr(0, whole.size() - 1));
  EXPECT_THAT(Values(keys()), ElementsAre("a=1", "b=2"));
}

TEST_F(PosixRegistryTest, AWriteProtectedFileStays) {
  EXPECT_TRUE(Set(keys(), u"a", u"1"));
  const std::string before = ReadNative(File());
  ASSERT_EQ(::chmod(File().c_str(), 0444), 0);
  EXPECT_FALSE(Set(keys(), u"b", u"2"));
  EXPECT_THAT(Values(keys()), ElementsAre("a=1"));
  EXPECT_EQ(ReadNative(File()), before);
}

TEST_F(PosixRegistryTest, AFolderInItsPlaceIsNotReplaced) {
  ASSERT_EQ(::mkdir(File().c_str(), 0777), 0);
  EXPECT_FALSE(Set(keys(), u"a", u"1"));
  EXPECT_TRUE(Values(keys()).empty());
  EXPECT_EQ(keys().CreateKey(kLocalMachine, u"SOFTWARE\\x"), 0U);
}

TEST_F(PosixRegistryTest, ALinkToTheFileStaysALink) {
  ASSERT_EQ(::symlink("elsewhere.reg", File().c_str()), 0);
  std::ofstream(folder_ + "/elsewhere.reg") << "";
  EXPECT_TRUE(Set(keys(), u"a", u"1"));
  struct stat status;
  ASSERT_EQ(::lstat(File().c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  EXPECT_NE(ReadNative(folder_ + "/elsewhere.reg"), "");
}

TEST_F(PosixRegistryTest, NothingIsLeftBesideTheFile) {
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(Set(keys(), u"a", FromUtf8(std::to_string(i))));
  EXPECT_EQ(std::system(("test $(ls -A '" + folder_ + "' | wc -l) = 3").c_str()), 0);
}

TEST_F(PosixRegistryTest, KeysOfOtherTypesAreReadAsEmptyAndKept) {
  Put("Windows Registry Editor Version 5.00\n\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\x]\n"
      "\"n\"=dword:0000000A\n\"b\"=hex:01,\\\n  02\n");
  EXPECT_THAT(Values(keys()), ElementsAre("n=", "b="));
  EXPECT_TRUE(Set(keys(), u"c", u"1"));
  EXPECT_THAT(ReadNative(File()), HasSubstr("\"n\"=dword:0000000A\r\n\"b\"=hex:01,\\\r\n  02\r\n"));
}

TEST_F(PosixRegistryTest, KeysWithLineBreaksAreRefused) {
  EXPECT_EQ(keys().CreateKey(kLocalMachine, u"a\nb"), 0U);
  EXPECT_EQ(keys().CreateKey(kLocalMachine, Text(300, u'k')), 0U);
}

}  // namespace
}  // namespace orvik::host::posix
