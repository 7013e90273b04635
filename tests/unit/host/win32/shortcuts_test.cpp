// Shortcuts between this shell and the program's own reader and writer, which stand for it on other
// systems: each reads what the other has written.
#include <optional>
#include <vector>

#include "host/shell_link/shortcut_link.h"
#include "unit/host/win32/fixture.h"

// Behind it, as it needs its types.
#include <shlobj.h>

namespace orvik::host::win32 {
namespace {

class Win32ShortcutsTest : public HostTest {
 protected:
  const CodePage& Page() { return system().AnsiPage(); }

  static std::string Line(const std::optional<Shortcut>& shortcut) {
    if (!shortcut) return "none";
    return ToUtf8(shortcut->target + u"|" + shortcut->arguments + u"|" + shortcut->description +
                  u"|" + shortcut->working_folder + u"|" + shortcut->icon_location) +
           "|" + std::to_string(shortcut->window_style);
  }

  std::optional<ShellLink> LinkIn(const Text& path) {
    const auto file = files().Open(path, OpenMode::kRead);
    if (!file) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(file->Length().value_or(0)), '\0');
    if (file->ReadAt(0, bytes) != bytes.size()) return std::nullopt;
    return ReadShellLink(bytes, Page());
  }

  // Written by this shell, read by the program.
  std::string ByShell(const Shortcut& shortcut) {
    const Text path = In(u"by shell.lnk");
    EXPECT_TRUE(shell().WriteShortcut(path, shortcut));
    const auto link = LinkIn(path);
    return Line(link ? std::optional(ShortcutOf(*link, link->variable_path)) : std::nullopt);
  }

  // Written by the program, read by this shell.
  std::string ByProgram(const Shortcut& shortcut, const TargetFacts& facts) {
    const auto bytes = WriteShellLink(LinkOf(shortcut, shortcut.target, facts), Page());
    if (!bytes) return "not written";
    return Line(shell().ReadShortcut(Make(u"by program.lnk", *bytes)));
  }

  void ExpectBothWays(const Shortcut& shortcut, const TargetFacts& facts) {
    EXPECT_EQ(ByShell(shortcut), Line(shortcut));
    EXPECT_EQ(ByProgram(shortcut, facts), Line(shortcut));
  }

  static Shortcut To(const Text& target) {
    Shortcut shortcut;
    shortcut.target = target;
    return shortcut;
  }
};

TEST_F(Win32ShortcutsTest, AllFields) {
  Shortcut shortcut = To(Make(u"Цель с пробелом.txt"));
  shortcut.arguments = u" /a \"b c\" ключ ";
  shortcut.description = u"Описание ярлыка";
  shortcut.working_folder = In(u"Рабочая папка\\");
  shortcut.icon_location = u"C:\\Значки, новые\\файл.dll,-12";
  shortcut.window_style = 7;
  ExpectBothWays(shortcut, {false, 3});
}

TEST_F(Win32ShortcutsTest, TargetsThatAreThere) {
  ExpectBothWays(To(Make(u"plain")), {false, 3});
  ExpectBothWays(To(MakeFolder(u"Папка")), {true, 3});
  ExpectBothWays(To(MakeFolder(u"Папка\\with blanks")), {true, 3});
  ExpectBothWays(To(u"C:\\"), {true, 3});
}

TEST_F(Win32ShortcutsTest, TargetsThatArent) {
  ExpectBothWays(To(u"Q:\\"), {true, 1});
  ExpectBothWays(To(u"Q:\\gone away\\нет.exe"), {false, 1});
  ExpectBothWays(To(u"\\\\server\\share"), {});
  ExpectBothWays(To(u"\\\\server\\share\\дир\\файл с пробелом.txt"), {});
  ExpectBothWays(To(u"Q:\\" + Text(kLongestPath - 3, u'ж')), {false, 1});
  ExpectBothWays(To(u""), {});
}

TEST_F(Win32ShortcutsTest, WindowStyles) {
  for (const int style : {0, 1, 2, 3, 7, 99}) {
    Shortcut shortcut = To(u"Q:\\x");
    shortcut.window_style = style;
    ExpectBothWays(shortcut, {false, 1});
  }
}

TEST_F(Win32ShortcutsTest, Icons) {
  for (const Text icon : {u"C:\\a.ico", u"C:\\a.dll,3", u"C:\\a.dll,-3", u"C:\\a, b.ico", u",3"}) {
    Shortcut shortcut = To(u"Q:\\x");
    shortcut.icon_location = icon;
    ExpectBothWays(shortcut, {false, 1});
  }
}

// What this shell says of the way to a target, beside the plain path.
TEST_F(Win32ShortcutsTest, TheShellsItemsLeadToTheTarget) {
  const Text target = Make(u"Длинное имя файла.txt");
  ASSERT_TRUE(shell().WriteShortcut(In(u"a.lnk"), To(target)));
  const auto link = LinkIn(In(u"a.lnk"));
  ASSERT_TRUE(link);
  EXPECT_EQ(ToUtf8(ToLower(link->item_path)), ToUtf8(ToLower(target)));
  EXPECT_EQ(ToUtf8(link->local_path), ToUtf8(target));
}

// The items of the program must be ones that the shell can follow.
TEST_F(Win32ShortcutsTest, TheProgramsItemsAreFollowedByTheShell) {
  const Text target = Make(u"Файл с пробелом.txt");
  const auto bytes = WriteShellLink(LinkOf(To(target), target, {false, 3}), Page());
  ASSERT_TRUE(bytes);
  constexpr std::size_t kFirstItem = 0x4E;  // behind the header and the size of the list
  std::vector<char> list(bytes->begin() + kFirstItem, bytes->end());
  wchar_t path[MAX_PATH] = {};
  ASSERT_TRUE(SHGetPathFromIDListW(reinterpret_cast<LPCITEMIDLIST>(list.data()), path));
  EXPECT_EQ(ToUtf8(Text(path, path + wcslen(path))), ToUtf8(target));
}

}  // namespace
}  // namespace orvik::host::win32
