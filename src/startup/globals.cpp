#include "startup/globals.h"

#include <cstdlib>

#include "fileengine/tree_scan.h"
#include "forms/front_end.h"
#include "host/host.h"

namespace orvik::mdlMain {

Text CommandArgs;
Text InstalledExePath;
Flag CompareWithFolder = kFalse;
Flag CompareFileLists = kFalse;
Flag EraseOneFile = kFalse;
std::vector<Text> ScriptLines;
std::int32_t CopyErrorCount = 0;

KeyedCollection DoublesExtraFolders;

std::uint32_t RegRootKey = 0;
Text RegRootPath;
Text RecentPathKey;
Text RecentMaskKey;
Text RecentPath2Key;
Text FileListKey;
Text DoublesSourcesKey;
Text DoublesPatternKey;

EnvironmentInfo ReadEnvironment() {
  EnvironmentInfo info;
  const struct {
    TextView name;
    Text& field;
  } wanted[] = {
      {u"CommonProgramFiles", info.CommonProgramFiles},
      {u"USERNAME", info.UserName},
      {u"COMPUTERNAME", info.ComputerName},
      // Both name the drive of the system; whichever comes later wins.
      {u"HOMEDRIVE", info.SystemDrive},
      {u"SystemDrive", info.SystemDrive},
      {u"OS", info.OS},
      {u"ProgramFiles", info.ProgramFiles},
      {u"windir", info.WindowsFolder},
      {u"TEMP", info.TEMP},
  };
  for (int index = 1; index <= 100; ++index) {
    const auto entry = host::TheSystem().EnvironmentEntry(index);
    if (!entry) break;
    const auto pieces = Split(*entry, u"=");
    if (pieces.size() != 2) continue;
    for (const auto& [name, field] : wanted) {
      if (pieces[0] == name) field = pieces[1];
    }
  }
  return info;
}

bool IsWinNT() { return host::TheSystem().PlatformId() == 2; }

void Shutdown() {
  mdlSupport::ClearScanResults();
  DoublesExtraFolders = {};
  forms::Front().EndProcess(forms::EndReason::kShutdown);
  // Not every compiler believes a virtual routine that it never returns.
  std::abort();
}

}  // namespace orvik::mdlMain
