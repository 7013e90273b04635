#include "platform/app_paths.h"

#include "fileengine/paths.h"
#include "fileengine/pattern.h"
#include "host/registry.h"
#include "platform/registry_layer.h"
#include "platform/text_edits.h"
#include "startup/globals.h"

namespace orvik::mdlSupport {

namespace {
const Text kAppPaths = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";
}

void NormaliseExeName(Text& name) {
  // Without the extension there is nothing to cut.
  CutBehindLast(name, u".exe");
  CutBehindLast(name, u".com");
  if (!Like(name, u"*.exe") && !Like(name, u"*.com") && !name.empty()) name += u".exe";
}

Text GetAppPath(const Text& name) {
  Text program = name;
  NormaliseExeName(program);
  const Text key = kAppPaths + Text(GetFileName(program));
  const Text path = ReadRegValue(host::kLocalMachine, key, u"");
  return ReplaceText(path, u"%SystemRoot%", mdlMain::ReadEnvironment().WindowsFolder);
}

void SetAppPath(const Text& name, const Text& path) {
  Text program = name;
  NormaliseExeName(program);
  WriteRegValue(host::kLocalMachine, kAppPaths + program, u"", path, 0);
}

}  // namespace orvik::mdlSupport
