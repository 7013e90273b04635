// The program-wide variables, and the few routines that every form calls.
#pragma once

#include <cstdint>
#include <vector>

#include "base/checked.h"
#include "base/keyed_collection.h"
#include "base/text.h"

namespace orvik::mdlMain {

// The title of almost every message box.
inline constexpr TextView ProgramTitle = u"zKelmar's Orvik  v 0.9.8.3 FN";

// Each lives for the whole process. Main sets them before it shows a form; nothing resets the
// flags.

// The text behind the switch, exactly as it was delivered: quotes, blanks and case kept.
extern Text CommandArgs;
// The Windows folder with a closing backslash, then "Orvik.exe".
extern Text InstalledExePath;
// Makes frmCRC compare the folder of CommandArgs with a second one.
extern Flag CompareWithFolder;
// Makes frmCRC compare file lists.
extern Flag CompareFileLists;
// Makes frmEraser treat CommandArgs as one file instead of a folder.
extern Flag EraseOneFile;
// The lines of a copy script; without elements when no script was given.
extern std::vector<Text> ScriptLines;
// The errors of the last copy job.
extern std::int32_t CopyErrorCount;

// The folders that a duplicate search walks behind the one of CommandArgs.
extern KeyedCollection DoublesExtraFolders;

// Where a registry operation goes that is given the key 0 and the path "".
extern std::uint32_t RegRootKey;
extern Text RegRootPath;
// The keys of the lists, below RegRootPath.
extern Text RecentPathKey;
extern Text RecentMaskKey;
extern Text RecentPath2Key;
extern Text FileListKey;
extern Text DoublesSourcesKey;
extern Text DoublesPatternKey;

struct EnvironmentInfo {
  Text CommonProgramFiles;
  Text UserName;
  Text ComputerName;
  Text SystemDrive;
  Text OS;
  Text ProgramFiles;
  Text WindowsFolder;
  Text TEMP;
};

// Reads the first hundred entries of the process environment. An entry whose value holds a "=" is
// passed over, names are compared exactly, and a field without its entry stays empty.
EnvironmentInfo ReadEnvironment();

// True on a system of the NT line.
bool IsWinNT();

// Ends the process at once, also with forms open.
[[noreturn]] void Shutdown();

}  // namespace orvik::mdlMain
