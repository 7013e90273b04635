#include "platform/shortcuts.h"

#include "base/failure.h"
#include "fileengine/paths.h"
#include "fileengine/walker.h"
#include "forms/front_end.h"
#include "host/host.h"
#include "platform/drives.h"
#include "startup/globals.h"

namespace orvik::mdlSupport {

void SaveShortcut(const Text& shortcut, const Text& arguments, const Text& description,
                  int window_style, const Text& target, const Text& working_folder,
                  const Text& icon_location) {
  host::Shell& shell = host::TheShell();
  host::Shortcut saved = shell.ReadShortcut(shortcut).value_or(host::Shortcut());
  if (!arguments.empty()) saved.arguments = arguments;
  if (!description.empty()) saved.description = description;
  saved.window_style = window_style;
  saved.target = target;
  saved.working_folder = working_folder;
  if (!icon_location.empty()) saved.icon_location = icon_location;
  shell.WriteShortcut(shortcut, saved);
}

Text ShortcutTarget(const Text& shortcut) {
  return host::TheShell().ReadShortcut(shortcut).value_or(host::Shortcut()).target;
}

}  // namespace orvik::mdlSupport

namespace orvik::mdlMain {

void CheckShortcut(const Text& shortcut) {
  constexpr std::size_t kDriveLength = 2;
  const Text target = mdlSupport::ShortcutTarget(shortcut);
  // Nothing is left of a target too short to be cut, and the bare drive is tested: that exists.
  const Text tail = target.size() < kDriveLength ? Text() : target.substr(kDriveLength);
  if (host::Files().PathExists(target)) return;
  for (const Text& drive : mdlSupport::ListDrives(host::drive_type::kFixed)) {
    const Text candidate = drive + tail;
    if (!host::Files().PathExists(candidate)) continue;
    mdlSupport::SaveShortcut(Text(mdlSupport::GetFileName(shortcut)), u"", u"", 0, candidate,
                             Text(mdlSupport::GetFolderPath(candidate)), u"");
    return;
  }
}

void CheckShortcutFolder(const Text& folder) {
  Text root = folder;
  std::vector<Text> shortcuts;
  Attempt([&] { mdlSupport::WalkFiles(root, u"*.lnk", shortcuts, kFalse); });
  // Above 0, not above -1: a single shortcut isn't checked.
  if (mdlSupport::UpperBoundOrMinusOne(shortcuts) > 0) {
    for (const Text& shortcut : shortcuts) CheckShortcut(shortcut);
  }
  forms::Front().Message(u"Shorcuts checked", Text(ProgramTitle), forms::Icon::kInformation,
                         forms::Buttons::kOk);
}

}  // namespace orvik::mdlMain
