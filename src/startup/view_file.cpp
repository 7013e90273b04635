// Files and targets shown by other programs.
#include "fileengine/file_operations.h"
#include "fileengine/paths.h"
#include "host/host.h"
#include "platform/app_paths.h"
#include "platform/shortcuts.h"
#include "platform/text_edits.h"
#include "platform/win_dos_conversion.h"
#include "startup/commands.h"
#include "startup/globals.h"

namespace orvik::mdlMain {

namespace {

void Start(const Text& command_line) {
  host::TheShell().Start(command_line, host::WindowState::kNormal);
}

Text InWindowsFolder(TextView program) {
  return mdlSupport::QuotePath(mdlSupport::AddBackslash(ReadEnvironment().WindowsFolder) +
                               Text(program));
}

}  // namespace

void ViewFile(const Text& path) {
  Start(InWindowsFolder(u"NOTEPAD.EXE") + u" " + mdlSupport::QuotePath(path));
}

void ViewAsText(Text text, std::int32_t mode) {
  if (mode == 1) {
    WinDosConv2::ConvertCharToOem(text);
  } else {
    WinDosConv2::ConvertOemToChar(text);
  }
  const Text scratch = mdlSupport::AddBackslash(ReadEnvironment().TEMP) + u"Orvik.txt";
  mdlSupport::AppendToFile(text, scratch, kFalse);
  Start(InWindowsFolder(u"notepad.exe") + u" " + scratch);
}

void ShowShortcutTarget(const Text& shortcut) {
  // Explorer takes the rest of its line for the path: no quotes around it.
  Start(mdlSupport::QuotePath(mdlSupport::GetAppPath(u"explorer")) + u" /select, " +
        mdlSupport::ShortcutTarget(shortcut));
}

}  // namespace orvik::mdlMain
