// The program as its own installer.
#include "fileengine/checksums.h"
#include "fileengine/file_operations.h"
#include "forms/front_end.h"
#include "host/host.h"
#include "platform/app_paths.h"
#include "platform/registry_layer.h"
#include "startup/commands.h"
#include "startup/globals.h"

namespace orvik::mdlMain {

namespace {

// What Explorer offers for a file, and the arguments of this program behind it.
struct MenuEntry {
  const char16_t* key;
  const char16_t* arguments;
  bool only_nt;
};

constexpr MenuEntry kMenu[] = {
    {u"*\\Shell\\Посмотреть как DOS текст\\command", u" /ASD %L", false},
    {u"*\\Shell\\Посмотреть как текст\\command", u" /SHT %L", false},
    {u"lnkfile\\Shell\\Показать объект\\command", u" /GOP %L", false},
    {u"exefile\\Shell\\Запуск Системным\\command", u" /EAS %L", false},
    {u"lnkfile\\Shell\\Запуск Системным\\command", u" /RAS %L", true},
};

void Tell(const Text& text, TextView title) {
  forms::Front().Message(text, Text(title), forms::Icon::kInformation, forms::Buttons::kOk);
}

void WriteMenu() {
  for (const MenuEntry& entry : kMenu) {
    if (entry.only_nt && !IsWinNT()) continue;
    mdlSupport::WriteRegValue(host::kClassesRoot, entry.key, u"",
                              InstalledExePath + entry.arguments, 0);
  }
}

// Explorer is looked up later, to show the targets of shortcuts. No name has this blank at its end,
// so the entry is made anew by every installation.
void RegisterExplorer() {
  if (host::Files().PathExists(mdlSupport::GetAppPath(u"explorer "))) return;
  const Text explorer =
      mdlSupport::ReadRegValue(host::kClassesRoot, u"Drive\\shell\\find\\command", u"");
  mdlSupport::SetAppPath(u"explorer.exe", explorer);
}

}  // namespace

void InstallProgram() {
  // As the system tells it: where programs have no extension, none may be put behind the name, or
  // it would name no file.
  const Text running = host::TheSystem().OwnPath();
  if (mdlSupport::GetFileCRC(running) == mdlSupport::GetFileCRC(InstalledExePath)) {
    Tell(u"Версия " + Text(ProgramTitle) + u" уже установлена", u"Orvik");
    Shutdown();
  }
  mdlSupport::CopyOneFile(running, InstalledExePath, kTrue);
  WriteMenu();
  RegisterExplorer();
  Tell(u"Программа установлена", ProgramTitle);
  Shutdown();
}

}  // namespace orvik::mdlMain
