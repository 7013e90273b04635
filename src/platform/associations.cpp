#include "platform/associations.h"

#include "fileengine/paths.h"
#include "fileengine/pattern.h"
#include "host/host.h"
#include "platform/registry_layer.h"
#include "platform/text_edits.h"

namespace orvik::mdlSupport {

namespace {

constexpr TextView kSystemRoot = u"%SystemRoot%";
// What the system folder stands for in a command. That the second half is really there isn't
// looked at: as many characters go in any case.
constexpr TextView kSystemFolder = u"%SystemRoot%\\system32";

void Start(const Text& command_line) {
  host::TheShell().Start(command_line, host::WindowState::kNormal);
}

// The command that the system has for an extension, without quotes at its ends.
Text AssociatedCommand(TextView extension) {
  const Text kind = ReadRegValue(host::kClassesRoot, u"." + Text(extension), u"");
  return StripQuotes(ReadRegValue(host::kClassesRoot, kind + u"\\Shell\\Open\\Command", u""));
}

// Cuts a command down to its program. False when there is none in it.
bool KeepProgram(Text& command) {
  constexpr std::size_t kExtensionLength = 4;
  std::size_t at = FindNoCase(command, u".exe");
  if (at == Text::npos) at = FindNoCase(command, u".com");
  if (at == Text::npos) return false;
  // A single character behind the extension stays.
  const std::size_t end = at + kExtensionLength;
  if (end + 1 != command.size()) command.resize(end);
  return true;
}

}  // namespace

void OpenWithAssociation(const Text& path) {
  if (!host::Files().PathExists(path)) return;
  if (Like(path, u"*.exe") || Like(path, u"*.com")) {
    Start(QuotePath(path));
    return;
  }
  if (path.find(u'.') == Text::npos) return;
  constexpr std::size_t kTaken = 3;
  const TextView extension = TextView(path).substr(path.size() > kTaken ? path.size() - kTaken : 0);
  Text command = AssociatedCommand(extension);
  if (!KeepProgram(command)) return;
  if (command.find(kSystemRoot) != Text::npos) {
    command.replace(0, kSystemFolder.size(), GetSystemFolder());
  }
  Start(QuotePath(command) + u" " + QuotePath(path));
}

}  // namespace orvik::mdlSupport
