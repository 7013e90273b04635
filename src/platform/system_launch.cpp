#include "platform/system_launch.h"

#include "base/numbers.h"
#include "fileengine/file_operations.h"
#include "fileengine/paths.h"
#include "fileengine/pattern.h"
#include "host/host.h"
#include "platform/shortcuts.h"
#include "platform/text_edits.h"
#include "platform/win_dos_conversion.h"
#include "startup/globals.h"

namespace orvik::mdlSupport {

Text GetShortName(const Text& path) { return host::Files().ShortName(path).value_or(Text()); }

}  // namespace orvik::mdlSupport

namespace orvik::mdlMain {

namespace {

// Two digits each: unique to the second, for a century.
Text TimeStamp(const host::DateTime& now) {
  return Padded(now.year % 100, 2) + Padded(now.month, 2) + Padded(now.day, 2) +
         Padded(now.hour, 2) + Padded(now.minute, 2) + Padded(now.second, 2);
}

Text BatchText(const Text& program, const Text& windows_folder) {
  const Text lines[] = {
      u"taskkill /F /IM explorer.exe",
      mdlSupport::GetDriveSpec(program),
      u"chdir " + mdlSupport::QuotePath(mdlSupport::GetFolderPath(program)),
      u"start /wait " + mdlSupport::GetShortName(program),
      mdlSupport::GetDriveSpec(windows_folder),
      u"chdir " + windows_folder,
      u"start explorer.exe",
  };
  Text text;
  for (const Text& line : lines) text += line + Text(kCrLf);
  return text;
}

}  // namespace

void RunAsSystem(const Text& program) {
  WinDosConv2::BuildCharTables();
  const EnvironmentInfo environment = ReadEnvironment();
  const Text batch = mdlSupport::AddBackslash(environment.TEMP) + u"wb" +
                     TimeStamp(host::TheSystem().Now()) + u".bat";
  Text text = BatchText(program, environment.WindowsFolder);
  // The command interpreter reads its files in the code page of DOS.
  WinDosConv2::ConvertWinToDos(text);
  mdlSupport::AppendToFile(text, batch, kFalse);
  host::TheShell().Start(batch, host::WindowState::kMinimised);
}

void RedirectShortcut(const Text& shortcut) {
  const Text target = mdlSupport::ShortcutTarget(shortcut);
  // Redirected already, or taken for it because the program's name stands in the path.
  if (!mdlSupport::Like(target, u"*Orvik*")) {
    mdlSupport::RecycleFile(shortcut);
    mdlSupport::SaveShortcut(shortcut, u" /EAS " + target, u"", 0, InstalledExePath,
                             Text(mdlSupport::GetFolderPath(target)), target);
  }
  Shutdown();
}

}  // namespace orvik::mdlMain
