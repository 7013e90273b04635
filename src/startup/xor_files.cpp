// Files scrambled under a key.
#include "base/failure.h"
#include "fileengine/file_operations.h"
#include "fileengine/walker.h"
#include "forms/front_end.h"
#include "platform/xor_text.h"
#include "startup/commands.h"
#include "startup/globals.h"

namespace orvik::mdlMain {

void XorFile(const Text& path) {
  Text content = mdlSupport::ReadWholeFile(path);
  const Text key = forms::Front().AskText(u"Key please", Text(ProgramTitle));
  XorText(content, key);
  mdlSupport::AppendToFile(content, path, kFalse);
  forms::Front().Message(u"Complete", Text(ProgramTitle), forms::Icon::kInformation,
                         forms::Buttons::kOk);
}

void XorFolder(const Text& folder, const Text& key) {
  Text root = folder;
  std::vector<Text> files;
  Attempt([&] { mdlSupport::WalkFiles(root, u"*.*", files, kFalse); });
  for (const Text& path : files) {
    Text content = mdlSupport::ReadWholeFile(path);
    XorText(content, key);
    mdlSupport::AppendToFile(content, path, kFalse);
  }
  forms::Front().Message(u"Work Complete!", Text(ProgramTitle), forms::Icon::kNone,
                         forms::Buttons::kOk);
  Shutdown();
}

}  // namespace orvik::mdlMain
