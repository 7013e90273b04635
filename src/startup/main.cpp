#include "startup/main.h"

#include <algorithm>
#include <iterator>

#include "cleaning/frm_empty_folders.h"
#include "cleaning/frm_eraser.h"
#include "copying/frm_main.h"
#include "duplicates/frm_doubles.h"
#include "filebase/frm_file_base.h"
#include "fileengine/checksums.h"
#include "fileengine/file_operations.h"
#include "fileengine/frm_file_crc.h"
#include "fileengine/paths.h"
#include "filelists/frm_crc.h"
#include "filelists/frm_create_file_list.h"
#include "forms/front_end.h"
#include "forms/instance.h"
#include "host/registry.h"
#include "monitors/frm_file_lock.h"
#include "monitors/frm_search_text.h"
#include "monitors/frm_watch_folder_size.h"
#include "platform/punto.h"
#include "platform/shortcuts.h"
#include "platform/system_launch.h"
#include "startup/commands.h"
#include "startup/globals.h"

namespace orvik::mdlMain {

namespace {

constexpr std::size_t kSwitchLength = 5;
constexpr std::int32_t kFromDos = 2;  // the mode of ViewAsText

// The blank belongs to the switch.
struct Switch {
  TextView name;
  void (*act)();
};

template <typename FormClass>
void Show() {
  forms::The<FormClass>().Show();
}

constexpr Switch kSwitches[] = {
    {u"/EFD ", Show<frmEmptyFolders>},
    {u"/CRC ", Show<frmCRC>},
    {u"/CPR ",
     [] {
       CompareWithFolder = kTrue;
       Show<frmCRC>();
     }},
    {u"/DBL ", Show<frmDoubles>},
    {u"/CML ",
     [] {
       CompareFileLists = kTrue;
       Show<frmCRC>();
     }},
    {u"/FCR ", Show<frmFileCRC>},
    {u"/CRL ", Show<frmCreateFileList>},
    {u"/TOB ", Show<frmFileBase>},
    {u"/LCK ", Show<frmFileLock>},
    {u"/SRT ", Show<frmSearchText>},
    {u"/WTH ", Show<frmWatchFolderSize>},
    {u"/SHT ", [] { ViewFile(CommandArgs); }},
    {u"/FLE ",
     [] {
       EraseOneFile = kTrue;
       Show<frmEraser>();
     }},
    {u"/DRE ", Show<frmEraser>},
    {u"/NPS ", [] { AddToPunto(CommandArgs); }},
    {u"/RAS ", [] { RunAsSystem(mdlSupport::ShortcutTarget(CommandArgs)); }},
    {u"/EAS ", [] { RunAsSystem(CommandArgs); }},
    {u"/XOR ", [] { XorFile(CommandArgs); }},
    {u"/DXR ",
     [] { XorFolder(CommandArgs, forms::Front().AskText(u"PassKey", Text(ProgramTitle))); }},
    {u"/ASD ", [] { ViewAsText(mdlSupport::ReadWholeFile(CommandArgs), kFromDos); }},
    {u"/GOP ", [] { ShowShortcutTarget(CommandArgs); }},
    {u"/CHS ", [] { RedirectShortcut(CommandArgs); }},
    {u"/SYF ", [] { RunCopyScript(CommandArgs); }},
    {u"/SCH ", Show<frmMain>},
    {u"/SHP ", [] { CheckShortcut(CommandArgs); }},
    {u"/FSP ", [] { CheckShortcutFolder(CommandArgs); }},
};

void SetRegistryPlaces() {
  RegRootKey = host::kLocalMachine;
  RegRootPath = u"SOFTWARE\\Ib Tarn\\Orvik";
  RecentPathKey = RegRootPath + u"\\Recent Path";
  RecentMaskKey = RegRootPath + u"\\Recent Mask";
  RecentPath2Key = RegRootPath + u"\\Recent Path2";
  FileListKey = RegRootPath + u"\\FileList";
  DoublesSourcesKey = RegRootPath + u"\\Doubles Sources";
  DoublesPatternKey = RegRootPath + u"\\Doubles Pattern List";
}

}  // namespace

void Main(const Text& command_line) {
  CommandArgs = command_line;
  mdlSupport::InitCRCTable();
  InstalledExePath = mdlSupport::AddBackslash(ReadEnvironment().WindowsFolder) + u"Orvik.exe";
  if (CommandArgs.empty()) InstallProgram();
  SetRegistryPlaces();
  const Text name = ToUpper(TextView(CommandArgs).substr(0, kSwitchLength));
  // A shorter line can't be cut and stays whole.
  if (CommandArgs.size() >= kSwitchLength) CommandArgs.erase(0, kSwitchLength);
  const auto known = std::find_if(std::begin(kSwitches), std::end(kSwitches),
                                  [&](const Switch& entry) { return entry.name == name; });
  if (known == std::end(kSwitches)) Shutdown();
  known->act();
}

}  // namespace orvik::mdlMain
