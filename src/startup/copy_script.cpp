#include "copying/frm_main.h"
#include "fileengine/file_operations.h"
#include "fileengine/walker.h"
#include "forms/front_end.h"
#include "forms/instance.h"
#include "host/host.h"
#include "startup/commands.h"
#include "startup/globals.h"

namespace orvik::mdlMain {

namespace {

void Refuse(const Text& reason) {
  forms::Front().Message(reason, Text(ProgramTitle), forms::Icon::kCritical, forms::Buttons::kOk);
}

}  // namespace

void RunCopyScript(const Text& path) {
  if (!host::Files().PathExists(path)) {
    Refuse(u"File not found");
    return;
  }
  const Text content = mdlSupport::ReadWholeFile(path);
  const auto lines = Split(content, kCrLf);
  ScriptLines.assign(lines.begin(), lines.end());
  // Another word, or no line at all, is answered by silence, not by "Wrong parameters".
  if (ScriptLines.empty() || ToLower(ScriptLines[0]) != u"foldercopy") return;
  const std::int32_t last = mdlSupport::UpperBoundOrMinusOne(ScriptLines);
  if (last < 2) {
    Refuse(u"Wrong parameters");
    return;
  }
  if (last == 2) ScriptLines.emplace_back(u"*.*");
  forms::The<frmMain>().Show();
}

}  // namespace orvik::mdlMain
